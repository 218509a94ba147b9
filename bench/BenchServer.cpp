// The peer of commonui_bench_network, run as a second process so that the
// client's CPU time is all that process's CPU time. It listens on 127.0.0.1
// only and prints "<http port> <web-socket port>" on one line. It ends when its
// standard input closes (the benchmark ends or dies), or after 20 minutes.
//
// HTTP: HTTP/1.1 with keep-alive; every request, whatever its method and path,
// is answered "200 OK" with a 16-byte body once its body (Content-Length) has
// arrived (a body over 1 MiB is counted as it arrives, not kept); only GET
// /bytes/N is answered with N bytes, written as fast as the
// client takes them (never more than 1 MiB waits in this process). Qt's HTTP client sends a POST's head and
// body in two writes on a socket with Nagle's algorithm on, so the body waits for the server to acknowledge
// the head; a delayed acknowledgement would add some 40 ms to every POST on a reused connection. The server
// therefore acknowledges at once (TCP_QUICKACK, renewed after every read) and sends without delay
// (TCP_NODELAY).
//
// Web socket: GET /stream?size=S&count=N upgrades, then sends N text messages
// of S bytes and a close frame (1000), and closes the connection once the
// client has answered the close.
#include <QtCore/QByteArray>
#include <QtCore/QCoreApplication>
#include <QtCore/QCryptographicHash>
#include <QtCore/QSocketNotifier>
#include <QtCore/QTimer>
#include <QtCore/QUrl>
#include <QtCore/QUrlQuery>
#include <QtNetwork/QHostAddress>
#include <QtNetwork/QTcpServer>
#include <QtNetwork/QTcpSocket>

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <memory>

namespace
{

const QByteArray kHttpAnswer = "HTTP/1.1 200 OK\r\n"
                               "Content-Type: text/plain\r\n"
                               "Content-Length: 16\r\n"
                               "Connection: keep-alive\r\n"
                               "\r\n"
                               "0123456789abcdef";

// Bytes of the request's Content-Length header, 0 without one.
int ContentLength(const QByteArray& head)
{
    for (const QByteArray& line : head.split('\n')) {
        const int colon = line.indexOf(':');
        if (colon > 0 && line.left(colon).trimmed().toLower() == "content-length")
            return line.mid(colon + 1).trimmed().toInt();
    }
    return 0;
}

// Linux leaves quick-acknowledgement mode by itself, so it is asked for again
// after every read.
void AcknowledgeAtOnce(QTcpSocket* socket)
{
    const int on = 1;
    ::setsockopt(int(socket->socketDescriptor()), IPPROTO_TCP, TCP_QUICKACK, &on, sizeof on);
}

struct HttpConnection
{
    QByteArray buffer;
    qint64 bodyLeft = 0; // of a /bytes/N answer still being written
    qint64 discard = 0;  // of a large upload still arriving, counted but not kept
};

void PumpBody(QTcpSocket* socket, HttpConnection& connection)
{
    static const QByteArray chunk(1 << 16, 'b');
    while (connection.bodyLeft > 0 && socket->bytesToWrite() < (1 << 20)) {
        const qint64 size = std::min<qint64>(chunk.size(), connection.bodyLeft);
        socket->write(size == chunk.size() ? chunk : chunk.left(int(size)));
        connection.bodyLeft -= size;
    }
}

void ServeHttp(QTcpSocket* socket, HttpConnection& connection)
{
    QByteArray& buffer = connection.buffer;
    while (connection.bodyLeft == 0) {
        const int headEnd = buffer.indexOf("\r\n\r\n");
        if (headEnd < 0)
            return;
        const int length = ContentLength(buffer.left(headEnd));
        const int total = headEnd + 4 + length;
        if (buffer.size() < total) {
            // A large upload is answered once it has all arrived, without
            // holding it.
            if (length > (1 << 20)) {
                connection.discard = total - buffer.size();
                buffer.clear();
            }
            return;
        }
        const QByteArray path = buffer.left(buffer.indexOf('\r')).split(' ').value(1);
        buffer.remove(0, total);
        if (!path.startsWith("/bytes/")) {
            socket->write(kHttpAnswer);
            continue;
        }
        connection.bodyLeft = path.mid(7).toLongLong();
        socket->write("HTTP/1.1 200 OK\r\nContent-Type: application/octet-stream\r\nContent-Length: " +
                      QByteArray::number(connection.bodyLeft) + "\r\n\r\n");
        PumpBody(socket, connection);
    }
}

void AcceptHttp(QTcpServer& server)
{
    while (QTcpSocket* socket = server.nextPendingConnection()) {
        socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
        AcknowledgeAtOnce(socket);
        auto connection = std::make_shared<HttpConnection>();
        QObject::connect(socket, &QTcpSocket::readyRead, socket, [socket, connection] {
            QByteArray data = socket->readAll();
            if (connection->discard > 0) {
                const int skipped = int(std::min<qint64>(connection->discard, data.size()));
                connection->discard -= skipped;
                data.remove(0, skipped);
                if (connection->discard == 0)
                    socket->write(kHttpAnswer);
            }
            connection->buffer.append(data);
            AcknowledgeAtOnce(socket);
            ServeHttp(socket, *connection);
        });
        QObject::connect(socket, &QTcpSocket::bytesWritten, socket, [socket, connection] {
            if (connection->bodyLeft == 0)
                return;
            PumpBody(socket, *connection);
            ServeHttp(socket, *connection);
        });
        QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    }
}

QByteArray TextFrame(int size)
{
    QByteArray frame;
    frame.append(char(0x81)); // FIN, text
    if (size < 126) {
        frame.append(char(size));
    } else if (size < 65536) {
        frame.append(char(126));
        frame.append(char(size >> 8));
        frame.append(char(size & 0xff));
    } else {
        frame.append(char(127));
        for (int shift = 56; shift >= 0; shift -= 8)
            frame.append(char((quint64(size) >> shift) & 0xff));
    }
    for (int i = 0; i < size; ++i)
        frame.append(char('a' + i % 26));
    return frame;
}

struct Stream
{
    QByteArray head;
    bool upgraded = false;
    QByteArray chunk; // whole frames, about 64 KiB
    int framesPerChunk = 0;
    int frameSize = 0;
    int remaining = 0;
    bool closeSent = false;
};

void Pump(QTcpSocket* socket, Stream& stream)
{
    while (stream.remaining > 0 && socket->bytesToWrite() < (1 << 20)) {
        const int frames = std::min(stream.framesPerChunk, stream.remaining);
        socket->write(frames == stream.framesPerChunk ? stream.chunk
                                                      : stream.chunk.left(frames * stream.frameSize));
        stream.remaining -= frames;
    }
    if (stream.remaining == 0 && !stream.closeSent) {
        stream.closeSent = true;
        socket->write(QByteArray("\x88\x02\x03\xe8", 4)); // close, 1000
    }
}

bool Upgrade(QTcpSocket* socket, Stream& stream)
{
    const int headEnd = stream.head.indexOf("\r\n\r\n");
    if (headEnd < 0)
        return false;
    const QList<QByteArray> lines = stream.head.left(headEnd).split('\n');
    const QList<QByteArray> requestLine = lines.value(0).trimmed().split(' ');
    const QUrlQuery query(QUrl::fromEncoded(requestLine.value(1)));
    QByteArray key;
    for (const QByteArray& line : lines) {
        const int colon = line.indexOf(':');
        if (colon > 0 && line.left(colon).trimmed().toLower() == "sec-websocket-key")
            key = line.mid(colon + 1).trimmed();
    }
    const QByteArray accept =
        QCryptographicHash::hash(key + "258EAFA5-E914-47DA-95CA-C5AB0DC85B11", QCryptographicHash::Sha1)
            .toBase64();
    socket->write("HTTP/1.1 101 Switching Protocols\r\n"
                  "Upgrade: websocket\r\n"
                  "Connection: Upgrade\r\n"
                  "Sec-WebSocket-Accept: " +
                  accept + "\r\n\r\n");

    const int size = std::max(1, query.queryItemValue(QStringLiteral("size")).toInt());
    const QByteArray frame = TextFrame(size);
    stream.frameSize = frame.size();
    stream.framesPerChunk = std::max(1, 65536 / int(frame.size()));
    stream.chunk = frame.repeated(stream.framesPerChunk);
    stream.remaining = std::max(0, query.queryItemValue(QStringLiteral("count")).toInt());
    stream.upgraded = true;
    stream.head.clear();
    return true;
}

void AcceptWebSocket(QTcpServer& server)
{
    while (QTcpSocket* socket = server.nextPendingConnection()) {
        socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
        auto stream = std::make_shared<Stream>();
        QObject::connect(socket, &QTcpSocket::readyRead, socket, [socket, stream] {
            const QByteArray data = socket->readAll();
            if (stream->upgraded) {
                // The only frame a receiving client sends is its close.
                socket->disconnectFromHost();
                return;
            }
            stream->head.append(data);
            if (Upgrade(socket, *stream))
                Pump(socket, *stream);
        });
        QObject::connect(socket, &QTcpSocket::bytesWritten, socket, [socket, stream] {
            if (stream->upgraded)
                Pump(socket, *stream);
        });
        QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    }
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);

    QTcpServer http;
    QTcpServer webSocket;
    if (!http.listen(QHostAddress::LocalHost) || !webSocket.listen(QHostAddress::LocalHost)) {
        std::fprintf(stderr, "commonui_bench_server: cannot listen on 127.0.0.1\n");
        return 1;
    }
    QObject::connect(&http, &QTcpServer::newConnection, [&http] { AcceptHttp(http); });
    QObject::connect(&webSocket, &QTcpServer::newConnection, [&webSocket] { AcceptWebSocket(webSocket); });

    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, [&input] {
        char buffer[256];
        if (::read(STDIN_FILENO, buffer, sizeof buffer) <= 0) {
            input.setEnabled(false);
            QCoreApplication::quit();
        }
    });
    QTimer::singleShot(20 * 60 * 1000, &application, &QCoreApplication::quit);

    std::printf("%u %u\n", unsigned(http.serverPort()), unsigned(webSocket.serverPort()));
    std::fflush(stdout);
    return application.exec();
}
