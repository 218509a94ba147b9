#include "support/CountingAllocator.h"

#include "UI/CKyUIObject.h"
#include "UI/CKyUISignal.h"
#include "UI/slimsig/detail/signal_base"

#include <gtest/gtest.h>

#include <QtCore/QString>

#include <array>
#include <functional>

// Emission allocates nothing of its own.

#pragma push_macro("emit")
#undef emit

namespace
{

template <class Sig>
using Signal = slimsig::signal_base<slimsig::signal_traits<Sig>, std::allocator<std::function<Sig>>, Sig>;

TEST(SignalAllocation, EmissionAllocatesNothingWhateverTheSlots)
{
    long sum = 0;
    const std::array<long, 8> big{}; // too large to live inside a std::function
    Signal<void(int)> signal;
    for (int wanted = 1; wanted <= 64; wanted *= 8) {
        while (signal.slot_count() < static_cast<std::size_t>(wanted)) {
            signal.connect([&sum](int v) { sum += v; });
            signal.connect([&sum, big](int v) { sum += v + big[0]; });
        }
        AllocationCounter counter;
        signal.emit(1);
        EXPECT_EQ(counter.count(), 0) << signal.slot_count() << " slots";
    }
    EXPECT_GT(sum, 0);
}

TEST(SignalAllocation, StringArgumentsAreSharedNotAllocated)
{
    const QString text(48, QLatin1Char('x'));
    int seen = 0;
    Signal<void(QString)> byValue;
    Signal<void(const QString&)> byReference;
    for (int i = 0; i < 8; ++i) {
        byValue.connect([&seen](QString s) { seen += s.size(); });
        byReference.connect([&seen](const QString& s) { seen += s.size(); });
    }
    AllocationCounter counter;
    byValue.emit(text);
    byReference.emit(text);
    EXPECT_EQ(counter.count(), 0);
    EXPECT_EQ(seen, 16 * 48);
}

TEST(SignalAllocation, DisconnectingAndReemittingInsideSlotsAllocatesNothing)
{
    Signal<void(int)> signal;
    Signal<void(int)>::connection second;
    int calls = 0;
    signal.connect([&](int depth) {
        ++calls;
        if (depth == 0) {
            second.disconnect();
            signal.emit(1);
        }
    });
    second = signal.connect([&](int) { ++calls; });
    signal.connect([&](int) { ++calls; });
    AllocationCounter counter;
    signal.emit(0);
    EXPECT_EQ(counter.count(), 0);
    EXPECT_EQ(calls, 4);
    EXPECT_EQ(signal.pending_size(), 2u);
}

TEST(SignalAllocation, CKyUISignalEmitAllocatesNothingBlockedOrNot)
{
    CKyUIObject owner;
    CKyUISignal<void(bool)> signal(&owner);
    int calls = 0;
    signal.connect([&calls](bool) { ++calls; });
    AllocationCounter counter;
    signal.Emit(true);
    owner.blockSignals(true);
    signal.Emit(true);
    EXPECT_EQ(counter.count(), 0);
    EXPECT_EQ(calls, 1);
}

} // namespace

#pragma pop_macro("emit")
