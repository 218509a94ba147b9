#include "UI/CKyUISeparator.h"

#include "UI/Impl/CKyUISeparatorImpl.h"

CKyUISeparator::CKyUISeparator(Qt::Orientation orientation)
{
    createImpl<CKyUISeparatorImpl>(this, orientation);
}

CKyUISeparator::~CKyUISeparator() = default;

Qt::Orientation CKyUISeparator::orientation() const
{
    return implAs<CKyUISeparatorImpl>()->Orientation();
}
