#include "UI/Impl/CKyUIDialogImpl.h"

#include "UI/CKyUIDialog.h"
#include "UI/CKyUIVerticalLayout.h"

#include "KyHostKernel.h"

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
    SetInteractiveTree(m_rootLayout, interactive);
    const QList<CKyUIObject*> children = owner()->children();
    for (CKyUIObject* child : children)
        SetInteractiveTree(child, interactive);
}

int CKyUIDialogImpl::Exec(bool modal)
{
    // SetupUI() and the slots of the run may delete the dialog.
    const Lifetime lifetime = GetLifetime();
    NotifyHost(true);
    SetupUIImpl(nullptr);
    if (!lifetime.Alive())
        return 0;
    // Views made by SetupUI() outside the root layout's tree follow as well.
    if (owner()->isInteractive())
        SetInteractiveImpl(true);
    const int result = ExecImpl(modal);
    if (!lifetime.Alive())
        return result;
    m_result = result;
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
