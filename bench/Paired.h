#pragma once

#include <benchmark/benchmark.h>

#include <time.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

// Side-by-side measurement for a machine shared with other work: the sides of
// a comparison run in alternating rounds, so that both meet the same load,
// and each round's CPU time is taken for each side. Reported as counters of
// the benchmark, per item:
//   "<side>.cpu"    the best round's CPU time (ns),
//   "<side>.wall"   the best round's elapsed time (ns),
//   "<side>.ratio"  the median over the rounds of this side's CPU time over
//                   the reference side's in the same round (not for the
//                   reference itself).
// bench/table.py turns these into one row per side.
namespace Paired
{

enum class Clock {
    Thread, // the calling thread only
    Process // every thread of the process
};

struct Side
{
    std::string name;
    std::function<void()> run;          // timed
    std::function<void()> prepare = {}; // untimed, before run
    std::function<void()> finish = {};  // untimed, after run
};

inline double CpuNow(Clock clock)
{
    timespec now{};
    clock_gettime(clock == Clock::Thread ? CLOCK_THREAD_CPUTIME_ID : CLOCK_PROCESS_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e9 + double(now.tv_nsec);
}

inline double Median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.empty() ? 0.0 : values[values.size() / 2];
}

// Runs `rounds` rounds of every side, the first side of a round taking turns.
// `reference` names the side the ratios are taken against. The environment
// variable COMMONUI_BENCH_ROUNDS, when set, replaces the number of rounds
// (for runs under callgrind).
inline void Compare(benchmark::State& state, Clock clock, int rounds, double itemsPerRound,
                    const std::vector<Side>& sides, const std::string& reference)
{
    if (const char* forced = std::getenv("COMMONUI_BENCH_ROUNDS"))
        rounds = std::max(1, std::atoi(forced));
    const std::size_t n = sides.size();
    std::vector<std::vector<double>> cpu(n), wall(n);
    for (auto _ : state) {
        for (int round = 0; round < rounds; ++round) {
            for (std::size_t k = 0; k < n; ++k) {
                const std::size_t index = (std::size_t(round) + k) % n;
                const Side& side = sides[index];
                if (side.prepare)
                    side.prepare();
                const auto wallStart = std::chrono::steady_clock::now();
                const double cpuStart = CpuNow(clock);
                side.run();
                const double cpuTime = CpuNow(clock) - cpuStart;
                const double wallTime =
                    std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - wallStart)
                        .count();
                if (side.finish)
                    side.finish();
                cpu[index].push_back(cpuTime);
                wall[index].push_back(wallTime);
            }
        }
    }
    std::size_t ref = n;
    for (std::size_t i = 0; i < n; ++i) {
        if (sides[i].name == reference)
            ref = i;
    }
    for (std::size_t i = 0; i < n; ++i) {
        const std::string& name = sides[i].name;
        state.counters[name + ".cpu"] = *std::min_element(cpu[i].begin(), cpu[i].end()) / itemsPerRound;
        state.counters[name + ".wall"] = *std::min_element(wall[i].begin(), wall[i].end()) / itemsPerRound;
        if (i == ref || ref == n)
            continue;
        std::vector<double> ratios;
        for (std::size_t r = 0; r < cpu[i].size(); ++r)
            ratios.push_back(cpu[i][r] / cpu[ref][r]);
        state.counters[name + ".ratio"] = Median(ratios);
    }
}

} // namespace Paired
