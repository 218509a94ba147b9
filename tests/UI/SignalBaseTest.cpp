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

TEST(SignalBase, EmittingWithoutSlotsChangesNothing)
{
    Signal<void(int)> signal;
    signal.emit(1);
    EXPECT_EQ(signal.slot_count(), 0u);
    EXPECT_EQ(signal.pending_size(), 0u);
    expectSettled(signal);
}

TEST(SignalBase, IdentifiersCountFromZeroAndAreNeverReused)
{
    Signal<void()> signal;
    auto first = signal.connect([] {});
    auto second = signal.connect([] {});
    EXPECT_EQ(first.id(), 0u);
    EXPECT_EQ(second.id(), 1u);
    first.disconnect();
    EXPECT_EQ(signal.connect([] {}).id(), 2u);
    // An empty callback uses up an identifier but is never connected.
    auto empty = signal.connect(std::function<void()>());
    EXPECT_EQ(empty.id(), 3u);
    EXPECT_FALSE(empty.connected());
    EXPECT_EQ(signal.slot_count(), 2u);
    signal.emit();
    expectSettled(signal);
}

TEST(SignalBase, SlotsRunInConnectionOrderAndTwiceWhenConnectedTwice)
{
    Signal<void(int)> signal;
    Log log;
    std::function<void(int)> twice = [&](int v) { log.push_back("twice " + std::to_string(v)); };
    signal.connect(twice);
    signal.connect([&](int v) { log.push_back("middle " + std::to_string(v)); });
    signal.connect(twice);
    signal.emit(7);
    EXPECT_EQ(log, (Log{"twice 7", "middle 7", "twice 7"}));
}

TEST(SignalBase, DisconnectOutsideEmissionRemovesAtOnce)
{
    Signal<void()> signal;
    Log log;
    auto a = signal.connect([&] { log.push_back("a"); });
    auto b = signal.connect([&] { log.push_back("b"); });
    signal.connect([&] { log.push_back("c"); });
    b.disconnect();
    EXPECT_FALSE(b.connected());
    EXPECT_TRUE(a.connected());
    EXPECT_EQ(pendingIds(signal), (std::vector<std::uint64_t>{0, 2}));
    b.disconnect(); // twice is harmless
    signal.disconnect(42);
    EXPECT_EQ(signal.slot_count(), 2u);
    signal.emit();
    EXPECT_EQ(log, (Log{"a", "c"}));
    signal.disconnect_all();
    EXPECT_EQ(signal.slot_count(), 0u);
    EXPECT_EQ(signal.pending_size(), 0u);
    EXPECT_FALSE(a.connected());
}

TEST(SignalBase, SlotConnectedDuringEmissionWaitsForTheNext)
{
    Signal<void()> signal;
    Log log;
    bool connectedLate = false;
    signal.connect([&] {
        log.push_back("first");
        if (!connectedLate) {
            connectedLate = true;
            signal.connect([&] { log.push_back("late"); });
        }
    });
    signal.connect([&] { log.push_back("second"); });
    signal.emit();
    EXPECT_EQ(log, (Log{"first", "second"}));
    log.clear();
    signal.emit();
    EXPECT_EQ(log, (Log{"first", "second", "late"}));
    expectSettled(signal);
}

TEST(SignalBase, SlotKeepsItsCapturesWhileItsConnectsMoveTheArray)
{
    // The callable is small enough to live inside its std::function, which
    // sits in the array that the connects below move and free.
    static Signal<void()>* current = nullptr;
    Signal<void()> signal;
    current = &signal;
    std::vector<long> seen;
    const long tag = 4242;
    signal.connect([&seen, tag] {
        for (int i = 0; i < 64; ++i)
            current->connect([] {});
        seen.push_back(tag);
    });
    signal.emit();
    EXPECT_EQ(seen, (std::vector<long>{4242}));
    EXPECT_EQ(signal.slot_count(), 65u);
    current = nullptr;
}

TEST(SignalBase, SlotRunningInTwoEmissionsStaysRunningUntilItsOuterRunEnds)
{
    // The inner run ends first; the outer one, still running, then connects
    // enough slots to move the array and reads its captures afterwards.
    static Signal<void(int)>* current = nullptr;
    Signal<void(int)> signal;
    current = &signal;
    std::vector<long> seen;
    const long tag = 70;
    signal.connect([&seen, tag](int depth) {
        if (depth == 0) {
            current->emit(1);
            EXPECT_TRUE(current->pending_slots()[0].running);
            for (int i = 0; i < 64; ++i)
                current->connect([](int) {});
        }
        seen.push_back(tag + depth);
    });
    signal.emit(0);
    EXPECT_EQ(seen, (std::vector<long>{71, 70}));
    expectSettled(signal);
    signal.emit(1);
    EXPECT_EQ(seen, (std::vector<long>{71, 70, 71}));
    EXPECT_EQ(signal.slot_count(), 65u);
    current = nullptr;
}

TEST(SignalBase, SlotKeepsWhatItChangedInItselfWhileItsConnectsMovedTheArray)
{
    static Signal<void()>* current = nullptr;
    Signal<void()> signal;
    current = &signal;
    std::vector<int> seen;
    signal.connect([&seen, calls = 0]() mutable {
        if (++calls == 1) {
            for (int i = 0; i < 64; ++i)
                current->connect([] {});
        }
        seen.push_back(++calls);
    });
    signal.emit();
    signal.emit();
    EXPECT_EQ(seen, (std::vector<int>{2, 4}));
    current = nullptr;
}

// A capture whose copy fails on demand.
struct CopyMayFail {
    static bool fail;
    CopyMayFail() = default;
    CopyMayFail(const CopyMayFail&)
    {
        if (fail)
            throw std::runtime_error("copy failed");
    }
    CopyMayFail& operator=(const CopyMayFail&) = default;
};
bool CopyMayFail::fail = false;

TEST(SignalBase, ConnectThatCannotCopyARunningSlotFailsAndLosesNothing)
{
    Signal<void()> signal;
    Log log;
    int runs = 0;
    int late = 0;
    std::string failure;
    signal.connect([&] { log.push_back("a"); });
    signal.connect([&, capture = CopyMayFail()] {
        static_cast<void>(capture);
        log.push_back("b");
        if (++runs > 1)
            return;
        // Fills the array; the connect that must move it copies this running
        // slot, and that copy fails.
        CopyMayFail::fail = true;
        try {
            for (; late < 1000; ++late)
                signal.connect([&] { log.push_back("late"); });
        } catch (const std::runtime_error& error) {
            failure = error.what();
        }
        CopyMayFail::fail = false;
    });
    signal.connect([&] { log.push_back("c"); });
    signal.emit();
    EXPECT_EQ(failure, "copy failed");
    EXPECT_EQ(log, (Log{"a", "b", "c"}));
    EXPECT_EQ(signal.slot_count(), 3u + static_cast<unsigned>(late));
    expectSettled(signal);
    log.clear();
    signal.emit();
    Log expected{"a", "b", "c"};
    expected.resize(expected.size() + static_cast<std::size_t>(late), "late");
    EXPECT_EQ(log, expected);
}

TEST(SignalBase, SlotDisconnectingALaterSlotSkipsItAndCompactsAfterwards)
{
    Signal<void()> signal;
    Log log;
    Signal<void()>::connection third;
    signal.connect([&] { log.push_back("a"); });
    signal.connect([&] {
        log.push_back("b");
        third.disconnect();
        // Nothing moves while the emission runs.
        EXPECT_EQ(signal.pending_size(), 4u);
        EXPECT_EQ(signal.slot_count(), 3u);
    });
    third = signal.connect([&] { log.push_back("c"); });
    signal.connect([&] { log.push_back("d"); });
    signal.emit();
    EXPECT_EQ(log, (Log{"a", "b", "d"}));
    EXPECT_EQ(pendingIds(signal), (std::vector<std::uint64_t>{0, 1, 3}));
    expectSettled(signal);
}

TEST(SignalBase, SlotDisconnectingItselfStillFinishesAndLaterSlotsRun)
{
    Signal<void()> signal;
    Log log;
    Signal<void()>::connection self;
    self = signal.connect([&] {
        self.disconnect();
        EXPECT_TRUE(signal.pending_slots()[0].running);
        log.push_back("self");
    });
    signal.connect([&] { log.push_back("after"); });
    signal.emit();
    signal.emit();
    EXPECT_EQ(log, (Log{"self", "after", "after"}));
    expectSettled(signal);
}

TEST(SignalBase, DisconnectAllInsideASlotStopsTheRestAndEmptiesTheSignal)
{
    Signal<void()> signal;
    Log log;
    signal.connect([&] { log.push_back("a"); });
    signal.connect([&] {
        log.push_back("b");
        signal.disconnect_all();
        EXPECT_EQ(signal.slot_count(), 0u);
        EXPECT_EQ(signal.pending_offset(), 3u);
    });
    signal.connect([&] { log.push_back("c"); });
    signal.emit();
    EXPECT_EQ(log, (Log{"a", "b"}));
    EXPECT_EQ(signal.pending_size(), 0u);
    expectSettled(signal);
    log.clear();
    signal.emit();
    EXPECT_TRUE(log.empty());
}

TEST(SignalBase, SlotsConnectedAfterDisconnectAllInsideASlotSurviveTheCleanUp)
{
    Signal<void()> signal;
    Log log;
    signal.connect([&] {
        log.push_back("old");
        signal.disconnect_all();
        signal.connect([&] { log.push_back("new"); });
        signal.emit(); // sees only the new slot
    });
    signal.connect([&] { log.push_back("never"); });
    signal.emit();
    EXPECT_EQ(log, (Log{"old", "new"}));
    EXPECT_EQ(pendingIds(signal), (std::vector<std::uint64_t>{2}));
    expectSettled(signal);
    log.clear();
    signal.emit();
    EXPECT_EQ(log, (Log{"new"}));
}

TEST(SignalBase, NestedEmissionCompletesFirstAndCleansUpOnlyAtTheOuterEnd)
{
    Signal<void(int)> signal;
    Log log;
    Signal<void(int)>::connection last;
    signal.connect([&](int depth) {
        log.push_back("a" + std::to_string(depth));
        if (depth == 0) {
            EXPECT_EQ(signal.emission_depth(), 1u);
            last.disconnect();
            signal.emit(1);
            // The inner emission ended, the outer still runs: the entry stays.
            EXPECT_EQ(signal.emission_depth(), 1u);
            EXPECT_EQ(signal.pending_size(), 3u);
        } else {
            EXPECT_EQ(signal.emission_depth(), 2u);
        }
    });
    signal.connect([&](int depth) { log.push_back("b" + std::to_string(depth)); });
    last = signal.connect([&](int depth) { log.push_back("c" + std::to_string(depth)); });
    signal.emit(0);
    EXPECT_EQ(log, (Log{"a0", "a1", "b1", "b0"}));
    EXPECT_EQ(signal.pending_size(), 2u);
    expectSettled(signal);
}

TEST(SignalBase, ThrowingSlotPropagatesAfterCleanUpAndTheSignalStaysUsable)
{
    Signal<void()> signal;
    Log log;
    Signal<void()>::connection first;
    first = signal.connect([&] { log.push_back("first"); });
    signal.connect([&] {
        first.disconnect();
        throw std::runtime_error("slot failed");
    });
    signal.connect([&] { log.push_back("never"); });
    EXPECT_THROW(signal.emit(), std::runtime_error);
    EXPECT_EQ(log, (Log{"first"}));
    EXPECT_EQ(pendingIds(signal), (std::vector<std::uint64_t>{1, 2}));
    expectSettled(signal);

    signal.disconnect(1);
    log.clear();
    signal.emit();
    EXPECT_EQ(log, (Log{"never"}));
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

TEST(SignalBase, ScopedConnectionDisconnectsWhenDestroyedOrReplaced)
{
    Signal<void()> signal;
    int calls = 0;
    {
        Signal<void()>::scoped_connection scoped = signal.connect([&] { ++calls; });
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
        Signal<void()>::scoped_connection empty;
    }
    EXPECT_TRUE(released.connected());
    signal.emit();
    EXPECT_EQ(calls, 102);
}

// Records how a value reached a slot: the number of copies along its way.
struct Traced {
    static int copies;
    int copiesOnTheWay = 0;

    Traced() = default;
    Traced(const Traced& other)
        : copiesOnTheWay(other.copiesOnTheWay + 1)
    {
        ++copies;
    }
    Traced(Traced&& other) noexcept
        : copiesOnTheWay(other.copiesOnTheWay)
    {
    }
    Traced& operator=(const Traced&) = delete;
    Traced& operator=(Traced&&) = delete;
};
int Traced::copies = 0;

TEST(SignalBase, EverySlotButTheLastGetsACopyAndTheLastTheMovedValue)
{
    Signal<void(Traced)> signal;
    std::vector<int> seen;
    for (int i = 0; i < 3; ++i)
        signal.connect([&](Traced value) { seen.push_back(value.copiesOnTheWay); });
    Traced::copies = 0;
    signal.emit(Traced());
    EXPECT_EQ(seen, (std::vector<int>{1, 1, 0}));
    EXPECT_EQ(Traced::copies, 2);
}

TEST(SignalBase, ConstReferenceArgumentsReachEverySlotAsTheSameObject)
{
    Signal<void(const Traced&)> signal;
    const Traced original;
    std::vector<const Traced*> seen;
    for (int i = 0; i < 3; ++i)
        signal.connect([&](const Traced& value) { seen.push_back(&value); });
    Traced::copies = 0;
    signal.emit(original);
    EXPECT_EQ(seen, (std::vector<const Traced*>{&original, &original, &original}));
    EXPECT_EQ(Traced::copies, 0);
}

struct EightBitTraits {
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
