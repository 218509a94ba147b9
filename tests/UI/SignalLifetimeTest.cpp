#include "support/Recorder.h"
#include "support/SignalTesting.h"

#include <stdexcept>

// The test program sees Qt's keywords; the signal's operation is named emit.
#pragma push_macro("emit")
#undef emit

// Lifetime: signals destroyed from their own slots, connections outliving their signal.

namespace
{
// A slot may destroy the signal that calls it (a client deleting the object
// that owns it). Its own captures die with the signal, so such slots copy
// what they need before and touch nothing afterwards. The retired array,
// which the running callable lives in after its connects moved the array,
// goes with the signal, as does the new one.
TEST(SignalBase, SlotDestroyingItsSignalEndsTheEmission)
{
    for (const bool moving : {false, true}) {
        SCOPED_TRACE(moving ? "after moving the array" : "in place");
        auto signal = std::make_unique<Signal<void()>>();
        Recorder log;
        signal->connect([&log] { log.add("a"); });
        auto doomed = signal->connect([&log, &signal, moving] {
            for (int i = 0; moving && i < 64; ++i)
                signal->connect([&log] { log.add("late"); });
            log.add("b");
            signal.reset();
        });
        signal->connect([&log] { log.add("c"); });
        signal->emit();
        EXPECT_EQ(signal, nullptr);
        EXPECT_EQ(log.lines, (QStringList{"a", "b"}));
        EXPECT_FALSE(doomed.connected());
    }
}

TEST(SignalBase, SignalDestroyedInANestedEmissionEndsEveryEmissionOfIt)
{
    for (const bool throwing : {false, true}) {
        SCOPED_TRACE(throwing ? "then throwing" : "then returning");
        auto signal = std::make_unique<Signal<void(int)>>();
        Recorder log;
        signal->connect([&log, &signal](int depth) {
            log.add("a" + QString::number(depth));
            if (depth == 0)
                signal->emit(1);
        });
        signal->connect([&log, &signal, throwing](int depth) {
            log.add("b" + QString::number(depth));
            if (depth == 1) {
                const bool thenThrow = throwing; // the capture dies with the signal
                signal.reset();
                if (thenThrow)
                    throw std::runtime_error("after the signal died");
            }
        });
        signal->connect([&log](int depth) { log.add("c" + QString::number(depth)); });
        if (throwing)
            EXPECT_THROW(signal->emit(0), std::runtime_error);
        else
            signal->emit(0);
        EXPECT_EQ(signal, nullptr);
        EXPECT_EQ(log.lines, (QStringList{"a0", "a1", "b1"}));
    }
}

TEST(SignalBase, ConnectionOutlivingItsSignalRefersToNothing)
{
    Signal<void()>::connection kept;
    {
        Signal<void()> signal;
        kept = signal.connect([] {});
        EXPECT_TRUE(kept.connected());
    }
    EXPECT_FALSE(kept.connected());
    kept.disconnect();
    Signal<void()>::connection none;
    EXPECT_FALSE(none.connected());
    none.disconnect();

    auto signal = std::make_unique<Signal<void()>>();
    Signal<void()>::scoped_connection scoped = signal->connect([] {});
    signal.reset();
    EXPECT_FALSE(scoped.connected());
}

} // namespace

#pragma pop_macro("emit")
