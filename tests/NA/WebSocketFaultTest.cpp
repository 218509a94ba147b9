#include "NA/CKyNANetworkRequest.h"
#include "NA/CKyNAWebSocket.h"

#include "NA/EventWait.h"
#include "NA/WebSocketTestServer.h"

#include <QtCore/QPointer>
#include <QtCore/QStringList>
#include <QtCore/QTimer>

#include <gtest/gtest.h>

#include <memory>

namespace
{

// What a socket reported, kept apart from the socket so that it can be read
// after the socket is gone.
struct SocketLog
{
    QStringList entries;
    int messages = 0;

    void attach(CKyNAWebSocket& socket)
    {
        socket.connected().connect([this] { entries << QStringLiteral("connected"); });
        socket.error().connect([this](int) { entries << QStringLiteral("error"); });
        socket.disconnected().connect([this] { entries << QStringLiteral("disconnected"); });
        socket.textMessageReceived().connect([this](const QString&) { ++messages; });
    }
    bool has(const char* entry) const { return entries.contains(QLatin1String(entry)); }
};

} // namespace

TEST(WebSocketFault, ServerAbortingTheConnectionGivesDisconnected)
{
    WebSocketTestServer server;
    ASSERT_TRUE(server.isListening());
    CKyNAWebSocket socket(QString(), CKyNAWebSocketProtocol::VersionLatest);
    SocketLog log;
    log.attach(socket);
    socket.open(CKyNANetworkRequest(server.url()));
    ASSERT_TRUE(waitUntil([&] { return log.has("connected") && server.peer(); }));

    server.sendText(QStringLiteral("before"));
    ASSERT_TRUE(waitUntil([&] { return log.messages == 1; }));
    // No closing handshake: the connection just drops.
    server.abort();
    ASSERT_TRUE(waitUntil([&] { return log.has("disconnected"); }));
    EXPECT_EQ(log.entries.first(), QStringLiteral("connected"));
    EXPECT_EQ(log.entries.count(QStringLiteral("disconnected")), 1);
    socket.blockSignals(true);
}

TEST(WebSocketFault, DeletingAConnectedSocketWhileMessagesFlowReachesNothingFreed)
{
    WebSocketTestServer server;
    ASSERT_TRUE(server.isListening());
    auto socket = std::make_unique<CKyNAWebSocket>(QString(), CKyNAWebSocketProtocol::VersionLatest);
    SocketLog log;
    log.attach(*socket);
    socket->open(CKyNANetworkRequest(server.url()));
    ASSERT_TRUE(waitUntil([&] { return log.has("connected") && server.peer(); }));

    // The server keeps sending while the socket goes.
    QTimer flood;
    QObject::connect(&flood, &QTimer::timeout, [&server] {
        for (int i = 0; i < 50; ++i)
            server.sendText(QStringLiteral("more"));
    });
    flood.start(1);
    ASSERT_TRUE(waitUntil([&] { return log.messages > 100; }));

    QPointer<QObject> toolkit = socket->getHandle();
    socket.reset();
    EXPECT_TRUE(toolkit.isNull());
    const QStringList entries = log.entries;
    const int messages = log.messages;

    ASSERT_TRUE(waitUntil([&] { return server.disconnections() == 1; }));
    flood.stop();
    EXPECT_EQ(log.entries, entries);
    EXPECT_EQ(log.messages, messages);
}

// A plug-in may delete the socket from inside one of the socket's own slots:
// the toolkit socket is then still in the middle of reporting.
TEST(WebSocketFault, DeletingTheSocketFromItsOwnSlotsReachesNothingFreed)
{
    WebSocketTestServer server;
    ASSERT_TRUE(server.isListening());

    for (const char* slot : {"textMessageReceived", "disconnected", "error"}) {
        SCOPED_TRACE(slot);
        auto* socket = new CKyNAWebSocket(QString(), CKyNAWebSocketProtocol::VersionLatest);
        QPointer<QObject> toolkit = socket->getHandle();
        bool connected = false;
        bool deleted = false;
        int laterMessages = 0;
        socket->connected().connect([&connected] { connected = true; });
        const auto deleteSocket = [socket, &deleted] {
            bool* const done = &deleted;
            delete socket;
            *done = true;
        };
        if (QByteArray(slot) == "textMessageReceived") {
            socket->textMessageReceived().connect([deleteSocket](const QString&) { deleteSocket(); });
            socket->textMessageReceived().connect([&laterMessages](const QString&) { ++laterMessages; });
        } else if (QByteArray(slot) == "disconnected") {
            socket->disconnected().connect(deleteSocket);
        } else {
            socket->error().connect([deleteSocket](int) { deleteSocket(); });
        }
        socket->open(CKyNANetworkRequest(server.url()));
        ASSERT_TRUE(waitUntil([&] { return connected && server.peer(); }));

        // Several messages in one burst, so that the toolkit still has some to
        // hand out after the first.
        for (int i = 0; i < 20; ++i)
            server.sendText(QStringLiteral("message"));
        if (QByteArray(slot) != "textMessageReceived")
            server.abort();
        ASSERT_TRUE(waitUntil([&] { return deleted; }));
        EXPECT_EQ(laterMessages, 0);
        // Whatever the toolkit socket still had to do, it does without us.
        ASSERT_TRUE(waitUntil([&] {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            return toolkit.isNull();
        }));
    }
}
