#include "UI/CKyUISlider.h"

#include "UI/Impl/CKyUISliderImpl.h"

CKyUISlider::CKyUISlider()
{
    createImpl<CKyUISliderImpl>(this);
}

CKyUISlider::~CKyUISlider() = default;

void CKyUISlider::setValue(int value)
{
    implAs<CKyUISliderImpl>()->SetValue(value);
}

void CKyUISlider::setMinimum(int minimum)
{
    implAs<CKyUISliderImpl>()->SetMinimum(minimum);
}

void CKyUISlider::setMaximum(int maximum)
{
    implAs<CKyUISliderImpl>()->SetMaximum(maximum);
}

void CKyUISlider::setRange(int minimum, int maximum)
{
    setMinimum(minimum);
    setMaximum(maximum);
}

int CKyUISlider::value() const
{
    return implAs<CKyUISliderImpl>()->Value();
}

CKyUISignal<void(int)>& CKyUISlider::valueChanged()
{
    return implAs<CKyUISliderImpl>()->valueChanged;
}
