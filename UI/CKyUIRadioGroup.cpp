#include "UI/CKyUIRadioGroup.h"

#include "UI/Impl/CKyUIRadioGroupImpl.h"

CKyUIRadioGroup::CKyUIRadioGroup()
{
    auto* impl = new CKyUIRadioGroupImpl(this);
    setImpl(impl);
    impl->CreateFrontendControl();
}

CKyUIRadioGroup::~CKyUIRadioGroup() = default;

void CKyUIRadioGroup::setTitle(const QString& title)
{
    implAs<CKyUIRadioGroupImpl>()->SetTitle(title);
}

void CKyUIRadioGroup::addRadioButton(CKyUIRadioButton* button)
{
    implAs<CKyUIRadioGroupImpl>()->AddRadioButton(button);
}
