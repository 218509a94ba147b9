#include "UI/Impl/CKyUIDockWidgetImpl.h"

#include "UI/CKyUIBaseView.h"

#include <QtWidgets/QDockWidget>

void CKyUIDockWidgetImpl::RaiseImpl()
{
    if (auto* dock = qobject_cast<QDockWidget*>(owner()->getHandle()))
        dock->raise();
}

void CKyUIDockWidgetImpl::SetInteractiveImpl(bool interactive)
{
    CKyUIBaseViewImpl::SetInteractiveImpl(interactive);
    if (!interactive)
        return;
    if (!owner()->getHandle()) {
        auto* dock = new QDockWidget;
        dock->setStyleSheet(QStringLiteral("QDockWidget { }"));
        // A host's saved window state finds docks by name.
        dock->setObjectName(owner()->objectName());
        owner()->setHandle(dock);
    }
    SetTitleImpl(m_title);
    const bool viewAlive = !m_widgetLifetime || m_widgetLifetime->Alive();
    SetWidgetImpl(viewAlive ? m_widget : nullptr);
}

void CKyUIDockWidgetImpl::SetWidgetImpl(CKyUIBaseView* view)
{
    auto* dock = qobject_cast<QDockWidget*>(owner()->getHandle());
    if (!dock || !owner()->isInteractive())
        return;
    QWidget* widget = WidgetOf(view);
    if (m_placed && m_placed != widget && m_placed->parent() == dock)
        m_placed->setParent(nullptr);
    dock->setWidget(widget);
    m_placed = widget;
}

void CKyUIDockWidgetImpl::SetTitleImpl(const QString& title)
{
    auto* dock = qobject_cast<QDockWidget*>(owner()->getHandle());
    if (dock && owner()->isInteractive())
        dock->setWindowTitle(title);
}

void CKyUIDockWidgetImpl::ReleaseDockImpl()
{
    auto* dock = qobject_cast<QDockWidget*>(owner()->getHandle());
    if (dock && m_placed && m_placed->parent() == dock)
        m_placed->setParent(nullptr);
}
