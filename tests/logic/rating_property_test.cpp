// Rating and driver against brute force, on games of every number of givens.

#include "grid/grid.h"
#include "logic/driver.h"
#include "logic/rating.h"
#include "logic/technique_masks.h"
#include "support/outside_double.h"
#include "support/positions.h"
#include "support/random_positions.h"
#include "support/solution_counter.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string>

namespace kelvarine::testing {
namespace {

constexpr std::uint32_t SinglesChainBit = 0x40000;

class RatingProperty : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        // The walk without a link of the singles chain is kept although it is not sound.
        LevelTable[4] &= ~SinglesChainBit;
    }

    static CellWord BitOfPlace(const Solution &solution, Cell cell)
    {
        const std::size_t place = (cell.Row - 1U) * 9 + cell.Column - 1U;
        return CellWord{1} << solution[place];
    }

    // Every cell carries the number of the solution in a field that starts at bit shift.
    static void ExpectSolution(const Solution &solution, int shift, const std::string &game)
    {
        for (const Cell cell : Cells) {
            ASSERT_EQ((WordAt(cell) >> shift) & CandidateMask, BitOfPlace(solution, cell)) << game;
        }
    }

    static void ExpectNoSolution(const std::string &game)
    {
        for (const Cell cell : Cells) {
            ASSERT_EQ(WordAt(cell) & SolutionMask, 0U) << game;
        }
    }

    // Compares the rating of a game with the counted solutions and returns their number, up to 2.
    static std::size_t CheckRating(const std::string &game)
    {
        const auto solutions = SolutionsOf(FieldOf(game), 2);
        SetGivens(game);
        RateGame();
        switch (solutions.size()) {
        case 0:
            EXPECT_EQ(GameRating, 7) << game;
            ExpectNoSolution(game);
            break;
        case 1:
            EXPECT_TRUE(GameRating >= 1 && GameRating <= 5) << game << " rates " << GameRating;
            ExpectSolution(solutions[0], SolutionShift, game);
            break;
        default:
            EXPECT_EQ(GameRating, 6) << game;
            ExpectNoSolution(game);
        }
        return solutions.size();
    }
};

TEST_F(RatingProperty, RatingAgreesWithTheCountedSolutions)
{
    std::mt19937 random(51);
    std::array<int, 3> seen{};
    for (int round = 0; round < 1500; ++round) {
        std::string game = DrawGame(random, 22 + static_cast<int>(random() % 40));
        // One game in three gets a given that may be wrong.
        if (random() % 3 == 0) {
            game[random() % 81] = static_cast<char>('1' + random() % 9);
        }
        ++seen[CheckRating(game)];
        if (HasFailure()) {
            return;
        }
    }
    for (const int count : seen) {
        EXPECT_GT(count, 100);
    }
}

TEST_F(RatingProperty, RunInModeTwoNeverTakesASolutionsNumberAway)
{
    std::mt19937 random(52);
    for (int round = 0; round < 4000; ++round) {
        const PositionKind kind = round % 2 == 0 ? PositionKind::Sound : PositionKind::Stale;
        const Solution solution =
            SetRandomPosition(random, kind, 10 + static_cast<int>(random() % 50));
        const std::string position = PencilmarksOf(Grid);
        SolveMask = RatingMask & ~TrialBit;
        ApplyLogic(SolveForRating);
        for (const Cell cell : Cells) {
            ASSERT_NE(WordAt(cell) & BitOfPlace(solution, cell), 0U) << position;
        }
    }
}

TEST_F(RatingProperty, RunInModeTwoSolvesEveryGameWithOneSolution)
{
    std::mt19937 random(53);
    int solved = 0;
    for (int round = 0; round < 600; ++round) {
        const std::string game = DrawGame(random, 28 + static_cast<int>(random() % 12));
        const auto solutions = SolutionsOf(FieldOf(game), 2);
        if (solutions.size() != 1) {
            continue;
        }
        SetGame(game);
        SolveMask = RatingMask;
        ASSERT_EQ(ApplyLogic(SolveForRating), Solved) << game;
        ExpectSolution(solutions[0], 0, game);
        ++solved;
    }
    EXPECT_GT(solved, 50);
}

} // namespace
} // namespace kelvarine::testing
