#pragma once

#include "UI/CKyUIBaseView.h"

#include <QtCore/QString>
#include <QtGui/QIcon>

// A line of text or a small icon. Boldness and font size live in the label's
// own style sheet, on top of the theme the dialog sets.
class COMMONUI_EXPORT CKyUILabel : public CKyUIBaseView
{
public:
    CKyUILabel();
    ~CKyUILabel() override;

    void setText(const QString& text);
    QString text() const;
    // Empties the text only; an icon set earlier stays recorded.
    void clear();

    // Shown as a pixmap of at most 25x25 pixels.
    void setIcon(const QIcon& icon);

    void setBoldText(bool bold);
    // In pixels.
    void setFontSize(int size);

    void setWordWrap(bool on);
    bool wordWrap() const;

    void setToolTip(const QString& toolTip);
};
