#include "grid/grid.h"
#include "logic/driver.h"
#include "logic/rating.h"
#include "logic/solvability.h"
#include "logic/technique.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"
#include "support/random_positions.h"
#include "support/solution_counter.h"

#include <gtest/gtest.h>

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

TEST_F(Solvability, BitterTextIsProvenBeforeTheProofGivesUp)
{
    for (const char *text : Bitter) {
        SetGame(text);
        EXPECT_TRUE(IsProvenUnsolvable(Grid));
    }
}

TEST_F(Solvability, BitterTextIsRatedImpossibleAsSoonAsTheProofIsTried)
{
    constexpr int most = 20'000; // passes before the proof is tried; millions without it
    for (const char *text : Bitter) {
        Restart();
        Seen.OnYield = [] {
            if (Seen.Yields > most) {
                SearchActive = False; // a walk without end
            }
        };
        SetGivens(text);
        RateGame();
        EXPECT_EQ(GameRating, 7);
        EXPECT_EQ(SolutionCount, 0);
        EXPECT_LE(Seen.Yields, most);
    }
}

} // namespace
} // namespace kelvarine::testing
