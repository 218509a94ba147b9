#include "UI/CKyUIScrollableArea.h"

#include "UI/Impl/CKyUIScrollableAreaImpl.h"

CKyUIScrollableArea::CKyUIScrollableArea()
{
    createImpl<CKyUIScrollableAreaImpl>(this);
}

CKyUIScrollableArea::~CKyUIScrollableArea() = default;

void CKyUIScrollableArea::scrollTo(CKyUIBaseView* view)
{
    implAs<CKyUIScrollableAreaImpl>()->ScrollToImpl(view);
}

void CKyUIScrollableArea::setHorizontalScrollingEnabled(bool enabled)
{
    implAs<CKyUIScrollableAreaImpl>()->SetHorizontalScrollingEnabled(enabled);
}

bool CKyUIScrollableArea::horizontalScrollingEnabled() const
{
    return implAs<CKyUIScrollableAreaImpl>()->HorizontalScrollingEnabled();
}

void CKyUIScrollableArea::setVerticalScrollingEnabled(bool enabled)
{
    implAs<CKyUIScrollableAreaImpl>()->SetVerticalScrollingEnabled(enabled);
}

bool CKyUIScrollableArea::verticalScrollingEnabled() const
{
    return implAs<CKyUIScrollableAreaImpl>()->VerticalScrollingEnabled();
}
