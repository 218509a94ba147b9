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

void CKyUIStackedWidgetImpl::SetInteractiveImpl(bool interactive)
{
    CKyUIBaseViewImpl::SetInteractiveImpl(interactive);
    auto* tabs = qobject_cast<QTabWidget*>(owner()->getHandle());
    if (!tabs || !interactive)
        return;
    // The user may have picked another page while nobody listened; linked
    // only afterwards, so that nothing is reported.
    if (IsIndex(m_currentIndex))
        tabs->setCurrentIndex(m_currentIndex);
    // The toolkit reports a press on the bar (-1 outside the tabs) before the
    // page it selects.
    LinkUserInput(QObject::connect(tabs, &QTabWidget::tabBarClicked, tabs,
                                   [this](int index) { tabBarClicked.Emit(index); }));
    // The stored index stays one of a page (the toolkit says -1 once its last
    // page has gone).
    LinkUserInput(QObject::connect(tabs, &QTabWidget::currentChanged, tabs, [this](int index) {
        if (IsIndex(index))
            OnPageActivated(index);
    }));
    LinkUserInput(QObject::connect(tabs, &QTabWidget::tabBarDoubleClicked, tabs,
                                   [this](int index) { tabBarDoubleClicked.Emit(index); }));
    LinkUserInput(QObject::connect(tabs, &QTabWidget::tabCloseRequested, tabs,
                                   [this](int index) { tabCloseRequested.Emit(index); }));
}
