#include "UI/CKyUIAction.h"

#include "UI/Impl/CKyUIActionImpl.h"
#include "UI/Impl/qt/KyBaseViewImpl.h"

CKyUIAction::CKyUIAction()
{
    createImpl<CKyUIActionImpl>(this);
}

CKyUIAction::~CKyUIAction()
{
    // Released as views release their widgets; a toolkit action is no widget
    // and so stays with whoever holds it.
    if (QObject* handle = getHandle())
        KyBaseViewImpl::ReleaseFrontendControl(impl()->GetFrontendClassName(), handle);
}

void CKyUIAction::setText(const QString& text)
{
    implAs<CKyUIActionImpl>()->SetText(text);
}

QString CKyUIAction::text() const
{
    return implAs<CKyUIActionImpl>()->Text();
}

void CKyUIAction::setIcon(const QIcon& icon)
{
    implAs<CKyUIActionImpl>()->SetIcon(icon);
}

void CKyUIAction::setResourceIcon(const QString& name)
{
    implAs<CKyUIActionImpl>()->SetResourceIcon(name);
}

void CKyUIAction::setEnabled(bool enabled)
{
    implAs<CKyUIActionImpl>()->SetEnabled(enabled);
}

void CKyUIAction::setCheckable(bool checkable)
{
    implAs<CKyUIActionImpl>()->SetCheckable(checkable);
}

void CKyUIAction::setChecked(bool checked)
{
    implAs<CKyUIActionImpl>()->SetChecked(checked);
}

bool CKyUIAction::isChecked() const
{
    return implAs<CKyUIActionImpl>()->IsChecked();
}

void CKyUIAction::setVisible(bool visible)
{
    implAs<CKyUIActionImpl>()->SetVisible(visible);
}

CKyUISignal<void(bool)>& CKyUIAction::triggered()
{
    return implAs<CKyUIActionImpl>()->triggered;
}
