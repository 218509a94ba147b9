#include "UI/Impl/CKyUISliderImpl.h"

CKyUISliderImpl::CKyUISliderImpl(CKyUIObject* owner)
    : CKyUIBaseViewImpl(owner)
    , valueChanged(owner)
{
}

QString CKyUISliderImpl::GetFrontendClassName()
{
    return QStringLiteral("QSlider");
}

void CKyUISliderImpl::SetValue(int value)
{
    m_value = value;
    SetValueImpl(value);
}

void CKyUISliderImpl::SetMinimum(int minimum)
{
    m_minimum = minimum;
    SetMinimumImpl(minimum);
}

void CKyUISliderImpl::SetMaximum(int maximum)
{
    m_maximum = maximum;
    SetMaximumImpl(maximum);
}

void CKyUISliderImpl::setRange(int minimum, int maximum)
{
    SetMinimum(minimum);
    SetMaximum(maximum);
}

void CKyUISliderImpl::OnValueChanged(int value)
{
    m_value = value;
    valueChanged.Emit(value);
}
