#include "WebSocketMode.h"

#include "NA/CKyNANetworkRequest.h"
#include "NA/CKyNAWebSocket.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QEventLoop>
#include <QtCore/QTextStream>
#include <QtCore/QTimer>
#include <QtCore/QUrl>

namespace
{

const QCommandLineOption messagesOption(QStringLiteral("messages"),
                                        QStringLiteral("Web socket: close after N text messages."),
                                        QStringLiteral("N"));
const QCommandLineOption forOption(QStringLiteral("for"),
                                   QStringLiteral("Web socket: close after MS milliseconds."),
                                   QStringLiteral("MS"));
const QCommandLineOption pingOption(QStringLiteral("ping"),
                                    QStringLiteral("Web socket: ping every MS milliseconds and give up on a "
                                                   "server that leaves a ping unanswered until the next."),
                                    QStringLiteral("MS"));
const QCommandLineOption sendOption(QStringLiteral("send"),
                                    QStringLiteral("Web socket: send TEXT once connected; may be repeated."),
                                    QStringLiteral("TEXT"));

// The option's positive whole number; 0 when it is not given, -1 when it is
// not such a number.
int number(const QCommandLineParser& parser, const QCommandLineOption& option)
{
    if (!parser.isSet(option))
        return 0;
    bool ok = false;
    const int value = parser.value(option).toInt(&ok);
    return ok && value > 0 ? value : -1;
}

void printLine(QTextStream& stream, const QString& text)
{
    stream << text << '\n';
    stream.flush();
}

} // namespace

void addWebSocketOptions(QCommandLineParser& parser)
{
    // --insecure is the HTTP mode's option, read here by name.
    parser.addOptions({messagesOption, forOption, pingOption, sendOption});
}

bool isWebSocketUrl(const QUrl& url)
{
    return url.scheme() == QLatin1String("ws") || url.scheme() == QLatin1String("wss");
}

int runWebSocket(const QCommandLineParser& parser, const CKyNANetworkRequest& request, int handshakeTimeoutMs)
{
    const QStringList sends = parser.values(sendOption);
    // What comes back from an echo ends the run unless told otherwise.
    const int messages = parser.isSet(messagesOption) ? number(parser, messagesOption) : int(sends.size());
    const int pingMs = number(parser, pingOption);
    QTextStream out(stdout);
    QTextStream err(stderr);
    for (const QCommandLineOption* option : {&messagesOption, &forOption, &pingOption}) {
        if (number(parser, *option) < 0) {
            err << "fetch: --" << option->names().constFirst() << " takes a positive whole number\n\n"
                << parser.helpText();
            return 2;
        }
    }
    bool failed = false;
    int received = 0;
    bool awaitingPong = false;
    bool done = false;

    CKyNAWebSocket socket(QString(), CKyNAWebSocketProtocol::VersionLatest);
    const auto stop = [&socket] {
        socket.close(CKyNAWebSocketProtocol::CloseCodeNormal, QStringLiteral("done"));
    };
    QTimer pinger;
    QObject::connect(&pinger, &QTimer::timeout, [&] {
        if (awaitingPong) {
            printLine(err, QStringLiteral("fetch: no pong within %1 ms").arg(pingMs));
            failed = true;
            socket.close(CKyNAWebSocketProtocol::CloseCodeGoingAway, QStringLiteral("no pong"));
            return;
        }
        awaitingPong = true;
        socket.ping();
    });

    QEventLoop loop;
    socket.sslErrors().connect([&](const QList<QSslError>& errors) {
        if (parser.isSet(QStringLiteral("insecure"))) {
            socket.ignoreSslErrors();
            return;
        }
        for (const QSslError& error : errors)
            printLine(err, QStringLiteral("fetch: ") + error.errorString());
    });
    socket.connected().connect([&] {
        if (pingMs > 0)
            pinger.start(pingMs);
        if (number(parser, forOption) > 0)
            QTimer::singleShot(number(parser, forOption), &loop, stop);
        for (const QString& text : sends)
            socket.sendTextMessage(text);
    });
    const auto count = [&] {
        if (++received == messages)
            stop();
    };
    socket.textMessageReceived().connect([&](const QString& message) {
        printLine(out, message);
        count();
    });
    socket.binaryMessageReceived().connect([&](const QByteArray& message) {
        printLine(out, QStringLiteral("binary: %1 bytes").arg(message.size()));
        count();
    });
    socket.pong().connect([&](long long, const QByteArray&) { awaitingPong = false; });
    socket.error().connect([&](int code) {
        printLine(err, QStringLiteral("fetch: web socket error %1").arg(code));
        failed = true;
    });
    socket.disconnected().connect([&] {
        pinger.stop();
        printLine(out, QStringLiteral("close: %1 %2").arg(int(socket.closeCode())).arg(socket.closeReason()));
        done = true;
        loop.quit();
    });

    socket.setHandshakeTimeout(handshakeTimeoutMs);
    socket.open(request);
    // A request the toolkit refuses at once reports error() alone.
    if (!done && !failed)
        loop.exec();
    return failed || socket.closeCode() != CKyNAWebSocketProtocol::CloseCodeNormal ? 1 : 0;
}
