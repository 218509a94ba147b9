#include "UI/Impl/CKyUIGroupBoxImpl.h"

#include "UI/Impl/qt/CKyUIGroupBoxFrontend.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QVBoxLayout>

namespace
{
CKyUIGroupBoxFrontend* FrontendOf(const CKyUIObject* owner)
{
    return qobject_cast<CKyUIGroupBoxFrontend*>(owner->getHandle());
}

QBoxLayout* LayoutOf(const CKyUIObject* owner)
{
    CKyUIGroupBoxFrontend* frontend = FrontendOf(owner);
    return frontend ? qobject_cast<QBoxLayout*>(frontend->layout()) : nullptr;
}

// Size policy common to add and insert; null when the child takes no place in
// the toolkit layout.
QWidget* PrepareChildWidget(CKyUIBaseView* view)
{
    // Radio groups are no widgets: members of the public tree only.
    if (!view || qobject_cast<QButtonGroup*>(view->getHandle()))
        return nullptr;
    QWidget* widget = CKyUIBaseViewImpl::WidgetOf(view);
    if (widget)
        widget->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    return widget;
}
} // namespace

void CKyUIGroupBoxImpl::CreateFrontendControl()
{
    auto* frontend = new CKyUIGroupBoxFrontend;
    frontend->impl = this;
    owner()->setHandle(frontend);
    // An empty rule, so that the dialog's theme governs the box.
    frontend->setStyleSheet(QStringLiteral("QGroupBox { }"));
    if (IsVertical())
        new QVBoxLayout(frontend);
    else
        new QHBoxLayout(frontend);
}

void CKyUIGroupBoxImpl::AddViewImpl(CKyUIBaseView* view, float stretch)
{
    QBoxLayout* layout = LayoutOf(owner());
    QWidget* widget = layout ? PrepareChildWidget(view) : nullptr;
    if (!widget)
        return;
    const int integerStretch = static_cast<int>(stretch);
    if (IsVertical())
        layout->insertWidget(layout->count(), widget, integerStretch, Qt::Alignment());
    else
        layout->addWidget(widget, integerStretch, Qt::Alignment());
}

void CKyUIGroupBoxImpl::InsertViewImpl(CKyUIBaseView* view, int index, float stretch)
{
    QBoxLayout* layout = LayoutOf(owner());
    QWidget* widget = layout ? PrepareChildWidget(view) : nullptr;
    if (!widget)
        return;
    // A position past the end is the end, as a negative one is for the
    // toolkit, which asserts on the former in its debug builds.
    if (index > layout->count())
        index = -1;
    layout->insertWidget(index, widget, static_cast<int>(stretch), Qt::Alignment());
}

void CKyUIGroupBoxImpl::SetTitleImpl(const QString& title)
{
    if (CKyUIGroupBoxFrontend* frontend = FrontendOf(owner()))
        frontend->setTitle(title);
}

void CKyUIGroupBoxImpl::UseMarginImpl(bool use)
{
    const int margin = use ? 5 : 0;
    SetContentsMarginsImpl(margin, margin, margin, margin);
}

void CKyUIGroupBoxImpl::SetContentsMarginsImpl(int left, int top, int right, int bottom)
{
    if (QBoxLayout* layout = LayoutOf(owner()))
        layout->setContentsMargins(left, top, right, bottom);
}

void CKyUIGroupBoxImpl::SetSpacingImpl(int spacing)
{
    if (QBoxLayout* layout = LayoutOf(owner()))
        layout->setSpacing(spacing);
}

void CKyUIGroupBoxImpl::SetCollapsedImpl(bool)
{
    // Collapsing is bookkeeping only: the box keeps showing its children.
}
