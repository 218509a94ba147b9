#include "UI/Impl/CKyUIDialogButtonBoxImpl.h"

#include "UI/CKyUIDialogButtonBox.h"
#include "UI/CKyUIPushButton.h"

CKyUIDialogButtonBoxImpl::CKyUIDialogButtonBoxImpl(CKyUIDialogButtonBox* owner, CKyUIDialog* dialog)
    : CKyUIBaseViewImpl(owner)
    , m_box(owner)
    , accepted(owner)
    , clicked(owner)
    , helpRequest(owner)
    , rejected(owner)
{
    CreateButtonBoxImpl(dialog);
}

CKyUIDialogButtonBoxImpl::~CKyUIDialogButtonBoxImpl()
{
    DisconnectButtonBoxImpl();
    // The wrappers' handles are the toolkit box's own buttons: forget them
    // first so that the wrappers do not release them.
    for (CKyUIPushButton* wrapper : {m_okButton, m_cancelButton, m_helpButton}) {
        if (wrapper)
            wrapper->setHandle(nullptr);
    }
    delete m_okButton;
    delete m_cancelButton;
    delete m_helpButton;
}

CKyUIPushButton* CKyUIDialogButtonBoxImpl::Button(int which) const
{
    switch (which) {
    case CKyUIDialogButtonBox::Ok:
        return m_okButton;
    case CKyUIDialogButtonBox::Cancel:
        return m_cancelButton;
    case CKyUIDialogButtonBox::Help:
        return m_helpButton;
    default:
        return nullptr;
    }
}

void CKyUIDialogButtonBoxImpl::OnResult(int code)
{
    if (code == 1)
        accepted.Emit();
    else
        rejected.Emit();
}

void CKyUIDialogButtonBoxImpl::OnClicked()
{
    clicked.Emit(m_helpButton);
}
