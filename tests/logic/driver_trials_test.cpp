// Trial and error, and what is left of a game without a solution.

#include "game/solutions.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "logic/driver.h"
#include "logic/driver_fixture.h"
#include "logic/technique_masks.h"
#include "support/driver_games.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace kelvarine::testing {
namespace {

class DriverTrials : public DriverOfSingles {};

// ---- Trial and error -----------------------------------------------------------------------

TEST_F(DriverTrials, TrialAndErrorSolvesWhatSinglesDoNot)
{
    SetGame(HardGame);
    EXPECT_EQ(Apply(SolveForPlayer, SinglesMask | TrialBit), -1);
    EXPECT_EQ(NumbersOf(Grid), LineOf(SolutionsOf(FieldOf(Squeezed(HardGame)), 1)[0]));
    EXPECT_EQ(UsedMask, SinglesMask | TrialBit);
    EXPECT_EQ(HistoryCount, 1);
    EXPECT_EQ(SolutionCount, 1);
}

// The two solutions differ in G6, G9, H1, H9, J1 and J6. The trial takes the column first, so G6,
// and its lowest number first, the 1. Row by row it would be H1.
TEST_F(DriverTrials, TrialTakesTheFirstCellOfTheScanAndTheLowestNumber)
{
    SetGame(TwoSolutions);
    EXPECT_EQ(Apply(SolveForPlayer, SinglesMask | TrialBit), -1);
    EXPECT_EQ(NumbersOf(Grid),
              "749385261381276459256914738175698342634127895892453176413562987968741523527839614");
    EXPECT_EQ(SolutionCount, 1);
}

TEST_F(DriverTrials, SolutionsAreListedInTheOrderOfTheTrials)
{
    SetGame(TwoSolutions);
    EXPECT_EQ(Apply(ListSolutions25, SinglesMask | TrialBit), 0);
    EXPECT_EQ(SolutionCount, 2);
    EXPECT_EQ(SolutionList,
              "749385261381276459256914738175698342634127895892453176413562987968741523527839614"
              "749385216381276459256914738175698342634127895892453671413562987968741523527839164");
    EXPECT_EQ(SolutionCountText, "2 solutions");
}

// Six cells are open in the same grid. The first pass finds nothing, the trial of the 1 goes to
// the techniques without a yield, and so does that of the 6.
TEST_F(DriverTrials, FreshTrialDoesNotYield)
{
    SetGivens("749385261381276459256914738175698342634127895892453176413562987968741523527839614");
    for (const Cell cell : {MakeCell(7, 6), MakeCell(7, 9), MakeCell(8, 1), MakeCell(8, 9),
                            MakeCell(9, 1), MakeCell(9, 6)}) {
        WordAt(cell) = BitTable[1] | BitTable[6];
    }
    EXPECT_EQ(Apply(CountSolutions, NakedSingleBit | TrialBit), 0);
    EXPECT_EQ(SolutionCount, 2);
    EXPECT_EQ(Seen.Yields, 3);
    EXPECT_EQ(UsedMask, NakedSingleBit | TrialBit);
}

// A trial keeps everything of the word but the candidates, and the rest of a restored word too.
TEST_F(DriverTrials, TrialKeepsTheRestOfTheWord)
{
    SetGame(TwoSolutions);
    Grid[7][6] |= 0x5000000 | AlertBit | BitTable[15];
    EXPECT_EQ(Apply(SolveForPlayer, SinglesMask | TrialBit), -1);
    EXPECT_EQ(Grid[7][6], 0x5000000 | AlertBit | BitTable[15] | BitTable[1]);
}

TEST_F(DriverTrials, UsedMaskKeepsWhatDeadBranchesUsed)
{
    SetGame(HardGame);
    EXPECT_EQ(Apply(CountSolutions, SinglesMask | TrialBit), 0);
    EXPECT_EQ(SolutionCount, 1);
    EXPECT_EQ(UsedMask, SinglesMask | TrialBit);
}

// The trial of a 3 in C3 runs into a dead end; the 8 of the next trial has nothing to take away.
// What was found before the dead end still stands, so that round ends with a pass of its own.
TEST_F(DriverTrials, FindingBeforeADeadEndStandsForTheNextTrial)
{
    SetPencilmarks(R"(
        [9] [3] 8   [5] 6   [1] 4   2   7
        [1] [5] 4   378 38  [2] 38  [9] [6]
        7   [6] 2   38  [9] [4] [1] 38  [5]
        3   8   [9] 4   5   6   2   [7] 1
        [2] [4] [1] 38  38  7   6   [5] 9
        [5] 7   6   1   [2] [9] 38  38  4
        4   2   [5] [9] 1   [8] [7] [6] 3
        [6] [9] [7] 2   4   3   [5] [1] [8]
        8   [1] [3] [6] [7] 5   9   4   2
    )");
    EXPECT_EQ(Apply(CountSolutions, NakedSingleBit | TrialBit), 0);
    EXPECT_EQ(SolutionCount, 2);
    EXPECT_EQ(Seen.Yields, 5);
}

TEST_F(DriverTrials, WithoutTechniquesTrialsFindNothingAndEnd)
{
    LevelTable.fill(0);
    SetGame(PlainGame);
    const GridTable before = Grid;
    EXPECT_EQ(Apply(CountSolutions, TrialBit), 0);
    EXPECT_EQ(SolutionCount, 0);
    EXPECT_EQ(UsedMask, TrialBit);
    EXPECT_EQ(Grid, before);
    EXPECT_TRUE(Seen.Messages.empty());
    EXPECT_EQ(Apply(SolveAsPlayer, TrialBit), 0);
    EXPECT_EQ(Grid, before);
    EXPECT_EQ(Seen.Messages, std::vector<std::string>{"This sudoku has no solution."});
}

// ---- Games without a solution --------------------------------------------------------------

TEST_F(DriverTrials, DeadEndWithoutATrialRestoresTheGrid)
{
    for (const std::int32_t mode : {SolveForPlayer, SolveForRating, CountSolutions}) {
        SetGame(NoSolution);
        const GridTable before = Grid;
        EXPECT_EQ(Apply(mode, SinglesMask | TrialBit), 0);
        EXPECT_EQ(Grid, before);
        EXPECT_EQ(UsedMask, NakedSingleBit);
        EXPECT_EQ(SolutionCount, 0);
        EXPECT_EQ(HistoryCount, 0);
        EXPECT_EQ(SearchActive, False);
        EXPECT_TRUE(Seen.Messages.empty());
    }
}

TEST_F(DriverTrials, ExhaustedSearchRestoresTheGridAndTellsThePlayerInModeZeroAlone)
{
    for (std::int32_t mode = 0; mode <= 4; ++mode) {
        Seen.Messages.clear();
        SetGivens(EasySolution);
        // Three cells of a box that see each other have two numbers between them.
        Grid[1][1] = BitTable[5] | BitTable[6];
        Grid[1][2] = BitTable[5] | BitTable[6];
        Grid[2][1] = BitTable[5] | BitTable[6];
        for (const Cell cell : {MakeCell(2, 4), MakeCell(2, 7), MakeCell(4, 1), MakeCell(6, 2)}) {
            WordAt(cell) = BitTable[3] | GivenBit;
        }
        const GridTable before = Grid;
        EXPECT_EQ(Apply(mode, NakedSingleBit | TrialBit), 0);
        EXPECT_EQ(Grid, before);
        EXPECT_EQ(HistoryCount, 0);
        EXPECT_EQ(SolutionCount, 0);
        EXPECT_EQ(SearchActive, False);
        EXPECT_EQ(Seen.Messages, mode == 0
                                     ? std::vector<std::string>{"This sudoku has no solution."}
                                     : std::vector<std::string>{});
    }
}

TEST_F(DriverTrials, MessageOfNoSolutionComesWhenTheRunHasEnded)
{
    SetGivens(RepeatAmongEight);
    const GridTable before = Grid;
    Seen.OnYield = [] {
        Seen.Steady += LongRunSeconds;
    };
    bool told = false;
    Seen.OnBox = [&] {
        told = true;
        EXPECT_EQ(RunUnderWay, False);
        EXPECT_EQ(SearchActive, False);
        EXPECT_EQ(Grid, before);
        EXPECT_EQ(Seen.BoardPaints, 1) << "the banner is gone";
    };
    Apply(SolveAsPlayer, SinglesMask | TrialBit);
    EXPECT_EQ(RunIsLong, True);
    EXPECT_TRUE(told);
}

TEST_F(DriverTrials, RepeatAmongEightEndsInModeZero)
{
    SetGivens(RepeatAmongEight);
    EXPECT_EQ(Apply(SolveAsPlayer, SinglesMask), 0);
    EXPECT_EQ(Grid[9][1], BitTable[8] | BitTable[9]);
    EXPECT_EQ(UsedMask, NakedSingleBit);
    EXPECT_EQ(HistoryCount, 1);
    // The cell is filled in the first pass and found again in the second; the third stands as the
    // second did.
    EXPECT_EQ(Seen.Yields, 3);
    EXPECT_TRUE(Seen.Messages.empty());
}

TEST_F(DriverTrials, RepeatAmongEightGoesOnToTrials)
{
    SetGivens(RepeatAmongEight);
    const GridTable before = Grid;
    EXPECT_EQ(Apply(SolveAsPlayer, SinglesMask | TrialBit), 0);
    EXPECT_EQ(Grid, before);
    EXPECT_EQ(UsedMask, NakedSingleBit | TrialBit);
    EXPECT_EQ(HistoryCount, 0);
    EXPECT_EQ(Seen.Messages, std::vector<std::string>{"This sudoku has no solution."});
}

// Each trial of J1 is taken away again, the cell is filled anew and would be tried again without
// end, one trial deeper each time.
TEST_F(DriverTrials, TrialThatLeadsBackToItselfEnds)
{
    SetGivens(RepeatAmongEightBlocked);
    const GridTable before = Grid;
    EXPECT_EQ(Apply(SolveAsPlayer, SinglesMask | TrialBit), 0);
    EXPECT_EQ(Grid, before);
    EXPECT_EQ(UsedMask, NakedSingleBit | TrialBit);
    EXPECT_EQ(HistoryCount, 0);
    EXPECT_EQ(Seen.Messages, std::vector<std::string>{"This sudoku has no solution."});
}

// Row 1 leaves the 9 to A1, column A takes it away again.
TEST_F(DriverTrials, NumberPutInAndTakenAwayByTurnsEndsInModeZero)
{
    SetGame(NoSolution);
    EXPECT_EQ(Apply(SolveAsPlayer, SinglesMask), 0);
    EXPECT_EQ(CountCandidates(1, 1), 0);
    EXPECT_EQ(HistoryCount, 1);
    EXPECT_EQ(SearchActive, False);
    EXPECT_TRUE(Seen.Messages.empty());
}

// ---- Listing -------------------------------------------------------------------------------

class Listing : public DriverTrials {
protected:
    // Lists a game and returns its solutions as lines.
    static std::set<std::string> List(std::string_view game)
    {
        SetGame(game);
        SolutionList.clear();
        EXPECT_EQ(Apply(ListSolutions25, ListingMask), 0);
        EXPECT_EQ(SolutionList.size() % 81, 0U);
        std::set<std::string> lines;
        for (std::size_t start = 0; start < SolutionList.size(); start += 81) {
            lines.insert(SolutionList.substr(start, 81));
        }
        EXPECT_EQ(lines.size() * 81, SolutionList.size()) << "a solution is listed twice";
        return lines;
    }

    static std::set<std::string> AllSolutions(std::string_view game)
    {
        std::set<std::string> lines;
        for (const Solution &solution : SolutionsOf(FieldOf(Squeezed(game)), 100)) {
            lines.insert(LineOf(solution));
        }
        return lines;
    }
};

TEST_F(Listing, OneSolution)
{
    EXPECT_EQ(List(PlainGame), std::set<std::string>{std::string(PlainSolution)});
    EXPECT_EQ(SolutionCount, 1);
    EXPECT_EQ(SolutionCountText, "1 solution");
}

TEST_F(Listing, ThreeSolutionsAreAllListed)
{
    EXPECT_EQ(List(ThreeSolutions), AllSolutions(ThreeSolutions));
    EXPECT_EQ(SolutionCount, 3);
    EXPECT_EQ(SolutionCountText, "3 solutions");
}

TEST_F(Listing, TwentyFiveSolutionsAreAllListed)
{
    EXPECT_EQ(List(TwentyFiveSolutions), AllSolutions(TwentyFiveSolutions));
    EXPECT_EQ(SolutionCount, 25);
    EXPECT_EQ(SolutionCountText, "25 solutions");
}

TEST_F(Listing, TwentySixthSolutionIsCountedAndNotListed)
{
    for (const std::string_view game : {TwentySixSolutions, ThirtySolutions}) {
        const std::set<std::string> listed = List(game);
        const std::set<std::string> all = AllSolutions(game);
        EXPECT_EQ(listed.size(), 25U);
        EXPECT_TRUE(std::ranges::includes(all, listed));
        EXPECT_EQ(SolutionCount, 26);
        EXPECT_EQ(SolutionCountText, "More than 25 solutions");
    }
}

TEST_F(Listing, GameWithoutASolutionShowsNoCount)
{
    EXPECT_TRUE(List(NoSolution).empty());
    EXPECT_EQ(SolutionCount, 0);
    EXPECT_EQ(SolutionCountText, "");
}

TEST_F(Listing, ListIsAddedTo)
{
    SetGame(PlainGame);
    SolutionList = "before ";
    Apply(ListSolutions25, ListingMask);
    EXPECT_EQ(SolutionList, "before " + std::string(PlainSolution));
}

} // namespace
} // namespace kelvarine::testing
