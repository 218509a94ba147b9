#pragma once

#include <QtCore/QString>

#include <cstdarg>

class QObject;

// Hooks through which views create and release their toolkit widgets.
namespace KyBaseViewImpl
{
// Factory by class name; creates nothing, so every view creates its own widget.
QObject* CreateFrontendControl(const QString& className, void* owner);
// Schedules a widget for deletion; any other kind of object is left alone.
void ReleaseFrontendControl(const QString& className, QObject* control);
// Reserved; do nothing.
void InvokeMethod(QObject* object, const QString* method, ...);
void InvokeMethod(QObject* object, const QString* method, int argumentCount, va_list arguments);
} // namespace KyBaseViewImpl
