#pragma once

#include "UI/CKyUIBaseView.h"

#include <QtCore/QString>
#include <QtGui/QIcon>

/// A line of text or a small icon, whose clear() keeps the icon and whose font
/// sizes with a 0 in them stay in its style sheet (see
/// \ref behaviours_controls "behaviours"). Boldness and font size live in the
/// label's own style sheet, on top of the theme the dialog sets (which gives
/// labels a 12-pixel font and a padding of 5 pixels). A label has no signals.
///
/// \image html buttons-and-text.png "Labels among the push buttons and text fields"
class COMMONUI_EXPORT CKyUILabel : public CKyUIBaseView
{
public:
    /// An empty label, created with its widget.
    CKyUILabel();
    ~CKyUILabel() override;

    /// Stores the text and shows it.
    void setText(const QString& text);
    /// The stored text.
    QString text() const;
    /// Empties the text only; an icon set earlier stays recorded.
    void clear();

    /// Shown as a pixmap of at most 25x25 pixels; a larger icon is scaled
    /// down, a smaller one is not enlarged.
    void setIcon(const QIcon& icon);

    /// Writes bold or normal weight into the label's style sheet. Interactive
    /// (see setInteractive()): any earlier weight declaration goes first.
    void setBoldText(bool bold);
    /// In pixels. A size whose digits contain a 0 (10, 20, 105...) stays in
    /// the style sheet when a later size is set; the later one wins, but the
    /// sheet grows by one declaration for each such call, so set such sizes
    /// once rather than often. Interactive (see setInteractive()): any earlier
    /// size declaration goes first, so the sheet keeps one.
    void setFontSize(int size);

    /// Stores the flag and lets long text wrap onto further lines.
    void setWordWrap(bool on);
    /// The stored flag; false until set.
    bool wordWrap() const;

    /// Stores the tool tip and sets it on the widget; toolTip() reads it
    /// back, and CKyUIBaseView::setToolTip() is the same operation.
    void setToolTip(const QString& toolTip);
};
