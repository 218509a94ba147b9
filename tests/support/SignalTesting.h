#pragma once

#include "UI/slimsig/detail/signal_base"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

// The signal machinery on its own, with the standard allocator.
template <class Sig>
using Signal = slimsig::signal_base<slimsig::signal_traits<Sig>, std::allocator<std::function<Sig>>, Sig>;

// The state every emission must leave behind.
template <class Sig> void expectSettled(const Signal<Sig>& signal)
{
    EXPECT_EQ(signal.emission_depth(), 0u);
    EXPECT_EQ(signal.pending_offset(), 0u);
    EXPECT_EQ(signal.pending_size(), signal.slot_count());
    for (const auto& slot : signal.pending_slots()) {
        EXPECT_TRUE(slot.connected);
        EXPECT_FALSE(slot.running);
    }
}
