#include "NA/CKyNAWebSocket.h"
#include "NA/CKyNANetworkRequest.h"

#include "NA/EventWait.h"
#include "NA/HttpTestServer.h"
#include "NA/NetworkSignals.h"
#include "NA/WebSocketTestServer.h"

#include <QtCore/QPointer>
#include <QtCore/QStringList>
#include <QtTest/QSignalSpy>
#include <QtWebSockets/QWebSocket>

#include <gtest/gtest.h>

#include <memory>

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

TEST_F(WebSocket, TextMessagesArriveInOrderAndBinaryOnesAreNotReported)
{
    ASSERT_TRUE(openOnServer());
    EXPECT_EQ(server.peer()->origin(), QStringLiteral("http://plug-in.test"));

    server.sendText(QStringLiteral("one"));
    server.sendBinary("binary");
    server.sendText(QStringLiteral("two"));
    server.sendText(QStringLiteral("three"));
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

TEST_F(WebSocket, ServerClosingWithACodeLeadsToDisconnected)
{
    ASSERT_TRUE(openOnServer());
    server.close(QWebSocketProtocol::CloseCodeGoingAway, QStringLiteral("bye"));
    ASSERT_TRUE(waitUntil([this] { return recorder.has(QStringLiteral("disconnected")); }));
    auto* toolkit = qobject_cast<QWebSocket*>(socket.getHandle());
    ASSERT_TRUE(toolkit);
    EXPECT_EQ(toolkit->closeCode(), QWebSocketProtocol::CloseCodeGoingAway);
    EXPECT_EQ(recorder.count(QStringLiteral("error")), 0);
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
    CKyNAWebSocket other(QString(), CKyNAWebSocketProtocol::VersionLatest);
    Recorder otherRecorder;
    RecordSocket(otherRecorder, other);
    QUrl url = http.url(QStringLiteral("/"));
    url.setScheme(QStringLiteral("ws"));
    other.open(CKyNANetworkRequest(url));
    ASSERT_TRUE(waitUntil([&] { return otherRecorder.count(QStringLiteral("error")) > 0; }));
    EXPECT_FALSE(otherRecorder.has(QStringLiteral("connected")));
    EXPECT_FALSE(recorder.has(QStringLiteral("connected")));
    other.blockSignals(true);
}

TEST_F(WebSocket, BlockedSignalsDropMessagesInsteadOfQueueingThem)
{
    ASSERT_TRUE(openOnServer());
    QSignalSpy arrived(qobject_cast<QWebSocket*>(socket.getHandle()), &QWebSocket::textMessageReceived);

    socket.blockSignals(true);
    server.sendText(QStringLiteral("lost"));
    ASSERT_TRUE(arrived.wait(5000));
    socket.blockSignals(false);
    server.sendText(QStringLiteral("kept"));
    ASSERT_TRUE(waitUntil([this] { return recorder.has(QStringLiteral("text:kept")); }));
    EXPECT_EQ(Outcome(recorder), (QStringList{QStringLiteral("connected"), QStringLiteral("text:kept")}));
}

TEST_F(WebSocket, RequestNeedNotOutliveOpenAndSocketGoesAtOnce)
{
    auto owned = std::make_unique<CKyNAWebSocket>(QString(), CKyNAWebSocketProtocol::VersionLatest);
    Recorder ownedRecorder;
    RecordSocket(ownedRecorder, *owned);
    {
        CKyNANetworkRequest request(server.url());
        owned->open(request);
    }
    ASSERT_TRUE(waitUntil([&] { return ownedRecorder.has(QStringLiteral("connected")); }));

    QPointer<QObject> toolkit = owned->getHandle();
    owned.reset();
    EXPECT_TRUE(toolkit.isNull());
    ASSERT_TRUE(waitUntil([this] { return server.disconnections() == 1; }));
}
