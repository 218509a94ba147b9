#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPair>
#include <QtCore/QUrl>
#include <QtNetwork/QTcpServer>

class QTcpSocket;

using HttpHeaderPairs = QList<QPair<QByteArray, QByteArray>>;

// One request as the server received it.
struct HttpTestRequest
{
    QByteArray method;
    QByteArray path;
    HttpHeaderPairs headers;
    QByteArray body;

    // First value of a header, name compared without case; null if absent.
    QByteArray header(const QByteArray& name) const;
};

// A small HTTP/1.1 server on 127.0.0.1 and a free port, one request per
// connection, answering each path as told: normally, with a given status,
// headers (repeated names too) and body, echoing what it received, or
// misbehaving (stalling before or inside the body, trickling a body that
// never ends, closing without an answer or in the middle of the body,
// answering with a status line that is no HTTP).
class HttpTestServer : public QObject
{
    Q_OBJECT

public:
    enum class Mode {
        Answer,       // status, headers and body as given; Content-Length added
        Echo,         // 200 with the received body, the method in X-Echo-Method
        Stall,        // reads the request and never answers
        StallMidBody, // headers and the first half of the body, then nothing
        Trickle,      // headers promising much, then one byte every 20 ms
        CloseEarly,   // closes the connection without answering
        CloseMidBody, // headers and the first half of the body, then closes
        Malformed     // the route's body as the whole answer, then closes
    };

    struct Route
    {
        Mode mode = Mode::Answer;
        int status = 200;
        QByteArray reason = "OK";
        HttpHeaderPairs headers;
        QByteArray body;
    };

    explicit HttpTestServer(QObject* parent = nullptr);
    ~HttpTestServer() override;

    bool isListening() const { return m_server.isListening(); }
    quint16 port() const { return m_server.serverPort(); }
    QUrl url(const QString& path) const;

    void setRoute(const QByteArray& path, const Route& route);
    const QList<HttpTestRequest>& requests() const { return m_requests; }
    // Connections accepted and not yet closed by the client.
    int openConnections() const { return m_connections.size(); }

Q_SIGNALS:
    void requestReceived();

private:
    struct Connection
    {
        QByteArray buffer;
        bool done = false; // answered in a way that ends the conversation
    };

    void OnNewConnection();
    void OnReadyRead(QTcpSocket* socket);
    bool TakeRequest(QByteArray& buffer, HttpTestRequest& request);
    void Answer(QTcpSocket* socket, const HttpTestRequest& request, Connection& connection);
    void Close(QTcpSocket* socket, Connection& connection);
    static QByteArray Head(int status, const QByteArray& reason, const HttpHeaderPairs& headers,
                           qint64 contentLength);

    QTcpServer m_server;
    QHash<QByteArray, Route> m_routes;
    QHash<QTcpSocket*, Connection> m_connections;
    QList<HttpTestRequest> m_requests;
};
