#include "UI/CKyUIRadioButton.h"

#include "UI/Impl/CKyUIRadioButtonImpl.h"

CKyUIRadioButton::CKyUIRadioButton()
{
    createImpl<CKyUIRadioButtonImpl>(this);
}

CKyUIRadioButton::~CKyUIRadioButton() = default;

void CKyUIRadioButton::setText(const QString& text)
{
    implAs<CKyUIRadioButtonImpl>()->SetText(text);
}

const QString& CKyUIRadioButton::text() const
{
    return implAs<CKyUIRadioButtonImpl>()->Text();
}

void CKyUIRadioButton::setChecked(bool checked)
{
    implAs<CKyUIRadioButtonImpl>()->SetChecked(checked);
}

bool CKyUIRadioButton::isChecked() const
{
    return implAs<CKyUIRadioButtonImpl>()->IsChecked();
}

CKyUISignal<void()>& CKyUIRadioButton::released()
{
    return implAs<CKyUIRadioButtonImpl>()->released;
}

CKyUISignal<void()>& CKyUIRadioButton::clicked()
{
    return implAs<CKyUIRadioButtonImpl>()->clicked;
}

CKyUISignal<void(bool)>& CKyUIRadioButton::toggled()
{
    return implAs<CKyUIRadioButtonImpl>()->toggled;
}
