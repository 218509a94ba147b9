// Emission, connection and disconnection costs of the signal machinery,
// measured against the floor (a plain loop over std::vector<std::function>),
// Boost.Signals2 and Qt's own signals with lambda slots.
//
// Every emission goes through a function that is never inlined, for the floor
// and the others alike, so that each pays one call as a real emitter does.
// The emission cases report the allocations they make per emission
// ("allocs"), counted on the emitting thread by the test support's
// replacement of operator new.
#include "BenchSender.h"
#include "support/CountingAllocator.h"

#include "UI/CKyUIObject.h"
#include "UI/CKyUISignal.h"
#include "UI/slimsig/detail/signal_base"

#include <benchmark/benchmark.h>
#include <boost/signals2/signal.hpp>

#include <QtCore/QString>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <memory>
#include <thread>
#include <vector>

#pragma push_macro("emit")
#undef emit

namespace
{

template <class Sig>
using SignalBase = slimsig::signal_base<slimsig::signal_traits<Sig>, std::allocator<std::function<Sig>>, Sig>;
using IntSignal = SignalBase<void(int)>;
using TextSignal = SignalBase<void(QString)>;
using IntList = std::vector<std::function<void(int)>>;
using TextList = std::vector<std::function<void(QString)>>;
using Clock = std::chrono::steady_clock;

// The same small slots for everyone: they live inside their std::function.
auto intSlot(long& sink)
{
    return [&sink](int value) { sink += value; };
}

auto textSlot(long& sink)
{
    return [&sink](QString text) { sink += text.size(); };
}

QString text48()
{
    return QString(48, QLatin1Char('x'));
}

// The emitters.
[[gnu::noinline]] void floorEmit(const IntList& slots, int value)
{
    for (const auto& slot : slots)
        slot(value);
}

// The floor for a by-value argument: copies to all slots but the last, which
// gets the argument itself.
[[gnu::noinline]] void floorEmit(const TextList& slots, QString text)
{
    const std::size_t n = slots.size();
    if (n == 0)
        return;
    for (std::size_t i = 0; i + 1 < n; ++i)
        slots[i](text);
    slots[n - 1](std::move(text));
}

template <class Signal, class Arg> [[gnu::noinline]] void baseEmit(Signal& signal, const Arg& arg)
{
    signal.emit(arg);
}

template <class Signal, class Arg> [[gnu::noinline]] void uiEmit(Signal& signal, const Arg& arg)
{
    signal.Emit(arg);
}

template <class Signal, class Arg> [[gnu::noinline]] void boostEmit(Signal& signal, const Arg& arg)
{
    signal(arg);
}

[[gnu::noinline]] void qtEmit(BenchSender& sender, int value)
{
    Q_EMIT sender.intSent(value);
}

[[gnu::noinline]] void qtEmit(BenchSender& sender, const QString& text)
{
    Q_EMIT sender.textSent(text);
}

template <class Emit> void runEmission(benchmark::State& state, long& sink, Emit emitOnce)
{
    const AllocationCounter counter;
    for (auto _ : state)
        emitOnce();
    const long allocations = counter.count();
    benchmark::DoNotOptimize(sink);
    state.counters["allocs"] =
        benchmark::Counter(static_cast<double>(allocations), benchmark::Counter::kAvgIterations);
}

// Emission with an int argument.

void IntFloor(benchmark::State& state)
{
    long sink = 0;
    IntList slots;
    for (int i = 0; i < state.range(0); ++i)
        slots.push_back(intSlot(sink));
    runEmission(state, sink, [&] { floorEmit(slots, 1); });
}

void IntSignalBase(benchmark::State& state)
{
    long sink = 0;
    IntSignal signal;
    for (int i = 0; i < state.range(0); ++i)
        signal.connect(intSlot(sink));
    runEmission(state, sink, [&] { baseEmit(signal, 1); });
}

void IntCKyUISignal(benchmark::State& state)
{
    long sink = 0;
    CKyUIObject owner;
    CKyUISignal<void(int)> signal(&owner);
    for (int i = 0; i < state.range(0); ++i)
        signal.connect(intSlot(sink));
    runEmission(state, sink, [&] { uiEmit(signal, 1); });
}

void IntBoost(benchmark::State& state)
{
    long sink = 0;
    boost::signals2::signal<void(int)> signal;
    for (int i = 0; i < state.range(0); ++i)
        signal.connect(intSlot(sink));
    runEmission(state, sink, [&] { boostEmit(signal, 1); });
}

void IntQt(benchmark::State& state)
{
    long sink = 0;
    BenchSender sender;
    for (int i = 0; i < state.range(0); ++i)
        QObject::connect(&sender, &BenchSender::intSent, intSlot(sink));
    runEmission(state, sink, [&] { qtEmit(sender, 1); });
}

// Emission with a by-value QString of 48 characters.

void TextFloor(benchmark::State& state)
{
    long sink = 0;
    const QString text = text48();
    TextList slots;
    for (int i = 0; i < state.range(0); ++i)
        slots.push_back(textSlot(sink));
    runEmission(state, sink, [&] { floorEmit(slots, text); });
}

void TextSignalBase(benchmark::State& state)
{
    long sink = 0;
    const QString text = text48();
    TextSignal signal;
    for (int i = 0; i < state.range(0); ++i)
        signal.connect(textSlot(sink));
    runEmission(state, sink, [&] { baseEmit(signal, text); });
}

void TextCKyUISignal(benchmark::State& state)
{
    long sink = 0;
    const QString text = text48();
    CKyUIObject owner;
    CKyUISignal<void(QString)> signal(&owner);
    for (int i = 0; i < state.range(0); ++i)
        signal.connect(textSlot(sink));
    runEmission(state, sink, [&] { uiEmit(signal, text); });
}

void TextBoost(benchmark::State& state)
{
    long sink = 0;
    const QString text = text48();
    boost::signals2::signal<void(QString)> signal;
    for (int i = 0; i < state.range(0); ++i)
        signal.connect(textSlot(sink));
    runEmission(state, sink, [&] { boostEmit(signal, text); });
}

void TextQt(benchmark::State& state)
{
    long sink = 0;
    const QString text = text48();
    BenchSender sender;
    for (int i = 0; i < state.range(0); ++i)
        QObject::connect(&sender, &BenchSender::textSent, textSlot(sink));
    runEmission(state, sink, [&] { qtEmit(sender, text); });
}

// Emission that calls nothing: the owner's signals blocked (8 slots), or no
// slot at all.

void BlockedCKyUISignal(benchmark::State& state)
{
    long sink = 0;
    CKyUIObject owner;
    CKyUISignal<void(int)> signal(&owner);
    for (int i = 0; i < 8; ++i)
        signal.connect(intSlot(sink));
    owner.blockSignals(true);
    runEmission(state, sink, [&] { uiEmit(signal, 1); });
}

void BlockedQt(benchmark::State& state)
{
    long sink = 0;
    BenchSender sender;
    for (int i = 0; i < 8; ++i)
        QObject::connect(&sender, &BenchSender::intSent, intSlot(sink));
    sender.blockSignals(true);
    runEmission(state, sink, [&] { qtEmit(sender, 1); });
}

void EmptyFloor(benchmark::State& state)
{
    long sink = 0;
    IntList slots;
    runEmission(state, sink, [&] { floorEmit(slots, 1); });
}

void EmptySignalBase(benchmark::State& state)
{
    long sink = 0;
    IntSignal signal;
    runEmission(state, sink, [&] { baseEmit(signal, 1); });
}

void EmptyCKyUISignal(benchmark::State& state)
{
    long sink = 0;
    CKyUIObject owner;
    CKyUISignal<void(int)> signal(&owner);
    runEmission(state, sink, [&] { uiEmit(signal, 1); });
}

void EmptyBoost(benchmark::State& state)
{
    long sink = 0;
    boost::signals2::signal<void(int)> signal;
    runEmission(state, sink, [&] { boostEmit(signal, 1); });
}

void EmptyQt(benchmark::State& state)
{
    long sink = 0;
    BenchSender sender;
    runEmission(state, sink, [&] { qtEmit(sender, 1); });
}

// Connection: the time of n connects to a fresh signal, per connect; the
// teardown is left out.

template <class Make, class Connect> void runConnects(benchmark::State& state, Make make, Connect connect)
{
    const long n = state.range(0);
    for (auto _ : state) {
        auto target = make();
        const auto start = Clock::now();
        for (long i = 0; i < n; ++i)
            connect(*target);
        const auto stop = Clock::now();
        benchmark::DoNotOptimize(target.get());
        state.SetIterationTime(std::chrono::duration<double>(stop - start).count());
    }
    state.SetItemsProcessed(state.iterations() * n);
    state.counters["per_connect"] =
        benchmark::Counter(static_cast<double>(state.iterations() * n),
                           benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void ConnectFloor(benchmark::State& state)
{
    long sink = 0;
    runConnects(
        state, [] { return std::make_unique<IntList>(); },
        [&](IntList& slots) { slots.push_back(intSlot(sink)); });
}

void ConnectSignalBase(benchmark::State& state)
{
    long sink = 0;
    runConnects(
        state, [] { return std::make_unique<IntSignal>(); },
        [&](IntSignal& signal) { signal.connect(intSlot(sink)); });
}

void ConnectBoost(benchmark::State& state)
{
    long sink = 0;
    runConnects(
        state, [] { return std::make_unique<boost::signals2::signal<void(int)>>(); },
        [&](boost::signals2::signal<void(int)>& signal) { signal.connect(intSlot(sink)); });
}

void ConnectQt(benchmark::State& state)
{
    long sink = 0;
    runConnects(
        state, [] { return std::make_unique<BenchSender>(); },
        [&](BenchSender& sender) { QObject::connect(&sender, &BenchSender::intSent, intSlot(sink)); });
}

// Disconnection outside emission: every slot, in connection order (each one
// removed from the front of what is left), per disconnect.

void DisconnectFloor(benchmark::State& state)
{
    long sink = 0;
    const long n = state.range(0);
    for (auto _ : state) {
        IntList slots;
        for (long i = 0; i < n; ++i)
            slots.push_back(intSlot(sink));
        const auto start = Clock::now();
        for (long i = 0; i < n; ++i)
            slots.erase(slots.begin());
        const auto stop = Clock::now();
        state.SetIterationTime(std::chrono::duration<double>(stop - start).count());
    }
    state.SetItemsProcessed(state.iterations() * n);
}

void DisconnectSignalBase(benchmark::State& state)
{
    long sink = 0;
    const long n = state.range(0);
    for (auto _ : state) {
        IntSignal signal;
        std::vector<IntSignal::connection> connections;
        for (long i = 0; i < n; ++i)
            connections.push_back(signal.connect(intSlot(sink)));
        const auto start = Clock::now();
        for (const auto& connection : connections)
            connection.disconnect();
        const auto stop = Clock::now();
        state.SetIterationTime(std::chrono::duration<double>(stop - start).count());
    }
    state.SetItemsProcessed(state.iterations() * n);
}

// Disconnection of every other slot from inside an emission by its first
// slot, with the compaction at the end of the emission: one emission each.
// The floor calls the same slots, the first one marking every other entry,
// and then erases the marked entries in one stable pass.

void DisconnectHalfInsideFloor(benchmark::State& state)
{
    long sink = 0;
    const long n = state.range(0);
    for (auto _ : state) {
        struct Entry
        {
            std::function<void(int)> callback;
            bool connected;
        };
        std::vector<Entry> slots;
        slots.push_back({[&](int value) {
                             sink += value;
                             for (std::size_t i = 1; i < slots.size(); i += 2)
                                 slots[i].connected = false;
                         },
                         true});
        for (long i = 1; i < n; ++i)
            slots.push_back({intSlot(sink), true});
        const auto start = Clock::now();
        for (std::size_t i = 0; i < slots.size(); ++i) {
            if (slots[i].connected)
                slots[i].callback(1);
        }
        slots.erase(std::remove_if(slots.begin(), slots.end(), [](const Entry& e) { return !e.connected; }),
                    slots.end());
        const auto stop = Clock::now();
        benchmark::DoNotOptimize(slots.data());
        state.SetIterationTime(std::chrono::duration<double>(stop - start).count());
    }
    benchmark::DoNotOptimize(sink);
    state.SetItemsProcessed(state.iterations() * n);
}

void DisconnectHalfInsideSignalBase(benchmark::State& state)
{
    long sink = 0;
    const long n = state.range(0);
    for (auto _ : state) {
        IntSignal signal;
        signal.connect([&](int value) {
            sink += value;
            for (long id = 1; id < n; id += 2)
                signal.disconnect(static_cast<std::uint64_t>(id));
        });
        for (long i = 1; i < n; ++i)
            signal.connect(intSlot(sink));
        const auto start = Clock::now();
        baseEmit(signal, 1);
        const auto stop = Clock::now();
        state.SetIterationTime(std::chrono::duration<double>(stop - start).count());
    }
    benchmark::DoNotOptimize(sink);
    state.SetItemsProcessed(state.iterations() * n);
}

} // namespace

#pragma pop_macro("emit")

#define EMISSION(function, group) BENCHMARK(function)->Name(group)->Arg(1)->Arg(8)->Arg(64)

EMISSION(IntFloor, "Emit/int/floor");
EMISSION(IntSignalBase, "Emit/int/signal_base");
EMISSION(IntCKyUISignal, "Emit/int/CKyUISignal");
EMISSION(IntBoost, "Emit/int/boost");
EMISSION(IntQt, "Emit/int/qt");
EMISSION(TextFloor, "Emit/QString/floor");
EMISSION(TextSignalBase, "Emit/QString/signal_base");
EMISSION(TextCKyUISignal, "Emit/QString/CKyUISignal");
EMISSION(TextBoost, "Emit/QString/boost");
EMISSION(TextQt, "Emit/QString/qt");

BENCHMARK(BlockedCKyUISignal)->Name("Emit/blocked8/CKyUISignal");
BENCHMARK(BlockedQt)->Name("Emit/blocked8/qt");
BENCHMARK(EmptyFloor)->Name("Emit/noslots/floor");
BENCHMARK(EmptySignalBase)->Name("Emit/noslots/signal_base");
BENCHMARK(EmptyCKyUISignal)->Name("Emit/noslots/CKyUISignal");
BENCHMARK(EmptyBoost)->Name("Emit/noslots/boost");
BENCHMARK(EmptyQt)->Name("Emit/noslots/qt");

BENCHMARK(ConnectFloor)->Name("Connect/floor")->Arg(1000)->Arg(100000)->Arg(1000000)->UseManualTime();
BENCHMARK(ConnectSignalBase)
    ->Name("Connect/signal_base")
    ->Arg(1000)
    ->Arg(100000)
    ->Arg(1000000)
    ->UseManualTime();
BENCHMARK(ConnectBoost)->Name("Connect/boost")->Arg(1000)->Arg(100000)->UseManualTime();
BENCHMARK(ConnectQt)->Name("Connect/qt")->Arg(1000)->Arg(100000)->UseManualTime();

BENCHMARK(DisconnectFloor)->Name("Disconnect/floor")->Arg(64)->Arg(1000)->UseManualTime();
BENCHMARK(DisconnectSignalBase)->Name("Disconnect/signal_base")->Arg(64)->Arg(1000)->UseManualTime();
BENCHMARK(DisconnectHalfInsideFloor)->Name("DisconnectHalfInside/floor")->Arg(64)->Arg(1000)->UseManualTime();
BENCHMARK(DisconnectHalfInsideSignalBase)
    ->Name("DisconnectHalfInside/signal_base")
    ->Arg(64)
    ->Arg(1000)
    ->UseManualTime();

// --threaded runs the cases in a process that has started a thread, as the
// host application has: reference counts (the connections' weak references
// among them) are then atomic operations; in a process that never started a
// thread the standard library keeps them plain.
int main(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--threaded") == 0) {
            std::thread([] {}).join();
            std::copy(argv + i + 1, argv + argc + 1, argv + i);
            --argc;
            break;
        }
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
