#include "UI/Impl/CKyUIBoxLayoutImpl.h"

#include "UI/CKyUIBaseView.h"

#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QVBoxLayout>

void CKyUIBoxLayoutImpl::CreateFrontendControl()
{
    auto* box = new QGroupBox;
    // The two sheets differ by one blank; both are kept as they are.
    box->setStyleSheet(m_direction == Direction::Horizontal
                           ? QStringLiteral("QGroupBox{ border: none; padding: 0px; }")
                           : QStringLiteral("QGroupBox { border: none; padding: 0px; }"));
    owner()->setHandle(box);
    QBoxLayout* layout = m_direction == Direction::Horizontal ? static_cast<QBoxLayout*>(new QHBoxLayout(box))
                                                              : new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
}

QBoxLayout* CKyUIBoxLayoutImpl::GetBoxLayout() const
{
    auto* box = qobject_cast<QGroupBox*>(owner()->getHandle());
    return box ? qobject_cast<QBoxLayout*>(box->layout()) : nullptr;
}

QWidget* CKyUIBoxLayoutImpl::PrepareChildWidget(CKyUIBaseView* view) const
{
    // Radio groups are members of the public tree, not of the toolkit layout.
    if (!view || qobject_cast<QButtonGroup*>(view->getHandle()))
        return nullptr;
    QWidget* widget = WidgetOf(view);
    if (!widget)
        return nullptr;
    // Overrides whatever policy the child's class chose.
    widget->setSizePolicy(QSizePolicy::Preferred, m_direction == Direction::Horizontal
                                                      ? QSizePolicy::Preferred
                                                      : QSizePolicy::Minimum);
    return widget;
}

void CKyUIBoxLayoutImpl::AddViewImpl(CKyUIBaseView* view, float stretch)
{
    QBoxLayout* layout = GetBoxLayout();
    QWidget* widget = layout ? PrepareChildWidget(view) : nullptr;
    if (!widget)
        return;
    const int integerStretch = static_cast<int>(stretch);
    if (m_direction == Direction::Horizontal)
        layout->addWidget(widget, integerStretch, Qt::Alignment());
    else
        layout->insertWidget(layout->count(), widget, integerStretch, Qt::Alignment());
}

void CKyUIBoxLayoutImpl::InsertViewImpl(CKyUIBaseView* view, int index, float stretch)
{
    QBoxLayout* layout = GetBoxLayout();
    QWidget* widget = layout ? PrepareChildWidget(view) : nullptr;
    if (!widget)
        return;
    // A position past the end is the end, as a negative one is for the
    // toolkit, which asserts on the former in its debug builds.
    if (index > layout->count())
        index = -1;
    layout->insertWidget(index, widget, static_cast<int>(stretch), Qt::Alignment());
}

void CKyUIBoxLayoutImpl::RemoveWidgetImpl(CKyUIBaseView* view)
{
    // A null widget would match every spacer and nested layout.
    QBoxLayout* layout = GetBoxLayout();
    QWidget* widget = WidgetOf(view);
    if (layout && widget)
        layout->removeWidget(widget);
}

void CKyUIBoxLayoutImpl::UseMarginImpl(bool use)
{
    const int margin = use ? 5 : 0;
    SetContentsMarginsImpl(margin, margin, margin, margin);
}

void CKyUIBoxLayoutImpl::SetContentsMarginsImpl(int left, int top, int right, int bottom)
{
    if (QBoxLayout* layout = GetBoxLayout())
        layout->setContentsMargins(left, top, right, bottom);
}

void CKyUIBoxLayoutImpl::SetSpacingImpl(int spacing)
{
    if (QBoxLayout* layout = GetBoxLayout())
        layout->setSpacing(spacing);
}
