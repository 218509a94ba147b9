#pragma once

#include "NA/CKyNANetworkReply.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

// Writes down what a reply reports: errors and finishes in order (as
// "error:<code>" and "finished"), progress as counts and the last values.
struct ReplyRecorder
{
    QStringList log;
    int downloads = 0;
    long long lastReceived = 0;
    int uploads = 0;
    long long lastSent = 0;

    explicit ReplyRecorder(CKyNANetworkReply* reply)
    {
        reply->downloadProgress().connect([this](long long received, long long) {
            ++downloads;
            lastReceived = received;
        });
        reply->uploadProgress().connect([this](long long sent, long long) {
            ++uploads;
            lastSent = sent;
        });
        reply->encrypted().connect([this] { log << QStringLiteral("encrypted"); });
        reply->error().connect([this](CKyNANetworkReply::NetworkError code) {
            log << QStringLiteral("error:%1").arg(int(code));
        });
        reply->finished().connect([this] { log << QStringLiteral("finished"); });
    }

    bool isFinished() const { return log.contains(QStringLiteral("finished")); }
};

// The error code; the non-const error() is the signal.
inline CKyNANetworkReply::NetworkError errorCode(const CKyNANetworkReply& reply)
{
    return reply.error();
}
