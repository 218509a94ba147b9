#include "UI/Impl/CKyUIScrollableAreaImpl.h"

#include "UI/CKyUIBaseView.h"

#include <QtCore/QCoreApplication>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>

namespace
{
// A way the area does not scroll has no scroll bar, and the hidden bar takes
// no wheel either; scrollTo() still moves it.
void Allow(QAbstractScrollArea* area, Qt::Orientation way, bool enabled)
{
    const Qt::ScrollBarPolicy policy = enabled ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff;
    if (way == Qt::Horizontal) {
        area->setHorizontalScrollBarPolicy(policy);
        area->horizontalScrollBar()->setEnabled(enabled);
    } else {
        area->setVerticalScrollBarPolicy(policy);
        area->verticalScrollBar()->setEnabled(enabled);
    }
}
} // namespace

void CKyUIScrollableAreaImpl::CreateFrontendControl()
{
    auto* area = new QScrollArea(nullptr);
    area->setStyleSheet(QStringLiteral("QScrollView, QScrollArea { }"));
    owner()->setHandle(area);
}

void CKyUIScrollableAreaImpl::AddViewImpl(CKyUIBaseView* view, float)
{
    auto* area = qobject_cast<QScrollArea*>(owner()->getHandle());
    if (!area)
        return;
    if (QWidget* widget = WidgetOf(view)) {
        widget->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
        // The toolkit would delete the earlier widget, which still belongs to
        // its view; hand it back to that view instead.
        if (area->widget() && area->widget() != widget)
            area->takeWidget();
        area->setWidget(widget);
    }
    area->setWidgetResizable(true);
}

void CKyUIScrollableAreaImpl::ScrollToImpl(CKyUIBaseView* view)
{
    auto* area = qobject_cast<QScrollArea*>(owner()->getHandle());
    if (!area)
        return;
    QWidget* widget = WidgetOf(view);
    // Geometries are only current once pending layout requests have run.
    QCoreApplication::processEvents();
    if (!widget || !area->widget())
        return;
    // The widget's maximum height as vertical margin: with the usual unlimited
    // maximum the widget ends up centred in the viewport.
    area->ensureWidgetVisible(widget, 0, widget->maximumSize().height());
}

void CKyUIScrollableAreaImpl::SetInteractiveImpl(bool interactive)
{
    CKyUIBaseViewImpl::SetInteractiveImpl(interactive);
    if (auto* area = qobject_cast<QScrollArea*>(owner()->getHandle())) {
        Allow(area, Qt::Horizontal, !interactive || m_horizontalScrollingEnabled);
        Allow(area, Qt::Vertical, !interactive || m_verticalScrollingEnabled);
    }
}

void CKyUIScrollableAreaImpl::SetHorizontalScrollingEnabledImpl(bool enabled)
{
    auto* area = qobject_cast<QScrollArea*>(owner()->getHandle());
    if (area && owner()->isInteractive())
        Allow(area, Qt::Horizontal, enabled);
}

void CKyUIScrollableAreaImpl::SetVerticalScrollingEnabledImpl(bool enabled)
{
    auto* area = qobject_cast<QScrollArea*>(owner()->getHandle());
    if (area && owner()->isInteractive())
        Allow(area, Qt::Vertical, enabled);
}
