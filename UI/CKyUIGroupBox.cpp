#include "UI/CKyUIGroupBox.h"

#include "UI/Impl/CKyUIGroupBoxImpl.h"

CKyUIGroupBox::CKyUIGroupBox(Orientation orientation, bool useMargin)
{
    createImpl<CKyUIGroupBoxImpl>(this, orientation);
    UseMargin(useMargin);
}

CKyUIGroupBox::~CKyUIGroupBox() = default;

void CKyUIGroupBox::setTitle(const QString& title)
{
    implAs<CKyUIGroupBoxImpl>()->SetTitle(title);
}

void CKyUIGroupBox::UseMargin(bool use)
{
    implAs<CKyUIGroupBoxImpl>()->UseMargin(use);
}

void CKyUIGroupBox::setContentsMargins(int left, int top, int right, int bottom)
{
    implAs<CKyUIGroupBoxImpl>()->SetContentsMargins(left, top, right, bottom);
}

void CKyUIGroupBox::setSpacing(int spacing)
{
    implAs<CKyUIGroupBoxImpl>()->SetSpacing(spacing);
}

void CKyUIGroupBox::setCollapsed(bool collapsed)
{
    implAs<CKyUIGroupBoxImpl>()->SetCollapsed(collapsed);
}

bool CKyUIGroupBox::isCollapsed() const
{
    return implAs<CKyUIGroupBoxImpl>()->IsCollapsed();
}

CKyUISignal<void(bool)>& CKyUIGroupBox::onCollapsedStateChanged()
{
    return implAs<CKyUIGroupBoxImpl>()->onCollapsedStateChanged;
}
