#pragma once

#include "UI/CKyUIBaseView.h"
#include "UI/CKyUISignal.h"

#include <QtCore/QString>
#include <QtGui/QIcon>

// A push button with a text and an optional icon. Alignment and bold text are
// written into the button's own style sheet, on top of the dialog's theme.
class COMMONUI_EXPORT CKyUIPushButton : public CKyUIBaseView
{
public:
    enum TextAlignment : int {
        Left = 0,
        Right = 1,
        Center = 2,
    };

    CKyUIPushButton();
    ~CKyUIPushButton() override;

    void setText(const QString& text);
    QString text() const;
    void setIcon(const QIcon& icon);
    // Does nothing: the path is neither stored nor loaded. Use setIcon.
    void setResourceIcon(const QString& path);

    // Any other value removes the alignment from the sheet.
    void setTextAlignment(TextAlignment alignment);
    void setBoldText(bool bold);
    void setToolTip(const QString& toolTip);
    void setCheckable(bool checkable);

    // Always carries true, whether the button is checkable or checked.
    CKyUISignal<void(bool)>& clicked();
};
