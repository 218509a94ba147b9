#include "UI/CKyUIObject.h"
#include "UI/CKyUISignal.h"
#include "support/Recorder.h"
#include "support/SignalTesting.h"

#include <stdexcept>
#include <vector>

// Emission and re-entrancy: what slots see while the signal changes under
// them.

// The test program sees Qt's keywords; the signal's operation is named emit.
#pragma push_macro("emit")
#undef emit

namespace
{
// The callables are small enough to live inside their std::function, which
// sits in the array that the connects below move and free: a running slot
// must keep its captures and what it changed in itself, and stay running
// until its outer run ends. Without slots an emission changes nothing.
TEST(SignalEmission, ARunningSlotKeepsItsStateWhileItsConnectsMoveTheArray)
{
    static Signal<void(int)>* current = nullptr;
    Signal<void(int)> signal;
    signal.emit(1);
    EXPECT_EQ(signal.slot_count(), 0u);
    expectSettled(signal);
    current = &signal;
    std::vector<long> seen;
    const long tag = 70;
    signal.connect([&seen, tag, calls = 0](int depth) mutable {
        if (++calls == 1) {
            current->emit(1);
            EXPECT_TRUE(current->pending_slots()[0].running);
            for (int i = 0; i < 64; ++i)
                current->connect([](int) {});
        }
        seen.push_back(tag + depth + 10 * ++calls);
    });
    signal.emit(0);
    EXPECT_EQ(seen, (std::vector<long>{101, 110}));
    expectSettled(signal);
    signal.emit(1);
    EXPECT_EQ(seen, (std::vector<long>{101, 110, 131}));
    EXPECT_EQ(signal.slot_count(), 65u);
    current = nullptr;
}

// What a slot of a nested emission does to the signal reaches the emission it
// runs in: the outer one finds its slots again after a move, skips what was
// disconnected, and the outermost one tidies up. "a" counts its runs in
// itself, which must survive the move of the array while it runs.
TEST(SignalEmission, WhatANestedEmissionDoesReachesTheOuterOnes)
{
    enum class Inner { Grow, DisconnectLater, DisconnectAll, Throw };
    const struct
    {
        Inner action;
        QStringList calls;
        std::size_t slotsAfter;
    } cases[] = {
        {Inner::Grow, {"a1:0", "a2:1", "b:1", "c:1", "b:0", "c:0"}, 67},
        {Inner::DisconnectLater, {"a1:0", "a2:1", "b:1", "b:0"}, 2},
        {Inner::DisconnectAll, {"a1:0", "a2:1", "b:1"}, 0},
        {Inner::Throw, {"a1:0", "a2:1", "b:1"}, 3},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.calls.join(QLatin1Char(' ')).toStdString());
        Signal<void(int)> signal;
        Recorder log;
        signal.connect([&log, &signal, runs = 0](int depth) mutable {
            log.add("a" + QString::number(++runs), depth);
            if (depth == 0)
                signal.emit(1);
        });
        signal.connect([&, action = c.action](int depth) {
            log.add("b", depth);
            if (depth != 1)
                return;
            if (action == Inner::Grow) {
                for (int i = 0; i < 64; ++i)
                    signal.connect([&log](int) { log.add("late"); });
            }
            if (action == Inner::DisconnectLater)
                signal.disconnect(2);
            if (action == Inner::DisconnectAll)
                signal.disconnect_all();
            if (action == Inner::Throw)
                throw std::runtime_error("inner");
        });
        signal.connect([&log](int depth) { log.add("c", depth); });
        if (c.action == Inner::Throw)
            EXPECT_THROW(signal.emit(0), std::runtime_error);
        else
            signal.emit(0);
        EXPECT_EQ(log.take(), c.calls);
        EXPECT_EQ(signal.slot_count(), c.slotsAfter);
        expectSettled(signal);
        if (c.slotsAfter != 0) {
            signal.emit(2);
            EXPECT_EQ(log.lines.value(0), "a3:2");
            EXPECT_EQ(log.count("late"), c.action == Inner::Grow ? 64 : 0);
        }
    }
}

// Records how a value reached a slot: the number of copies along its way.
struct Traced
{
    static inline int copies = 0;
    int copiesOnTheWay = 0;

    Traced() = default;
    Traced(const Traced& other)
        : copiesOnTheWay(other.copiesOnTheWay + 1)
    {
        ++copies;
    }
    Traced(Traced&&) noexcept = default;
    Traced& operator=(const Traced&) = delete;
    Traced& operator=(Traced&&) = delete;
};

// Every slot but the last gets a copy, the last the moved value; a const
// reference reaches every slot as the same object.
TEST(SignalEmission, ArgumentsAreCopiedOnlyWhereASlotNeedsItsOwn)
{
    Signal<void(Traced)> byValue;
    std::vector<int> seen;
    for (int i = 0; i < 3; ++i)
        byValue.connect([&](Traced value) { seen.push_back(value.copiesOnTheWay); });
    Traced::copies = 0;
    byValue.emit(Traced());
    EXPECT_EQ(seen, (std::vector<int>{1, 1, 0}));
    EXPECT_EQ(Traced::copies, 2);

    Signal<void(const Traced&)> byReference;
    const Traced original;
    std::vector<const Traced*> addresses;
    for (int i = 0; i < 3; ++i)
        byReference.connect([&](const Traced& value) { addresses.push_back(&value); });
    Traced::copies = 0;
    byReference.emit(original);
    EXPECT_EQ(addresses, (std::vector<const Traced*>{&original, &original, &original}));
    EXPECT_EQ(Traced::copies, 0);
}

} // namespace

#pragma pop_macro("emit")

// A blocked owner silences Emit and keeps the slots; blocking inside a slot
// stops the next Emit, not the running one; a signal without owner is never
// blocked.
TEST(CKyUISignal, BlockingTheOwnerSilencesTheNextEmit)
{
    CKyUIObject owner;
    CKyUISignal<void(int)> signal(&owner);
    EXPECT_EQ(signal.owner(), &owner);
    Recorder log;
    log.on(signal, "first");
    signal.connect([&](int depth) {
        if (depth == 0) {
            owner.blockSignals(true);
            signal.Emit(1);
        }
    });
    log.on(signal, "second");
    signal.Emit(0);
    EXPECT_EQ(log.take(), (QStringList{"first:0", "second:0"}));
    EXPECT_EQ(signal.emission_depth(), 0u);
    signal.Emit(2);
    EXPECT_TRUE(log.lines.isEmpty());
    EXPECT_EQ(signal.slot_count(), 3u);
    owner.blockSignals(false);
    signal.Emit(3);
    EXPECT_EQ(log.take(), (QStringList{"first:3", "second:3"}));

    CKyUISignal<void()> orphan(nullptr);
    log.on(orphan, "orphan");
    orphan.Emit();
    EXPECT_EQ(log.lines, QStringList{"orphan"});
}

// Emit leaves the sender as it is; the scope sets it for its lifetime, and an
// inner scope clears it for the outer one too.
TEST(CKyUIEmitScope, SetsTheSenderForItsLifetime)
{
    CKyUIObject receiver;
    CKyUIObject sender;
    CKyUIObject inner;
    CKyUISignal<void()> signal(&receiver);
    CKyUIObject* seen = nullptr;
    signal.connect([&] { seen = receiver.sender(); });
    receiver.setSender(&inner);
    signal.Emit();
    EXPECT_EQ(seen, &inner);
    {
        CKyUIEmitScope scope(&receiver, &sender);
        signal.Emit();
        EXPECT_EQ(seen, &sender);
        {
            CKyUIEmitScope innerScope(&receiver, &inner);
            EXPECT_EQ(receiver.sender(), &inner);
        }
        EXPECT_EQ(receiver.sender(), nullptr);
    }
    EXPECT_EQ(receiver.sender(), nullptr);
    {
        CKyUIEmitScope scope(nullptr, &sender);
    }
    EXPECT_EQ(sender.sender(), nullptr);
}
