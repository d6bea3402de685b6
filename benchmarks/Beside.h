#ifndef QRL_BENCHMARKS_BESIDE_H
#define QRL_BENCHMARKS_BESIDE_H

#include <benchmark/benchmark.h>

#include <chrono>

/// Times `ours` and, in the same loop, `floor`: the least that the same work can cost. The counter "ours_ns" is our
/// time for one go, "ratio" that over the floor's, which holds on a noisy machine too; the time of the benchmark itself
/// is that of both. Work that takes nanoseconds is repeated between two looks at the clock.
template <class TOurs, class TFloor>
void RunBeside(benchmark::State& state, const TOurs& ours, const TFloor& floor, int oursRepeated = 1) {
    using Clock = std::chrono::steady_clock;
    using Nanoseconds = std::chrono::duration<double, std::nano>;
    double oursTime = 0;
    double floorTime = 0;
    for (auto _ : state) {
        const Clock::time_point start = Clock::now();
        for (int i = 0; i < oursRepeated; ++i)
            ours();
        const Clock::time_point middle = Clock::now();
        floor();
        floorTime += Nanoseconds(Clock::now() - middle).count();
        oursTime += Nanoseconds(middle - start).count() / oursRepeated;
    }
    state.counters["ours_ns"] = oursTime / static_cast<double>(state.iterations());
    state.counters["ratio"] = oursTime / floorTime;
}

#endif
