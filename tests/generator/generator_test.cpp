#include "game/search.h"
#include "generator/generator.h"
#include "generator/patterns.h"
#include "generator/random_source.h"
#include "grid/grid.h"
#include "logic/driver.h"
#include "support/outside_double.h"
#include "support/positions.h"
#include "support/solution_counter.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kelvarine::testing {
namespace {

std::size_t CountSolutionsOf(std::string_view marks, std::size_t limit)
{
    return SolutionsOf(FieldOf(marks), limit).size();
}

class Generator : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        init_genrand(20);
        DifficultySelection = 0x3E;
    }
};

TEST_F(Generator, SolvedGridsAreSolvedAndHoldNothingElse)
{
    for (int k = 0; k < 300; ++k) {
        MakeSolvedGrid();
        for (const Cell cell : Cells) {
            const CellWord word = WordAt(cell);
            ASSERT_EQ(word & ~SolutionMask, GivenBit);
            WordAt(cell) = (word & SolutionMask) >> SolutionShift;
        }
        ASSERT_EQ(IsGridSolved(), True);
    }
}

TEST_F(Generator, SameSeedGivesTheSameGame)
{
    init_genrand(77);
    GenerateGame();
    const GridTable first = Grid;
    init_genrand(77);
    GenerateGame();
    EXPECT_EQ(Grid, first);
}

// What every finished game must be, by the pattern that it was made under.
void ExpectFinishedGame()
{
    std::int32_t givens = 0;
    for (const Cell cell : Cells) {
        const CellWord word = WordAt(cell);
        const CellWord digit = (word & SolutionMask) >> SolutionShift;
        EXPECT_EQ(word & 0xFFF00000, 0U) << "a high bit survived";
        EXPECT_EQ(CandidatesIn(digit), 1);
        EXPECT_EQ(word & CandidateMask, (word & GivenBit) != 0 ? digit : 0U);
        givens += (word & GivenBit) != 0 ? 1 : 0;
        for (const Cell partner : PartnersOf(RevealPattern, cell)) {
            EXPECT_EQ(WordAt(partner) & GivenBit, word & GivenBit)
                << "pattern " << RevealPattern << " is broken";
        }
    }
    EXPECT_EQ(GivenCount, givens);
    EXPECT_GE(givens, MinGivens);
    EXPECT_LE(givens, MaxGivens);
    const std::string numbers = NumbersOf(Grid);
    EXPECT_EQ(CountSolutionsOf(numbers, 2), 1U) << numbers;
}

class GeneratorPattern : public Generator, public ::testing::WithParamInterface<std::int32_t> {};

TEST_P(GeneratorPattern, GamesHaveOneSolutionSymmetryAndTheWishedGivens)
{
    RevealPattern = GetParam();
    MaxGivens = 60;
    for (int k = 0; k < 200; ++k) {
        ASSERT_TRUE(GenerateGame());
        ExpectFinishedGame();
        EXPECT_GE(GameRating, 1);
        EXPECT_LE(GameRating, 5);
        if (HasFailure()) {
            return;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(AllPatterns, GeneratorPattern,
                         ::testing::Values(0, 1, 2, 3, 4, 5, 6, 7, 9));

TEST_F(Generator, RatingIsInTheWish)
{
    for (std::size_t level = 1; level <= 5; ++level) {
        DifficultySelection = BitTable[level];
        RevealPattern = 0;
        for (int k = 0; k < 3; ++k) {
            ASSERT_TRUE(GenerateGame());
            EXPECT_EQ(GameRating, static_cast<std::int32_t>(level));
        }
    }
}

TEST_F(Generator, RequiredTechniquesOfReachedLevelsAreUsed)
{
    RevealPattern = 0;
    DifficultySelection = BitTable[2] | BitTable[3];
    LevelTable[6] = BitTable[9] | BitTable[15];
    for (int k = 0; k < 10; ++k) {
        ASSERT_TRUE(GenerateGame());
        // Technique 15 stands in a higher level and does not count against the game.
        EXPECT_NE(UsedMask & BitTable[9], 0U);
    }
}

TEST_F(Generator, MissedRangeTriesTheSameGridTwentyTimes)
{
    RevealPattern = 0;
    MinGivens = 81;
    MaxGivens = 81;
    std::vector<std::string> solutions; // of each removal run
    std::int32_t seenRuns = 0;
    Seen.OnYield = [&] {
        if (GamesScreened != seenRuns) {
            seenRuns = GamesScreened;
            std::string solution;
            for (const Cell cell : Cells) {
                solution +=
                    std::to_string(LowestCandidate((WordAt(cell) & SolutionMask) >> SolutionShift));
            }
            solutions.push_back(solution);
        }
        if (GamesScreened == 61) {
            Seen.YesNoAnswers.push_back(true);
            QueryStopSearch();
        }
    };
    EXPECT_FALSE(GenerateGame());
    ASSERT_EQ(solutions.size(), 61U);
    for (std::size_t run = 0; run < 60; ++run) {
        EXPECT_EQ(solutions[run], solutions[run / 20 * 20]) << "run " << run;
    }
    EXPECT_NE(solutions[0], solutions[20]);
    EXPECT_NE(solutions[20], solutions[40]);
    EXPECT_NE(solutions[40], solutions[60]);
}

TEST_F(Generator, BannerCountsTheGamesScreened)
{
    MinGivens = 81;
    MaxGivens = 81;
    Seen.OnYield = [] {
        if (GamesScreened == 3) {
            Seen.YesNoAnswers.push_back(true);
            QueryStopSearch();
        }
    };
    GenerateGame();
    std::vector<std::string> banners;
    std::ranges::copy_if(Seen.Calls, std::back_inserter(banners),
                         [](const std::string &call) { return call.starts_with("search"); });
    EXPECT_EQ(banners, (std::vector<std::string>{"search banner: 1", "search banner: 2",
                                                 "search banner: 3"}));
}

TEST_F(Generator, RandomPatternTakesThreeCellsOutWithoutATest)
{
    RevealPattern = 0;
    MakeSolvedGrid();
    int openAtFirstTest = 0;
    Seen.OnYield = [&] {
        if (openAtFirstTest == 0) {
            openAtFirstTest = static_cast<int>(std::ranges::count_if(
                Cells, [](Cell cell) { return (WordAt(cell) & GivenBit) == 0; }));
        }
    };
    ASSERT_TRUE(RemoveCells());
    EXPECT_EQ(openAtFirstTest, 4); // three and the first one that is tested
}

TEST_F(Generator, RotationNeverLeavesAGivenWithoutItsPartner)
{
    RevealPattern = 1;
    bool centreWentAlone = false;
    for (int k = 0; k < 100; ++k) {
        ASSERT_TRUE(GenerateGame());
        for (const Cell cell : Cells) {
            const CellWord partner = Grid[10U - cell.Column][10U - cell.Row];
            ASSERT_EQ(WordAt(cell) & GivenBit, partner & GivenBit);
        }
        centreWentAlone = centreWentAlone || (Grid[5][5] & GivenBit) == 0;
    }
    EXPECT_TRUE(centreWentAlone);
}

TEST_F(Generator, ResultIsMinimalForTheLastTestOfEveryCell)
{
    RevealPattern = 0;
    ASSERT_TRUE(GenerateGame());
    const std::string game = NumbersOf(Grid);
    for (std::size_t place = 0; place < game.size(); ++place) {
        if (game[place] != '.') {
            std::string less = game;
            less[place] = '.';
            EXPECT_EQ(CountSolutionsOf(less, 2), 2U)
                << "the given at " << place << " is not needed";
        }
    }
}

TEST_F(Generator, SearchKindAndSolveMaskComeBack)
{
    SolveMask = 0x15;
    Seen.OnYield = [] {
        EXPECT_EQ(SearchKind, SearchingGame);
    };
    ASSERT_TRUE(GenerateGame());
    EXPECT_EQ(SolveMask, 0x15U);
    EXPECT_EQ(SearchKind, NotStoppable);
}

} // namespace
} // namespace kelvarine::testing
