#include "UI/Impl/CKyUIDialogImpl.h"

#include "UI/CKyUIDialog.h"

#include "KyHostKernel.h"

CKyUIDialogImpl::CKyUIDialogImpl(CKyUIDialog* owner)
    : CKyUIObjectImpl(owner)
    , m_dialog(owner)
    , m_windowTitle(QString())
    , accepted(owner)
    , rejected(owner)
    , finished(owner)
{
    CreateFrontendDialogImpl();
}

CKyUIDialogImpl::~CKyUIDialogImpl()
{
    DestroyFrontendDialogImpl();
}

void CKyUIDialogImpl::showEvent(CKyUIShowEvent* event)
{
    m_dialog->showEvent(event);
}

void CKyUIDialogImpl::hideEvent(CKyUIHideEvent* event)
{
    m_dialog->hideEvent(event);
}

void CKyUIDialogImpl::NotifyHost(bool running)
{
    const CKyDocument* document = ACTIVE_DOCUMENT();
    if (!document || !document->host)
        return;
    // Asked again: the host hands out its active document afresh each time.
    const CKyDocument* active = ACTIVE_DOCUMENT();
    if (active && active->host)
        active->host->SetModalDialogRunning(running);
}

int CKyUIDialogImpl::Exec(bool modal)
{
    NotifyHost(true);
    SetupUIImpl(nullptr);
    m_result = ExecImpl(modal);
    return m_result;
}

void CKyUIDialogImpl::Accept()
{
    m_result = 1;
    NotifyHost(false);
    HideImpl();
}

void CKyUIDialogImpl::Reject()
{
    m_result = 0;
    NotifyHost(false);
    HideImpl();
}

void CKyUIDialogImpl::Done(int result)
{
    m_result = result;
    NotifyHost(false);
    HideImpl();
}

void CKyUIDialogImpl::Hide()
{
    NotifyHost(false);
    HideImpl();
}

void CKyUIDialogImpl::SetVisible(bool visible)
{
    SetVisibleImpl(visible);
    if (!visible)
        Hide();
}

void CKyUIDialogImpl::SetWindowTitle(const QString& title)
{
    if (m_windowTitle == title)
        return;
    m_windowTitle = title;
    SetWindowTitleImpl(title);
}

void CKyUIDialogImpl::OnAccepted()
{
    accepted.Emit();
}

void CKyUIDialogImpl::OnAcceptPressed()
{
    accepted.Emit();
}

void CKyUIDialogImpl::OnRejected()
{
    rejected.Emit();
}

void CKyUIDialogImpl::OnRejectPressed()
{
    rejected.Emit();
}
