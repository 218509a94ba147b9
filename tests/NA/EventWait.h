#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <QtCore/QTimer>

// Runs the event loop until the condition holds or the deadline passes;
// wakes on every event, so it returns as soon as the condition is met.
template <class Condition> bool waitUntil(Condition condition, int timeoutMs = 5000)
{
    QElapsedTimer elapsed;
    elapsed.start();
    QTimer deadline;
    deadline.setSingleShot(true);
    deadline.start(timeoutMs);
    while (!condition()) {
        if (elapsed.hasExpired(timeoutMs))
            return condition();
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}
