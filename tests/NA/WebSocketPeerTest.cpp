#include "NA/ClosedPort.h"
#include "NA/NetworkSignals.h"

#include <QtCore/QProcess>

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
        // ws:// wss:// the raw ws:// and the restartable ws://
        urls = QString::fromUtf8(readLine()).trimmed().split(QLatin1Char(' '));
        EXPECT_EQ(urls.size(), 4) << qPrintable(errorString() + readAllStandardError());
    }
    // "stop" or "start" the restartable peer, and wait until it has.
    void tell(const char* command)
    {
        write(QByteArray(command) + '\n');
        ASSERT_TRUE(waitUntil([this] { return canReadLine(); }, 10000));
        EXPECT_EQ(readLine().trimmed(), command == QByteArray("stop") ? "stopped" : "started");
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
    socket.sslErrors().connect([&](const QList<QSslError>& e) { log.add("sslErrors", e.value(0).error()); });
    socket.pong().connect([&log](long long, const QByteArray& p) { log.add("pong", QString(p)); });
    socket.disconnected().connect([&] { log.add("closed", socket.closeCode(), socket.closeReason()); });
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
    // Waits until what it reported reads `want`, or one of its alternatives
    // separated by "|".
    void expect(const QString& want)
    {
        EXPECT_TRUE(waitUntil([&] { return want.split('|').contains(log.lines.join(' ')); }, 20000))
            << qPrintable(log.lines.join(' '));
    }
    Recorder log;
};

} // namespace

// The secure sockets go first, so that the toolkit's one-time TLS set-up is
// over before anything is timed. The wait for the frozen peer's pong outlasts
// the bounded opening of `alive`, which must not fire once open. A ping before
// connected() or after disconnected() does nothing, and what a slot of
// sslErrors() ignores holds for that handshake only.
TEST(WebSocketPeer, EachOptionReportsInOrderAgainstARealServer)
{
    Peer peer;
    Socket untrusted(peer.url("/echo", 1)), all(peer.url("/echo", 1)), listed(peer.url("/echo", 1));
    all.ping("early");
    untrusted.ignoreSslErrors(); // outside a slot of sslErrors: no effect
    bool again = false;
    all.sslErrors().connect([&](const QList<QSslError>&) { again ? void() : all.ignoreSslErrors(); });
    listed.sslErrors().connect(
        [&](const QList<QSslError>& e) { again ? void() : listed.ignoreSslErrors(e); });
    untrusted.expect("sslErrors:9 error:13 disconnected closed:1006,");
    all.expect("sslErrors:9 connected");
    listed.expect("sslErrors:9 connected");

    Socket frozen(peer.url("/frozen")), alive(peer.url("/echo"), 2000);
    alive.ping("early");
    ASSERT_TRUE(waitUntil([&] { return alive.log.has("connected") && frozen.log.has("text:frozen"); }));
    alive.ping("still there");
    frozen.ping("still there");
    EXPECT_FALSE(waitUntil([&] { return frozen.log.has("pong:still there"); }, 2500));
    alive.expect("connected pong:still there");

    again = true;
    static QStringList warnings;
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& m) { warnings << m; });
    for (Socket* socket : {&all, &listed}) {
        socket->close(CKyNAWebSocketProtocol::CloseCodeNormal, QString());
        socket->expect("sslErrors:9 connected disconnected closed:1000,");
        socket->ping("late");
        socket->log.lines.clear();
        socket->open(CKyNANetworkRequest(QUrl(peer.url("/echo", 1))));
        socket->expect("sslErrors:9 error:13 disconnected closed:1006,");
    }
    qInstallMessageHandler(nullptr);
    EXPECT_EQ(warnings.join('\n').toStdString(), "");
}

// Every way a connection ends gives exactly one disconnected() and a stated
// close code. All rows run at once; the last to end is the timed-out one.
TEST(WebSocketPeer, EveryEndingGivesOneDisconnectedAndAStatedCloseCode)
{
    Peer peer;
    ClosedPort closedPort;
    const QString closed = QStringLiteral("ws://127.0.0.1:%1/").arg(closedPort.url().port());
    // The URL, and what its socket reports.
    const std::pair<QString, const char*> rows[] = {
        {peer.url("/echo"), "connected disconnected closed:1001,leaving"}, // our close
        {peer.url("/close/4001/going%20away"), "connected disconnected closed:4001,going away"},
        {peer.url("/close"), "connected disconnected closed:1000,"},                  // no status code
        {peer.url("/", 2), "connected text:hello error:1 disconnected closed:1006,"}, // dropped
        // The 403 and the end of the connection may come as one.
        {peer.url("/refuse"), "error:0 error:1 disconnected closed:1006,|error:1 disconnected closed:1006,"},
        {closed, "disconnected closed:1006, error:0"},
        {peer.url("/echo", 1), "sslErrors:9 error:13 disconnected closed:1006,"},
        {"http://127.0.0.1:1/", "error:10"}, // refused inside open(), which never began
        {peer.url("/hang"), "error:5 disconnected closed:1006,"},
    };
    std::vector<std::unique_ptr<Socket>> sockets;
    for (const auto& row : rows)
        sockets.push_back(std::make_unique<Socket>(row.first, row.first.endsWith("/hang") ? 300 : 0));
    Socket& ours = *sockets.front();
    ours.connected().connect([&ours] { ours.close(CKyNAWebSocketProtocol::CloseCodeGoingAway, "leaving"); });
    // Twice: nothing may follow the one disconnected().
    for (int pass = 0; pass < 2; ++pass) {
        auto socket = sockets.begin();
        for (const auto& row : rows)
            (*socket++)->expect(QString::fromUtf8(row.second));
    }
}

// close() or deletion from a slot of each signal reaches nothing freed, and so
// does deleting a connected socket from outside its slots while messages flow,
// which takes the toolkit socket at once. A deleted socket reports nothing
// from then on; a closed one ends with one disconnected().
TEST(WebSocketPeer, ClosedOrDeletedFromEachOfItsSignals)
{
    Peer peer;
    const std::pair<const char*, QString> rows[] = {
        {"connected", peer.url("/echo")}, {"text", peer.url("/frozen")},
        {"pong", peer.url("/echo")},      {"sslErrors", peer.url("/echo", 1)},
        {"error", peer.url("/hang")},     {"disconnected", peer.url("/close/4001/x")},
        {"outside", peer.url("/flood")}};
    for (const auto& row : rows) {
        for (const bool remove : {false, true}) {
            SCOPED_TRACE(std::string(row.first) + (remove ? " delete" : " close"));
            const QByteArray which(row.first);
            Recorder log;
            auto* socket = new CKyNAWebSocket(QString(), CKyNAWebSocketProtocol::VersionLatest);
            RecordAll(log, *socket);
            const QPointer<QObject> toolkit = socket->getHandle();
            const auto act = [&] {
                if (log.has("act"))
                    return;
                log.add("act");
                remove ? delete socket : socket->close(CKyNAWebSocketProtocol::CloseCodeGoingAway, "x");
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
            socket->setHandshakeTimeout(which == "error" ? 100 : 0);
            socket->open(CKyNANetworkRequest(QUrl(row.second)));
            if (which == "outside") {
                ASSERT_TRUE(waitUntil([&] { return log.count("text") > 10; }));
                act();
                EXPECT_EQ(toolkit.isNull(), remove);
            }
            ASSERT_TRUE(waitUntil([&] { return log.has("act"); })) << qPrintable(log.lines.join(' '));
            if (!remove) {
                EXPECT_TRUE(waitUntil([&] { return log.has("disconnected"); }));
                delete socket;
            }
            EXPECT_TRUE(waitUntil([&] {
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
                return toolkit.isNull();
            }));
            EXPECT_EQ(log.count("disconnected"), remove ? int(which == "disconnected") : 1);
            EXPECT_EQ(log.lines.last() == "act", remove || which == "disconnected")
                << qPrintable(log.lines.join(' '));
        }
    }
}

// Messages go both ways once connected and are dropped with -1 before and
// after. Reconnection follows only an abnormal end, waits a doubling delay,
// gives up after its attempts in a row, and finds a peer that comes back on
// its port.
TEST(WebSocketPeer, TalksBackAndReconnectsOnlyAfterAnAbnormalEnd)
{
    Peer peer;
    const std::pair<QString, const char*> rows[] = {
        {peer.url("/echo"), "connected text:hi binary:2 disconnected closed:1001,leaving"},
        {peer.url("/close/1000/done"), "connected disconnected closed:1000,done"},
        {peer.url("/close/4001/x"), "connected disconnected closed:4001,x"},
        {peer.url("/", 2), "connected text:hello error:1 disconnected closed:1006, reconnecting:1,60000"},
        {peer.url("/hang"), "error:5 disconnected closed:1006, reconnecting:1,60000"},
    };
    std::vector<std::unique_ptr<Socket>> sockets;
    for (const auto& row : rows) {
        sockets.push_back(std::make_unique<Socket>(row.first, row.first.endsWith("/hang") ? 300 : 0));
        Socket& socket = *sockets.back();
        socket.setReconnect(1, 60000);
        socket.log.on(socket.reconnecting(), "reconnecting");
        socket.binaryMessageReceived().connect(
            [&socket](const QByteArray& m) { socket.log.add("binary", m.size()); });
    }
    Socket& echo = *sockets.front();
    long long written = 0;
    echo.bytesWritten().connect([&written](long long bytes) { written += bytes; });
    EXPECT_EQ(echo.sendTextMessage("early"), -1);
    echo.connected().connect([&] {
        EXPECT_EQ(echo.sendTextMessage(QStringLiteral("hi")), 2);
        EXPECT_EQ(echo.sendBinaryMessage(QByteArray("\0\1", 2)), 2);
    });
    echo.binaryMessageReceived().connect(
        [&](const QByteArray&) { echo.close(CKyNAWebSocketProtocol::CloseCodeGoingAway, "leaving"); });
    for (int pass = 0; pass < 2; ++pass) {
        auto socket = sockets.begin();
        for (const auto& row : rows)
            (*socket++)->expect(QString::fromUtf8(row.second));
    }
    EXPECT_EQ(echo.sendBinaryMessage("late"), -1);
    EXPECT_GT(written, 4); // the opening request, two frames, the close

    // Two attempts, both refused: then it stops.
    Socket lost(peer.url("/echo", 3));
    lost.setReconnect(2, 50, 80);
    lost.log.on(lost.reconnecting(), "reconnecting");
    lost.expect("connected");
    peer.tell("stop");
    lost.expect("connected error:1 disconnected closed:1006, reconnecting:1,50 disconnected closed:1006, "
                "reconnecting:2,80 error:0 disconnected closed:1006, error:0");
    EXPECT_FALSE(waitUntil([&] { return lost.log.count("disconnected") > 3; }, 500));

    // Back before the next attempt, or the one after.
    peer.tell("start");
    lost.log.lines.clear();
    lost.setReconnect(5, 200, 400);
    lost.open(CKyNANetworkRequest(QUrl(peer.url("/echo", 3))));
    lost.expect("connected");
    peer.tell("stop");
    ASSERT_TRUE(waitUntil([&] { return lost.log.has("reconnecting:1,200"); }));
    peer.tell("start");
    ASSERT_TRUE(waitUntil([&] { return lost.log.count("connected") == 2; }, 10000));
    lost.textMessageReceived().connect(
        [&](const QString&) { lost.close(CKyNAWebSocketProtocol::CloseCodeNormal, {}); });
    EXPECT_GT(lost.sendTextMessage("back"), 0);
    EXPECT_TRUE(
        waitUntil([&] { return lost.log.has("text:back") && lost.log.lines.last() == "closed:1000,"; }));
}
