#include "UI/Impl/CKyUIGroupBoxImpl.h"

CKyUIGroupBoxImpl::CKyUIGroupBoxImpl(CKyUIObject* owner, CKyUIGroupBox::Orientation orientation)
    : CKyUIBaseViewImpl(owner)
    , onCollapsedStateChanged(owner)
    , m_orientation(orientation)
{}

CKyUIGroupBoxImpl::~CKyUIGroupBoxImpl() = default;

QString CKyUIGroupBoxImpl::GetFrontendClassName()
{
    return QStringLiteral("QGroupBox");
}

void CKyUIGroupBoxImpl::SetTitle(const QString& title)
{
    if (m_title == title)
        return;
    m_title = title;
    SetTitleImpl(m_title);
}

void CKyUIGroupBoxImpl::UseMargin(bool use)
{
    UseMarginImpl(use);
}

void CKyUIGroupBoxImpl::SetContentsMargins(int left, int top, int right, int bottom)
{
    SetContentsMarginsImpl(left, top, right, bottom);
}

void CKyUIGroupBoxImpl::SetSpacing(int spacing)
{
    SetSpacingImpl(spacing);
}

void CKyUIGroupBoxImpl::SetCollapsed(bool collapsed)
{
    if (m_collapsed == collapsed)
        return;
    SetCollapsedImpl(collapsed);
    UpdateParent();
    m_collapsed = collapsed;
    onCollapsedStateChanged.Emit(collapsed);
}

void CKyUIGroupBoxImpl::OnCollapsedStateChanged(bool collapsed)
{
    UpdateParent();
    if (m_collapsed == collapsed)
        return;
    m_collapsed = collapsed;
    onCollapsedStateChanged.Emit(collapsed);
}

void CKyUIGroupBoxImpl::UpdateParent()
{
    if (auto* parent = dynamic_cast<CKyUIBaseView*>(owner()->parent()))
        parent->update();
}
