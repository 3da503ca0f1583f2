// Benchmarks that go through a sample of positions and tell of one position the median, the mean,
// the 99th percentile and the worst, in microseconds.
#pragma once

#include "grid/grid.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <numeric>
#include <string>
#include <utility>
#include <vector>

namespace kelvarine {

using Sample = std::vector<GridTable>;

// What is told of the times of the positions, a time a position.
inline void TellTimes(benchmark::State &state, std::vector<double> times)
{
    std::ranges::sort(times);
    state.counters["median_us"] = times[times.size() / 2];
    state.counters["mean_us"] =
        std::accumulate(times.begin(), times.end(), 0.0) / static_cast<double>(times.size());
    state.counters["99%_us"] = times[(times.size() - 1) * 99 / 100];
    state.counters["worst_us"] = times.back();
    state.counters["positions"] = static_cast<double>(times.size());
}

// Of several rounds through the sample the best time of each position counts.
inline void Measure(benchmark::State &state, const Sample &sample,
                    const std::function<void()> &work)
{
    using Clock = std::chrono::steady_clock;
    std::vector<double> times(sample.size(), 1e9);
    for (auto _ : state) {
        for (std::size_t k = 0; k < sample.size(); ++k) {
            Grid = sample[k];
            const auto start = Clock::now();
            work();
            const std::chrono::duration<double, std::micro> time = Clock::now() - start;
            times[k] = std::min(times[k], time.count());
        }
    }
    TellTimes(state, std::move(times));
}

// Registers a benchmark that puts each position on Grid and does the work there.
inline void Register(const std::string &name, const Sample &sample,
                     const std::function<void()> &work)
{
    benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State &state) {
        Measure(state, sample, work);
    })->Unit(benchmark::kMillisecond);
}

} // namespace kelvarine
