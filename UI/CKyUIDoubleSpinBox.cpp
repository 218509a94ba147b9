#include "UI/CKyUIDoubleSpinBox.h"

#include "UI/Impl/CKyUISpinBoxImpl.h"

CKyUIDoubleSpinBox::CKyUIDoubleSpinBox()
{
    createImpl<CKyUIDoubleSpinBoxImpl>(this);
}

CKyUIDoubleSpinBox::~CKyUIDoubleSpinBox() = default;

void CKyUIDoubleSpinBox::setRange(double minimum, double maximum)
{
    implAs<CKyUIDoubleSpinBoxImpl>()->SetRange(minimum, maximum);
}

void CKyUIDoubleSpinBox::setMinimum(double minimum)
{
    implAs<CKyUIDoubleSpinBoxImpl>()->SetMinimum(minimum);
}

void CKyUIDoubleSpinBox::setMaximum(double maximum)
{
    implAs<CKyUIDoubleSpinBoxImpl>()->SetMaximum(maximum);
}

double CKyUIDoubleSpinBox::minimum() const
{
    return implAs<CKyUIDoubleSpinBoxImpl>()->Minimum();
}

double CKyUIDoubleSpinBox::maximum() const
{
    return implAs<CKyUIDoubleSpinBoxImpl>()->Maximum();
}

void CKyUIDoubleSpinBox::setValue(double value)
{
    implAs<CKyUIDoubleSpinBoxImpl>()->SetValue(value);
}

double CKyUIDoubleSpinBox::value() const
{
    return implAs<CKyUIDoubleSpinBoxImpl>()->Value();
}

void CKyUIDoubleSpinBox::setSingleStep(double step)
{
    implAs<CKyUIDoubleSpinBoxImpl>()->SetSingleStep(step);
}

double CKyUIDoubleSpinBox::singleStep() const
{
    return implAs<CKyUIDoubleSpinBoxImpl>()->SingleStep();
}

void CKyUIDoubleSpinBox::setDecimals(int decimals)
{
    implAs<CKyUIDoubleSpinBoxImpl>()->SetDecimals(decimals);
}

int CKyUIDoubleSpinBox::decimals() const
{
    return implAs<CKyUIDoubleSpinBoxImpl>()->Decimals();
}

void CKyUIDoubleSpinBox::setPrefix(const QString& prefix)
{
    implAs<CKyUIDoubleSpinBoxImpl>()->SetPrefix(prefix);
}

QString CKyUIDoubleSpinBox::prefix() const
{
    return implAs<CKyUIDoubleSpinBoxImpl>()->Prefix();
}

void CKyUIDoubleSpinBox::setSuffix(const QString& suffix)
{
    implAs<CKyUIDoubleSpinBoxImpl>()->SetSuffix(suffix);
}

QString CKyUIDoubleSpinBox::suffix() const
{
    return implAs<CKyUIDoubleSpinBoxImpl>()->Suffix();
}

CKyUISignal<void(double)>& CKyUIDoubleSpinBox::valueChanged()
{
    return implAs<CKyUIDoubleSpinBoxImpl>()->valueChanged;
}

CKyUISignal<void()>& CKyUIDoubleSpinBox::editingFinished()
{
    return implAs<CKyUIDoubleSpinBoxImpl>()->editingFinished;
}
