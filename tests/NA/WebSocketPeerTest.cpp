#include "NA/NetworkSignals.h"

#include <QtCore/QProcess>

namespace
{

// websocket_peer.py on python3-websockets, plain and TLS (see there for what
// each path does). A missing interpreter or package fails the test.
struct Peer : QProcess
{
    Peer()
    {
        start(QStringLiteral("/usr/bin/python3"), {QStringLiteral(COMMONUI_WEBSOCKET_PEER)});
        waitUntil([this] { return canReadLine() || state() == NotRunning; }, 20000);
        urls = QString::fromUtf8(readLine()).trimmed().split(QLatin1Char(' ')); // ws://... wss://...
        EXPECT_EQ(urls.size(), 2) << qPrintable(errorString() + readAllStandardError());
    }
    ~Peer() override { closeWriteChannel(), waitForFinished(5000); }
    QStringList urls;
};

struct Socket : CKyNAWebSocket
{
    Socket(const Peer& peer, const char* path, bool tls = false, int handshakeTimeout = 0)
        : CKyNAWebSocket(QString(), CKyNAWebSocketProtocol::VersionLatest)
    {
        RecordSocket(log, *this);
        sslErrors().connect([this](const QList<QSslError>& e) { log.add("sslErrors", e.value(0).error()); });
        pong().connect([this](long long, const QByteArray& payload) { log.add("pong", QString(payload)); });
        disconnected().connect([this] { log.add("closed", closeCode(), closeReason()); });
        setHandshakeTimeout(handshakeTimeout);
        open(CKyNANetworkRequest(QUrl(peer.urls.value(tls) + QLatin1String(path))));
    }
    ~Socket() override { blockSignals(true); }
    // Waits until what it reported reads `want`.
    void expect(const QString& want)
    {
        EXPECT_TRUE(waitUntil([&] { return log.lines.join(' ') == want; }))
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
    Socket byPeer(peer, "/close/4001/going%20away"), unanswered(peer, "/hang", false, 200),
        alive(peer, "/echo", false, 2000), frozen(peer, "/frozen"), untrusted(peer, "/echo", true),
        all(peer, "/echo", true), listed(peer, "/echo", true);
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
