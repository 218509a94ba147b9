#include "NA/ClosedPort.h"
#include "NA/NetworkSignals.h"

#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>

#include <list>

namespace
{

// websocket_peer.py on python3-websockets, plain and TLS, and its raw TCP peer
// (see there for what each path does). A missing interpreter or package fails
// the test.
struct Peer : QProcess
{
    Peer()
    {
        start(QStringLiteral("/usr/bin/python3"), {QStringLiteral(COMMONUI_WEBSOCKET_PEER)});
        waitUntil([this] { return canReadLine() || state() == NotRunning; }, 20000);
        urls =
            QString::fromUtf8(readLine()).trimmed().split(QLatin1Char(' ')); // ws:// wss:// and the raw ws://
        EXPECT_EQ(urls.size(), 3) << qPrintable(errorString() + readAllStandardError());
    }
    ~Peer() override { closeWriteChannel(), waitForFinished(5000); }
    QString url(const char* path, int server = 0) const { return urls.value(server) + QLatin1String(path); }
    QStringList urls;
};

// Records into `log` what `socket` reports, with closeCode() and closeReason()
// read from the slot of disconnected().
void RecordAll(Recorder& log, CKyNAWebSocket& socket)
{
    RecordSocket(log, socket);
    socket.sslErrors().connect(
        [&log](const QList<QSslError>& e) { log.add("sslErrors", e.value(0).error()); });
    socket.pong().connect(
        [&log](long long, const QByteArray& payload) { log.add("pong", QString(payload)); });
    socket.disconnected().connect(
        [&log, &socket] { log.add("closed", socket.closeCode(), socket.closeReason()); });
}

struct Socket : CKyNAWebSocket
{
    explicit Socket(const QString& url, int handshakeTimeout = 0)
        : CKyNAWebSocket(QString(), CKyNAWebSocketProtocol::VersionLatest)
    {
        RecordAll(log, *this);
        setHandshakeTimeout(handshakeTimeout);
        open(CKyNANetworkRequest(QUrl(url)));
    }
    ~Socket() override { blockSignals(true); }
    // Waits until what it reported reads `want`, or matches it as a pattern.
    void expect(const QString& want, bool pattern = false)
    {
        const QRegularExpression all(
            QRegularExpression::anchoredPattern(pattern ? want : QRegularExpression::escape(want)));
        EXPECT_TRUE(waitUntil([&] { return all.match(log.lines.join(' ')).hasMatch(); }))
            << qPrintable(log.lines.join(' '));
    }
    Recorder log;
};

} // namespace

// Every socket runs at once against one server. The wait for the frozen peer's
// pong outlasts the bounded opening of `alive`, which must not fire once open.
TEST(WebSocketPeer, EachOptionReportsInOrderAgainstARealServer)
{
    Peer peer;
    Socket byPeer(peer.url("/close/4001/going%20away")), unanswered(peer.url("/hang"), 200),
        alive(peer.url("/echo"), 2000), frozen(peer.url("/frozen")), untrusted(peer.url("/echo", true)),
        all(peer.url("/echo", true)), listed(peer.url("/echo", true));
    untrusted.ignoreSslErrors(); // outside a slot of sslErrors: no effect
    all.sslErrors().connect([&all](const QList<QSslError>&) { all.ignoreSslErrors(); });
    listed.sslErrors().connect([&listed](const QList<QSslError>& errors) { listed.ignoreSslErrors(errors); });
    ASSERT_TRUE(waitUntil([&] { return alive.log.has("connected") && frozen.log.has("text:frozen"); }));
    alive.ping("still there?");
    frozen.ping("still there?");
    EXPECT_FALSE(waitUntil([&] { return frozen.log.has("pong:still there?"); }, 2500));

    byPeer.expect("connected disconnected closed:4001,going away");
    unanswered.expect("error:5 disconnected closed:1006,");
    alive.expect("connected pong:still there?");
    untrusted.expect("sslErrors:9 error:13 disconnected closed:1006,");
    all.expect("sslErrors:9 connected");
    listed.expect("sslErrors:9 connected");
}

// Every way a connection ends gives exactly one disconnected() and a stated
// close code. All rows run at once; the last to end is the timed-out one.
TEST(WebSocketPeer, EveryEndingGivesOneDisconnectedAndAStatedCloseCode)
{
    Peer peer;
    ClosedPort closedPort;
    QString closed = closedPort.url().toString();
    closed.replace(0, 4, QStringLiteral("ws"));
    const struct
    {
        QString url;
        int timeout;
        const char* want;
    } rows[] = {
        {peer.url("/echo"), 0, "connected disconnected closed:1001,leaving"}, // our close
        {peer.url("/close/4001/going%20away"), 0, "connected disconnected closed:4001,going away"},
        {peer.url("/close"), 0, "connected disconnected closed:1000,"},                  // no status code
        {peer.url("/", 2), 0, "connected text:hello error:1 disconnected closed:1006,"}, // dropped
        {peer.url("/refuse"), 0,
         "(error:0 )?error:1 disconnected closed:1006,"}, // 403 and close may come as one
        {closed, 0, "disconnected closed:1006, error:0"},
        {peer.url("/echo", true), 0, "sslErrors:9 error:13 disconnected closed:1006,"},
        {peer.url("/hang"), 300, "error:5 disconnected closed:1006,"},
    };
    std::list<Socket> sockets;
    for (const auto& row : rows)
        sockets.emplace_back(row.url, row.timeout);
    Socket& ours = sockets.front();
    ours.connected().connect([&ours] { ours.close(CKyNAWebSocketProtocol::CloseCodeGoingAway, "leaving"); });
    // Twice: nothing may follow the one disconnected().
    for (int pass = 0; pass < 2; ++pass) {
        auto socket = sockets.begin();
        for (const auto& row : rows)
            (socket++)->expect(QString::fromUtf8(row.want), true);
    }
}

// What a slot of sslErrors() ignores holds for that handshake only; ping() does
// nothing while not connected: before connected() it leaves the handshake
// alone, after disconnected() the toolkit has nothing to complain about.
TEST(WebSocketPeer, IgnoredErrorsAndPingsTakeEffectOnlyWhileTheyMay)
{
    Peer peer;
    static QStringList warnings;
    for (const bool listed : {false, true}) {
        Socket socket(peer.url("/echo", true));
        socket.ping("early");
        int handshakes = 0;
        socket.sslErrors().connect([&](const QList<QSslError>& errors) {
            if (handshakes++ == 0)
                listed ? socket.ignoreSslErrors(errors) : socket.ignoreSslErrors();
        });
        socket.expect("sslErrors:9 connected");
        socket.close(CKyNAWebSocketProtocol::CloseCodeNormal, "");
        socket.expect("sslErrors:9 connected disconnected closed:1000,");
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& m) { warnings << m; });
        socket.ping("late");
        qInstallMessageHandler(nullptr);
        EXPECT_EQ(warnings.join('\n').toStdString(), "");

        socket.log.lines.clear();
        socket.open(CKyNANetworkRequest(QUrl(peer.url("/echo", true))));
        socket.ping("early");
        socket.expect("sslErrors:9 error:13 disconnected closed:1006,");
    }
}

// close() or deletion from a slot of each signal reaches nothing freed, and so
// does deleting a connected socket from outside its slots. A deleted socket
// reports nothing from then on; a closed one ends with one disconnected().
TEST(WebSocketPeer, ClosedOrDeletedFromEachOfItsSignals)
{
    Peer peer;
    const struct
    {
        const char* signal;
        QString url;
        int timeout;
    } rows[] = {{"connected", peer.url("/echo"), 0}, {"text", peer.url("/frozen"), 0},
                {"pong", peer.url("/echo"), 0},      {"sslErrors", peer.url("/echo", true), 0},
                {"error", peer.url("/hang"), 100},   {"disconnected", peer.url("/close/4001/x"), 0},
                {"outside", peer.url("/echo"), 0}};
    for (const auto& row : rows) {
        for (const bool remove : {false, true}) {
            SCOPED_TRACE(std::string(row.signal) + (remove ? " delete" : " close"));
            const QByteArray which(row.signal);
            Recorder log;
            auto* socket = new CKyNAWebSocket(QString(), CKyNAWebSocketProtocol::VersionLatest);
            RecordAll(log, *socket);
            const QPointer<QObject> toolkit = socket->getHandle();
            const auto act = [&] {
                if (log.has("act"))
                    return;
                log.add("act");
                if (remove)
                    delete socket;
                else
                    socket->close(CKyNAWebSocketProtocol::CloseCodeGoingAway, "x");
            };
            const auto on = [&](const char* name) {
                return [&, name](const auto&...) { which == name ? act() : void(); };
            };
            socket->connected().connect(on("connected"));
            socket->textMessageReceived().connect(on("text"));
            socket->pong().connect(on("pong"));
            socket->sslErrors().connect(on("sslErrors"));
            socket->error().connect(on("error"));
            socket->disconnected().connect(on("disconnected"));
            socket->connected().connect([&] { which == "pong" ? socket->ping() : void(); });
            socket->setHandshakeTimeout(row.timeout);
            socket->open(CKyNANetworkRequest(QUrl(row.url)));
            if (which == "outside") {
                ASSERT_TRUE(waitUntil([&] { return log.has("connected"); }));
                act();
            }
            ASSERT_TRUE(waitUntil([&] { return log.has("act"); })) << qPrintable(log.lines.join(' '));
            if (remove) {
                const QStringList reported = log.lines;
                EXPECT_TRUE(waitUntil([&] {
                    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
                    return toolkit.isNull();
                }));
                EXPECT_EQ(log.lines, reported);
                EXPECT_EQ(reported.last().toStdString(), "act");
            } else {
                EXPECT_TRUE(waitUntil([&] { return log.has("disconnected"); }))
                    << qPrintable(log.lines.join(' '));
                EXPECT_EQ(log.count("disconnected"), 1) << qPrintable(log.lines.join(' '));
                delete socket;
            }
        }
    }
}
