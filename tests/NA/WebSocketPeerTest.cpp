#include "NA/CKyNANetworkRequest.h"
#include "NA/CKyNAWebSocket.h"

#include "NA/EventWait.h"
#include "NA/NetworkSignals.h"

#include <QtCore/QProcess>
#include <QtNetwork/QNetworkRequest>
#include <QtNetwork/QSslCertificate>
#include <QtNetwork/QSslConfiguration>

#include <gtest/gtest.h>

namespace
{

// The python3-websockets peer of websocket_peer.py on 127.0.0.1 (see there for
// what each path does). A missing interpreter or package fails the test.
struct Peer
{
    explicit Peer(const QStringList& options = {})
    {
        process.start(QStringLiteral("/usr/bin/python3"), QStringList{COMMONUI_WEBSOCKET_PEER} + options);
        waitUntil([this] { return process.canReadLine() || process.state() == QProcess::NotRunning; }, 20000);
        const QStringList words = QString::fromUtf8(process.readLine()).split(QLatin1Char(' '));
        port = words.value(1).toInt();
        cert = words.value(2).trimmed();
        EXPECT_GT(port, 0) << qPrintable(process.errorString() + process.readAllStandardError());
    }
    ~Peer()
    {
        process.closeWriteChannel();
        if (!process.waitForFinished(5000))
            process.kill();
        process.waitForFinished();
    }
    QUrl url(const char* path) const
    {
        return QUrl(
            QStringLiteral("%1://127.0.0.1:%2%3").arg(cert.isEmpty() ? "ws" : "wss").arg(port).arg(path));
    }

    QProcess process;
    int port = 0;
    QString cert;
};

struct Socket : CKyNAWebSocket
{
    Socket()
        : CKyNAWebSocket(QString(), CKyNAWebSocketProtocol::VersionLatest)
    {
        RecordSocket(log, *this);
        sslErrors().connect(
            [this](const QList<QSslError>& errors) { log.add("sslErrors", errors.value(0).error()); });
        pong().connect(
            [this](long long, const QByteArray& payload) { log.add("pong", QString::fromUtf8(payload)); });
    }
    ~Socket() override { blockSignals(true); }
    bool waitFor(const char* line, int ms = 5000)
    {
        return waitUntil([&] { return log.has(QString::fromUtf8(line)); }, ms);
    }
    Recorder log;
};

} // namespace

TEST(WebSocketPeer, CloseCodeAndReasonTellHowTheConnectionEnded)
{
    Peer peer;
    Socket byPeer, bySelf, unanswered;
    EXPECT_EQ(byPeer.closeCode(), 0);
    byPeer.open(CKyNANetworkRequest(peer.url("/close/4001/going%20away")));
    bySelf.open(CKyNANetworkRequest(peer.url("/echo")));
    ASSERT_TRUE(bySelf.waitFor("connected"));
    bySelf.close(CKyNAWebSocketProtocol::CloseCodeNormal, QStringLiteral("bye"));
    unanswered.setHandshakeTimeout(200);
    unanswered.open(CKyNANetworkRequest(peer.url("/hang")));

    const struct
    {
        Socket& socket;
        int code;
        QString reason;
        QStringList lines;
    } rows[] = {{byPeer, 4001, QStringLiteral("going away"), {"connected", "disconnected"}},
                {bySelf, 1000, QStringLiteral("bye"), {"connected", "disconnected"}},
                {unanswered, 1006, QString(), {"error:5", "disconnected"}}};
    for (const auto& row : rows) {
        ASSERT_TRUE(row.socket.waitFor("disconnected"));
        EXPECT_EQ(row.socket.log.lines, row.lines);
        EXPECT_EQ(row.socket.closeCode(), row.code);
        EXPECT_EQ(row.socket.closeReason(), row.reason);
    }
}

TEST(WebSocketPeer, BoundedHandshakeThatSucceedsNeverTimesOutLater)
{
    Peer peer;
    Socket socket;
    socket.setHandshakeTimeout(2000); // ample, also under valgrind
    socket.open(CKyNANetworkRequest(peer.url("/echo")));
    ASSERT_TRUE(socket.waitFor("connected"));
    EXPECT_FALSE(socket.waitFor("error:5", 2500));

    // A slot that deletes the socket on the time-out ends the report there.
    auto* doomed = new CKyNAWebSocket(QString(), CKyNAWebSocketProtocol::VersionLatest);
    doomed->error().connect([&doomed](int) {
        CKyNAWebSocket** const pointer = &doomed; // the capture goes with the socket
        delete *pointer;
        *pointer = nullptr;
    });
    doomed->setHandshakeTimeout(50);
    doomed->open(CKyNANetworkRequest(peer.url("/hang")));
    EXPECT_TRUE(waitUntil([&] { return !doomed; }));
}

TEST(WebSocketPeer, PingIsAnsweredUnlessThePeerIsFrozen)
{
    Peer peer;
    Socket alive, frozen;
    alive.open(CKyNANetworkRequest(peer.url("/echo")));
    frozen.open(CKyNANetworkRequest(peer.url("/frozen")));
    ASSERT_TRUE(alive.waitFor("connected") && frozen.waitFor("text:frozen"));
    alive.ping("still there?");
    frozen.ping("still there?");
    EXPECT_TRUE(alive.waitFor("pong:still there?"));
    EXPECT_FALSE(frozen.waitFor("pong:still there?", 500));
}

// Untrusted, the handshake fails after sslErrors; ignored in that slot, all or
// listed, it goes on; trusted through the request, nothing is reported at all.
TEST(WebSocketPeer, SelfSignedCertificateFailsUnlessIgnoredOrTrusted)
{
    Peer peer({QStringLiteral("--tls")});
    Socket untrusted, all, listed, trusted;
    untrusted.ignoreSslErrors(); // outside a slot of sslErrors: no effect
    all.sslErrors().connect([&all](const QList<QSslError>&) { all.ignoreSslErrors(); });
    listed.sslErrors().connect([&listed](const QList<QSslError>& errors) { listed.ignoreSslErrors(errors); });
    CKyNANetworkRequest request(peer.url("/echo"));
    QSslConfiguration configuration = request.getHandle()->sslConfiguration();
    configuration.setCaCertificates(QSslCertificate::fromPath(peer.cert));
    request.getHandle()->setSslConfiguration(configuration);
    trusted.open(request);
    for (Socket* socket : {&untrusted, &all, &listed})
        socket->open(CKyNANetworkRequest(peer.url("/echo")));

    ASSERT_TRUE(untrusted.waitFor("disconnected"));
    EXPECT_EQ(untrusted.log.lines, (QStringList{"sslErrors:9", "error:13", "disconnected"}));
    for (Socket* socket : {&all, &listed}) {
        ASSERT_TRUE(socket->waitFor("connected"));
        EXPECT_EQ(socket->log.lines, (QStringList{"sslErrors:9", "connected"}));
    }
    ASSERT_TRUE(trusted.waitFor("connected"));
    EXPECT_EQ(trusted.log.lines, QStringList{"connected"});
}
