#include "UI/CKyUIHorizontalLayout.h"

#include "UI/Impl/CKyUIBoxLayoutImpl.h"

CKyUIHorizontalLayout::CKyUIHorizontalLayout()
{
    createImpl<CKyUIHorizontalLayoutImpl>(this);
    UseMargin(false);
}

CKyUIHorizontalLayout::~CKyUIHorizontalLayout() = default;

void CKyUIHorizontalLayout::setTitle(const QString& title)
{
    implAs<CKyUIBoxLayoutImpl>()->SetTitle(title);
}

void CKyUIHorizontalLayout::UseMargin(bool use)
{
    implAs<CKyUIBoxLayoutImpl>()->UseMarginImpl(use);
}

void CKyUIHorizontalLayout::setContentsMargins(int left, int top, int right, int bottom)
{
    implAs<CKyUIBoxLayoutImpl>()->SetContentsMarginsImpl(left, top, right, bottom);
}

void CKyUIHorizontalLayout::setSpacing(int spacing)
{
    implAs<CKyUIBoxLayoutImpl>()->SetSpacingImpl(spacing);
}
