#include "NA/Impl/qt/CKyNANetworkReplyTimeout.h"
#include "NA/CKyNANetworkAccessManager.h"
#include "NA/CKyNANetworkReply.h"
#include "NA/CKyNANetworkRequest.h"

#include "NA/EventWait.h"
#include "NA/HttpTestServer.h"
#include "NA/ReplyRecorder.h"

#include <QtCore/QAbstractEventDispatcher>
#include <QtCore/QTimer>
#include <QtCore/QTimerEvent>
#include <QtNetwork/QNetworkReply>
#include <QtTest/QSignalSpy>

#include <gtest/gtest.h>

#include <memory>

namespace
{

using Route = HttpTestServer::Route;
using Mode = HttpTestServer::Mode;

CKyNANetworkReplyTimeout* guardOf(const CKyNANetworkReply& reply)
{
    QObject* handle = reply.getHandle();
    return handle ? handle->findChild<CKyNANetworkReplyTimeout*>() : nullptr;
}

// The interval the event dispatcher holds for the guard's timer; -1 if none.
int armedInterval(CKyNANetworkReplyTimeout* guard)
{
    const auto timers = QAbstractEventDispatcher::instance()->registeredTimers(guard);
    return timers.size() == 1 ? timers.first().interval : -1;
}

class ReplyTimeout : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(server.isListening());
        Route stall;
        stall.mode = Mode::Stall;
        server.setRoute("/stall", stall);
    }

    std::unique_ptr<CKyNANetworkReply> start(const QString& path, int timeout)
    {
        request.setUrl(server.url(path));
        request.setRequestTimeout(timeout);
        return std::unique_ptr<CKyNANetworkReply>(manager.get(request));
    }

    HttpTestServer server;
    CKyNANetworkAccessManager manager;
    CKyNANetworkRequest request;
};

} // namespace

TEST_F(ReplyTimeout, StalledServerIsAbortedWithCancellationThenFinish)
{
    auto reply = start(QStringLiteral("/stall"), 200);
    ReplyRecorder recorder(reply.get());
    ASSERT_TRUE(waitUntil([&] { return recorder.isFinished(); }, 5000));

    EXPECT_EQ(recorder.log, (QStringList{QStringLiteral("error:5"), QStringLiteral("finished")}));
    EXPECT_TRUE(reply->isFinished());
    EXPECT_EQ(errorCode(*reply), CKyNANetworkReply::OperationCanceledError);
    ASSERT_EQ(server.requests().size(), 1);
    EXPECT_FALSE(guardOf(*reply)->isActive());
}

TEST_F(ReplyTimeout, ProgressDoesNotPostponeTheAbort)
{
    Route trickle;
    trickle.mode = Mode::Trickle;
    server.setRoute("/trickle", trickle);

    auto reply = start(QStringLiteral("/trickle"), 200);
    ReplyRecorder recorder(reply.get());
    QSignalSpy arrivals(reply->getHandle(), SIGNAL(readyRead()));
    ASSERT_TRUE(waitUntil([&] { return recorder.isFinished(); }, 5000));

    // Bytes kept arriving every 20 ms; the time-out bounds the whole transfer.
    EXPECT_GT(arrivals.count(), 1);
    EXPECT_EQ(recorder.log, (QStringList{QStringLiteral("error:5"), QStringLiteral("finished")}));
}

TEST_F(ReplyTimeout, FinishedTransferIsNotAbortedLater)
{
    Route quick;
    quick.body = "in time";
    server.setRoute("/quick", quick);

    auto reply = start(QStringLiteral("/quick"), 200);
    // Started with the guard, so it fires only after the guard would have.
    QTimer witness;
    witness.setSingleShot(true);
    witness.start(230);
    ReplyRecorder recorder(reply.get());
    CKyNANetworkReplyTimeout* guard = guardOf(*reply);
    ASSERT_TRUE(guard);
    ASSERT_TRUE(waitUntil([&] { return recorder.isFinished(); }));

    // Stopped by the finish, before the reply's own handlers ran.
    EXPECT_FALSE(guard->isActive());
    EXPECT_EQ(armedInterval(guard), -1);
    ASSERT_TRUE(waitUntil([&] { return !witness.isActive(); }));
    EXPECT_EQ(recorder.log, QStringList{QStringLiteral("finished")});
    EXPECT_EQ(errorCode(*reply), CKyNANetworkReply::NoError);
    EXPECT_EQ(reply->readAll(), QByteArray("in time"));
}

TEST_F(ReplyTimeout, TimerFollowsTheRequestOrFallsBackTo30Seconds)
{
    const struct
    {
        int requested;
        int armed;
    } cases[] = {{0, 30000}, {-5, 30000}, {1, 1}, {200, 200}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.requested);
        // Read before any event is processed, so even 1 ms has not fired yet.
        auto reply = start(QStringLiteral("/stall"), c.requested);
        CKyNANetworkReplyTimeout* guard = guardOf(*reply);
        ASSERT_TRUE(guard);
        EXPECT_TRUE(guard->isActive());
        EXPECT_EQ(armedInterval(guard), c.armed);
    }
}

TEST_F(ReplyTimeout, GuardIgnoresForeignTimersAndRepliesThatAreOver)
{
    auto reply = start(QStringLiteral("/stall"), 30000);
    auto* toolkit = qobject_cast<QNetworkReply*>(reply->getHandle());
    CKyNANetworkReplyTimeout* guard = guardOf(*reply);
    ASSERT_TRUE(toolkit && guard);

    QTimerEvent foreign(guard->startTimer(100000));
    QCoreApplication::sendEvent(guard, &foreign);
    EXPECT_TRUE(toolkit->isRunning());
    EXPECT_TRUE(guard->isActive());
    guard->killTimer(foreign.timerId());

    reply->abort();
    ASSERT_TRUE(reply->isFinished() || waitUntil([&] { return reply->isFinished(); }));
    // A guard made for a reply that is over never starts.
    CKyNANetworkReplyTimeout late(toolkit, 1);
    EXPECT_FALSE(late.isActive());

    CKyNANetworkReplyTimeout orphan(nullptr, 1);
    EXPECT_FALSE(orphan.isActive());
}
