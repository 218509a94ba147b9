#include "NA/Impl/qt/CKyNANetworkReplyTimeout.h"

#include "NA/HttpTestServer.h"
#include "NA/NetworkSignals.h"

#include <QtCore/QAbstractEventDispatcher>
#include <QtCore/QTimerEvent>
#include <QtTest/QSignalSpy>

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
        server.setRoute("/stall", Route{Mode::Stall, {}, {}});
        server.setRoute("/trickle", Route{Mode::Trickle, {}, {}});
        server.setRoute("/quick", Route{Mode::Answer, {}, "in time"});
    }

    std::unique_ptr<CKyNANetworkReply> start(const char* path, int timeout)
    {
        request.setUrl(server.url(QLatin1String(path)));
        request.setRequestTimeout(timeout);
        return std::unique_ptr<CKyNANetworkReply>(manager.get(request));
    }

    HttpTestServer server;
    CKyNANetworkAccessManager manager;
    CKyNANetworkRequest request;
};

} // namespace

TEST_F(ReplyTimeout, ProgressDoesNotPostponeTheAbortAndAFinishedTransferIsNotAbortedLater)
{
    auto trickling = start("/trickle", 200);
    auto quick = start("/quick", 200);
    // Started with the guards, so it fires only after they would have.
    QTimer witness;
    witness.setSingleShot(true);
    witness.start(230);
    Recorder trickled, finished;
    RecordReply(trickled, trickling.get());
    RecordReply(finished, quick.get());
    QSignalSpy arrivals(trickling->getHandle(), SIGNAL(readyRead()));
    CKyNANetworkReplyTimeout* guard = guardOf(*quick);
    ASSERT_TRUE(guard);
    ASSERT_TRUE(waitFinished(finished));

    // Stopped by the finish, before the reply's own handlers ran.
    EXPECT_FALSE(guard->isActive());
    EXPECT_EQ(armedInterval(guard), -1);
    ASSERT_TRUE(waitFinished(trickled));
    ASSERT_TRUE(waitUntil([&] { return !witness.isActive(); }));
    EXPECT_EQ(Outcome(finished), QStringList{QStringLiteral("finished")});
    EXPECT_EQ(errorCode(*quick), CKyNANetworkReply::NoError);
    EXPECT_EQ(quick->readAll(), QByteArray("in time"));
    // Bytes kept arriving every 20 ms; the time-out bounds the whole transfer.
    EXPECT_GT(arrivals.count(), 1);
    EXPECT_EQ(Outcome(trickled), (QStringList{QStringLiteral("error:5"), QStringLiteral("finished")}));
}

// The guard ignores foreign timers and replies that are over.
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
        auto reply = start("/stall", c.requested);
        CKyNANetworkReplyTimeout* guard = guardOf(*reply);
        ASSERT_TRUE(guard);
        EXPECT_TRUE(guard->isActive());
        EXPECT_EQ(armedInterval(guard), c.armed);
    }

    auto reply = start("/stall", 30000);
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

// A coarse timer may fire up to 5 % early, depending on the moment it starts: sixteen transfers
// started a few milliseconds apart catch that, for either bound.
TEST_F(ReplyTimeout, NeitherBoundFiresEarly)
{
    for (const bool silence : {false, true}) {
        request.setInactivityTimeout(silence ? 230 : 0);
        std::vector<std::unique_ptr<CKyNANetworkReply>> replies;
        std::vector<qint64> ended;
        for (int i = 0; i < 16; ++i) {
            QTimer::singleShot(7 * i, Qt::PreciseTimer, [&] {
                QElapsedTimer clock;
                clock.start();
                replies.push_back(start("/stall", silence ? 30000 : 230));
                replies.back()->error().connect([&, clock](int) { ended.push_back(clock.nsecsElapsed()); });
            });
        }
        ASSERT_TRUE(waitUntil([&] { return ended.size() == 16; }));
        for (const qint64 ns : ended)
            EXPECT_GE(ns, 230 * 1000000LL) << silence;
    }
}
