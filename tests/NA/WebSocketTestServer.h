#pragma once

#include <QtCore/QPointer>
#include <QtCore/QUrl>
#include <QtNetwork/QHostAddress>
#include <QtWebSockets/QWebSocket>
#include <QtWebSockets/QWebSocketServer>

// A web-socket server on 127.0.0.1 and a free port. The test drives the
// accepted connection, peer(), itself; what the client sent on closing is kept.
class WebSocketTestServer : public QObject
{
public:
    WebSocketTestServer()
        : m_server(QStringLiteral("test"), QWebSocketServer::NonSecureMode)
    {
        connect(&m_server, &QWebSocketServer::newConnection, this, [this] {
            while (QWebSocket* socket = m_server.nextPendingConnection()) {
                delete m_peer;
                m_peer = socket;
                connect(socket, &QWebSocket::disconnected, this, [this, socket] {
                    m_peerCloseCode = socket->closeCode();
                    m_peerCloseReason = socket->closeReason();
                    ++m_disconnections;
                });
            }
        });
        m_server.listen(QHostAddress::LocalHost, 0);
    }
    ~WebSocketTestServer() override
    {
        m_server.close();
        delete m_peer;
    }

    bool isListening() const { return m_server.isListening(); }
    QUrl url() const { return QUrl(QStringLiteral("ws://127.0.0.1:%1/").arg(m_server.serverPort())); }

    // The connection accepted last; null before the first.
    QWebSocket* peer() const { return m_peer; }
    int peerCloseCode() const { return m_peerCloseCode; }
    QString peerCloseReason() const { return m_peerCloseReason; }
    int disconnections() const { return m_disconnections; }

private:
    QWebSocketServer m_server;
    QPointer<QWebSocket> m_peer;
    int m_peerCloseCode = -1;
    QString m_peerCloseReason;
    int m_disconnections = 0;
};
