#include "UI/CKyUISignal.h"
#include "UI/CKyUIObject.h"

#include <gtest/gtest.h>

#include <QtCore/QString>
#include <QtCore/QStringList>

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
