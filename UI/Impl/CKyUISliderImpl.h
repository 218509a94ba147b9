#pragma once

#include "UI/CKyUISignal.h"
#include "UI/Impl/CKyUIBaseViewImpl.h"

#include <QtCore/QMetaObject>

// The slider's stored value and bounds. The bounds are only ever passed on,
// never applied at creation, unless the owner follows its user: then the
// widget takes the stored range when it is switched on.
class CKyUISliderImpl : public CKyUIBaseViewImpl
{
public:
    explicit CKyUISliderImpl(CKyUIObject* owner);
    ~CKyUISliderImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;

    void SetValue(int value);
    void SetMinimum(int minimum);
    void SetMaximum(int maximum);
    void setRange(int minimum, int maximum);
    int Value() const { return m_value; }
    int Minimum() const { return m_minimum; }
    int Maximum() const { return m_maximum; }

    QVariant RememberedValue() const override;
    bool RestoreRememberedValue(const QVariant& value) override;
    void SetValueImpl(int value);
    void SetMinimumImpl(int minimum);
    void SetMaximumImpl(int maximum);
    void SetInteractiveImpl(bool interactive) override;

    void OnValueChanged(int value);

    CKyUISignal<void(int)> valueChanged;

private:
    int m_minimum = 0;
    int m_maximum = 100;
    int m_value = 0;
    QMetaObject::Connection m_valueConnection;
};
