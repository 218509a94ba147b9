#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QUrl>
#include <QtWebSockets/QWebSocket>
#include <QtWebSockets/QWebSocketServer>

// A web-socket server on 127.0.0.1 and a free port. The test drives the
// accepted connection: text and binary messages, a close with a code; what
// the client sent on closing is kept.
class WebSocketTestServer : public QObject
{
    Q_OBJECT

public:
    explicit WebSocketTestServer(QObject* parent = nullptr);
    ~WebSocketTestServer() override;

    bool isListening() const { return m_server.isListening(); }
    QUrl url() const;

    // The connection accepted last; null before the first.
    QWebSocket* peer() const { return m_peer; }
    int peerCloseCode() const { return m_peerCloseCode; }
    QString peerCloseReason() const { return m_peerCloseReason; }
    int disconnections() const { return m_disconnections; }

    void sendText(const QString& message);
    void sendBinary(const QByteArray& message);
    void close(QWebSocketProtocol::CloseCode code, const QString& reason);
    // Drops the connection at once, without a closing handshake.
    void abort();

Q_SIGNALS:
    void peerConnected();

private:
    void OnNewConnection();

    QWebSocketServer m_server;
    QPointer<QWebSocket> m_peer;
    int m_peerCloseCode = -1;
    QString m_peerCloseReason;
    int m_disconnections = 0;
};
