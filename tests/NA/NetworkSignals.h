#pragma once

// What the network tests share: the classes under test, an event-driven wait
// and the recording of what replies and sockets report.
#include "NA/CKyNANetworkAccessManager.h"
#include "NA/CKyNANetworkReply.h"
#include "NA/CKyNANetworkRequest.h"
#include "NA/CKyNAWebSocket.h"
#include "support/Recorder.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtNetwork/QNetworkReply>

#include <gtest/gtest.h>

#include <memory>

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

// Records what a reply reports: "downloadProgress:<received>,<total>",
// "uploadProgress:<sent>,<total>", "encrypted", "error:<code>", "finished".
inline Recorder& RecordReply(Recorder& recorder, CKyNANetworkReply* reply)
{
    return recorder.on(reply->downloadProgress(), QStringLiteral("downloadProgress"))
        .on(reply->uploadProgress(), QStringLiteral("uploadProgress"))
        .on(reply->encrypted(), QStringLiteral("encrypted"))
        .on(reply->error(), QStringLiteral("error"))
        .on(reply->finished(), QStringLiteral("finished"));
}

// Records what a web socket reports: "connected", "error:<code>",
// "disconnected", "text:<message>".
inline Recorder& RecordSocket(Recorder& recorder, CKyNAWebSocket& socket)
{
    return recorder.on(socket.connected(), QStringLiteral("connected"))
        .on(socket.error(), QStringLiteral("error"))
        .on(socket.disconnected(), QStringLiteral("disconnected"))
        .on(socket.textMessageReceived(), QStringLiteral("text"));
}

// Runs the event loop until the recorder saw "finished"; false if not in time.
inline bool waitFinished(const Recorder& recorder, int timeoutMs = 5000)
{
    return waitUntil([&] { return recorder.has(QStringLiteral("finished")); }, timeoutMs);
}

// What a reply reported, its progress left out.
inline QStringList Outcome(const Recorder& recorder)
{
    QStringList outcome;
    for (const QString& line : recorder.lines) {
        if (!line.contains(QLatin1String("Progress")))
            outcome << line;
    }
    return outcome;
}

// The error code; the non-const error() is the signal.
inline CKyNANetworkReply::NetworkError errorCode(const CKyNANetworkReply& reply)
{
    return reply.error();
}
