#include "UI/CKyUIMenu.h"

#include "UI/Impl/CKyUIMenuImpl.h"
#include "UI/Impl/qt/KyBaseViewImpl.h"

CKyUIMenu::CKyUIMenu()
{
    createImpl<CKyUIMenuImpl>(this);
}

CKyUIMenu::~CKyUIMenu()
{
    // Released as views release their widgets.
    if (QObject* handle = getHandle())
        KyBaseViewImpl::ReleaseFrontendControl(impl()->GetFrontendClassName(), handle);
}

void CKyUIMenu::addAction(CKyUIAction* action)
{
    implAs<CKyUIMenuImpl>()->AddAction(action);
}

void CKyUIMenu::addSeparator()
{
    implAs<CKyUIMenuImpl>()->AddSeparatorImpl();
}

void CKyUIMenu::clear()
{
    implAs<CKyUIMenuImpl>()->Clear();
}

void CKyUIMenu::popup(CKyUIBaseView* view)
{
    implAs<CKyUIMenuImpl>()->PopupImpl(view);
}
