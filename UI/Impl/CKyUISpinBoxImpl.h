#pragma once

#include "UI/CKyUISignal.h"
#include "UI/Impl/CKyUIBaseViewImpl.h"
#include "UI/Impl/KySettingsStore.h"

#include <QtCore/QMetaObject>

#include <cmath>
#include <type_traits>
#include <vector>

// What the integer and the decimal spin box share: the range, step, unit
// texts and value they were given, each bounded the way the widget bounds it,
// so that the getters agree with the widget without asking it. T is int or
// double; the toolkit steps exist for those two.
template <typename T> class CKyUINumberFieldImpl : public CKyUIBaseViewImpl
{
public:
    explicit CKyUINumberFieldImpl(CKyUIObject* owner)
        : CKyUIBaseViewImpl(owner)
        , valueChanged(owner)
        , editingFinished(owner)
    {}
    ~CKyUINumberFieldImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;

    // The widget's own rules: the maximum is never below the minimum, and
    // setting one bound moves the other out of the way.
    void SetRange(T minimum, T maximum)
    {
        m_minimum = minimum;
        m_maximum = maximum < minimum ? minimum : maximum;
        m_value = Bounded(m_value);
        SetRangeImpl(m_minimum, m_maximum);
    }
    void SetMinimum(T minimum) { SetRange(minimum, m_maximum < minimum ? minimum : m_maximum); }
    void SetMaximum(T maximum) { SetRange(m_minimum < maximum ? m_minimum : maximum, maximum); }
    T Minimum() const { return m_minimum; }
    T Maximum() const { return m_maximum; }

    // The widget reports the value back, and with it the signal, only when
    // it really changes.
    void SetValue(T value)
    {
        m_value = Bounded(Rounded(value));
        SetValueImpl(m_value);
    }
    T Value() const { return m_value; }

    QVariant RememberedValue() const override { return KySettingsStore::NumberValue(m_value); }
    // Within this run's range; a whole-number field takes whole numbers only.
    bool RestoreRememberedValue(const QVariant& value) override
    {
        double number = 0;
        if (!KySettingsStore::ReadNumber(value, &number, Rounded(m_minimum), Rounded(m_maximum)) ||
            (std::is_integral<T>::value && std::floor(number) != number))
            return false;
        SetValue(static_cast<T>(number));
        return true;
    }

    void SetSingleStep(T step)
    {
        m_step = step < T(0) ? m_step : step;
        SetSingleStepImpl(m_step);
    }
    T SingleStep() const { return m_step; }

    void SetPrefix(const QString& prefix)
    {
        if (prefix == m_prefix)
            return;
        m_prefix = prefix;
        SetPrefixImpl(prefix);
    }
    const QString& Prefix() const { return m_prefix; }
    void SetSuffix(const QString& suffix)
    {
        if (suffix == m_suffix)
            return;
        m_suffix = suffix;
        SetSuffixImpl(suffix);
    }
    const QString& Suffix() const { return m_suffix; }

    // Decimal places; the integer field has none.
    void SetDecimals(int decimals)
    {
        m_decimals = decimals < 0 ? 0 : (decimals > kMostDecimals ? kMostDecimals : decimals);
        m_value = Bounded(m_value);
        SetDecimalsImpl(m_decimals);
    }
    int Decimals() const { return m_decimals; }

    void SetRangeImpl(T minimum, T maximum);
    void SetValueImpl(T value);
    void SetSingleStepImpl(T step);
    void SetPrefixImpl(const QString& prefix);
    void SetSuffixImpl(const QString& suffix);
    void SetDecimalsImpl(int decimals);

    void OnValueChanged(T value)
    {
        m_value = value;
        valueChanged.Emit(value);
    }
    void OnEditingFinished() { editingFinished.Emit(); }

    CKyUISignal<void(T)> valueChanged;
    CKyUISignal<void()> editingFinished;

private:
    // As many as a double can tell apart; the widget allows more and rounds
    // them away anyway.
    static constexpr int kMostDecimals = 15;

    T Rounded(T value) const;
    // Like the widget, a new range or number of decimals rounds the bounds
    // but leaves a value inside them as it is.
    T Bounded(T value) const
    {
        const T low = Rounded(m_minimum);
        const T high = Rounded(m_maximum);
        return value < low ? low : (value > high ? high : value);
    }

    // The widget's own defaults.
    T m_minimum = T(0);
    T m_maximum = T(99);
    T m_value = T(0);
    T m_step = T(1);
    int m_decimals = std::is_same<T, int>::value ? 0 : 2;
    QString m_prefix;
    QString m_suffix;
    std::vector<QMetaObject::Connection> m_connections;
};

template <> int CKyUINumberFieldImpl<int>::Rounded(int value) const;
template <> double CKyUINumberFieldImpl<double>::Rounded(double value) const;
extern template class CKyUINumberFieldImpl<int>;
extern template class CKyUINumberFieldImpl<double>;

using CKyUISpinBoxImpl = CKyUINumberFieldImpl<int>;
using CKyUIDoubleSpinBoxImpl = CKyUINumberFieldImpl<double>;
