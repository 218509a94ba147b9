#include "support/CountingAllocator.h"
#include "support/SignalTesting.h"

#include "UI/CKyUIObject.h"
#include "UI/CKyUISignal.h"

#include <QtCore/QString>

#include <array>

// Emission allocates nothing of its own.

#pragma push_macro("emit")
#undef emit

namespace
{
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

// Strings are shared, not copied; nor do a blocked owner or slots that
// disconnect and emit again allocate.
TEST(SignalAllocation, StringsBlockingAndReentrancyAllocateNothing)
{
    const QString text(48, QLatin1Char('x'));
    int seen = 0;
    Signal<void(QString)> byValue;
    Signal<void(const QString&)> byReference;
    for (int i = 0; i < 8; ++i) {
        byValue.connect([&seen](QString s) { seen += s.size(); });
        byReference.connect([&seen](const QString& s) { seen += s.size(); });
    }
    CKyUIObject owner;
    CKyUISignal<void(bool)> owned(&owner);
    owned.connect([&seen](bool) { ++seen; });
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
    byValue.emit(text);
    byReference.emit(text);
    owned.Emit(true);
    owner.blockSignals(true);
    owned.Emit(true);
    signal.emit(0);
    EXPECT_EQ(counter.count(), 0);
    EXPECT_EQ(seen, 16 * 48 + 1);
    EXPECT_EQ(calls, 4);
    EXPECT_EQ(signal.pending_size(), 2u);
}
} // namespace

#pragma pop_macro("emit")
