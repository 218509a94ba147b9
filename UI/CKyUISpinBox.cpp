#include "UI/CKyUISpinBox.h"

#include "UI/Impl/CKyUISpinBoxImpl.h"

CKyUISpinBox::CKyUISpinBox()
{
    createImpl<CKyUISpinBoxImpl>(this);
}

CKyUISpinBox::~CKyUISpinBox() = default;

void CKyUISpinBox::setRange(int minimum, int maximum)
{
    implAs<CKyUISpinBoxImpl>()->SetRange(minimum, maximum);
}

void CKyUISpinBox::setMinimum(int minimum)
{
    implAs<CKyUISpinBoxImpl>()->SetMinimum(minimum);
}

void CKyUISpinBox::setMaximum(int maximum)
{
    implAs<CKyUISpinBoxImpl>()->SetMaximum(maximum);
}

int CKyUISpinBox::minimum() const
{
    return implAs<CKyUISpinBoxImpl>()->Minimum();
}

int CKyUISpinBox::maximum() const
{
    return implAs<CKyUISpinBoxImpl>()->Maximum();
}

void CKyUISpinBox::setValue(int value)
{
    implAs<CKyUISpinBoxImpl>()->SetValue(value);
}

int CKyUISpinBox::value() const
{
    return implAs<CKyUISpinBoxImpl>()->Value();
}

void CKyUISpinBox::setSingleStep(int step)
{
    implAs<CKyUISpinBoxImpl>()->SetSingleStep(step);
}

int CKyUISpinBox::singleStep() const
{
    return implAs<CKyUISpinBoxImpl>()->SingleStep();
}

void CKyUISpinBox::setPrefix(const QString& prefix)
{
    implAs<CKyUISpinBoxImpl>()->SetPrefix(prefix);
}

QString CKyUISpinBox::prefix() const
{
    return implAs<CKyUISpinBoxImpl>()->Prefix();
}

void CKyUISpinBox::setSuffix(const QString& suffix)
{
    implAs<CKyUISpinBoxImpl>()->SetSuffix(suffix);
}

QString CKyUISpinBox::suffix() const
{
    return implAs<CKyUISpinBoxImpl>()->Suffix();
}

CKyUISignal<void(int)>& CKyUISpinBox::valueChanged()
{
    return implAs<CKyUISpinBoxImpl>()->valueChanged;
}

CKyUISignal<void()>& CKyUISpinBox::editingFinished()
{
    return implAs<CKyUISpinBoxImpl>()->editingFinished;
}
