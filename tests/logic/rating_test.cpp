#include "game/logic_report.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "logic/rating.h"
#include "logic/technique_masks.h"
#include "support/driver_games.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace kelvarine::testing {
namespace {

// One solution; naked and hidden singles alone solve it.
constexpr std::string_view SinglesGame = NeedsBothSingles;

// The fives of row 1 clash.
constexpr std::string_view ClashingGivens = R"(
    5....5...
    .........
    .........
    .........
    .........
    .........
    .........
    .........
    .........
)";

constexpr std::uint32_t OtherTechniques = 0x3FFFFFF8;

class Rating : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        UseSinglesAlone();
    }

    // The default levels without the techniques that these tests do not build on.
    static void UseSinglesAlone()
    {
        for (std::uint32_t &level : LevelTable) {
            level &= ~OtherTechniques;
        }
    }

    static std::int32_t RatingOf(std::string_view game)
    {
        SetGivens(game);
        RateGame();
        return GameRating;
    }

    // The solutions of all cells as a line, "." for a cell without one.
    static std::string WrittenSolution()
    {
        GridTable numbers = Grid;
        for (const Cell cell : Cells) {
            numbers[cell.Column][cell.Row] = (WordAt(cell) & SolutionMask) >> SolutionShift;
        }
        return NumbersOf(numbers);
    }

    static std::string ReportOf(std::string_view game)
    {
        SetGivens(game);
        Seen.Messages.clear();
        mnuShowLogicNeeded();
        EXPECT_EQ(Seen.Messages.size(), 1U);
        return Seen.Messages.empty() ? "" : Seen.Messages[0];
    }
};

TEST_F(Rating, SolvedGameNeedsNothingAndRatesFive)
{
    EXPECT_EQ(RatingOf(EasySolution), 5);
    EXPECT_EQ(UsedMask, 0U);
    EXPECT_EQ(SolutionCount, 1);
}

TEST_F(Rating, GivensInConflictRateSevenWithoutASearch)
{
    EXPECT_EQ(RatingOf(ClashingGivens), 7);
    EXPECT_EQ(SolutionCount, 0);
    EXPECT_EQ(Seen.Yields, 0);
}

TEST_F(Rating, GameWithoutASolutionRatesSeven)
{
    EXPECT_EQ(RatingOf(NoSolution), 7);
    EXPECT_GT(Seen.Yields, 0);
}

TEST_F(Rating, GameWithSeveralSolutionsRatesSix)
{
    EXPECT_EQ(RatingOf(TwoSolutions), 6);
    EXPECT_EQ(RatingOf(ThirtySolutions), 6);
    EXPECT_EQ(SolutionCount, 2);
}

TEST_F(Rating, GameForSinglesRatesOneAtTheDefaultLevels)
{
    LevelTable = {0, 0x6, 0x228, 0xCD0, 0xFF100, 0xFFF00000, 0, 0, 0, 0};
    EXPECT_EQ(RatingOf(SinglesGame), 1);
    EXPECT_EQ(UsedMask, SinglesMask);
}

TEST_F(Rating, GameForTrialAndErrorRatesFive)
{
    EXPECT_EQ(RatingOf(HardGame), 5);
    EXPECT_EQ(UsedMask, SinglesMask | TrialBit);
}

TEST_F(Rating, LevelOfATechniqueDecidesTheRating)
{
    for (std::size_t level = 1; level <= 5; ++level) {
        LevelTable = {0, NakedSingleBit, 0, 0, 0, 0, 0, 0, 0, 0};
        LevelTable[level] |= HiddenSingleBit;
        EXPECT_EQ(RatingOf(SinglesGame), static_cast<std::int32_t>(level));
    }
}

TEST_F(Rating, HighestLevelUsedWinsNotTheLastTechnique)
{
    LevelTable = {0, HiddenSingleBit, 0, 0, NakedSingleBit, 0, 0, 0, 0, 0};
    EXPECT_EQ(RatingOf(HardGame), 4);
    LevelTable[2] = 0x80;
    LevelTable[5] = 0x100;
    EXPECT_EQ(RatingOf(HardGame), 4);
    LevelTable[6] = 0xFFFFFFFF;
    EXPECT_EQ(RatingOf(HardGame), 4);
}

TEST_F(Rating, TrialOutsideTheLevelsIsRatedByTheOthers)
{
    LevelTable = {0, 0, SinglesMask, 0, 0, 0, 0, 0, 0, 0};
    EXPECT_EQ(RatingOf(HardGame), 2);
    LevelTable = {0, TrialBit, SinglesMask, 0, 0, 0, 0, 0, 0, 0};
    EXPECT_EQ(RatingOf(HardGame), 2);
}

// Only a pass notices a solution, and only a technique leads to another pass: without techniques
// in the levels a solved game alone has a solution.
TEST_F(Rating, WithoutTechniquesInTheLevelsTrialsSeeNoSolution)
{
    LevelTable.fill(0);
    EXPECT_EQ(RatingOf(EasySolution), 5);
    EXPECT_EQ(RatingOf(SinglesGame), 7);
    EXPECT_EQ(UsedMask, TrialBit);
}

TEST_F(Rating, SolutionIsWrittenToEveryCellGivensIncluded)
{
    EXPECT_EQ(RatingOf(PlainGame), 1);
    EXPECT_EQ(WrittenSolution(), PlainSolution);
}

TEST_F(Rating, SolutionIsWrittenOnceAndStays)
{
    SetGivens(PlainGame);
    Grid[3][3] |= BitTable[14];
    Grid[4][4] |= BitTable[11] | BitTable[12];
    RateGame();
    std::string expected(PlainSolution);
    expected[2 * 9 + 2] = '4';
    expected[3 * 9 + 3] = '.';
    EXPECT_EQ(WrittenSolution(), expected);
    EXPECT_EQ(Grid[4][4] & SolutionMask, BitTable[11] | BitTable[12]);
}

TEST_F(Rating, GameWithoutOneSolutionKeepsAnEmptySolution)
{
    for (const std::string_view game : {TwoSolutions, NoSolution, ClashingGivens}) {
        RatingOf(game);
        EXPECT_EQ(WrittenSolution(), std::string(81, '.'));
    }
}

TEST_F(Rating, EverythingElseStaysAsItWas)
{
    for (const std::string_view game : {PlainGame, TwoSolutions, NoSolution}) {
        SetGivens(game);
        for (const Cell cell : Cells) {
            WordAt(cell) |= 0xFFF00000 | SelectedBit;
        }
        Grid[2][2] |= BitTable[3] | BitTable[4];
        GridTable expected = Grid;
        SolveMask = 0x88;
        AlertMask = 0x123;
        MaxSinglesLinks = 5;
        MaxRPLinks = 6;
        MaxXYLinks = 7;
        RateGame();
        for (const Cell cell : Cells) {
            EXPECT_EQ(WordAt(cell) & ~SolutionMask, expected[cell.Column][cell.Row]);
        }
        EXPECT_EQ(SolveMask, 0x88U);
        EXPECT_EQ(AlertMask, 0x123U);
        EXPECT_EQ(MaxSinglesLinks, 5);
        EXPECT_EQ(MaxRPLinks, 6);
        EXPECT_EQ(MaxXYLinks, 7);
        EXPECT_EQ(HistoryCount, 0);
        EXPECT_EQ(GameModified, False);
        EXPECT_TRUE(Seen.Messages.empty());
    }
}

TEST_F(Rating, PlayersMaskAndLimitsDoNotMatter)
{
    for (const std::uint32_t mask : {0U, 0x2U, 0xFFFFFFFFU}) {
        SolveMask = mask;
        MaxSinglesLinks = 0;
        MaxRPLinks = 0;
        MaxXYLinks = 0;
        EXPECT_EQ(RatingOf(SinglesGame), 1);
        EXPECT_EQ(UsedMask, SinglesMask);
    }
}

TEST_F(Rating, LimitsAreWideOpenWhileItRuns)
{
    MaxSinglesLinks = 3;
    MaxRPLinks = 3;
    MaxXYLinks = 3;
    std::vector<std::uint32_t> masks;
    Seen.OnYield = [&] {
        EXPECT_EQ(MaxSinglesLinks, 81);
        EXPECT_EQ(MaxRPLinks, 81);
        EXPECT_EQ(MaxXYLinks, 81);
        if (masks.empty() || masks.back() != SolveMask) {
            masks.push_back(SolveMask);
        }
    };
    RatingOf(SinglesGame);
    EXPECT_EQ(masks, (std::vector<std::uint32_t>{0x4000020E, 0xFFFFFFFF}));
}

TEST_F(Rating, PlayersNumbersAndPencilmarksDoNotMatter)
{
    SetGivens(PlainGame);
    Grid[1][1] = BitTable[1];
    Grid[2][1] = BitTable[1] | BitTable[2];
    RateGame();
    EXPECT_EQ(GameRating, 1);
    EXPECT_EQ(WrittenSolution(), PlainSolution);
    EXPECT_EQ(Grid[1][1] & CandidateMask, BitTable[1]);
}

TEST_F(Rating, StoppedSearchRestoresGridAndSettings)
{
    for (const int yields : {1, 3, 30}) {
        SetGivens(HardGame);
        Seen.Yields = 0;
        Seen.OnYield = [=] {
            if (Seen.Yields == yields) {
                SearchActive = False;
            }
        };
        const GridTable before = Grid;
        SolveMask = 0x6;
        RateGame();
        for (const Cell cell : Cells) {
            EXPECT_EQ(WordAt(cell) & ~SolutionMask, before[cell.Column][cell.Row]);
        }
        EXPECT_EQ(SolveMask, 0x6U);
        EXPECT_EQ(SearchActive, False);
    }
}

// Without a single in the levels the solutions are counted by a walk, which may be a long one.
TEST_F(Rating, CountThatIsStoppedIsTheCounters)
{
    LevelTable.fill(0);
    LevelTable[1] = MaskOf({Intersection});
    Seen.OnYield = [] {
        SearchActive = False;
    };
    EXPECT_EQ(RatingOf(PlainGame), 5);
    EXPECT_EQ(WrittenSolution(), PlainSolution);
    EXPECT_EQ(RatingOf(TwoSolutions), 6);
    EXPECT_EQ(RatingOf(NoSolution), 7);
}

// ---- The report ----------------------------------------------------------------------------

TEST_F(Rating, ReportListsTheTechniquesInTheirOrder)
{
    EXPECT_EQ(ReportOf(SinglesGame), "Logic needed to solve:  \r"
                                     "\r"
                                     "    Naked single\r"
                                     "    Hidden single\r"
                                     "\r"
                                     "Rating: easy");
}

TEST_F(Rating, ReportPutsTrialAndErrorLast)
{
    EXPECT_EQ(ReportOf(HardGame), "Logic needed to solve:  \r"
                                  "\r"
                                  "    Naked single\r"
                                  "    Hidden single\r"
                                  "    Trial & error\r"
                                  "\r"
                                  "Rating: extreme");
}

TEST_F(Rating, ReportOfASolvedGameListsNothing)
{
    EXPECT_EQ(ReportOf(EasySolution), "Logic needed to solve:  \r\r\rRating: extreme");
}

TEST_F(Rating, ReportOfSeveralSolutionsListsWhatTheCountUsed)
{
    EXPECT_EQ(ReportOf(TwoSolutions), "Logic needed to solve:  \r"
                                      "\r"
                                      "    Naked single\r"
                                      "    Hidden single\r"
                                      "    Trial & error\r"
                                      "\r"
                                      "Rating: multiple solutions");
}

TEST_F(Rating, ReportOfAnImpossibleGame)
{
    EXPECT_EQ(ReportOf(NoSolution), "This sudoku has no solution.\r\rRating: impossible");
    EXPECT_EQ(ReportOf(ClashingGivens), "This sudoku has no solution.\r\rRating: impossible");
}

TEST_F(Rating, ReportNamesEveryLevel)
{
    constexpr std::array words{"easy", "medium", "hard", "very hard", "extreme"};
    for (std::size_t level = 1; level <= 5; ++level) {
        LevelTable.fill(0);
        LevelTable[level] = SinglesMask;
        const std::string report = ReportOf(PlainGame);
        EXPECT_EQ(report.substr(report.find("Rating")), std::string("Rating: ") + words[level - 1]);
    }
}

TEST_F(Rating, WordsOfAllRatings)
{
    constexpr std::array words{
        "none",      "easy", "medium", "hard", "very hard", "extreme", "multiple solutions",
        "impossible"};
    for (std::int32_t rating = 0; rating <= 7; ++rating) {
        EXPECT_EQ(WordsOfRating(rating).Lower, words[rating]);
    }
    EXPECT_EQ(WordsOfRating(8).Lower, "");
    EXPECT_EQ(WordsOfRating(-1).Lower, "");
}

} // namespace
} // namespace kelvarine::testing
