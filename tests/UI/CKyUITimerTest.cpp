#include "UI/CKyUITimer.h"
#include "UI/Impl/CKyUITimerImpl.h"
#include "support/Recorder.h"

#include <gtest/gtest.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtTest/QSignalSpy>

#include <climits>
#include <functional>
#include <vector>

namespace
{
QTimer* TimerOf(const CKyUITimer& timer)
{
    return qobject_cast<QTimer*>(timer.getHandle());
}
} // namespace

TEST(CKyUITimerTest, ToolkitTimerIsMadeAtConstructionAndDeletedWithTheTimer)
{
    auto* timer = new CKyUITimer;
    QPointer<QTimer> toolkit(TimerOf(*timer));
    ASSERT_FALSE(toolkit.isNull());
    EXPECT_EQ(toolkit->parent(), nullptr);
    EXPECT_FALSE(toolkit->isSingleShot());
    EXPECT_FALSE(timer->isActive());
    delete timer;
    // At once, not later.
    EXPECT_TRUE(toolkit.isNull());
}

TEST(CKyUITimerTest, KeepsFiringAfterTheFirstTimeoutWhileReportingInactive)
{
    CKyUITimer timer;
    Recorder log;
    timer.timeout().connect([&]() { log.add("timeout, active", timer.isActive()); });
    QSignalSpy firings(TimerOf(timer), &QTimer::timeout);

    timer.start(10);
    EXPECT_TRUE(timer.isActive());
    ASSERT_TRUE(firings.wait(5000));
    EXPECT_FALSE(timer.isActive());
    ASSERT_TRUE(firings.wait(5000));
    ASSERT_TRUE(firings.wait(5000));
    EXPECT_TRUE(TimerOf(timer)->isActive());
    EXPECT_EQ(log.lines.size(), firings.count());
    EXPECT_TRUE(log.lines.filter("active:true").isEmpty()) << log.lines.join(" ").toStdString();

    timer.stop();
    EXPECT_FALSE(timer.isActive());
    EXPECT_FALSE(TimerOf(timer)->isActive());

    // A restart makes it active again until the next timeout.
    timer.start(10);
    EXPECT_TRUE(timer.isActive());
    ASSERT_TRUE(firings.wait(5000));
    EXPECT_FALSE(timer.isActive());
    timer.stop();
}

TEST(CKyUITimerTest, BlockedTimeoutsClearTheFlagButEmitNothing)
{
    CKyUITimer timer;
    Recorder log;
    log.on(timer.timeout(), "timeout");
    QSignalSpy firings(TimerOf(timer), &QTimer::timeout);
    timer.blockSignals(true);
    timer.start(10);
    ASSERT_TRUE(firings.wait(5000));
    EXPECT_FALSE(timer.isActive());
    EXPECT_EQ(log.count("timeout"), 0);

    timer.blockSignals(false);
    ASSERT_TRUE(firings.wait(5000));
    EXPECT_EQ(log.count("timeout"), 1);
    timer.stop();
}

TEST(CKyUITimerTest, SingleShotRunsOnceOnALaterPassOfTheEventLoop)
{
    int runs = 0;
    CKyUITimer::singleShot(0, [&runs]() { ++runs; });
    EXPECT_EQ(runs, 0);
    // An empty call-back is dropped.
    CKyUITimer::singleShot(0, std::function<void()>());

    // Signals the test once the later call-back has run.
    QTimer done;
    done.setSingleShot(true);
    QSignalSpy finished(&done, &QTimer::timeout);
    CKyUITimer::singleShot(5, [&runs, &done]() {
        ++runs;
        done.start(0);
    });
    ASSERT_TRUE(finished.wait(5000));
    EXPECT_EQ(runs, 2);
}

TEST(CKyUITimerTest, NegativeIntervalsAndEmptyCallablesNeverFire)
{
    CKyUITimer timer;
    Recorder log;
    log.on(timer.timeout(), "timeout");
    timer.start(-1);
    timer.start(INT_MIN);
    bool ran = false;
    CKyUITimer::singleShot(-5, [&ran] { ran = true; });
    CKyUITimer::singleShot(0, std::function<void()>());
    QCoreApplication::processEvents();
    EXPECT_EQ(log.count("timeout"), 0);
    EXPECT_FALSE(ran);
}
