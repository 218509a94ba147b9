// Clients may include the signal headers with Qt's keywords on: they must
// neither break on Qt's empty `emit` macro nor remove it.
#include <QtCore/QObject>

#include "CommonUI.h"
#include "UI/CKyUIObject.h"
#include "UI/CKyUISignal.h"
#include "support/Recorder.h"
#include "support/SignalTesting.h"

#if !defined(emit) || !defined(slots) || !defined(signals)
#error "the signal headers must leave Qt's keywords defined"
#endif

#include <cstdint>
#include <functional>
#include <stdexcept>
#include <string>

// The test program sees Qt's keywords; the signal's operation is named emit.
#pragma push_macro("emit")
#undef emit

// Connecting: identifiers, connections that fail, scoped connections.

namespace
{
// A capture whose copy fails on demand.
struct CopyMayFail
{
    static inline bool fail = false;
    CopyMayFail() = default;
    CopyMayFail(const CopyMayFail&)
    {
        if (fail)
            throw std::runtime_error("copy failed");
    }
    CopyMayFail& operator=(const CopyMayFail&) = default;
};

TEST(SignalBase, ConnectThatCannotCopyARunningSlotFailsAndLosesNothing)
{
    Signal<void()> signal;
    Recorder log;
    int runs = 0;
    int late = 0;
    std::string failure;
    signal.connect([&] { log.add("a"); });
    signal.connect([&, capture = CopyMayFail()] {
        static_cast<void>(capture);
        log.add("b");
        if (++runs > 1)
            return;
        // Fills the array; the connect that must move it copies this running
        // slot, and that copy fails.
        CopyMayFail::fail = true;
        try {
            for (; late < 1000; ++late)
                signal.connect([&] { log.add("late"); });
        } catch (const std::runtime_error& error) {
            failure = error.what();
        }
        CopyMayFail::fail = false;
    });
    signal.connect([&] { log.add("c"); });
    signal.emit();
    EXPECT_EQ(failure, "copy failed");
    EXPECT_EQ(log.lines, (QStringList{"a", "b", "c"}));
    EXPECT_EQ(signal.slot_count(), 3u + static_cast<unsigned>(late));
    expectSettled(signal);
    log.lines.clear();
    signal.emit();
    EXPECT_EQ(log.lines.mid(0, 3), (QStringList{"a", "b", "c"}));
    EXPECT_EQ(log.count("late"), late);
    EXPECT_EQ(log.lines.size(), 3 + late);
}

// Identifiers count from zero and are never reused (the model test checks
// that at every connect); an empty callback uses one up but is never
// connected. A scoped connection disconnects when destroyed or replaced.
TEST(SignalBase, EmptyCallbacksAndScopedConnections)
{
    Signal<void()> signal;
    int calls = 0;
    auto empty = signal.connect(std::function<void()>());
    EXPECT_EQ(empty.id(), 0u);
    EXPECT_FALSE(empty.connected());
    {
        Signal<void()>::scoped_connection scoped = signal.connect([&] { ++calls; });
        EXPECT_EQ(scoped.get().id(), 1u);
        signal.emit();
        Signal<void()>::scoped_connection moved(std::move(scoped));
        EXPECT_FALSE(scoped.connected());
        EXPECT_TRUE(moved.connected());
        signal.emit();
    }
    signal.emit();
    EXPECT_EQ(calls, 2);

    Signal<void()>::scoped_connection owner = signal.connect([&] { calls += 10; });
    auto first = owner.get();
    owner = signal.connect([&] { calls += 100; });
    EXPECT_FALSE(first.connected());
    auto released = owner.release();
    {
        Signal<void()>::scoped_connection none;
    }
    EXPECT_TRUE(released.connected());
    signal.emit();
    EXPECT_EQ(calls, 102);
    EXPECT_EQ(signal.slot_count(), 1u);
    expectSettled(signal);
}

struct EightBitTraits
{
    using slot_id = std::uint8_t;
};
using SmallSignal = slimsig::signal_base<EightBitTraits, std::allocator<std::function<void()>>, void()>;

TEST(SignalBaseDeathTest, ExhaustedIdentifiersStopTheProcess)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    SmallSignal signal;
    for (int i = 0; i < 254; ++i)
        signal.connect([] {});
    EXPECT_EQ(signal.slot_count(), 254u);
    EXPECT_DEATH(signal.connect([] {}), "All available slot ids for this signal have been exhausted\\. "
                                        "This may be a sign you are misusing signals\" failed in "
                                        "prepare_connection at .*signal_base:338");
}
} // namespace

#pragma pop_macro("emit")

TEST(SignalKeywords, HeadersCompileWithQtKeywordsAndLeaveThemDefined)
{
    CKyUIObject owner;
    CKyUISignal<void(int)> signal(&owner);
    int sum = 0;
    signal.connect([&](int v) { sum += v; });

    emit signal.Emit(1); // Qt's keyword still expands to nothing

#pragma push_macro("emit")
#undef emit
    signal.emit(10);
#pragma pop_macro("emit")

    EXPECT_EQ(sum, 11);
}

#ifndef emit
#error "emit must be defined again after the call"
#endif
