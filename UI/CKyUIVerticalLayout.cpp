#include "UI/CKyUIVerticalLayout.h"

#include "UI/Impl/CKyUIBoxLayoutImpl.h"

CKyUIVerticalLayout::CKyUIVerticalLayout()
{
    createImpl<CKyUIVerticalLayoutImpl>(this);
    UseMargin(false);
}

CKyUIVerticalLayout::~CKyUIVerticalLayout() = default;

void CKyUIVerticalLayout::setTitle(const QString& title)
{
    implAs<CKyUIBoxLayoutImpl>()->SetTitle(title);
}

void CKyUIVerticalLayout::UseMargin(bool use)
{
    implAs<CKyUIBoxLayoutImpl>()->UseMarginImpl(use);
}

void CKyUIVerticalLayout::setContentsMargins(int left, int top, int right, int bottom)
{
    implAs<CKyUIBoxLayoutImpl>()->SetContentsMarginsImpl(left, top, right, bottom);
}

void CKyUIVerticalLayout::setSpacing(int spacing)
{
    implAs<CKyUIBoxLayoutImpl>()->SetSpacingImpl(spacing);
}

void CKyUIVerticalLayout::setSizeConstraint(QLayout::SizeConstraint) {}
