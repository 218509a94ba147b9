#include "UI/Impl/qt/KyBaseViewImpl.h"

#include <QtCore/QObject>

namespace KyBaseViewImpl
{
QObject* CreateFrontendControl(const QString&, void*)
{
    return nullptr;
}

void ReleaseFrontendControl(const QString&, QObject* control)
{
    // Later, not now: the widget may be inside one of its own event handlers.
    if (control && control->isWidgetType())
        control->deleteLater();
}

void InvokeMethod(QObject*, const QString*, ...)
{
}

void InvokeMethod(QObject*, const QString*, int, va_list)
{
}
} // namespace KyBaseViewImpl
