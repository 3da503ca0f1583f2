// Time to a game that meets the wish, for every level and three patterns. Run it with
// --benchmark_repetitions=100 --benchmark_report_aggregates_only for median and 95th percentile.
#include "generator/generator.h"
#include "generator/random_source.h"
#include "grid/grid.h"
#include "program/defaults.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace kelvarine {
namespace {

double Percentile95(const std::vector<double> &values)
{
    std::vector<double> sorted = values;
    std::ranges::sort(sorted);
    return sorted[(sorted.size() - 1) * 95 / 100];
}

void MakeGame(benchmark::State &state, std::int32_t pattern, std::size_t level)
{
    SetDefaults();
    RevealPattern = pattern;
    DifficultySelection = BitTable[level];
    static std::uint32_t seed = 0;
    for (auto _ : state) {
        ++seed;
        init_genrand(seed);
        GenerateGame();
    }
    state.counters["screened"] = GamesScreened;
    state.counters["screened/s"] = benchmark::Counter(GamesScreened, benchmark::Counter::kIsRate);
}

void RegisterAll()
{
    constexpr std::array names{"", "easy", "medium", "hard", "very hard", "extreme"};
    for (const std::int32_t pattern : {0, 1, 5}) {
        for (std::size_t level = 1; level <= 5; ++level) {
            const std::string name = "pattern " + std::to_string(pattern) + ", " + names[level];
            benchmark::RegisterBenchmark(
                name.c_str(), [=](benchmark::State &state) { MakeGame(state, pattern, level); })
                ->Iterations(1)
                ->Unit(benchmark::kMillisecond)
                ->ComputeStatistics("p95", Percentile95);
        }
    }
}

} // namespace
} // namespace kelvarine

int main(int argc, char **argv)
{
    kelvarine::RegisterAll();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
