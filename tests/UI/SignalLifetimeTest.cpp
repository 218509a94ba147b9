#include "UI/slimsig/detail/signal_base"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

// The test program sees Qt's keywords; the signal's operation is named emit.
#pragma push_macro("emit")
#undef emit

// Lifetime: signals destroyed from their own slots, connections outliving their signal.

namespace {

template <class Sig>
using Signal = slimsig::signal_base<slimsig::signal_traits<Sig>, std::allocator<std::function<Sig>>, Sig>;

using Log = std::vector<std::string>;

template <class Sig>
std::vector<std::uint64_t> pendingIds(const Signal<Sig>& signal)
{
    std::vector<std::uint64_t> ids;
    for (const auto& slot : signal.pending_slots())
        ids.push_back(slot.id);
    return ids;
}

// The state every emission must leave behind.
template <class Sig>
void expectSettled(const Signal<Sig>& signal)
{
    EXPECT_EQ(signal.emission_depth(), 0u);
    EXPECT_EQ(signal.pending_offset(), 0u);
    EXPECT_EQ(signal.pending_size(), signal.slot_count());
    for (const auto& slot : signal.pending_slots()) {
        EXPECT_TRUE(slot.connected);
        EXPECT_FALSE(slot.running);
    }
}

// A slot may destroy the signal that calls it (a client deleting the object
// that owns it). Its own captures die with the signal, so such slots copy
// what they need before and touch nothing afterwards.
TEST(SignalBase, SlotDestroyingItsSignalEndsTheEmission)
{
    auto signal = std::make_unique<Signal<void()>>();
    Log log;
    signal->connect([&log] { log.push_back("a"); });
    auto doomed = signal->connect([&log, &signal] {
        log.push_back("b");
        signal.reset();
    });
    signal->connect([&log] { log.push_back("c"); });
    signal->emit();
    EXPECT_EQ(signal, nullptr);
    EXPECT_EQ(log, (Log{"a", "b"}));
    EXPECT_FALSE(doomed.connected());
}

TEST(SignalBase, SignalDestroyedInANestedEmissionEndsEveryEmissionOfIt)
{
    for (const bool throwing : {false, true}) {
        SCOPED_TRACE(throwing ? "then throwing" : "then returning");
        auto signal = std::make_unique<Signal<void(int)>>();
        Log log;
        signal->connect([&log, &signal](int depth) {
            log.push_back("a" + std::to_string(depth));
            if (depth == 0)
                signal->emit(1);
        });
        signal->connect([&log, &signal, throwing](int depth) {
            log.push_back("b" + std::to_string(depth));
            if (depth == 1) {
                const bool thenThrow = throwing; // the capture dies with the signal
                signal.reset();
                if (thenThrow)
                    throw std::runtime_error("after the signal died");
            }
        });
        signal->connect([&log](int depth) { log.push_back("c" + std::to_string(depth)); });
        if (throwing)
            EXPECT_THROW(signal->emit(0), std::runtime_error);
        else
            signal->emit(0);
        EXPECT_EQ(signal, nullptr);
        EXPECT_EQ(log, (Log{"a0", "a1", "b1"}));
    }
}

TEST(SignalBase, SlotDestroyingItsSignalAfterItsConnectsMovedTheArray)
{
    // The retired array, which the running callable lives in, goes with the
    // signal, as does the new one.
    auto signal = std::make_unique<Signal<void()>>();
    Log log;
    signal->connect([&log, &signal] {
        for (int i = 0; i < 64; ++i)
            signal->connect([&log] { log.push_back("late"); });
        log.push_back("a");
        signal.reset();
    });
    signal->connect([&log] { log.push_back("b"); });
    signal->emit();
    EXPECT_EQ(log, (Log{"a"}));
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
