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

// Runs the event loop for a fixed span: only for showing that nothing happens.
inline void runEventsFor(int ms)
{
    QTimer span;
    span.setSingleShot(true);
    span.start(ms);
    waitUntil([&span] { return !span.isActive(); }, ms + 1000);
}
