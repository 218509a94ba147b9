#include "UI/CKyUIStackedWidget.h"

#include "UI/Impl/CKyUIStackedWidgetImpl.h"

CKyUIStackedWidget::CKyUIStackedWidget()
{
    createImpl<CKyUIStackedWidgetImpl>(this);
}

CKyUIStackedWidget::~CKyUIStackedWidget() = default;

void CKyUIStackedWidget::addTab(CKyUIBaseView* view, const QString& title)
{
    if (!view)
        return;
    view->setParent(this);
    // The tree refuses this view itself or one of its ancestors as a page.
    if (view->parent() != this)
        return;
    implAs<CKyUIStackedWidgetImpl>()->AddTab(view, title);
}

int CKyUIStackedWidget::indexOf(CKyUIBaseView* view) const
{
    return implAs<CKyUIStackedWidgetImpl>()->IndexOf(view);
}

void CKyUIStackedWidget::setTabText(int index, const QString& text)
{
    implAs<CKyUIStackedWidgetImpl>()->SetTabText(index, text);
}

int CKyUIStackedWidget::currentIndex() const
{
    return implAs<CKyUIStackedWidgetImpl>()->CurrentIndex();
}

void CKyUIStackedWidget::setCurrentIndex(int index)
{
    implAs<CKyUIStackedWidgetImpl>()->SetCurrentIndex(index);
}

void CKyUIStackedWidget::setCurrentWidget(CKyUIBaseView* view)
{
    setCurrentIndex(indexOf(view));
}

CKyUISignal<void(int)>& CKyUIStackedWidget::currentChanged()
{
    return implAs<CKyUIStackedWidgetImpl>()->currentChanged;
}

CKyUISignal<void(int)>& CKyUIStackedWidget::tabCloseRequested()
{
    return implAs<CKyUIStackedWidgetImpl>()->tabCloseRequested;
}

CKyUISignal<void(int)>& CKyUIStackedWidget::tabBarClicked()
{
    return implAs<CKyUIStackedWidgetImpl>()->tabBarClicked;
}

CKyUISignal<void(int)>& CKyUIStackedWidget::tabBarDoubleClicked()
{
    return implAs<CKyUIStackedWidgetImpl>()->tabBarDoubleClicked;
}
