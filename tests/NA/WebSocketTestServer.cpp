#include "NA/WebSocketTestServer.h"

#include <QtNetwork/QHostAddress>

WebSocketTestServer::WebSocketTestServer(QObject* parent)
    : QObject(parent)
    , m_server(QStringLiteral("test"), QWebSocketServer::NonSecureMode)
{
    connect(&m_server, &QWebSocketServer::newConnection, this, &WebSocketTestServer::OnNewConnection);
    m_server.listen(QHostAddress::LocalHost, 0);
}

WebSocketTestServer::~WebSocketTestServer()
{
    m_server.close();
    delete m_peer;
}

QUrl WebSocketTestServer::url() const
{
    return QUrl(QStringLiteral("ws://127.0.0.1:%1/").arg(m_server.serverPort()));
}

void WebSocketTestServer::sendText(const QString& message)
{
    if (m_peer)
        m_peer->sendTextMessage(message);
}

void WebSocketTestServer::sendBinary(const QByteArray& message)
{
    if (m_peer)
        m_peer->sendBinaryMessage(message);
}

void WebSocketTestServer::close(QWebSocketProtocol::CloseCode code, const QString& reason)
{
    if (m_peer)
        m_peer->close(code, reason);
}

void WebSocketTestServer::abort()
{
    if (m_peer)
        m_peer->abort();
}

void WebSocketTestServer::OnNewConnection()
{
    while (QWebSocket* socket = m_server.nextPendingConnection()) {
        delete m_peer;
        m_peer = socket;
        connect(socket, &QWebSocket::disconnected, this, [this, socket] {
            m_peerCloseCode = socket->closeCode();
            m_peerCloseReason = socket->closeReason();
            ++m_disconnections;
        });
        Q_EMIT peerConnected();
    }
}
