#include "UI/CKyUIObject.h"
#include "UI/CKyUISignal.h"
#include "UI/slimsig/detail/signal_base"

#include <gtest/gtest.h>

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <cstdint>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

// The test program sees Qt's keywords; the signal's operation is named emit.
#pragma push_macro("emit")
#undef emit

// Emission and re-entrancy: what slots see while the signal changes under them. The orders of calls under connects, disconnects, nested emissions and throwing slots are checked against a reference model in SignalModelTest.

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

} // namespace

#pragma pop_macro("emit")

namespace {


TEST(CKyUISignal, BlockedOwnerSilencesEmitAndKeepsTheSlots)
{
    CKyUIObject owner;
    CKyUISignal<void(int)> signal(&owner);
    EXPECT_EQ(signal.owner(), &owner);
    QList<int> seen;
    signal.connect([&](int v) { seen << v; });
    signal.connect([&](int v) { seen << -v; });

    owner.blockSignals(true);
    signal.Emit(1);
    EXPECT_TRUE(seen.isEmpty());
    EXPECT_EQ(signal.slot_count(), 2u);

    owner.blockSignals(false);
    signal.Emit(2);
    EXPECT_EQ(seen, (QList<int>{2, -2}));
}

TEST(CKyUISignal, BlockingInsideASlotStopsTheNextEmitNotTheRunningOne)
{
    CKyUIObject owner;
    CKyUISignal<void(int)> signal(&owner);
    QStringList log;
    signal.connect([&](int depth) {
        log << QString("first %1").arg(depth);
        if (depth == 0) {
            owner.blockSignals(true);
            signal.Emit(1);
        }
    });
    signal.connect([&](int depth) { log << QString("second %1").arg(depth); });
    signal.Emit(0);
    EXPECT_EQ(log, (QStringList{"first 0", "second 0"}));
    EXPECT_EQ(signal.emission_depth(), 0u);
}

TEST(CKyUISignal, EmitLeavesTheSenderAlone)
{
    CKyUIObject owner;
    CKyUIObject other;
    CKyUISignal<void()> signal(&owner);
    CKyUIObject* seen = nullptr;
    signal.connect([&] { seen = owner.sender(); });
    owner.setSender(&other);
    signal.Emit();
    EXPECT_EQ(seen, &other);
    EXPECT_EQ(owner.sender(), &other);
}

TEST(CKyUISignal, SignalWithoutOwnerIsNeverBlocked)
{
    CKyUISignal<void()> signal(nullptr);
    int calls = 0;
    signal.connect([&] { ++calls; });
    signal.Emit();
    EXPECT_EQ(calls, 1);
}

TEST(CKyUIEmitScope, SetsTheSenderForItsLifetime)
{
    CKyUIObject receiver;
    CKyUIObject sender;
    CKyUISignal<void()> signal(&receiver);
    CKyUIObject* seen = nullptr;
    signal.connect([&] { seen = receiver.sender(); });
    {
        CKyUIEmitScope scope(&receiver, &sender);
        signal.Emit();
        EXPECT_EQ(receiver.sender(), &sender);
    }
    EXPECT_EQ(seen, &sender);
    EXPECT_EQ(receiver.sender(), nullptr);
}

TEST(CKyUIEmitScope, InnerGuardClearsTheSenderOfTheOuter)
{
    CKyUIObject receiver;
    CKyUIObject outer;
    CKyUIObject inner;
    CKyUIEmitScope outerScope(&receiver, &outer);
    {
        CKyUIEmitScope innerScope(&receiver, &inner);
        EXPECT_EQ(receiver.sender(), &inner);
    }
    EXPECT_EQ(receiver.sender(), nullptr);
}

TEST(CKyUIEmitScope, NullObjectDoesNothing)
{
    CKyUIObject sender;
    {
        CKyUIEmitScope scope(nullptr, &sender);
    }
    EXPECT_EQ(sender.sender(), nullptr);
}

} // namespace
