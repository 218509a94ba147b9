#pragma once

#include "UI/CKyUIBaseView.h"
#include "UI/CKyUISignal.h"

#include <QtCore/QString>
#include <QtGui/QIcon>

/// A push button with a text and an optional icon, whose clicked() always
/// carries `true` (see \ref behaviours_controls "behaviours"). Alignment and
/// bold text are written into the button's own style sheet, on top of the
/// dialog's theme.
///
/// Reports clicks through clicked(), always with `true`; an interactive button
/// (see setInteractive()) also reports pressed() and released(), and a
/// checkable one its checked state with clicked(). Every such button
/// becomes the dialog's default button while it has the focus; a text edit
/// keeps Return and Enter to itself, so they never press it from there.
///
/// \image html buttons-and-text.png "Push buttons, labels, text edits and a text view"
class COMMONUI_EXPORT CKyUIPushButton : public CKyUIBaseView
{
public:
    /// Where setTextAlignment() puts the text.
    enum TextAlignment : int {
        Left = 0,   ///< Against the left edge.
        Right = 1,  ///< Against the right edge.
        Center = 2, ///< Centred.
    };

    /// A button with no text, created with its widget.
    CKyUIPushButton();
    ~CKyUIPushButton() override;

    /// Stores the text and shows it.
    void setText(const QString& text);
    /// The stored text (not read back from the widget).
    QString text() const;
    /// Stores the icon and shows it beside the text.
    void setIcon(const QIcon& icon);
    /// Does nothing: the path is neither stored nor loaded. Use setIcon.
    /// Interactive: loads the icon from the resource path (":/...") or file
    /// and sets it as setIcon() does. A path given before the button became
    /// interactive is loaded then, unless setIcon() came after it.
    void setResourceIcon(const QString& path);

    /// Writes the alignment into the button's style sheet, replacing an
    /// earlier one. Any other value removes the alignment from the sheet.
    void setTextAlignment(TextAlignment alignment);
    /// Writes bold or normal weight into the button's style sheet, replacing
    /// an earlier keyword weight (a numeric weight stays, ahead of it).
    /// Interactive: a numeric weight goes too.
    void setBoldText(bool bold);
    /// Sets the widget's tool tip; toolTip() reads it back.
    void setToolTip(const QString& toolTip);
    /// Makes the button checkable; clicked() still carries true, unless the
    /// button is interactive.
    void setCheckable(bool checkable);

    /// Emitted when the user clicks the button. Always carries true, whether
    /// the button is checkable or checked. Interactive: a checkable button
    /// carries its new checked state; any other still carries true.
    CKyUISignal<void(bool)>& clicked();
    /// Emitted when the user presses the button down, only while it is
    /// interactive.
    CKyUISignal<void()>& pressed();
    /// Emitted when the user lets the button go, only while it is interactive;
    /// before clicked().
    CKyUISignal<void()>& released();
};
