#include "UI/Impl/qt/KyBoxPlacement.h"

#include "UI/CKyUIBaseView.h"
#include "UI/Impl/CKyUIBaseViewImpl.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QButtonGroup>

namespace
{
// Null when the child takes no place in the toolkit layout.
QWidget* PrepareChildWidget(CKyUIBaseView* view, QSizePolicy::Policy verticalPolicy)
{
    // Radio groups are members of the public tree, not of the toolkit layout.
    if (!view || qobject_cast<QButtonGroup*>(view->getHandle()))
        return nullptr;
    QWidget* widget = CKyUIBaseViewImpl::WidgetOf(view);
    // Overrides whatever policy the child's class chose.
    if (widget)
        widget->setSizePolicy(QSizePolicy::Preferred, verticalPolicy);
    return widget;
}
} // namespace

void KyBoxPlacement::Add(QBoxLayout* layout, CKyUIBaseView* view, float stretch, bool vertical,
                         QSizePolicy::Policy verticalPolicy)
{
    QWidget* widget = layout ? PrepareChildWidget(view, verticalPolicy) : nullptr;
    if (!widget)
        return;
    const int integerStretch = static_cast<int>(stretch);
    if (vertical)
        layout->insertWidget(layout->count(), widget, integerStretch, Qt::Alignment());
    else
        layout->addWidget(widget, integerStretch, Qt::Alignment());
}

void KyBoxPlacement::Insert(QBoxLayout* layout, CKyUIBaseView* view, int index, float stretch,
                            QSizePolicy::Policy verticalPolicy)
{
    QWidget* widget = layout ? PrepareChildWidget(view, verticalPolicy) : nullptr;
    if (!widget)
        return;
    // A position past the end is the end, as a negative one is for the
    // toolkit, which asserts on the former in its debug builds.
    if (index > layout->count())
        index = -1;
    layout->insertWidget(index, widget, static_cast<int>(stretch), Qt::Alignment());
}
