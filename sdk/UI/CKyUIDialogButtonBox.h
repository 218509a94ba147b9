#pragma once

#include "UI/CKyUIBaseView.h"
#include "UI/CKyUISignal.h"

#include <QtCore/QFlags>

class CKyUIDialog;
class CKyUIPushButton;

/// The row of OK, Cancel and Help at the foot of a dialog, which never closes
/// the dialog by itself and always shows all three buttons (see
/// \ref behaviours_dialog "behaviours"). Create it last in the dialog's
/// SetupUI(): it joins the end of the dialog's root layout and becomes the
/// dialog's child. It never closes the dialog by itself: connect accepted() and
/// rejected() to the dialog's accept() and reject().
///
/// \code
/// auto* buttons = new CKyUIDialogButtonBox(this);
/// buttons->accepted().connect([this]() { accept(); });
/// buttons->rejected().connect([this]() { reject(); });
/// \endcode
///
/// Pressing OK emits clicked() and then accepted(); Cancel clicked() and then
/// rejected(); Help clicked() only.
///
/// **Interactive** (setInteractive(), usually through the dialog's):
/// setStandardButtons() chooses the buttons, clicked() carries the wrapper of
/// the button pressed, Help emits helpRequest(), and the wrappers follow the
/// box's switch. When the dialog's accepted() or rejected() answers this box's
/// own accepted() or rejected() (the slot called accept() or reject()), it is
/// not reported back as a second press.
///
/// \image html buttons-and-text.png "A dialog with its button box at the foot"
class COMMONUI_EXPORT CKyUIDialogButtonBox : public CKyUIBaseView
{
public:
    /// The box's buttons, with the toolkit's values.
    enum StandardButton : int {
        Ok = 0x00000400,     ///< The OK button.
        Cancel = 0x00400000, ///< The Cancel button.
        Help = 0x01000000,   ///< The Help button.
    };
    /// A combination of standard buttons.
    typedef QFlags<StandardButton> StandardButtons;

    /// Raising the dialog's accepted() (rejected()) is reported as a click of
    /// OK (Cancel) and then as this box's accepted() (rejected()).
    ///
    /// The dialog must be running its SetupUI(): the box needs its root
    /// layout. The dialog owns the box and deletes it with itself.
    explicit CKyUIDialogButtonBox(CKyUIDialog* dialog);
    ~CKyUIDialogButtonBox() override;

    /// Does nothing: the box always shows OK, Cancel and Help. An interactive
    /// box shows the buttons chosen (of these three); the last choice applies
    /// when the box is switched on, and switching off brings all three back.
    void setStandardButtons(StandardButtons buttons);
    /// The wrapper of one standard button; null for anything else, combinations
    /// of flags included, and, when the box is interactive, for a button it
    /// does not show. A press of the toolkit button reaches clients only as
    /// this box's signals, not as the wrapper's clicked(). The box owns the
    /// wrappers.
    CKyUIPushButton* button(StandardButton which) const;

    /// Emitted when OK is pressed, after clicked(), and when client code
    /// raises the dialog's accepted().
    CKyUISignal<void()>& accepted();
    /// Carries the Help wrapper whichever button was pressed; when the box is
    /// interactive, the wrapper of the button pressed.
    CKyUISignal<void(CKyUIPushButton*)>& clicked();
    /// Never emitted, unless the box is interactive: then when Help is
    /// pressed, after clicked().
    CKyUISignal<void()>& helpRequest();
    /// Emitted when Cancel is pressed, after clicked(), and when client code
    /// raises the dialog's rejected().
    CKyUISignal<void()>& rejected();
};

Q_DECLARE_OPERATORS_FOR_FLAGS(CKyUIDialogButtonBox::StandardButtons)
