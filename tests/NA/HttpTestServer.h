#pragma once

#include <QtCore/QHash>
#include <QtCore/QTimer>
#include <QtCore/QUrl>
#include <QtNetwork/QHostAddress>
#include <QtNetwork/QTcpServer>
#include <QtNetwork/QTcpSocket>

using HttpHeaderPairs = QList<QPair<QByteArray, QByteArray>>;

// One request as the server received it.
struct HttpTestRequest
{
    QByteArray method;
    QByteArray path;
    HttpHeaderPairs headers;
    QByteArray body;

    // First value of a header, name compared without case; null if absent.
    QByteArray header(const QByteArray& name) const
    {
        for (const auto& pair : headers) {
            if (pair.first.compare(name, Qt::CaseInsensitive) == 0)
                return pair.second;
        }
        return QByteArray();
    }
};

// A small HTTP/1.1 server on 127.0.0.1 and a free port, one request per
// connection, answering each path as told: normally, with given headers
// (repeated names too) and body, echoing what it received, or misbehaving
// (stalling before or inside the body, trickling a body that never ends,
// closing without an answer or in the middle of the body, answering with a
// status line that is no HTTP). A path without a route gets 404.
class HttpTestServer : public QObject
{
public:
    enum class Mode {
        Answer,       // headers and body as given; Content-Length added
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
        HttpHeaderPairs headers;
        QByteArray body;
    };

    HttpTestServer()
    {
        connect(&m_server, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket* socket = m_server.nextPendingConnection()) {
                m_connections.insert(socket, QByteArray(""));
                connect(socket, &QTcpSocket::readyRead, this, [this, socket] { OnReadyRead(socket); });
                connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
                    m_connections.remove(socket);
                    socket->deleteLater();
                });
            }
        });
        m_server.listen(QHostAddress::LocalHost, 0);
    }
    ~HttpTestServer() override
    {
        // The sockets are children of the listening server and go with it, after
        // this object's own fields: they must not report back while doing so.
        m_server.close();
        for (QTcpSocket* socket : m_server.findChildren<QTcpSocket*>())
            socket->disconnect(this);
    }

    bool isListening() const { return m_server.isListening(); }
    QUrl url(const QString& path) const
    {
        return QUrl(QStringLiteral("http://127.0.0.1:%1%2").arg(m_server.serverPort()).arg(path));
    }
    void setRoute(const QByteArray& path, const Route& route) { m_routes.insert(path, route); }
    const QList<HttpTestRequest>& requests() const { return m_requests; }
    // Connections accepted and not yet closed by the client.
    int openConnections() const { return m_connections.size(); }

private:
    // Every answer ends or freezes its connection, so only the first whole
    // request on it is taken; a null buffer marks a connection answered.
    void OnReadyRead(QTcpSocket* socket)
    {
        auto found = m_connections.find(socket);
        if (found == m_connections.end() || found->isNull())
            return;
        QByteArray& buffer = *found;
        buffer += socket->readAll();
        const int headEnd = buffer.indexOf("\r\n\r\n");
        if (headEnd < 0)
            return;
        const QList<QByteArray> lines = buffer.left(headEnd).split('\n');
        const QList<QByteArray> requestLine = lines.value(0).trimmed().split(' ');
        HttpTestRequest request{requestLine.value(0), requestLine.value(1), {}, {}};
        for (const QByteArray& line : lines.mid(1)) {
            const int colon = line.indexOf(':');
            if (colon > 0)
                request.headers.append(qMakePair(line.left(colon).trimmed(), line.mid(colon + 1).trimmed()));
        }
        const int length = request.header("Content-Length").toInt();
        if (buffer.size() < headEnd + 4 + length)
            return;
        request.body = buffer.mid(headEnd + 4, length);
        buffer = QByteArray();
        m_requests.append(request);
        Answer(socket, request);
    }

    void Answer(QTcpSocket* socket, const HttpTestRequest& request)
    {
        const bool known = m_routes.contains(request.path);
        const Route route = m_routes.value(request.path, Route{Mode::Answer, {}, "no route"});
        const auto head = [known](const HttpHeaderPairs& headers, qint64 length) {
            QByteArray head = known ? "HTTP/1.1 200 OK\r\n" : "HTTP/1.1 404 Not Found\r\n";
            for (const auto& pair : headers)
                head += pair.first + ": " + pair.second + "\r\n";
            return head + "Content-Length: " + QByteArray::number(length) + "\r\nConnection: close\r\n\r\n";
        };
        // One request per connection: a reused one would make the client's
        // second write wait for the server's delayed acknowledgement.
        bool close = true;
        switch (route.mode) {
        case Mode::Answer:
            socket->write(head(route.headers, route.body.size()) + route.body);
            break;
        case Mode::Echo:
            socket->write(head(route.headers + HttpHeaderPairs{{"X-Echo-Method", request.method}},
                               request.body.size()) +
                          request.body);
            break;
        case Mode::Stall:
            close = false;
            break;
        case Mode::StallMidBody:
        case Mode::CloseMidBody:
            socket->write(head(route.headers, route.body.size()) + route.body.left(route.body.size() / 2));
            close = route.mode == Mode::CloseMidBody;
            break;
        case Mode::Trickle: {
            socket->write(head(route.headers, 1 << 20));
            auto* drip = new QTimer(socket);
            connect(drip, &QTimer::timeout, socket, [socket] { socket->write("x"); });
            drip->start(20);
            close = false;
            break;
        }
        case Mode::CloseEarly:
            break;
        case Mode::Malformed:
            socket->write(route.body);
            break;
        }
        if (close)
            socket->disconnectFromHost();
    }

    QTcpServer m_server;
    QHash<QByteArray, Route> m_routes;
    QHash<QTcpSocket*, QByteArray> m_connections; // what each has sent so far
    QList<HttpTestRequest> m_requests;
};
