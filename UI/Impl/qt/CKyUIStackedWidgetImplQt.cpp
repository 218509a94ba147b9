#include "UI/Impl/CKyUIStackedWidgetImpl.h"

#include "UI/CKyUIBaseView.h"

#include <QtWidgets/QTabWidget>

void CKyUIStackedWidgetImpl::CreateFrontendControl()
{
    // No toolkit signal is connected: the user's tab changes stay the toolkit's.
    auto* tabs = new QTabWidget(nullptr);
    tabs->setStyleSheet(QStringLiteral("QTabWidget { }"));
    owner()->setHandle(tabs);
}

void CKyUIStackedWidgetImpl::AddTabImpl(CKyUIBaseView* view, const QString& title)
{
    auto* tabs = qobject_cast<QTabWidget*>(owner()->getHandle());
    QWidget* widget = WidgetOf(view);
    if (!tabs || !widget)
        return;
    widget->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
    tabs->addTab(widget, title);
}

void CKyUIStackedWidgetImpl::SetTabTextImpl(int index, const QString& text)
{
    if (auto* tabs = qobject_cast<QTabWidget*>(owner()->getHandle()))
        tabs->setTabText(index, text);
}

void CKyUIStackedWidgetImpl::SetCurrentIndexImpl(int index)
{
    if (auto* tabs = qobject_cast<QTabWidget*>(owner()->getHandle()))
        tabs->setCurrentIndex(index);
}
