#include "BenchServerProcess.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QProcess>

#include <cstdio>
#include <memory>

namespace
{

std::unique_ptr<QProcess> g_server;
quint16 g_httpPort = 0;
quint16 g_webSocketPort = 0;

} // namespace

bool BenchServerProcess::Start()
{
    if (g_server)
        return true;
    auto server = std::make_unique<QProcess>();
    server->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    server->start(
        QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("commonui_bench_server")),
        QStringList());
    if (!server->waitForStarted(10000))
        return false;
    while (!server->canReadLine()) {
        if (!server->waitForReadyRead(10000)) {
            server->kill();
            server->waitForFinished(5000);
            return false;
        }
    }
    const QList<QByteArray> ports = server->readLine().trimmed().split(' ');
    g_httpPort = quint16(ports.value(0).toUInt());
    g_webSocketPort = quint16(ports.value(1).toUInt());
    if (!g_httpPort || !g_webSocketPort) {
        server->kill();
        server->waitForFinished(5000);
        return false;
    }
    g_server = std::move(server);
    return true;
}

void BenchServerProcess::Stop()
{
    if (!g_server)
        return;
    g_server->closeWriteChannel();
    if (!g_server->waitForFinished(5000)) {
        g_server->kill();
        g_server->waitForFinished(5000);
    }
    g_server.reset();
}

QUrl BenchServerProcess::HttpUrl(const QString& path)
{
    return QUrl(QStringLiteral("http://127.0.0.1:%1%2").arg(g_httpPort).arg(path));
}

QUrl BenchServerProcess::WebSocketUrl(const QString& pathAndQuery)
{
    return QUrl(QStringLiteral("ws://127.0.0.1:%1%2").arg(g_webSocketPort).arg(pathAndQuery));
}
