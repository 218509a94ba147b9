#include "support/SignalTesting.h"

#include <algorithm>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#pragma push_macro("emit")
#undef emit

// Random sequences of connect, disconnect (through the connection or by
// identifier, from outside and from inside slots), disconnect-all, emission,
// nested emission and throwing slots, run against the signal and against a
// plain reference model; the two must call the same slots in the same order,
// and the signal's bookkeeping must hold its invariants after every emission.

namespace
{
constexpr int maxSlots = 16;
constexpr int maxDepth = 3;
constexpr int nestedEmissionsPerStep = 4;

enum class Action {
    DisconnectViaConnection,
    DisconnectById,
    DisconnectAll,
    Connect,
    Emit,
    EmitCatching,
    Throw
};
struct Step
{
    Action action;
    int key; // the slot a disconnection aims at
};

struct SlotError
{
    int key;
};

struct SlotHandler
{
    virtual void onSlot(int key, int depth) = 0;
    virtual void slotReturned(int key) = 0;

protected:
    ~SlotHandler() = default;
};

// Who is connected is a flag per slot; an emission calls, in order, the slots
// connected when it starts that are still connected at their turn.
struct ModelTarget
{
    void connect(int /*key: the next one*/, SlotHandler&) { connected.push_back(true); }
    void disconnect(int key, bool /*viaConnection*/)
    {
        if (key < static_cast<int>(connected.size()))
            connected[key] = false;
    }
    void disconnectAll() { connected.assign(connected.size(), false); }
    void emit(int depth, SlotHandler& handler)
    {
        for (int key : connectedKeys()) {
            if (connected[key]) {
                handler.onSlot(key, depth);
                handler.slotReturned(key);
            }
        }
    }
    void afterEmission(int /*depthOnStack*/) {}
    void settled() {}
    int count() const { return static_cast<int>(connectedKeys().size()); }
    std::vector<int> connectedKeys() const
    {
        std::vector<int> keys;
        for (int key = 0; key < static_cast<int>(connected.size()); ++key)
            if (connected[key])
                keys.push_back(key);
        return keys;
    }

    std::vector<bool> connected;
};

struct SignalTarget
{
    void connect(int key, SlotHandler& handler)
    {
        // A small callable, stored inside the std::function, that reads its
        // captures again after the slot's work, which may have moved the array.
        connections.push_back(signal.connect([handler = &handler, key](int depth) {
            handler->onSlot(key, depth);
            handler->slotReturned(key);
        }));
        if (connections.back().id() != static_cast<std::uint64_t>(key))
            fail("identifier " + std::to_string(connections.back().id()) + " for slot " +
                 std::to_string(key));
    }
    void disconnect(int key, bool viaConnection)
    {
        if (!viaConnection)
            signal.disconnect(static_cast<std::uint64_t>(key));
        else if (key < static_cast<int>(connections.size()))
            connections[key].disconnect();
    }
    void disconnectAll() { signal.disconnect_all(); }
    void emit(int depth, SlotHandler&) { signal.emit(depth); }
    int count() const { return static_cast<int>(signal.slot_count()); }

    // Holds after any emission, also one nested inside a slot.
    void afterEmission(int depthOnStack)
    {
        if (signal.emission_depth() != static_cast<std::uint32_t>(depthOnStack))
            fail("depth " + std::to_string(signal.emission_depth()));
        const auto& pending = signal.pending_slots();
        if (signal.pending_offset() > pending.size())
            fail("offset beyond the array");
        std::size_t connected = 0;
        for (std::size_t i = 0; i < pending.size(); ++i) {
            connected += pending[i].connected ? 1 : 0;
            if (i < signal.pending_offset() && pending[i].connected)
                fail("connected slot inside the offset");
            if (i > 0 && pending[i - 1].id >= pending[i].id)
                fail("identifiers out of order");
        }
        if (connected != signal.slot_count())
            fail("slot count " + std::to_string(signal.slot_count()) + " for " + std::to_string(connected) +
                 " connected");
    }

    // Holds between emissions: compacted, nothing running, nothing skipped.
    void settled()
    {
        afterEmission(0);
        if (signal.pending_offset() != 0)
            fail("offset left behind");
        if (signal.pending_size() != signal.slot_count())
            fail("not compacted");
        for (const auto& slot : signal.pending_slots())
            if (!slot.connected || slot.running)
                fail("stale flags on slot " + std::to_string(slot.id));
        for (std::size_t key = 0; key < connections.size(); ++key)
            if (connections[key].connected() != signal.connected(key))
                fail("connection " + std::to_string(key) + " disagrees with its signal");
    }

    // At rest the array itself lists the connected slots in connection order.
    std::vector<int> connectedKeys() const
    {
        std::vector<int> keys;
        for (const auto& slot : signal.pending_slots())
            keys.push_back(static_cast<int>(slot.id));
        return keys;
    }

    void fail(const std::string& what)
    {
        if (problem.empty())
            problem = what;
    }

    Signal<void(int)> signal;
    std::vector<Signal<void(int)>::connection> connections;
    std::string problem;
};

// Drives one random sequence. Every decision comes from one generator in
// program order, so two targets that behave alike see the same sequence.
template <class Target> class Scenario final : public SlotHandler
{
public:
    void run(std::uint32_t seed)
    {
        m_random.seed(seed);
        const int steps = 1 + pick(30);
        for (int i = 0; i < steps; ++i) {
            const int choice = pick(20);
            if (choice < 7)
                connect();
            else if (choice < 10)
                m_target.disconnect(pick(maxSlots), pick(2) == 0);
            else if (choice < 11)
                m_target.disconnectAll();
            else
                emitOutermost();
            note("count", m_target.count());
            for (int key : m_target.connectedKeys())
                note("connected", key);
        }
    }

    void onSlot(int key, int depth) override
    {
        m_running.push_back(key);
        note("call", key, depth);
        const std::vector<Step> program = m_programs[key];
        for (const Step& step : program) {
            const Action action = step.action;
            if (action == Action::DisconnectViaConnection || action == Action::DisconnectById) {
                m_target.disconnect(step.key, action == Action::DisconnectViaConnection);
            } else if (action == Action::DisconnectAll) {
                m_target.disconnectAll();
            } else if (action == Action::Connect) {
                connect();
            } else if (action == Action::Throw) {
                m_running.pop_back();
                throw SlotError{key};
            } else if (depth + 1 < maxDepth && m_nestedBudget > 0) { // an emission, within bounds
                --m_nestedBudget;
                try {
                    m_target.emit(depth + 1, *this);
                } catch (const SlotError& error) {
                    if (action == Action::Emit)
                        throw;
                    note("caught", error.key, depth);
                    m_running.resize(static_cast<std::size_t>(depth) + 1);
                }
                m_target.afterEmission(depth + 1);
            }
        }
    }

    void slotReturned(int key) override
    {
        if (m_running.empty() || m_running.back() != key)
            note("returned", key, m_running.empty() ? -1 : m_running.back());
        if (!m_running.empty())
            m_running.pop_back();
    }

    // One line per event, "call(key,depth)", "thrown(key,0)" and the like.
    std::vector<std::string> log;
    std::string problem() const { return m_target.problem; }

private:
    int pick(int n) { return static_cast<int>(m_random() % static_cast<std::uint32_t>(n)); }
    void note(const char* kind, int a, int b = 0)
    {
        log.push_back(kind + ("(" + std::to_string(a) + "," + std::to_string(b) + ")"));
    }

    void connect()
    {
        if (static_cast<int>(m_programs.size()) >= maxSlots)
            return;
        // Most slots only record their call; the rest carry one or two steps.
        std::vector<Step> program;
        // Of 16 draws, 4 disconnect through the connection, 2 by identifier, 1
        // all, 3 connect, 2 emit, 2 emit and catch, 2 throw.
        static const int ends[] = {4, 6, 7, 10, 12, 14, 16};
        for (int i = pick(3) == 0 ? 1 + pick(2) : 0; i > 0; --i)
            program.push_back({Action(std::upper_bound(ends, ends + 7, pick(16)) - ends), pick(maxSlots)});
        m_programs.push_back(program);
        m_target.connect(static_cast<int>(m_programs.size()) - 1, *this);
    }

    void emitOutermost()
    {
        m_nestedBudget = nestedEmissionsPerStep;
        try {
            m_target.emit(0, *this);
        } catch (const SlotError& error) {
            note("thrown", error.key);
            m_running.clear();
        }
        m_target.settled();
    }

    std::mt19937 m_random;
    Target m_target;
    std::vector<std::vector<Step>> m_programs;
    int m_nestedBudget = 0;
    std::vector<int> m_running; // keys of the slots on the stack
};

TEST(SignalModel, RandomSequencesCallTheSameSlotsAsTheReferenceModel)
{
    std::size_t calls = 0, thrown = 0, caught = 0;
    for (std::uint32_t seed = 1; seed <= 10000; ++seed) {
        Scenario<ModelTarget> model;
        model.run(seed);
        Scenario<SignalTarget> signal;
        signal.run(seed);
        ASSERT_TRUE(signal.problem().empty()) << "seed " << seed << ": " << signal.problem();
        const auto differ =
            std::mismatch(model.log.begin(), model.log.end(), signal.log.begin(), signal.log.end());
        ASSERT_TRUE(differ.first == model.log.end() && differ.second == signal.log.end())
            << "seed " << seed << " at event " << differ.first - model.log.begin() << ": model "
            << (differ.first == model.log.end() ? "<end>" : *differ.first) << ", signal "
            << (differ.second == signal.log.end() ? "<end>" : *differ.second);
        for (const std::string& e : model.log) {
            calls += e.rfind("call(", 0) == 0 ? 1 : 0;
            thrown += e.rfind("thrown(", 0) == 0 ? 1 : 0;
            caught += e.rfind("caught(", 0) == 0 ? 1 : 0;
        }
    }
    // The sequences must actually exercise the signal.
    EXPECT_GT(calls, 100000u);
    EXPECT_GT(thrown, 1000u);
    EXPECT_GT(caught, 100u);
    RecordProperty("calls", static_cast<int>(calls));
}
} // namespace

#pragma pop_macro("emit")
