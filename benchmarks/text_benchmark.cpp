// How long the two ways of reading cells out of a text take, by the length of the text. It must
// grow no faster than the text does.
#include "files/text_format.h"
#include "program/defaults.h"

#include <benchmark/benchmark.h>

#include <string>

namespace kelvarine {
namespace {

void ReadText(benchmark::State &state, const std::string &begin)
{
    SetDefaults();
    const std::string text = begin + std::string(static_cast<std::size_t>(state.range(0)), 'x');
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(ReadPosition(text));
    }
    state.SetBytesProcessed(state.iterations() * state.range(0));
    state.SetComplexityN(state.range(0));
}

void Lengths(benchmark::internal::Benchmark *benchmark)
{
    benchmark->RangeMultiplier(10)->Range(10'000, 10'000'000)->Complexity(benchmark::oN);
    benchmark->Unit(benchmark::kMicrosecond);
}

BENCHMARK_CAPTURE(ReadText, ByCharacters, "5")->Apply(Lengths);
BENCHMARK_CAPTURE(ReadText, ByDigitRuns, "5 ")->Apply(Lengths);

} // namespace
} // namespace kelvarine

BENCHMARK_MAIN();
