#include "grid/grid.h"
#include "logic/alerts.h"
#include "logic/driver.h"
#include "logic/rating.h"
#include "logic/solvability.h"
#include "logic/technique.h"
#include "support/play.h"
#include "support/positions.h"
#include "support/presentation_double.h"
#include "support/random_positions.h"
#include "support/solution_counter.h"

#include <gtest/gtest.h>

#include <chrono>
#include <random>

namespace kelvarine::testing {
namespace {

class Solvability : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

// Its contradiction lies too deep for a walk that takes the cells in the order of the scan.
constexpr std::array Bitter{
    ".....5.8....6.1.43..........1.5........1.6...3.......553.....61........4.........",
    "...7.............6.8...6......8.3......2...6.6.............8...3..17...2....6....",
};

double SecondsOf(const std::function<void()> &work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

TEST_F(Solvability, GameWithASolutionIsNotProvenUnsolvable)
{
    SetGame(EasyGame);
    EXPECT_FALSE(IsProvenUnsolvable(Grid));
    SetGame(EasySolution);
    EXPECT_FALSE(IsProvenUnsolvable(Grid));
    SetGame(Dots(81));
    EXPECT_FALSE(IsProvenUnsolvable(Grid));
}

TEST_F(Solvability, EmptyCellAndLostNumberProveIt)
{
    SetGame(EasyGame);
    Grid[3][1] &= ~CandidateMask;
    EXPECT_TRUE(IsProvenUnsolvable(Grid));
    SetGame(Dots(81));
    for (int column = 1; column <= 9; ++column) {
        Grid[static_cast<std::size_t>(column)][4] &= ~BitTable[7];
    }
    EXPECT_TRUE(IsProvenUnsolvable(Grid));
}

TEST_F(Solvability, AgreesWithPlainBacktrackingOnRandomFields)
{
    std::mt19937 random(7);
    int unsolvable = 0;
    for (int round = 0; round < 2000; ++round) {
        SetGame(EasySolution);
        CandidateField field{};
        for (const Cell cell : Cells) {
            CellWord &word = WordAt(cell);
            const CellWord number = word & CandidateMask;
            // Mostly the solution with company, now and then without it.
            word = (random() & random() & CandidateMask) | (random() % 60 == 0 ? 0 : number);
            word &= ~(random() % 60 == 0 ? number : 0);
            const auto place = static_cast<std::size_t>((cell.Row - 1) * 9 + cell.Column - 1);
            field[place] = static_cast<std::uint16_t>(word & CandidateMask);
        }
        const bool plain = SolutionsOf(field, 1).empty();
        unsolvable += plain ? 1 : 0;
        ASSERT_EQ(IsProvenUnsolvable(Grid), plain) << "round " << round;
    }
    EXPECT_GT(unsolvable, 100);
    EXPECT_LT(unsolvable, 1900);
}

TEST_F(Solvability, BitterTextIsRatedImpossibleInAMoment)
{
    for (const char *text : Bitter) {
        SetGivens(text);
        const double seconds = SecondsOf([] { RateGame(); });
        EXPECT_EQ(GameRating, 7);
        EXPECT_EQ(SolutionCount, 0);
        EXPECT_LT(seconds, 30.0); // minutes without the proof
    }
}

TEST_F(Solvability, ChainsOfContradictoryPairsComeToAnEnd)
{
    std::mt19937 random(3);
    for (int round = 0; round < 3; ++round) {
        for (const Cell cell : Cells) {
            const auto one = random() % 4 + 1;
            const auto other = (one + random() % 3) % 4 + 1;
            WordAt(cell) = BitTable[one] | BitTable[other];
        }
        const GridTable pairs = Grid;
        for (const std::uint32_t technique : {14U, 15U, 18U}) {
            SolveMask = BitTable[technique];
            AlertMask = BitTable[technique];
            EXPECT_LT(SecondsOf([] { ScanAlerts(ModeAlert); }), 20.0) << technique;
            Grid = pairs;
            EXPECT_LT(SecondsOf([] { ApplyLogic(SolveAsPlayer); }), 20.0) << technique;
            Grid = pairs;
        }
    }
}

} // namespace
} // namespace kelvarine::testing
