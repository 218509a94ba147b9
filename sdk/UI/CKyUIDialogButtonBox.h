#pragma once

#include "UI/CKyUIBaseView.h"
#include "UI/CKyUISignal.h"

#include <QtCore/QFlags>

class CKyUIDialog;
class CKyUIPushButton;

// The row of OK, Cancel and Help at the foot of a dialog. Create it last in
// the dialog's SetupUI(): it joins the end of the dialog's root layout and
// becomes the dialog's child. It never closes the dialog by itself: connect
// accepted() and rejected() to the dialog's accept() and reject().
class COMMONUI_EXPORT CKyUIDialogButtonBox : public CKyUIBaseView
{
public:
    enum StandardButton : int {
        Ok = 0x00000400,
        Cancel = 0x00400000,
        Help = 0x01000000,
    };
    typedef QFlags<StandardButton> StandardButtons;

    // Raising the dialog's accepted() (rejected()) is reported as a click of
    // OK (Cancel) and then as this box's accepted() (rejected()).
    explicit CKyUIDialogButtonBox(CKyUIDialog* dialog);
    ~CKyUIDialogButtonBox() override;

    // Does nothing: the box always shows OK, Cancel and Help.
    void setStandardButtons(StandardButtons buttons);
    // The wrapper of one standard button; null for anything else, combinations
    // of flags included. A press of the toolkit button reaches clients only as
    // this box's signals, not as the wrapper's clicked().
    CKyUIPushButton* button(StandardButton which) const;

    CKyUISignal<void()>& accepted();
    // Carries the Help wrapper whichever button was pressed.
    CKyUISignal<void(CKyUIPushButton*)>& clicked();
    // Never emitted.
    CKyUISignal<void()>& helpRequest();
    CKyUISignal<void()>& rejected();
};

Q_DECLARE_OPERATORS_FOR_FLAGS(CKyUIDialogButtonBox::StandardButtons)
