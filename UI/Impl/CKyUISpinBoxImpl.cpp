#include "UI/Impl/CKyUISpinBoxImpl.h"

#include <QtCore/QString>

template <> int CKyUINumberFieldImpl<int>::Rounded(int value) const
{
    return value;
}

// The widget rounds through the same text, so both land on the same double.
template <> double CKyUINumberFieldImpl<double>::Rounded(double value) const
{
    return QString::number(value, 'f', m_decimals).toDouble();
}
