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

// Blocked signals drop messages instead of queueing them.
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
