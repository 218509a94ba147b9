#include "UI/CKyUIDialog.h"

#include "UI/Impl/CKyUIDialogImpl.h"

CKyUIDialog::CKyUIDialog()
{
    createImpl<CKyUIDialogImpl>(this);
}

CKyUIDialog::~CKyUIDialog() = default;

void CKyUIDialog::setReleasesToolkitDialog(bool release)
{
    implAs<CKyUIDialogImpl>()->SetReleasesToolkitDialog(release);
}

bool CKyUIDialog::releasesToolkitDialog() const
{
    return implAs<CKyUIDialogImpl>()->ReleasesToolkitDialog();
}

void CKyUIDialog::setDefaultReleasesToolkitDialog(bool release)
{
    CKyUIDialogImpl::SetDefaultReleasesToolkitDialog(release);
}

bool CKyUIDialog::defaultReleasesToolkitDialog()
{
    return CKyUIDialogImpl::DefaultReleasesToolkitDialog();
}

void CKyUIDialog::setRememberKey(const QString& key)
{
    implAs<CKyUIDialogImpl>()->SetRememberKey(key);
}

QString CKyUIDialog::rememberKey() const
{
    return implAs<CKyUIDialogImpl>()->RememberKey();
}

void CKyUIDialog::resetRemembered()
{
    implAs<CKyUIDialogImpl>()->ResetRemembered();
}

int CKyUIDialog::exec(bool modal)
{
    return implAs<CKyUIDialogImpl>()->Exec(modal);
}

void CKyUIDialog::showEvent(CKyUIShowEvent*) {}

void CKyUIDialog::hideEvent(CKyUIHideEvent*) {}

void CKyUIDialog::accept()
{
    implAs<CKyUIDialogImpl>()->Accept();
}

void CKyUIDialog::reject()
{
    implAs<CKyUIDialogImpl>()->Reject();
}

void CKyUIDialog::done(int result)
{
    implAs<CKyUIDialogImpl>()->Done(result);
}

CKyUIVerticalLayout* CKyUIDialog::GetLayout()
{
    return implAs<CKyUIDialogImpl>()->GetLayout();
}

void CKyUIDialog::hide()
{
    implAs<CKyUIDialogImpl>()->Hide();
}

void CKyUIDialog::setVisible(bool visible)
{
    implAs<CKyUIDialogImpl>()->SetVisible(visible);
}

void CKyUIDialog::setResult(int result)
{
    implAs<CKyUIDialogImpl>()->SetResult(result);
}

int CKyUIDialog::result() const
{
    return implAs<CKyUIDialogImpl>()->Result();
}

QString CKyUIDialog::windowTitle() const
{
    return implAs<CKyUIDialogImpl>()->WindowTitle();
}

void CKyUIDialog::setWindowTitle(const QString& title)
{
    implAs<CKyUIDialogImpl>()->SetWindowTitle(title);
}

CKyUISignal<void()>& CKyUIDialog::accepted()
{
    return implAs<CKyUIDialogImpl>()->accepted;
}

CKyUISignal<void()>& CKyUIDialog::rejected()
{
    return implAs<CKyUIDialogImpl>()->rejected;
}

CKyUISignal<void(int)>& CKyUIDialog::finished()
{
    return implAs<CKyUIDialogImpl>()->finished;
}
