#pragma once

#include "NA/CKyNANetworkReply.h"
#include "NA/CKyNAWebSocket.h"
#include "support/Recorder.h"

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
