#include "UI/CKyUIRadioGroup.h"

#include "UI/Impl/CKyUIRadioGroupImpl.h"

CKyUIRadioGroup::CKyUIRadioGroup()
{
    createImpl<CKyUIRadioGroupImpl>(this);
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

int CKyUIRadioGroup::currentIndex() const
{
    return implAs<CKyUIRadioGroupImpl>()->CurrentIndex();
}

CKyUISignal<void(int)>& CKyUIRadioGroup::currentIndexChanged()
{
    return implAs<CKyUIRadioGroupImpl>()->currentIndexChanged;
}
