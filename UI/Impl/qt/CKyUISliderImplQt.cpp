#include "UI/Impl/CKyUISliderImpl.h"

#include <QtWidgets/QSlider>

CKyUISliderImpl::~CKyUISliderImpl()
{
    // The widget outlives this object until its deferred deletion.
    QObject::disconnect(m_valueConnection);
}

void CKyUISliderImpl::CreateFrontendControl()
{
    auto* slider = new QSlider(nullptr);
    slider->setStyleSheet(QStringLiteral("QSlider { }"));
    slider->setOrientation(Qt::Horizontal);
    slider->setMinimumHeight(25);
    slider->setMaximumHeight(25);
    owner()->setHandle(slider);
    m_valueConnection = QObject::connect(slider, &QAbstractSlider::valueChanged,
                                         [this](int value) { OnValueChanged(value); });
}

void CKyUISliderImpl::SetValueImpl(int value)
{
    if (auto* slider = qobject_cast<QSlider*>(owner()->getHandle()))
        slider->setValue(value);
}

void CKyUISliderImpl::SetMinimumImpl(int minimum)
{
    if (auto* slider = qobject_cast<QSlider*>(owner()->getHandle()))
        slider->setMinimum(minimum);
}

void CKyUISliderImpl::SetMaximumImpl(int maximum)
{
    if (auto* slider = qobject_cast<QSlider*>(owner()->getHandle()))
        slider->setMaximum(maximum);
}

void CKyUISliderImpl::SetInteractiveImpl(bool interactive)
{
    CKyUIBaseViewImpl::SetInteractiveImpl(interactive);
    auto* slider = qobject_cast<QSlider*>(owner()->getHandle());
    if (!interactive || !slider)
        return;
    // Both bounds in one step: the toolkit keeps the minimum and lifts the
    // maximum to it if need be, as it did for the bounds given one by one.
    // The switch reports nothing; a value the range moves is kept quietly.
    const int before = slider->value();
    {
        const QSignalBlocker quiet(slider);
        slider->setRange(m_minimum, m_maximum);
    }
    if (slider->value() != before)
        m_value = slider->value();
}
