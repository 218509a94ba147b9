#include "UI/Impl/CKyUISliderImpl.h"

#include "UI/Impl/KySettingsStore.h"

CKyUISliderImpl::CKyUISliderImpl(CKyUIObject* owner)
    : CKyUIBaseViewImpl(owner)
    , valueChanged(owner)
{}

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

QVariant CKyUISliderImpl::RememberedValue() const
{
    return m_value;
}

bool CKyUISliderImpl::RestoreRememberedValue(const QVariant& value)
{
    // The bounds of this run decide: a value from a wider range is dropped.
    int number = 0;
    if (!KySettingsStore::ReadInt(value, &number, qMin(m_minimum, m_maximum), qMax(m_minimum, m_maximum)))
        return false;
    SetValue(number);
    return true;
}
