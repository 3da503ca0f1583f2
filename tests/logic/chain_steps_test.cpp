#include "game/alert_scan.h"
#include "grid/grid.h"
#include "logic/chain_search.h"
#include "logic/driver.h"
#include "logic/technique.h"
#include "support/outside_double.h"
#include "support/play.h"

#include <gtest/gtest.h>

#include <random>

namespace kelvarine::testing {
namespace {

class ChainSteps : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

// Most cells with two of the numbers 1..3, some with none: more XY-chains than anyone could walk
// along, whether they are looked for to mark alerts or to solve.
GridTable ContradictoryPairs()
{
    std::mt19937 random(10);
    for (const Cell cell : Cells) {
        const auto one = random() % 3 + 1;
        const auto other = (one + random() % 2) % 3 + 1;
        WordAt(cell) = random() % 8 == 0 ? 0 : BitTable[one] | BitTable[other];
    }
    return Grid;
}

constexpr std::uint32_t XYChains = 15;
constexpr std::array<std::uint32_t, 3> ChainTechniques{14, XYChains, 18};

// The runs of the logic in which chains are looked for.
constexpr std::array<void (*)(), 2> ChainRuns{[] { ScanAlerts(ModeAlert); },
                                              [] {
                                                  ApplyLogic(SolveAsPlayer);
                                              }};

// Steps of chain walks that a run with one technique takes on a position.
std::int64_t ChainStepsOf(void (*run)(), const GridTable &position, std::uint32_t technique)
{
    Grid = position;
    SolveMask = BitTable[technique];
    AlertMask = BitTable[technique];
    const std::int64_t before = ChainStepsLeft;
    run();
    return before - ChainStepsLeft;
}

// Once nothing is left, each walk that is still to come asks once more, and the one that is under
// way does for each cell on its chain.
constexpr std::int64_t StepsToGiveUp = 1000;

TEST_F(ChainSteps, ChainsOfContradictoryPairsComeToAnEnd)
{
    constexpr std::int64_t steps = 100'000;
    const GridTable pairs = ContradictoryPairs();
    for (const std::uint32_t technique : ChainTechniques) {
        for (const auto run : ChainRuns) {
            const ChainBudget budget(steps);
            const std::int64_t taken = ChainStepsOf(run, pairs, technique);
            EXPECT_GT(taken, 0) << technique;
            EXPECT_LE(taken, steps + StepsToGiveUp) << technique;
        }
    }
}

TEST_F(ChainSteps, ScanAndDriverBoundTheirChainsThemselves)
{
    const GridTable pairs = ContradictoryPairs();
    for (const auto run : ChainRuns) {
        const ChainBudget budget(2 * ChainStepsOfARun);
        const std::int64_t taken = ChainStepsOf(run, pairs, XYChains);
        EXPECT_GT(taken, ChainStepsOfARun) << "the position has chains enough";
        EXPECT_LE(taken, ChainStepsOfARun + StepsToGiveUp);
    }
}

} // namespace
} // namespace kelvarine::testing
