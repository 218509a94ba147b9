#include "UI/slimsig/detail/signal_base"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#pragma push_macro("emit")
#undef emit

// Random sequences of connect, disconnect (through the connection or by
// identifier, from outside and from inside slots), disconnect-all, emission,
// nested emission and throwing slots, run against the signal and against a
// plain reference model; the two must call the same slots in the same order,
// and the signal's bookkeeping must hold its invariants after every emission.

namespace {

using Signal = slimsig::signal_base<slimsig::signal_traits<void(int)>,
                                    std::allocator<std::function<void(int)>>, void(int)>;

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

struct Step {
    Action action;
    int key; // the slot a disconnection aims at
};

struct SlotError {
    int key;
};

struct Event {
    enum Kind { Call, Thrown, Caught, Connected, Count, Returned } kind;
    int a;
    int b;
    bool operator==(const Event& other) const { return kind == other.kind && a == other.a && b == other.b; }
};

std::string describe(const Event& e)
{
    static const char* const names[] = {"call", "thrown", "caught", "connected", "count", "returned"};
    return std::string(names[e.kind]) + "(" + std::to_string(e.a) + "," + std::to_string(e.b) + ")";
}

class SlotHandler
{
public:
    virtual void onSlot(int key, int depth) = 0;
    virtual void slotReturned(int key) = 0;

protected:
    ~SlotHandler() = default;
};

// Who is connected is a flag per slot; an emission calls, in order, the slots
// connected when it starts that are still connected at their turn.
class ModelTarget
{
public:
    explicit ModelTarget(SlotHandler& handler)
        : m_handler(handler)
    {
    }

    void connect(int key)
    {
        ASSERT_EQ(key, static_cast<int>(m_connected.size()));
        m_connected.push_back(true);
    }
    void disconnect(int key, bool /*viaConnection*/)
    {
        if (key < static_cast<int>(m_connected.size()))
            m_connected[key] = false;
    }
    void disconnectAll() { m_connected.assign(m_connected.size(), false); }
    void emit(int depth)
    {
        const std::vector<int> snapshot = connectedKeys();
        for (int key : snapshot) {
            if (m_connected[key]) {
                m_handler.onSlot(key, depth);
                m_handler.slotReturned(key);
            }
        }
    }
    void afterEmission(int /*depthOnStack*/) {}
    void settled() {}
    int count() const { return static_cast<int>(connectedKeys().size()); }
    std::vector<int> connectedKeys() const
    {
        std::vector<int> keys;
        for (int key = 0; key < static_cast<int>(m_connected.size()); ++key) {
            if (m_connected[key])
                keys.push_back(key);
        }
        return keys;
    }
    std::string problem() const { return {}; }

private:
    SlotHandler& m_handler;
    std::vector<bool> m_connected;
};

class SignalTarget
{
public:
    explicit SignalTarget(SlotHandler& handler)
        : m_handler(&handler)
    {
    }

    void connect(int key)
    {
        // A small callable, stored inside the std::function, that reads its
        // captures again after the slot's work, which may have moved the array.
        SlotHandler* handler = m_handler;
        m_connections.push_back(m_signal.connect([handler, key](int depth) {
            handler->onSlot(key, depth);
            handler->slotReturned(key);
        }));
        if (m_connections.back().id() != static_cast<std::uint64_t>(key))
            fail("identifier " + std::to_string(m_connections.back().id()) + " for slot " +
                 std::to_string(key));
    }
    void disconnect(int key, bool viaConnection)
    {
        if (!viaConnection)
            m_signal.disconnect(static_cast<std::uint64_t>(key));
        else if (key < static_cast<int>(m_connections.size()))
            m_connections[key].disconnect();
    }
    void disconnectAll() { m_signal.disconnect_all(); }
    void emit(int depth) { m_signal.emit(depth); }
    int count() const { return static_cast<int>(m_signal.slot_count()); }

    // Holds after any emission, also one nested inside a slot.
    void afterEmission(int depthOnStack)
    {
        if (m_signal.emission_depth() != static_cast<std::uint32_t>(depthOnStack))
            fail("depth " + std::to_string(m_signal.emission_depth()));
        const auto& pending = m_signal.pending_slots();
        if (m_signal.pending_offset() > pending.size())
            fail("offset beyond the array");
        std::size_t connected = 0;
        for (std::size_t i = 0; i < pending.size(); ++i) {
            connected += pending[i].connected ? 1 : 0;
            if (i < m_signal.pending_offset() && pending[i].connected)
                fail("connected slot inside the offset");
            if (i > 0 && pending[i - 1].id >= pending[i].id)
                fail("identifiers out of order");
        }
        if (connected != m_signal.slot_count())
            fail("slot count " + std::to_string(m_signal.slot_count()) + " for " + std::to_string(connected) +
                 " connected");
    }

    // Holds between emissions: compacted, nothing running, nothing skipped.
    void settled()
    {
        afterEmission(0);
        if (m_signal.pending_offset() != 0)
            fail("offset left behind");
        if (m_signal.pending_size() != m_signal.slot_count())
            fail("not compacted");
        for (const auto& slot : m_signal.pending_slots()) {
            if (!slot.connected || slot.running)
                fail("stale flags on slot " + std::to_string(slot.id));
        }
        for (std::size_t key = 0; key < m_connections.size(); ++key) {
            if (m_connections[key].connected() != m_signal.connected(key))
                fail("connection " + std::to_string(key) + " disagrees with its signal");
        }
    }

    // At rest the array itself lists the connected slots in connection order.
    std::vector<int> connectedKeys() const
    {
        std::vector<int> keys;
        for (const auto& slot : m_signal.pending_slots())
            keys.push_back(static_cast<int>(slot.id));
        return keys;
    }

    const std::string& problem() const { return m_problem; }

private:
    void fail(const std::string& what)
    {
        if (m_problem.empty())
            m_problem = what;
    }

    SlotHandler* m_handler;
    Signal m_signal;
    std::vector<Signal::connection> m_connections;
    std::string m_problem;
};

// Drives one random sequence. Every decision comes from one generator in
// program order, so two targets that behave alike see the same sequence.
template <class Target>
class Scenario final : public SlotHandler
{
public:
    explicit Scenario(std::uint32_t seed)
        : m_random(seed)
        , m_target(*this)
    {
    }

    void run()
    {
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
            m_log.push_back({Event::Count, m_target.count(), 0});
            for (int key : m_target.connectedKeys())
                m_log.push_back({Event::Connected, key, 0});
        }
    }

    void onSlot(int key, int depth) override
    {
        m_running.push_back(key);
        m_log.push_back({Event::Call, key, depth});
        const std::vector<Step> program = m_programs[key];
        for (const Step& step : program) {
            switch (step.action) {
            case Action::DisconnectViaConnection:
            case Action::DisconnectById:
                m_target.disconnect(step.key, step.action == Action::DisconnectViaConnection);
                break;
            case Action::DisconnectAll:
                m_target.disconnectAll();
                break;
            case Action::Connect:
                connect();
                break;
            case Action::Emit:
            case Action::EmitCatching:
                if (depth + 1 >= maxDepth || m_nestedBudget == 0)
                    break;
                --m_nestedBudget;
                if (step.action == Action::Emit) {
                    m_target.emit(depth + 1);
                } else {
                    try {
                        m_target.emit(depth + 1);
                    } catch (const SlotError& error) {
                        m_log.push_back({Event::Caught, error.key, depth});
                        m_running.resize(static_cast<std::size_t>(depth) + 1);
                    }
                }
                m_target.afterEmission(depth + 1);
                break;
            case Action::Throw:
                m_running.pop_back();
                throw SlotError{key};
            }
        }
    }

    void slotReturned(int key) override
    {
        if (m_running.empty() || m_running.back() != key)
            m_log.push_back({Event::Returned, key, m_running.empty() ? -1 : m_running.back()});
        if (!m_running.empty())
            m_running.pop_back();
    }

    const std::vector<Event>& log() const { return m_log; }
    std::string problem() const { return m_target.problem(); }

private:
    int pick(int n) { return static_cast<int>(m_random() % static_cast<std::uint32_t>(n)); }

    void connect()
    {
        if (static_cast<int>(m_programs.size()) >= maxSlots)
            return;
        // Most slots only record their call; the rest carry one or two steps.
        std::vector<Step> program;
        const int length = pick(3) == 0 ? 1 + pick(2) : 0;
        for (int i = 0; i < length; ++i) {
            const int choice = pick(16);
            Action action = Action::DisconnectViaConnection;
            if (choice < 4)
                action = Action::DisconnectViaConnection;
            else if (choice < 6)
                action = Action::DisconnectById;
            else if (choice < 7)
                action = Action::DisconnectAll;
            else if (choice < 10)
                action = Action::Connect;
            else if (choice < 12)
                action = Action::Emit;
            else if (choice < 14)
                action = Action::EmitCatching;
            else
                action = Action::Throw;
            program.push_back({action, pick(maxSlots)});
        }
        const int key = static_cast<int>(m_programs.size());
        m_programs.push_back(program);
        m_target.connect(key);
    }

    void emitOutermost()
    {
        m_nestedBudget = nestedEmissionsPerStep;
        try {
            m_target.emit(0);
        } catch (const SlotError& error) {
            m_log.push_back({Event::Thrown, error.key, 0});
            m_running.clear();
        }
        m_target.settled();
    }

    std::mt19937 m_random;
    Target m_target;
    std::vector<std::vector<Step>> m_programs;
    std::vector<Event> m_log;
    int m_nestedBudget = 0;
    std::vector<int> m_running; // keys of the slots on the stack
};

std::string firstDifference(const std::vector<Event>& expected, const std::vector<Event>& actual)
{
    std::size_t i = 0;
    while (i < expected.size() && i < actual.size() && expected[i] == actual[i])
        ++i;
    std::ostringstream out;
    out << "at event " << i << ": model "
        << (i < expected.size() ? describe(expected[i]) : std::string("<end>")) << ", signal "
        << (i < actual.size() ? describe(actual[i]) : std::string("<end>"));
    return out.str();
}

TEST(SignalModel, RandomSequencesCallTheSameSlotsAsTheReferenceModel)
{
    constexpr std::uint32_t sequences = 10000;
    std::size_t calls = 0;
    std::size_t thrown = 0;
    std::size_t caught = 0;
    for (std::uint32_t seed = 1; seed <= sequences; ++seed) {
        Scenario<ModelTarget> model(seed);
        model.run();
        Scenario<SignalTarget> signal(seed);
        signal.run();
        ASSERT_TRUE(signal.problem().empty()) << "seed " << seed << ": " << signal.problem();
        ASSERT_TRUE(model.log() == signal.log())
            << "seed " << seed << " " << firstDifference(model.log(), signal.log());
        for (const Event& e : model.log()) {
            calls += e.kind == Event::Call ? 1 : 0;
            thrown += e.kind == Event::Thrown ? 1 : 0;
            caught += e.kind == Event::Caught ? 1 : 0;
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
