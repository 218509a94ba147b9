#include "NA/CKyNANetworkRequest.h"
#include "NA/CKyNAWebSocket.h"

#include "NA/EventWait.h"
#include "NA/NetworkSignals.h"
#include "NA/WebSocketTestServer.h"

#include <QtCore/QPointer>
#include <QtCore/QStringList>
#include <QtCore/QTimer>

#include <gtest/gtest.h>

#include <memory>

namespace
{

} // namespace

TEST(WebSocketFault, ServerAbortingTheConnectionGivesDisconnected)
{
    WebSocketTestServer server;
    ASSERT_TRUE(server.isListening());
    CKyNAWebSocket socket(QString(), CKyNAWebSocketProtocol::VersionLatest);
    Recorder log;
    RecordSocket(log, socket);
    socket.open(CKyNANetworkRequest(server.url()));
    ASSERT_TRUE(waitUntil([&] { return log.has(QStringLiteral("connected")) && server.peer(); }));

    server.sendText(QStringLiteral("before"));
    ASSERT_TRUE(waitUntil([&] { return log.count(QStringLiteral("text")) == 1; }));
    // No closing handshake: the connection just drops.
    server.abort();
    ASSERT_TRUE(waitUntil([&] { return log.has(QStringLiteral("disconnected")); }));
    EXPECT_EQ(log.lines.first(), QStringLiteral("connected"));
    EXPECT_EQ(log.count(QStringLiteral("disconnected")), 1);
    socket.blockSignals(true);
}

TEST(WebSocketFault, DeletingAConnectedSocketWhileMessagesFlowReachesNothingFreed)
{
    WebSocketTestServer server;
    ASSERT_TRUE(server.isListening());
    auto socket = std::make_unique<CKyNAWebSocket>(QString(), CKyNAWebSocketProtocol::VersionLatest);
    Recorder log;
    RecordSocket(log, *socket);
    socket->open(CKyNANetworkRequest(server.url()));
    ASSERT_TRUE(waitUntil([&] { return log.has(QStringLiteral("connected")) && server.peer(); }));

    // The server keeps sending while the socket goes.
    QTimer flood;
    QObject::connect(&flood, &QTimer::timeout, [&server] {
        for (int i = 0; i < 50; ++i)
            server.sendText(QStringLiteral("more"));
    });
    flood.start(1);
    ASSERT_TRUE(waitUntil([&] { return log.count(QStringLiteral("text")) > 100; }));

    QPointer<QObject> toolkit = socket->getHandle();
    socket.reset();
    EXPECT_TRUE(toolkit.isNull());
    const QStringList entries = log.lines;

    ASSERT_TRUE(waitUntil([&] { return server.disconnections() == 1; }));
    flood.stop();
    EXPECT_EQ(log.lines, entries);
}

// A plug-in may delete the socket from inside one of the socket's own slots:
// the toolkit socket is then still in the middle of reporting.
TEST(WebSocketFault, DeletingTheSocketFromItsOwnSlotsReachesNothingFreed)
{
    WebSocketTestServer server;
    ASSERT_TRUE(server.isListening());

    for (const char* slot : {"textMessageReceived", "disconnected", "error"}) {
        SCOPED_TRACE(slot);
        Recorder log;
        auto* socket = new CKyNAWebSocket(QString(), CKyNAWebSocketProtocol::VersionLatest);
        QPointer<QObject> toolkit = socket->getHandle();
        bool deleted = false;
        log.on(socket->connected(), "connected");
        const auto deleteSocket = [socket, &deleted] {
            bool* const done = &deleted;
            delete socket;
            *done = true;
        };
        if (QByteArray(slot) == "textMessageReceived") {
            socket->textMessageReceived().connect([deleteSocket](const QString&) { deleteSocket(); });
            log.on(socket->textMessageReceived(), "text"); // after the deleting slot
        } else if (QByteArray(slot) == "disconnected") {
            socket->disconnected().connect(deleteSocket);
        } else {
            socket->error().connect([deleteSocket](int) { deleteSocket(); });
        }
        socket->open(CKyNANetworkRequest(server.url()));
        ASSERT_TRUE(waitUntil([&] { return log.has("connected") && server.peer(); }));

        // Several messages in one burst, so that the toolkit still has some to
        // hand out after the first.
        for (int i = 0; i < 20; ++i)
            server.sendText(QStringLiteral("message"));
        if (QByteArray(slot) != "textMessageReceived")
            server.abort();
        ASSERT_TRUE(waitUntil([&] { return deleted; }));
        EXPECT_EQ(log.count("text"), 0);
        // Whatever the toolkit socket still had to do, it does without us.
        ASSERT_TRUE(waitUntil([&] {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            return toolkit.isNull();
        }));
    }
}
