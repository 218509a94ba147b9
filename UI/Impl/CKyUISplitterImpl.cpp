#include "UI/Impl/CKyUISplitterImpl.h"

CKyUISplitterImpl::CKyUISplitterImpl(CKyUIObject* owner, Qt::Orientation orientation)
    : CKyUIBaseViewImpl(owner)
    , splitterMoved(owner)
    , m_orientation(orientation == Qt::Vertical ? Qt::Vertical : Qt::Horizontal)
{}

QString CKyUISplitterImpl::GetFrontendClassName()
{
    return QStringLiteral("QSplitter");
}

void CKyUISplitterImpl::SetSizes(const QList<int>& sizes)
{
    m_sizes = sizes;
    SetSizesImpl(sizes);
}

QList<int> CKyUISplitterImpl::Sizes() const
{
    const QList<int> shown = SizesImpl();
    return shown.isEmpty() ? m_sizes : shown;
}

void CKyUISplitterImpl::SetChildrenCollapsible(bool collapsible)
{
    m_childrenCollapsible = collapsible;
    SetChildrenCollapsibleImpl(collapsible);
}

void CKyUISplitterImpl::OnSplitterMoved(int position, int index)
{
    splitterMoved.Emit(position, index);
}
