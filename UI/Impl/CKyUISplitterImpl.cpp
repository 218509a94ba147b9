#include "UI/Impl/CKyUISplitterImpl.h"

#include "UI/Impl/KySettingsStore.h"

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

QVariant CKyUISplitterImpl::RememberedValue() const
{
    const QList<int> sizes = Sizes();
    return sizes.isEmpty() ? QVariant() : KySettingsStore::IntListValue(sizes);
}

bool CKyUISplitterImpl::RestoreRememberedValue(const QVariant& value)
{
    QList<int> sizes;
    if (!KySettingsStore::ReadIntList(value, &sizes, 0, 100000) || sizes.isEmpty())
        return false;
    SetSizes(sizes);
    return true;
}
