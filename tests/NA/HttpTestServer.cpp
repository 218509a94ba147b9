#include "NA/HttpTestServer.h"

#include <QtCore/QTimer>
#include <QtNetwork/QHostAddress>
#include <QtNetwork/QTcpSocket>

QByteArray HttpTestRequest::header(const QByteArray& name) const
{
    for (const auto& pair : headers) {
        if (pair.first.compare(name, Qt::CaseInsensitive) == 0)
            return pair.second;
    }
    return QByteArray();
}

HttpTestServer::HttpTestServer(QObject* parent)
    : QObject(parent)
{
    connect(&m_server, &QTcpServer::newConnection, this, &HttpTestServer::OnNewConnection);
    m_server.listen(QHostAddress::LocalHost, 0);
}

HttpTestServer::~HttpTestServer()
{
    // The sockets are children of the listening server and go with it, after
    // this object's own fields: they must not report back while doing so.
    m_server.close();
    for (QTcpSocket* socket : m_server.findChildren<QTcpSocket*>())
        socket->disconnect(this);
}

QUrl HttpTestServer::url(const QString& path) const
{
    return QUrl(QStringLiteral("http://127.0.0.1:%1%2").arg(port()).arg(path));
}

void HttpTestServer::setRoute(const QByteArray& path, const Route& route)
{
    m_routes.insert(path, route);
}

void HttpTestServer::OnNewConnection()
{
    while (QTcpSocket* socket = m_server.nextPendingConnection()) {
        m_connections.insert(socket, Connection());
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { OnReadyRead(socket); });
        connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
            m_connections.remove(socket);
            socket->deleteLater();
        });
    }
}

void HttpTestServer::OnReadyRead(QTcpSocket* socket)
{
    auto found = m_connections.find(socket);
    if (found == m_connections.end())
        return;
    Connection& connection = found.value();
    connection.buffer += socket->readAll();
    HttpTestRequest request;
    while (!connection.done && TakeRequest(connection.buffer, request)) {
        m_requests.append(request);
        Answer(socket, request, connection);
        Q_EMIT requestReceived();
        if (!m_connections.contains(socket))
            return;
    }
}

bool HttpTestServer::TakeRequest(QByteArray& buffer, HttpTestRequest& request)
{
    const int headEnd = buffer.indexOf("\r\n\r\n");
    if (headEnd < 0)
        return false;
    const QList<QByteArray> lines = buffer.left(headEnd).split('\n');
    const QList<QByteArray> requestLine = lines.value(0).trimmed().split(' ');
    HttpTestRequest parsed;
    parsed.method = requestLine.value(0);
    parsed.path = requestLine.value(1);
    for (int i = 1; i < lines.size(); ++i) {
        const int colon = lines[i].indexOf(':');
        if (colon > 0)
            parsed.headers.append(
                qMakePair(lines[i].left(colon).trimmed(), lines[i].mid(colon + 1).trimmed()));
    }
    const int length = parsed.header("Content-Length").toInt();
    const int bodyStart = headEnd + 4;
    if (buffer.size() < bodyStart + length)
        return false;
    parsed.body = buffer.mid(bodyStart, length);
    buffer.remove(0, bodyStart + length);
    request = parsed;
    return true;
}

QByteArray HttpTestServer::Head(int status, const QByteArray& reason, const HttpHeaderPairs& headers,
                                qint64 contentLength)
{
    QByteArray head = "HTTP/1.1 " + QByteArray::number(status) + ' ' + reason + "\r\n";
    bool hasLength = false;
    for (const auto& pair : headers) {
        head += pair.first + ": " + pair.second + "\r\n";
        hasLength = hasLength || pair.first.compare("Content-Length", Qt::CaseInsensitive) == 0;
    }
    if (!hasLength)
        head += "Content-Length: " + QByteArray::number(contentLength) + "\r\n";
    return head + "Connection: close\r\n\r\n";
}

void HttpTestServer::Answer(QTcpSocket* socket, const HttpTestRequest& request, Connection& connection)
{
    Route route;
    const auto found = m_routes.constFind(request.path);
    if (found != m_routes.constEnd()) {
        route = found.value();
    } else {
        route.status = 404;
        route.reason = "Not Found";
        route.body = "no route";
    }

    switch (route.mode) {
    case Mode::Answer:
        socket->write(Head(route.status, route.reason, route.headers, route.body.size()) + route.body);
        Close(socket, connection);
        break;
    case Mode::Echo: {
        HttpHeaderPairs headers = route.headers;
        headers.append(qMakePair(QByteArray("X-Echo-Method"), request.method));
        socket->write(Head(200, "OK", headers, request.body.size()) + request.body);
        Close(socket, connection);
        break;
    }
    case Mode::Stall:
        connection.done = true;
        break;
    case Mode::StallMidBody:
        socket->write(Head(route.status, route.reason, route.headers, route.body.size()) +
                      route.body.left(route.body.size() / 2));
        connection.done = true;
        break;
    case Mode::Trickle: {
        socket->write(Head(route.status, route.reason, route.headers, 1 << 20));
        auto* drip = new QTimer(socket);
        connect(drip, &QTimer::timeout, socket, [socket] { socket->write("x"); });
        drip->start(20);
        connection.done = true;
        break;
    }
    case Mode::CloseEarly:
        Close(socket, connection);
        break;
    case Mode::CloseMidBody:
        socket->write(Head(route.status, route.reason, route.headers, route.body.size()) +
                      route.body.left(route.body.size() / 2));
        Close(socket, connection);
        break;
    case Mode::Malformed:
        socket->write(route.body);
        Close(socket, connection);
        break;
    }
}

void HttpTestServer::Close(QTcpSocket* socket, Connection& connection)
{
    // One request per connection: a reused one would make the client's second
    // write wait for the server's delayed acknowledgement.
    connection.done = true;
    socket->disconnectFromHost();
}
