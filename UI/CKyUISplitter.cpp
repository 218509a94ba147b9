#include "UI/CKyUISplitter.h"

#include "UI/Impl/CKyUISplitterImpl.h"

CKyUISplitter::CKyUISplitter(Qt::Orientation orientation)
{
    createImpl<CKyUISplitterImpl>(this, orientation);
}

CKyUISplitter::~CKyUISplitter() = default;

Qt::Orientation CKyUISplitter::orientation() const
{
    return implAs<CKyUISplitterImpl>()->Orientation();
}

QList<int> CKyUISplitter::sizes() const
{
    return implAs<CKyUISplitterImpl>()->Sizes();
}

void CKyUISplitter::setSizes(const QList<int>& sizes)
{
    implAs<CKyUISplitterImpl>()->SetSizes(sizes);
}

QByteArray CKyUISplitter::saveState() const
{
    return implAs<CKyUISplitterImpl>()->SaveStateImpl();
}

bool CKyUISplitter::restoreState(const QByteArray& state)
{
    return implAs<CKyUISplitterImpl>()->RestoreStateImpl(state);
}

void CKyUISplitter::setChildrenCollapsible(bool collapsible)
{
    implAs<CKyUISplitterImpl>()->SetChildrenCollapsible(collapsible);
}

bool CKyUISplitter::childrenCollapsible() const
{
    return implAs<CKyUISplitterImpl>()->ChildrenCollapsible();
}

CKyUISignal<void(int, int)>& CKyUISplitter::splitterMoved()
{
    return implAs<CKyUISplitterImpl>()->splitterMoved;
}
