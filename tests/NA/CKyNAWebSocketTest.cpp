#include "NA/HttpTestServer.h"
#include "NA/NetworkSignals.h"
#include "NA/WebSocketTestServer.h"

#include <QtTest/QSignalSpy>
#include <QtWebSockets/QWebSocket>

namespace
{

class WebSocket : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(server.isListening());
        RecordSocket(recorder, socket);
    }
    // The recorder goes before the socket, which may still report as it goes.
    void TearDown() override { socket.blockSignals(true); }

    // Opens the socket on the server and waits until both ends are connected.
    bool openOnServer()
    {
        CKyNANetworkRequest request(server.url());
        socket.open(request);
        return waitUntil([this] { return recorder.has(QStringLiteral("connected")) && server.peer(); });
    }

    WebSocketTestServer server;
    CKyNAWebSocket socket{QStringLiteral("http://plug-in.test"), CKyNAWebSocketProtocol::VersionLatest};
    Recorder recorder;
};

} // namespace

// Blocked signals drop messages instead of queueing them; a connection that just
// drops, without a closing handshake, still gives one disconnected.
TEST_F(WebSocket, TextMessagesArriveInOrderAndBinaryOrBlockedOnesAreNotReported)
{
    ASSERT_TRUE(openOnServer());
    EXPECT_EQ(server.peer()->origin(), QStringLiteral("http://plug-in.test"));
    QSignalSpy arrived(qobject_cast<QWebSocket*>(socket.getHandle()), &QWebSocket::textMessageReceived);

    server.peer()->sendTextMessage(QStringLiteral("one"));
    server.peer()->sendBinaryMessage("binary");
    server.peer()->sendTextMessage(QStringLiteral("two"));
    ASSERT_TRUE(waitUntil([this] { return recorder.has(QStringLiteral("text:two")); }));
    socket.blockSignals(true);
    server.peer()->sendTextMessage(QStringLiteral("lost"));
    ASSERT_TRUE(waitUntil([&] { return arrived.count() == 3; }));
    socket.blockSignals(false);
    server.peer()->sendTextMessage(QStringLiteral("three"));
    ASSERT_TRUE(waitUntil([this] { return recorder.has(QStringLiteral("text:three")); }));

    EXPECT_EQ(Outcome(recorder), (QStringList{QStringLiteral("connected"), QStringLiteral("text:one"),
                                              QStringLiteral("text:two"), QStringLiteral("text:three")}));

    server.peer()->abort();
    ASSERT_TRUE(waitUntil([this] { return recorder.has(QStringLiteral("disconnected")); }));
    EXPECT_EQ(recorder.count(QStringLiteral("disconnected")), 1);
}

TEST_F(WebSocket, ClosingWithNormalCodeLeadsToDisconnected)
{
    ASSERT_TRUE(openOnServer());
    socket.close(CKyNAWebSocketProtocol::CloseCodeNormal, QStringLiteral("done here"));
    ASSERT_TRUE(waitUntil([this] { return recorder.has(QStringLiteral("disconnected")); }));
    EXPECT_EQ(Outcome(recorder), (QStringList{QStringLiteral("connected"), QStringLiteral("disconnected")}));

    ASSERT_TRUE(waitUntil([this] { return server.disconnections() == 1; }));
    EXPECT_EQ(server.peerCloseCode(), 1000);
    EXPECT_EQ(server.peerCloseReason(), QStringLiteral("done here"));
}

TEST_F(WebSocket, UrlThatIsNoWebSocketReportsAnErrorAndNeverConnects)
{
    // A wrong scheme is refused inside open() itself.
    CKyNANetworkRequest wrongScheme(QUrl(QStringLiteral("http://127.0.0.1:1/")));
    socket.open(wrongScheme);
    EXPECT_EQ(Outcome(recorder),
              QStringList{QStringLiteral("error:%1").arg(QAbstractSocket::UnsupportedSocketOperationError)});

    // A plain HTTP server refuses the handshake.
    HttpTestServer http;
    QUrl url = http.url(QStringLiteral("/"));
    url.setScheme(QStringLiteral("ws"));
    socket.open(CKyNANetworkRequest(url));
    ASSERT_TRUE(waitUntil([&] { return recorder.count(QStringLiteral("error")) > 1; }));
    EXPECT_FALSE(recorder.has(QStringLiteral("connected")));
}

// The request need not outlive open(); the socket and its connection go at
// once, even while the server keeps sending, and nothing more is reported.
TEST_F(WebSocket, DeletingAConnectedSocketWhileMessagesFlowReachesNothingFreed)
{
    auto owned = std::make_unique<CKyNAWebSocket>(QString(), CKyNAWebSocketProtocol::VersionLatest);
    Recorder log;
    RecordSocket(log, *owned);
    {
        CKyNANetworkRequest request(server.url());
        owned->open(request);
    }
    ASSERT_TRUE(waitUntil([&] { return log.has(QStringLiteral("connected")) && server.peer(); }));

    QTimer flood;
    QObject::connect(&flood, &QTimer::timeout, [this] {
        for (int i = 0; i < 50; ++i)
            server.peer()->sendTextMessage(QStringLiteral("more"));
    });
    flood.start(1);
    ASSERT_TRUE(waitUntil([&] { return log.count(QStringLiteral("text")) > 100; }));

    QPointer<QObject> toolkit = owned->getHandle();
    owned.reset();
    EXPECT_TRUE(toolkit.isNull());
    const QStringList entries = log.lines;
    ASSERT_TRUE(waitUntil([this] { return server.disconnections() == 1; }));
    flood.stop();
    EXPECT_EQ(log.lines, entries);
}
