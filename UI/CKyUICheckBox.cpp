#include "UI/CKyUICheckBox.h"

#include "UI/Impl/CKyUICheckBoxImpl.h"

CKyUICheckBox::CKyUICheckBox()
{
    createImpl<CKyUICheckBoxImpl>(this);
}

CKyUICheckBox::~CKyUICheckBox() = default;

void CKyUICheckBox::setText(const QString& text)
{
    implAs<CKyUICheckBoxImpl>()->SetText(text);
}

void CKyUICheckBox::setChecked(bool checked)
{
    implAs<CKyUICheckBoxImpl>()->SetChecked(checked);
}

bool CKyUICheckBox::isChecked() const
{
    return implAs<CKyUICheckBoxImpl>()->IsChecked();
}

void CKyUICheckBox::setTextSize(float size)
{
    implAs<CKyUICheckBoxImpl>()->SetTextSize(size);
}

void CKyUICheckBox::setResourceIcon(const QString& name)
{
    implAs<CKyUICheckBoxImpl>()->SetResourceIcon(name);
}

CKyUISignal<void(int)>& CKyUICheckBox::stateChanged()
{
    return implAs<CKyUICheckBoxImpl>()->stateChanged;
}

CKyUISignal<void(bool)>& CKyUICheckBox::toggled()
{
    return implAs<CKyUICheckBoxImpl>()->toggled;
}

CKyUISignal<void(bool)>& CKyUICheckBox::clicked()
{
    return implAs<CKyUICheckBoxImpl>()->clicked;
}
