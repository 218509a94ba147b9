#include "UI/Impl/CKyUISplitterImpl.h"

#include "UI/CKyUIBaseView.h"
#include "UI/Impl/qt/KyControlSheet.h"

#include <QtWidgets/QSplitter>

namespace
{
QSplitter* SplitterOf(CKyUIObject* owner)
{
    return qobject_cast<QSplitter*>(owner->getHandle());
}
} // namespace

CKyUISplitterImpl::~CKyUISplitterImpl()
{
    // The widget outlives this object until its deferred deletion.
    QObject::disconnect(m_movedConnection);
}

void CKyUISplitterImpl::CreateFrontendControl()
{
    auto* splitter = new QSplitter(m_orientation);
    KyControlSheet::Apply(splitter, QStringLiteral("splitter"));
    owner()->setHandle(splitter);
    m_movedConnection =
        QObject::connect(splitter, &QSplitter::splitterMoved,
                         [this](int position, int index) { OnSplitterMoved(position, index); });
}

void CKyUISplitterImpl::AddViewImpl(CKyUIBaseView* view, float stretch)
{
    InsertViewImpl(view, -1, stretch);
}

void CKyUISplitterImpl::InsertViewImpl(CKyUIBaseView* view, int index, float stretch)
{
    QSplitter* splitter = SplitterOf(owner());
    QWidget* widget = WidgetOf(view);
    if (!splitter || !widget || widget == splitter)
        return;
    // A position past the end, or a negative one, is the end.
    if (index < 0 || index > splitter->count())
        index = splitter->count();
    splitter->insertWidget(index, widget);
    splitter->setStretchFactor(splitter->indexOf(widget), static_cast<int>(stretch));
    // Sizes given before the views came are given again until the splitter
    // shows, so that they may be set before or after adding the views.
    if (!m_sizes.isEmpty() && !splitter->isVisible())
        splitter->setSizes(m_sizes);
}

void CKyUISplitterImpl::RemoveViewImpl(CKyUIBaseView* view)
{
    QSplitter* splitter = SplitterOf(owner());
    QWidget* widget = WidgetOf(view);
    if (splitter && widget && splitter->indexOf(widget) >= 0) {
        widget->hide();
        widget->setParent(nullptr);
    }
}

void CKyUISplitterImpl::SetSizesImpl(const QList<int>& sizes)
{
    if (QSplitter* splitter = SplitterOf(owner()))
        splitter->setSizes(sizes);
}

QList<int> CKyUISplitterImpl::SizesImpl() const
{
    QSplitter* splitter = SplitterOf(owner());
    return splitter && splitter->count() > 0 ? splitter->sizes() : QList<int>();
}

QByteArray CKyUISplitterImpl::SaveStateImpl() const
{
    QSplitter* splitter = SplitterOf(owner());
    return splitter ? splitter->saveState() : QByteArray();
}

bool CKyUISplitterImpl::RestoreStateImpl(const QByteArray& state)
{
    QSplitter* splitter = SplitterOf(owner());
    return splitter && splitter->restoreState(state);
}

void CKyUISplitterImpl::SetChildrenCollapsibleImpl(bool collapsible)
{
    if (QSplitter* splitter = SplitterOf(owner()))
        splitter->setChildrenCollapsible(collapsible);
}
