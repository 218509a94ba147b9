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
    // A coarse timer may fire early, and the loop below would then sleep on.
    deadline.setTimerType(Qt::PreciseTimer);
    deadline.start(timeoutMs);
    while (!condition()) {
        if (elapsed.elapsed() >= timeoutMs) // hasExpired() is false right on time
            return condition();
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}
