// How long the driver takes, mode by mode, over the games of tests/data/puzzles.txt, and how long
// the test for a solved grid takes. One iteration is one game; the games come in turn, so a mean is
// one over all of them.

#include "game/solutions.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "logic/driver.h"
#include "logic/technique_masks.h"
#include "support/outside_double.h"
#include "support/positions.h"

#include <benchmark/benchmark.h>

#include <fstream>
#include <string>
#include <vector>

namespace kelvarine::testing {
namespace {

// The games with all pencilmarks.
const std::vector<GridTable> &Games()
{
    static const std::vector<GridTable> games = [] {
        std::vector<GridTable> list;
        std::ifstream file(TEST_DATA "/puzzles.txt");
        for (std::string line; std::getline(file, line);) {
            SetGame(line);
            list.push_back(Grid);
        }
        return list;
    }();
    return games;
}

void RunDriver(benchmark::State &state, std::int32_t mode, std::uint32_t mask)
{
    const std::vector<GridTable> &games = Games();
    if (games.empty()) {
        state.SkipWithError("no games");
        return;
    }
    Restart();
    std::size_t next = 0;
    for ([[maybe_unused]] auto _ : state) {
        Grid = games[next];
        next = (next + 1) % games.size();
        SolveMask = mask;
        SolutionList.clear();
        // A game that is pushed again and again must not fill the history.
        HistoryCount = 0;
        HistoryPosition = 0;
        benchmark::DoNotOptimize(ApplyLogic(mode));
    }
    state.counters["passes"] = benchmark::Counter(Seen.Yields, benchmark::Counter::kAvgIterations);
}

void TestSolved(benchmark::State &state, bool solved)
{
    Restart();
    if (Games().empty()) {
        state.SkipWithError("no games");
        return;
    }
    Grid = Games()[0];
    if (solved) {
        SolveMask = CountingMask;
        ApplyLogic(SolveForRating);
    }
    if ((IsGridSolved() != False) != solved) {
        state.SkipWithError("not the grid that was wanted");
        return;
    }
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(IsGridSolved());
        benchmark::ClobberMemory();
    }
}

BENCHMARK_CAPTURE(RunDriver, SolveForPlayer, SolveForPlayer, CountingMask)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(RunDriver, SolveForRating, SolveForRating, RatingMask)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(RunDriver, CountSolutions, CountSolutions, CountingMask)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(RunDriver, ListSolutions, ListSolutions25, ListingMask)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(TestSolved, SolvedGrid, true)->Unit(benchmark::kNanosecond);
BENCHMARK_CAPTURE(TestSolved, OpenGrid, false)->Unit(benchmark::kNanosecond);

} // namespace
} // namespace kelvarine::testing

BENCHMARK_MAIN();
