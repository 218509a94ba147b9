#include "UI/CKyUITimer.h"
#include "support/Recorder.h"

#include <gtest/gtest.h>

#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtTest/QSignalSpy>

#include <climits>
#include <functional>

const auto TimerOf = [](const CKyUITimer& timer) { return qobject_cast<QTimer*>(timer.getHandle()); };

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

// The first timeout clears the flag, the toolkit timer keeps firing; a
// restart sets the flag again, and blocked timeouts emit nothing.
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

    const int emitted = log.lines.size();
    timer.blockSignals(true);
    timer.start(10);
    EXPECT_TRUE(timer.isActive());
    ASSERT_TRUE(firings.wait(5000));
    EXPECT_FALSE(timer.isActive());
    EXPECT_EQ(log.lines.size(), emitted);
    timer.blockSignals(false);
    ASSERT_TRUE(firings.wait(5000));
    EXPECT_EQ(log.lines.size(), emitted + 1);
    timer.stop();
}

// A single shot runs once on a later pass of the event loop; negative
// intervals and empty call-backs never fire.
TEST(CKyUITimerTest, SingleShotsAndIntervalsThatNeverFire)
{
    CKyUITimer timer;
    Recorder log;
    log.on(timer.timeout(), "timeout");
    timer.start(-1);
    timer.start(INT_MIN);
    CKyUITimer::singleShot(-5, [&log] { log.add("negative"); });
    CKyUITimer::singleShot(0, std::function<void()>());
    CKyUITimer::singleShot(0, [&log] { log.add("zero"); });
    EXPECT_TRUE(log.lines.isEmpty());
    // Signals the test once the later call-back has run.
    QTimer done;
    done.setSingleShot(true);
    QSignalSpy finished(&done, &QTimer::timeout);
    CKyUITimer::singleShot(5, [&log, &done]() {
        log.add("later");
        done.start(0);
    });
    ASSERT_TRUE(finished.wait(5000));
    EXPECT_EQ(log.lines, QStringList({"zero", "later"}));
}
