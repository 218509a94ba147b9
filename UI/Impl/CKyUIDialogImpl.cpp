#include "UI/Impl/CKyUIDialogImpl.h"

#include "UI/CKyUIDialog.h"
#include "UI/CKyUIVerticalLayout.h"

#include "UI/Impl/KyModalRun.h"

namespace
{
bool g_defaultReleasesToolkitDialog = false;
} // namespace

CKyUIDialogImpl::CKyUIDialogImpl(CKyUIDialog* owner)
    : CKyUIObjectImpl(owner)
    , m_dialog(owner)
    , m_windowTitle(QString())
    , m_releasesToolkitDialog(g_defaultReleasesToolkitDialog)
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

void CKyUIDialogImpl::SetDefaultReleasesToolkitDialog(bool release)
{
    g_defaultReleasesToolkitDialog = release;
}

bool CKyUIDialogImpl::DefaultReleasesToolkitDialog()
{
    return g_defaultReleasesToolkitDialog;
}

void CKyUIDialogImpl::SetInteractiveImpl(bool interactive)
{
    CKyUIObjectImpl::SetInteractiveImpl(interactive);
    if (interactive)
        LinkToolkitCloseImpl();
    SetInteractiveTree(m_rootLayout, interactive);
    const QList<CKyUIObject*> children = owner()->children();
    for (CKyUIObject* child : children)
        SetInteractiveTree(child, interactive);
}

int CKyUIDialogImpl::Exec(bool modal)
{
    // SetupUI() and the slots of the run may delete the dialog.
    const Lifetime lifetime = GetLifetime();
    // Under the switch exec(false) runs beside the host's own window, which
    // is then no modal run to announce.
    const bool modalRun = modal || !owner()->isInteractive();
    if (modalRun) {
        KyModalRun::NotifyHost(true);
        m_hostToldRunning = true;
    }
    SetupUIImpl(nullptr);
    if (!lifetime.Alive())
        return 0;
    // Views made by SetupUI() outside the root layout's tree follow as well.
    if (owner()->isInteractive())
        SetInteractiveImpl(true);
    const int result = ExecImpl(modalRun);
    if (!lifetime.Alive())
        return result;
    m_result = result;
    return m_result;
}

void CKyUIDialogImpl::Accept()
{
    if (owner()->isInteractive())
        return EndRun(1);
    m_result = 1;
    KyModalRun::NotifyHost(false);
    HideImpl();
}

void CKyUIDialogImpl::Reject()
{
    if (owner()->isInteractive())
        return EndRun(0);
    m_result = 0;
    KyModalRun::NotifyHost(false);
    HideImpl();
}

void CKyUIDialogImpl::Done(int result)
{
    if (owner()->isInteractive())
        return EndRun(result);
    m_result = result;
    KyModalRun::NotifyHost(false);
    HideImpl();
}

void CKyUIDialogImpl::Hide()
{
    NotifyRunEnded();
    HideImpl();
}

void CKyUIDialogImpl::NotifyRunEnded()
{
    if (!owner()->isInteractive())
        return KyModalRun::NotifyHost(false);
    if (!m_hostToldRunning)
        return;
    m_hostToldRunning = false;
    KyModalRun::NotifyHost(false);
}

void CKyUIDialogImpl::EndRun(int result)
{
    if (m_reportingEnd)
        return;
    m_reportingEnd = true;
    m_result = result;
    NotifyRunEnded();
    HideImpl();
    const bool alive = EmitInOrder([this, result] { finished.Emit(result); },
                                   [this, result] {
                                       if (result == 1)
                                           accepted.Emit();
                                       else if (result == 0)
                                           rejected.Emit();
                                   });
    if (alive)
        m_reportingEnd = false;
}

void CKyUIDialogImpl::OnToolkitFinished(int result)
{
    EndRun(result);
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
