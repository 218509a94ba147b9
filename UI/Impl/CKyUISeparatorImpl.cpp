#include "UI/Impl/CKyUISeparatorImpl.h"

CKyUISeparatorImpl::CKyUISeparatorImpl(CKyUIObject* owner, Qt::Orientation orientation)
    : CKyUIBaseViewImpl(owner)
    , m_orientation(orientation == Qt::Vertical ? Qt::Vertical : Qt::Horizontal)
{}

QString CKyUISeparatorImpl::GetFrontendClassName()
{
    return QStringLiteral("QFrame");
}
