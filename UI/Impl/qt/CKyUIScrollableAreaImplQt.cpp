#include "UI/Impl/CKyUIScrollableAreaImpl.h"

#include "UI/CKyUIBaseView.h"

#include <QtCore/QCoreApplication>
#include <QtWidgets/QScrollArea>

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
