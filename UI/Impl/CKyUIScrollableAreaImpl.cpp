#include "UI/Impl/CKyUIScrollableAreaImpl.h"

CKyUIScrollableAreaImpl::CKyUIScrollableAreaImpl(CKyUIObject* owner)
    : CKyUIBaseViewImpl(owner)
{}

CKyUIScrollableAreaImpl::~CKyUIScrollableAreaImpl() = default;

QString CKyUIScrollableAreaImpl::GetFrontendClassName()
{
    // The older toolkit name, not the class that is created; release hooks
    // receive this name.
    return QStringLiteral("QScrollView");
}

void CKyUIScrollableAreaImpl::RemoveViewImpl(CKyUIBaseView*)
{
    // The child's widget stays shown in the area until it is replaced or the
    // child is destroyed.
}

void CKyUIScrollableAreaImpl::SetHorizontalScrollingEnabled(bool enabled)
{
    m_horizontalScrollingEnabled = enabled;
    SetHorizontalScrollingEnabledImpl(enabled);
}

void CKyUIScrollableAreaImpl::SetVerticalScrollingEnabled(bool enabled)
{
    m_verticalScrollingEnabled = enabled;
    SetVerticalScrollingEnabledImpl(enabled);
}
