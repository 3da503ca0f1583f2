#include "game/search.h"
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
#include <string>
#include <string_view>
#include <vector>

namespace kelvarine::testing {
namespace {

class Driver : public DriverOfSingles {};

// First cell in scan order with more than one candidate.
Cell FirstOpenCell()
{
    return *std::ranges::find_if(Cells, [](Cell cell) { return CandidatesIn(WordAt(cell)) > 1; });
}

// ---- Modes and results ---------------------------------------------------------------------

TEST_F(Driver, SolvedGridInModeZeroNeedsNoUndoState)
{
    SetGivens(EasySolution);
    EXPECT_EQ(Apply(SolveAsPlayer, SinglesMask), -1);
    EXPECT_EQ(SolutionCount, 1);
    EXPECT_EQ(HistoryCount, 0);
    EXPECT_EQ(GameModified, False);
    EXPECT_EQ(UsedMask, 0U);
    EXPECT_EQ(Seen.Yields, 1);
    EXPECT_EQ(SearchActive, False);
}

TEST_F(Driver, ModesZeroAndOnePushWhatTheySolved)
{
    for (const std::int32_t mode : {SolveAsPlayer, SolveForPlayer}) {
        Restart();
        SetGame(PlainGame);
        EXPECT_EQ(Apply(mode, CountingMask), -1);
        EXPECT_EQ(NumbersOf(Grid), PlainSolution);
        EXPECT_EQ(HistoryCount, 1);
        EXPECT_EQ(History[NewestSlot], Grid);
        EXPECT_EQ(GameModified, True);
        EXPECT_EQ(SolutionCount, 1);
        EXPECT_EQ(SearchActive, False);
    }
}

TEST_F(Driver, ModeTwoSolvesWithoutAnUndoState)
{
    SetGame(PlainGame);
    EXPECT_EQ(Apply(SolveForRating, SinglesMask), -1);
    EXPECT_EQ(NumbersOf(Grid), PlainSolution);
    EXPECT_EQ(HistoryCount, 0);
    EXPECT_EQ(GameModified, False);
    EXPECT_EQ(UsedMask, NakedSingleBit);
    EXPECT_EQ(SolutionCount, 1);
    EXPECT_EQ(SearchActive, False);
}

TEST_F(Driver, ModesThreeAndFourRestoreTheGrid)
{
    for (const std::int32_t mode : {CountSolutions, ListSolutions25}) {
        SetGame(PlainGame);
        ClearCellBits(0);
        Grid[3][3] |= SelectedBit | AlertBit | ScratchMark2 | 0x5000000;
        const GridTable before = Grid;
        EXPECT_EQ(Apply(mode, SinglesMask | TrialBit), 0);
        EXPECT_EQ(Grid, before);
        EXPECT_EQ(SolutionCount, 1);
        EXPECT_EQ(HistoryCount, 0);
        EXPECT_EQ(SearchActive, False);
    }
}

TEST_F(Driver, BlankGridHasMoreThanOneSolution)
{
    Restart();
    FillPencilmarks();
    const GridTable before = Grid;
    EXPECT_EQ(Apply(CountSolutions, 0x4000020E), 0);
    EXPECT_EQ(SolutionCount, 2);
    EXPECT_EQ(Grid, before);
}

TEST_F(Driver, EmptyCellEndsTheCountBeforeAnyTechnique)
{
    SetGame(PlainGame);
    Grid[1][1] = 0;
    const GridTable before = Grid;
    EXPECT_EQ(Apply(CountSolutions, SinglesMask | TrialBit), 0);
    EXPECT_EQ(SolutionCount, 0);
    EXPECT_EQ(UsedMask, 0U);
    EXPECT_EQ(Seen.Yields, 1);
    EXPECT_EQ(Grid, before);
}

TEST_F(Driver, EmptyCellsDoNotStopModeZeroAlone)
{
    for (std::int32_t mode = 1; mode <= 4; ++mode) {
        SetGivens(PlainGame);
        const GridTable before = Grid;
        EXPECT_EQ(Apply(mode, SinglesMask), 0);
        EXPECT_EQ(Grid, before);
    }
    SetGivens(PlainGame);
    EXPECT_EQ(Apply(SolveAsPlayer, SinglesMask), -1);
    EXPECT_EQ(NumbersOf(Grid), PlainSolution);
}

TEST_F(Driver, ModeTwoWithoutTrialLeavesAHardGamePartlySolved)
{
    SetGame(HardGame);
    EXPECT_EQ(Apply(SolveForRating, SinglesMask), 0);
    const std::string numbers = NumbersOf(Grid);
    const auto solution = SolutionsOf(FieldOf(Squeezed(HardGame)), 2);
    ASSERT_EQ(solution.size(), 1U);
    EXPECT_EQ(std::ranges::count(numbers, '.'), 50);
    for (std::size_t place = 0; place < numbers.size(); ++place) {
        if (numbers[place] != '.') {
            EXPECT_EQ(numbers[place], LineOf(solution[0])[place]);
        }
    }
    EXPECT_EQ(UsedMask, SinglesMask);
    EXPECT_EQ(HistoryCount, 0);
    EXPECT_EQ(SearchActive, False);
}

TEST_F(Driver, WithoutTrialAnUnsolvedGridIsPushedInModesZeroAndOneAlone)
{
    for (std::int32_t mode = 0; mode <= 4; ++mode) {
        Restart();
        LevelTable = {0, SinglesMask, 0, 0, 0, 0, 0, 0, 0, 0};
        SetGame(HardGame);
        const GridTable before = Grid;
        EXPECT_EQ(Apply(mode, SinglesMask), 0);
        EXPECT_EQ(HistoryCount, mode < 2 ? 1 : 0);
        EXPECT_EQ(Grid == before, mode > 2);
        EXPECT_EQ(SolutionCount, 0);
        EXPECT_TRUE(Seen.Messages.empty());
    }
}

TEST_F(Driver, NothingFoundIsNothingPushed)
{
    SetGame(R"(
        1........
        .........
        .........
        .........
        .........
        .........
        .........
        .........
        .........
    )");
    EXPECT_EQ(Apply(SolveAsPlayer, HiddenSingleBit), 0);
    EXPECT_EQ(Apply(SolveForPlayer, HiddenSingleBit), 0);
    EXPECT_EQ(HistoryCount, 0);
    EXPECT_EQ(UsedMask, 0U);
}

TEST_F(Driver, EveryPassClearsSelectionAndScratchMarksAlone)
{
    for (const Cell cell : Cells) {
        WordAt(cell) = 0xFFFFFFFF & ~GivenBit;
    }
    EXPECT_EQ(Apply(SolveForRating, 0), 0);
    for (const Cell cell : Cells) {
        EXPECT_EQ(WordAt(cell), 0x0FFFFBFEU);
    }
    EXPECT_EQ(History[SafeCopySlot][5][5], 0xFFFFFFFEU);
}

TEST_F(Driver, EveryRunBeginsItsRecordAnew)
{
    SetGivens(EasySolution);
    UsedMask = 0xFFFFFFFF;
    SolutionCount = 17;
    SolutionList = "kept";
    EXPECT_EQ(Apply(SolveForRating, RatingMask), -1);
    EXPECT_EQ(UsedMask, 0U);
    EXPECT_EQ(SolutionCount, 1);
    EXPECT_EQ(SolutionList, "kept");
}

TEST_F(Driver, SafeCopyIsTheGridAtTheStart)
{
    SetGame(PlainGame);
    Grid[9][9] |= SelectedBit;
    const GridTable before = Grid;
    Apply(SolveForRating, SinglesMask);
    EXPECT_NE(Grid, before);
    EXPECT_EQ(History[SafeCopySlot], before);
}

// ---- Techniques and levels -----------------------------------------------------------------

// One cell is open; both singles can fill it.
TEST_F(Driver, LevelDecidesFirstAndNumberSecond)
{
    const auto usedWith = [](std::uint32_t first, std::uint32_t second, std::uint32_t third) {
        SetGivens(EasySolution);
        Grid[1][1] = CandidateMask;
        LevelTable = {0, first, second, third, 0, 0, 0, 0, 0, 0};
        EXPECT_EQ(Apply(SolveForRating, RatingMask), -1);
        return UsedMask;
    };
    EXPECT_EQ(usedWith(SinglesMask, 0, 0), NakedSingleBit);
    EXPECT_EQ(usedWith(NakedSingleBit, HiddenSingleBit, 0), NakedSingleBit);
    EXPECT_EQ(usedWith(HiddenSingleBit, NakedSingleBit, 0), HiddenSingleBit);
    EXPECT_EQ(usedWith(0, HiddenSingleBit, NakedSingleBit), HiddenSingleBit);
    // In two rows: the first of them counts, and the other changes nothing.
    EXPECT_EQ(usedWith(HiddenSingleBit, NakedSingleBit, HiddenSingleBit), HiddenSingleBit);
    EXPECT_EQ(usedWith(NakedSingleBit, HiddenSingleBit, NakedSingleBit), NakedSingleBit);
}

TEST_F(Driver, TechniqueInTwoRowsIsTriedInBoth)
{
    SetGame(NeedsBothSingles);
    LevelTable = {0, NakedSingleBit, HiddenSingleBit, NakedSingleBit, 0, HiddenSingleBit, 0, 0, 0,
                  0};
    EXPECT_EQ(Apply(SolveForRating, SinglesMask), -1);
    EXPECT_EQ(UsedMask, SinglesMask);
}

TEST_F(Driver, TechniqueOutsideTheFiveLevelsIsNeverRun)
{
    SetGame(PlainGame);
    const GridTable before = Grid;
    LevelTable = {SinglesMask, 0, 0, 0, 0, 0, SinglesMask, SinglesMask, SinglesMask, SinglesMask};
    EXPECT_EQ(Apply(SolveForRating, RatingMask & ~TrialBit), 0);
    EXPECT_EQ(Grid, before);
    EXPECT_EQ(UsedMask, 0U);
    EXPECT_EQ(Seen.Yields, 1);
}

TEST_F(Driver, TechniqueOutsideTheSolveMaskIsNeverRun)
{
    SetGame(PlainGame);
    const GridTable before = Grid;
    EXPECT_EQ(Apply(SolveForRating, ~SinglesMask & ~TrialBit), 0);
    EXPECT_EQ(Grid, before);
    EXPECT_EQ(UsedMask, 0U);
}

// The column lacks the 9 and its last cell has other pencilmarks: only the forms that look at
// placed numbers see that, and only mode 0 runs them for the naked single.
TEST_F(Driver, UnplacedFormsOfTheNakedSingleRunInModeZeroAlone)
{
    for (std::int32_t mode = 0; mode <= 2; ++mode) {
        FillPencilmarks();
        for (std::size_t row = 1; row <= 8; ++row) {
            Grid[1][row] = BitTable[row] | GivenBit;
        }
        Grid[1][9] = BitTable[1] | BitTable[2];
        SolveMask = NakedSingleBit;
        bool first = true;
        CellWord afterFirstPass = 0;
        Seen.OnYield = [&] {
            if (!first) {
                afterFirstPass = Grid[1][9];
                SearchActive = False;
            }
            first = false;
        };
        EXPECT_EQ(ApplyLogic(mode), -2);
        EXPECT_EQ(afterFirstPass, mode == 0 ? BitTable[9] : 0U);
    }
}

// Each operation of the naked single runs only when the one before found nothing.
TEST_F(Driver, ModeZeroPlacesALastCandidateBeforeItTakesNumbersOut)
{
    SetGivens(R"(
        12345678.
        .........
        .........
        .........
        .........
        .........
        .........
        .........
        .........
    )");
    Grid[1][9] = BitTable[1] | BitTable[2];
    GridTable second{};
    Seen.OnYield = [&] {
        if (Seen.Yields == 2) {
            second = Grid;
        }
    };
    Apply(SolveAsPlayer, NakedSingleBit);
    EXPECT_EQ(second[9][1], BitTable[9]);
    EXPECT_EQ(second[1][9], BitTable[1] | BitTable[2]);
    EXPECT_EQ(Grid[1][9], BitTable[2]);
    EXPECT_EQ(Seen.Yields, 3);
}

// ---- Stopping ------------------------------------------------------------------------------

TEST_F(Driver, StoppedSearchLeavesTheTrialNumbersOnTheGrid)
{
    SetGame(HardGame);
    Apply(SolveForRating, SinglesMask);
    const Cell tried = FirstOpenCell();
    const CellWord candidates = WordAt(tried);

    SetGame(HardGame);
    const GridTable before = Grid;
    Seen.OnYield = [] {
        if ((UsedMask & TrialBit) != 0) {
            SearchActive = False;
        }
    };
    EXPECT_EQ(Apply(SolveForPlayer, SinglesMask | TrialBit), -2);
    EXPECT_EQ(CandidatesIn(WordAt(tried)), 1);
    EXPECT_EQ(LowestCandidate(WordAt(tried)), LowestCandidate(candidates));
    EXPECT_EQ(History[SafeCopySlot], before);
    EXPECT_EQ(HistoryCount, 0);
    EXPECT_EQ(SearchActive, False);
    EXPECT_TRUE(Seen.Messages.empty());
}

TEST_F(Driver, SearchStoppedAtOnceTouchesNothing)
{
    for (std::int32_t mode = 0; mode <= 4; ++mode) {
        SetGame(PlainGame);
        Grid[2][2] |= SelectedBit | ScratchMark0;
        const GridTable before = Grid;
        Seen.OnYield = [] {
            EXPECT_EQ(SearchActive, True);
            SearchActive = False;
        };
        EXPECT_EQ(Apply(mode, SinglesMask | TrialBit), -2);
        EXPECT_EQ(Grid, before);
        EXPECT_EQ(UsedMask, 0U);
    }
    EXPECT_EQ(Seen.Yields, 5);
}

TEST_F(Driver, QuestionStopsASoundAndLeavesTheSearchOnNo)
{
    SearchActive = True;
    QueryStopSearch();
    EXPECT_EQ(SearchActive, True);
    EXPECT_EQ(Seen.Calls, (std::vector<std::string>{
                              "stop sound: ", "question: Would you like to stop searching?"}));
}

TEST_F(Driver, QuestionEndsTheSearchOnYes)
{
    SearchActive = True;
    Seen.YesNoAnswers = {true};
    QueryStopSearch();
    EXPECT_EQ(SearchActive, False);
}

} // namespace
} // namespace kelvarine::testing
