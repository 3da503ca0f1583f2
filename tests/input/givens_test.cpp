#include "game/lifecycle.h"
#include "game/solutions.h"
#include "game/win_display.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "input/givens.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"
#include "support/solution_counter.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

class Givens : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        StartSavedGame(EasyGame);
    }
};

void Select(std::initializer_list<std::pair<int, int>> cells)
{
    for (const auto &[column, row] : cells) {
        WordAt(MakeCell(column, row)) |= SelectedBit;
    }
}

void SelectAll()
{
    for (const Cell cell : Cells) {
        WordAt(cell) |= SelectedBit;
    }
}

// The givens of the grid, row by row.
std::string GivensOf(const GridTable &grid)
{
    std::string line(81, '.');
    for (const Cell cell : Cells) {
        const CellWord word = grid[cell.Column][cell.Row];
        for (std::size_t number = 1; number <= 9; ++number) {
            if ((word & GivenBit) != 0 && (word & BitTable[number]) != 0) {
                line[(cell.Row - 1U) * 9 + cell.Column - 1] = static_cast<char>('0' + number);
            }
        }
    }
    return line;
}

bool IsUnique(const std::string &line)
{
    return SolutionsOf(FieldOf(line), 2).size() == 1;
}

// Givens that can go, taken out one by one in scan order, by brute force.
std::string WithoutNeedless(std::string line)
{
    for (const Cell cell : Cells) {
        char &mark = line[(cell.Row - 1U) * 9 + cell.Column - 1];
        const char given = mark;
        mark = '.';
        if (!IsUnique(line)) {
            mark = given;
        }
    }
    return line;
}

// ---- Hide, absolute ------------------------------------------------------------------------

TEST_F(Givens, HidingNeedsASelection)
{
    for (void (*hide)() : {mnuHideSelectedCellsForce, mnuHideSelectedCellsConditional}) {
        const std::string before = GivensOf(Grid);
        ForgetRecord();
        hide();
        EXPECT_EQ(Acts(), Texts{"message: There are no cells selected."});
        EXPECT_EQ(GivensOf(Grid), before);
        EXPECT_EQ(HistoryCount, 1);
    }
}

TEST_F(Givens, HidingTakesTheGivensAndNothingElse)
{
    Select({{1, 1}, {2, 1}, {3, 1}}); // C1 is open
    WordAt({1, 1}) |= CellColour | HintCellBit;
    const CellWord open = WordAt({3, 1});
    mnuHideSelectedCellsForce();
    EXPECT_EQ(WordAt({1, 1}) & ~(SolutionMask | AlertBit), SelectedBit | CellColour | HintCellBit);
    EXPECT_EQ(WordAt({2, 1}) & (GivenBit | CandidateMask), 0U);
    EXPECT_EQ(WordAt({3, 1}) & CandidateMask, open & CandidateMask) << "not a given";
    EXPECT_EQ(GivenCount, 28);
    EXPECT_EQ(CellsWith(SelectedBit), "A1 B1 C1");
    EXPECT_EQ(HistoryCount, 2);
    EXPECT_EQ(Acts(), (Texts{"board: ", "refresh: "}));
    EXPECT_EQ(GivensOf(Level(2)).substr(0, 2), "53") << "undo brings them back";
}

TEST_F(Givens, HidingAllMakesManySolutions)
{
    SelectAll();
    mnuHideSelectedCellsForce();
    EXPECT_EQ(GivensOf(Grid), Dots(81));
    EXPECT_EQ(GameRating, 6);
    EXPECT_EQ(GivenCount, 0);
}

TEST_F(Givens, OpenListOfSolutionsFollows)
{
    mnuShowSolution();
    Select({{1, 1}});
    SolutionsOnView = "of before";
    mnuHideSelectedCellsForce();
    EXPECT_NE(SolutionsOnView, "of before");
    WordAt({1, 1}) = BitTable[5] | SelectedBit;
    SolutionsOnView = "of before";
    Seen.YesNoAnswers = {true};
    mnuMakeGiven();
    EXPECT_NE(SolutionsOnView, "of before");
}

TEST_F(Givens, HidingOpenCellsOnlyRates)
{
    Select({{3, 1}});
    GameRating = 0;
    GivenCount = 0;
    mnuHideSelectedCellsForce();
    EXPECT_EQ(GameRating, 1);
    EXPECT_EQ(GivenCount, 30);
    EXPECT_EQ(HistoryCount, 1);
    EXPECT_EQ(Acts(), Texts{}) << "no message, no repaint";
}

// ---- Hide, conditional ---------------------------------------------------------------------

TEST_F(Givens, ConditionalHidingTakesWhatTheGameCanDoWithout)
{
    const std::string before = GivensOf(Grid);
    ASSERT_TRUE(IsUnique(before));
    SelectAll();
    mnuHideSelectedCellsConditional();
    const std::string after = GivensOf(Grid);
    EXPECT_EQ(after, WithoutNeedless(before));
    EXPECT_NE(after, before);
    EXPECT_EQ(GivenCount, static_cast<std::int32_t>(81 - std::ranges::count(after, '.')));
    EXPECT_LE(GameRating, 5);
    EXPECT_EQ(HistoryCount, 2);
    EXPECT_EQ(Acts(), (Texts{"board: ", "refresh: "}));
    for (const Cell cell : Cells) {
        const bool hidden =
            before[(cell.Row - 1U) * 9 + cell.Column - 1] != '.' && (WordAt(cell) & GivenBit) == 0;
        EXPECT_TRUE(!hidden || (WordAt(cell) & CandidateMask) == 0);
    }
}

TEST_F(Givens, NeededGivensStay)
{
    SelectAll();
    mnuHideSelectedCellsConditional();
    const std::string minimal = GivensOf(Grid);
    const std::int32_t rating = GameRating;
    GameModified = False;
    ForgetRecord();
    mnuHideSelectedCellsConditional();
    EXPECT_EQ(GivensOf(Grid), minimal);
    EXPECT_EQ(GameRating, rating) << "rated again after the trials";
    EXPECT_EQ(HistoryCount, 2) << "no undo state";
    EXPECT_EQ(GameModified, False);
    EXPECT_EQ(Acts(), Texts{});
}

TEST_F(Givens, ConditionalHidingLooksAtTheSelectedOnesAlone)
{
    const std::string before = GivensOf(Grid);
    // Of these, alone, the game can do without whichever brute force says.
    Select({{4, 2}, {5, 2}, {6, 2}});
    mnuHideSelectedCellsConditional();
    std::string expected = before;
    for (const std::size_t column : {4U, 5U, 6U}) {
        std::string without = expected;
        without[9 + column - 1] = '.';
        if (IsUnique(without)) {
            expected = without;
        }
    }
    EXPECT_NE(expected, before);
    EXPECT_EQ(GivensOf(Grid), expected);
}

TEST_F(Givens, ImpossibleGameKeepsItsGivens)
{
    StartSavedGame("5...5...." + Dots(72));
    ASSERT_EQ(GameRating, 7);
    Select({{1, 1}});
    mnuHideSelectedCellsConditional();
    EXPECT_EQ(CellsWith(GivenBit), "A1 E1") << "without it there are many solutions";
    EXPECT_EQ(HistoryCount, 1);
    EXPECT_EQ(GameRating, 7);
}

// ---- Make given ----------------------------------------------------------------------------

TEST_F(Givens, MakingGivensNeedsASelection)
{
    mnuMakeGiven();
    EXPECT_EQ(Seen.Calls, Texts{"message: There are no cells selected."});
}

TEST_F(Givens, OpenCellsCannotBecomeGivens)
{
    Select({{3, 1}});
    mnuMakeGiven();
    EXPECT_EQ(Seen.Messages, Texts{"The selected cell can't be made into a given because it "
                                   "doesn't contain a single number."});
    ForgetRecord();
    Select({{4, 1}});
    mnuMakeGiven();
    EXPECT_EQ(Seen.Messages, Texts{"None of the the selected cells can be made into givens because "
                                   "they don't contain single numbers."});
    EXPECT_EQ(Seen.Questions, Texts{});
    EXPECT_EQ(GivenCount, 30);
}

TEST_F(Givens, EmptyCellHoldsNoNumber)
{
    Select({{3, 1}});
    WordAt({3, 1}) &= ~CandidateMask;
    mnuMakeGiven();
    EXPECT_EQ(Seen.Messages, Texts{"The selected cell can't be made into a given because it "
                                   "doesn't contain a single number."});
}

TEST_F(Givens, OneCellIsAskedForInTheSingular)
{
    Select({{3, 1}});
    WordAt({3, 1}) = SelectedBit | BitTable[4];
    mnuMakeGiven();
    EXPECT_EQ(Seen.Calls,
              Texts{"question: Are you sure you want to make the selected cell into a given?"});
    EXPECT_EQ(WordAt({3, 1}), SelectedBit | BitTable[4]) << "No is the default";
    EXPECT_EQ(HistoryCount, 1);
}

TEST_F(Givens, YesTurnsPlacedNumbersIntoGivens)
{
    Select({{3, 1}, {4, 1}, {1, 1}});
    WordAt({3, 1}) = SelectedBit | BitTable[4];
    Seen.YesNoAnswers = {true};
    mnuMakeGiven();
    EXPECT_EQ(Seen.Questions, Texts{"Are you sure you want to make the selected cells (containing "
                                    "single numbers) into givens?"});
    EXPECT_EQ(WordAt({3, 1}) & ~(SolutionMask | AlertBit), GivenBit | SelectedBit | BitTable[4]);
    EXPECT_EQ(WordAt({4, 1}) & GivenBit, 0U);
    EXPECT_EQ(GivenCount, 31);
    EXPECT_EQ(HistoryCount, 2);
    EXPECT_EQ(Acts().back(), "refresh: ");
    EXPECT_EQ(Acts()[1], "board: ");
}

TEST_F(Givens, SeveralCellsWithOneNumberAmongThemAreAskedForInThePlural)
{
    Select({{3, 1}, {4, 1}});
    WordAt({3, 1}) = SelectedBit | BitTable[4];
    mnuMakeGiven();
    EXPECT_EQ(Seen.Questions, Texts{"Are you sure you want to make the selected cells (containing "
                                    "single numbers) into givens?"});
}

TEST_F(Givens, GivenThatIsOneAlreadyIsAskedForAndNothingChanges)
{
    Select({{1, 1}});
    GameRating = 0;
    Seen.YesNoAnswers = {true};
    mnuMakeGiven();
    EXPECT_EQ(Seen.Questions, Texts{"Are you sure you want to make the selected cell into a "
                                    "given?"});
    EXPECT_EQ(HistoryCount, 1);
    EXPECT_EQ(GameRating, 0) << "not even rated";
    EXPECT_EQ(Seen.BoardPaints, 0);
}

TEST_F(Givens, WrongNumberMadeAGivenMakesTheGameImpossible)
{
    Select({{3, 1}});
    WordAt({3, 1}) = SelectedBit | BitTable[1];
    Seen.YesNoAnswers = {true};
    mnuMakeGiven();
    EXPECT_EQ(GameRating, 7);
}

TEST_F(Givens, LastGivenOfASolvedGridWins)
{
    SetGivens(EasySolution);
    WordAt({1, 1}) &= ~GivenBit;
    StartGame(0);
    StopWinDisplay();
    Select({{1, 1}});
    Seen.YesNoAnswers = {true};
    mnuMakeGiven();
    EXPECT_EQ(WinDisplayRunning, True);
    EXPECT_EQ(CellsWith(SelectedBit), "");
}

} // namespace
} // namespace kelvarine::testing
