#pragma once

#include "UI/CKyUISignal.h"
#include "UI/Impl/CKyUIBaseViewImpl.h"

#include <QtCore/QMetaObject>

class CKyUIDialog;
class CKyUIDialogButtonBox;
class CKyUIPushButton;
class QDialogButtonBox;

// Drives one QDialogButtonBox with OK, Cancel and Help, each wrapped in a
// CKyUIPushButton whose handle is the box's own button.
class CKyUIDialogButtonBoxImpl : public CKyUIBaseViewImpl
{
public:
    CKyUIDialogButtonBoxImpl(CKyUIDialogButtonBox* owner, CKyUIDialog* dialog);
    ~CKyUIDialogButtonBoxImpl() override;

    CKyUIPushButton* Button(int which) const;

    // 1 reports acceptance, anything else rejection.
    void OnResult(int code);
    // Reports the Help wrapper for every button, deliberately.
    void OnClicked();

private:
    // Creates the toolkit box inside the dialog, joins the dialog's root
    // layout and wraps the three buttons, connecting the box's signals.
    void CreateButtonBoxImpl(CKyUIDialog* dialog);
    // The toolkit box outlives us until the event loop deletes it.
    void DisconnectButtonBoxImpl();
    QDialogButtonBox* GetButtonBox() const;

    CKyUIDialogButtonBox* const m_box;
    CKyUIPushButton* m_okButton = nullptr;     // owned
    CKyUIPushButton* m_cancelButton = nullptr; // owned
    CKyUIPushButton* m_helpButton = nullptr;   // owned

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
