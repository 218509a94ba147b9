#include "UI/CKyUIDockWidget.h"

#include "UI/Impl/CKyUIDockWidgetImpl.h"

CKyUIDockWidget::CKyUIDockWidget(int area)
{
    auto* impl = createImpl<CKyUIDockWidgetImpl>(this);
    impl->SetArea(area);
}

CKyUIDockWidget::~CKyUIDockWidget() = default;

void CKyUIDockWidget::setWidget(CKyUIBaseView* view)
{
    // Show and hide events are handed down the chain of docks: a chain that
    // leads back here would never end.
    for (CKyUIBaseView* next = view; next;) {
        if (next == this)
            return;
        auto* dock = dynamic_cast<CKyUIDockWidget*>(next);
        next = dock ? dock->widget() : nullptr;
    }
    implAs<CKyUIDockWidgetImpl>()->SetWidget(view);
    // Like a view added to a container. A view that is already interactive is
    // left alone: the dock may sit in its tree.
    if (view && isInteractive() && !view->isInteractive())
        SetInteractiveTree(view, true);
}

CKyUIBaseView* CKyUIDockWidget::widget()
{
    return implAs<CKyUIDockWidgetImpl>()->Widget();
}

const CKyUIBaseView* CKyUIDockWidget::widget() const
{
    return implAs<CKyUIDockWidgetImpl>()->Widget();
}

int CKyUIDockWidget::area() const
{
    return implAs<CKyUIDockWidgetImpl>()->Area();
}

void CKyUIDockWidget::setTitle(const QString& title)
{
    implAs<CKyUIDockWidgetImpl>()->SetTitle(title);
}

void CKyUIDockWidget::raise()
{
    implAs<CKyUIDockWidgetImpl>()->RaiseImpl();
}

void CKyUIDockWidget::showEvent(CKyUIShowEvent* event)
{
    if (CKyUIBaseView* view = widget())
        view->showEvent(event);
}

void CKyUIDockWidget::hideEvent(CKyUIHideEvent* event)
{
    if (CKyUIBaseView* view = widget())
        view->hideEvent(event);
}
