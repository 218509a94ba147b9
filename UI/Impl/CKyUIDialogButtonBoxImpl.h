#pragma once

#include "UI/CKyUISignal.h"
#include "UI/Impl/CKyUIBaseViewImpl.h"

#include <QtCore/QMetaObject>

class CKyUIDialog;
class CKyUIDialogButtonBox;
class CKyUIPushButton;
class QDialogButtonBox;
class QObject;

// Drives one QDialogButtonBox with OK, Cancel and Help, each wrapped in a
// CKyUIPushButton whose handle is the box's own button.
class CKyUIDialogButtonBoxImpl : public CKyUIBaseViewImpl
{
public:
    CKyUIDialogButtonBoxImpl(CKyUIDialogButtonBox* owner, CKyUIDialog* dialog);
    ~CKyUIDialogButtonBoxImpl() override;

    CKyUIPushButton* Button(int which) const;
    // As Button, but under the switch null for a button the box does not show.
    CKyUIPushButton* ShownButton(int which) const;
    // Stored always; the buttons change only under the switch.
    void SetStandardButtons(int buttons);
    // Whether the dialog's accepted and rejected are to be reported as presses
    // of OK and Cancel. Not under the switch while this box reports: the
    // dialog then answers the box's own report, already a press.
    bool RelaysDialogResult() const;
    // Switched on: the chosen buttons, the press of each reported with its
    // own wrapper, Help's request; the wrappers follow the box.
    void SetInteractiveImpl(bool interactive) override;

    // 1 reports acceptance, anything else rejection.
    void OnResult(int code);
    // Reports the Help wrapper for every button, deliberately; under the
    // switch OnButtonClicked reports instead.
    void OnClicked();
    // Reports the wrapper of the toolkit button pressed.
    void OnButtonClicked(const QObject* button);

private:
    // Creates the toolkit box inside the dialog, joins the dialog's root
    // layout and wraps the three buttons, connecting the box's signals.
    void CreateButtonBoxImpl(CKyUIDialog* dialog);
    // The toolkit box outlives us until the event loop deletes it.
    void DisconnectButtonBoxImpl();
    QDialogButtonBox* GetButtonBox() const;
    // Shows these buttons and hands the wrappers the toolkit's new ones.
    void SetStandardButtonsImpl(int buttons);

    CKyUIDialogButtonBox* const m_box;
    CKyUIPushButton* m_okButton = nullptr;     // owned
    CKyUIPushButton* m_cancelButton = nullptr; // owned
    CKyUIPushButton* m_helpButton = nullptr;   // owned
    int m_chosenButtons;

public:
    CKyUISignal<void()> accepted;
    CKyUISignal<void(CKyUIPushButton*)> clicked;
    CKyUISignal<void()> helpRequest;
    CKyUISignal<void()> rejected;

private:
    QMetaObject::Connection m_toolkitAccepted;
    QMetaObject::Connection m_toolkitRejected;
    QMetaObject::Connection m_toolkitClicked;
};
