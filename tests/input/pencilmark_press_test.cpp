// The right press, which strikes pencilmarks out, and the double click, which keeps one alone.
#include "board/geometry.h"
#include "board/look.h"
#include "game/lifecycle.h"
#include "game/win_display.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "input/mouse.h"
#include "logic/driver.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

constexpr std::int32_t Left = 1;
constexpr std::int32_t Right = 2;

class PencilmarkPress : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        SecondaryThickness = 3;
        LayoutBoard(600, 700, 0);
    }
};

// ---- Right press ---------------------------------------------------------------------------

// Centre of the ninth of a cell in which a number has its place.
Point Ninth(int column, int row, int number)
{
    return {CellX(column) + CellWidth * (2 * ((number - 1) % 3) + 1) / 6,
            CellY(row) + CellHeight * (2 * ((number - 1) / 3) + 1) / 6};
}

void Hold(int column, int row, CellWord candidates, CellWord others = 0)
{
    WordAt(MakeCell(column, row)) = candidates | others;
    CountGivens();
}

CellWord CandidatesAt(int column, int row)
{
    return WordAt(MakeCell(column, row)) & CandidateMask;
}

constexpr CellWord Two = 0x4;
constexpr CellWord Seven = 0x80;
constexpr CellWord Nine = 0x200;

// A saved game of a few open cells in the three by three layout.
void SetMarks()
{
    PencilmarkLayout = 1;
    Hold(1, 1, Two | Seven | Nine, SelectedBit);
    Hold(5, 5, Two | Seven);
    Hold(9, 9, Seven | Nine, SelectedBit);
    Hold(9, 1, Seven, SelectedBit);
    Hold(1, 9, Seven, SelectedBit | GivenBit);
    HistoryCount = 0;
    HistoryPosition = 0;
    PushUndoState();
    ForgetRecord();
}

void RightPressOn(int column, int row, int number, std::int32_t shift = 0)
{
    const Point point = Ninth(column, row, number);
    BoardPressed(Right, shift, point.X, point.Y);
}

TEST_F(PencilmarkPress, RightPressStrikesTheNumberOutOfTheSelectedCells)
{
    SetMarks();
    WordAt({5, 5}) |= AlertBit; // of an earlier scan
    RightPressOn(5, 5, 7);
    EXPECT_EQ(CandidatesAt(1, 1), Two | Nine);
    EXPECT_EQ(CandidatesAt(9, 9), Nine);
    EXPECT_EQ(CandidatesAt(5, 5), Two | Seven) << "the clicked cell only chooses";
    EXPECT_EQ(CandidatesAt(9, 1), Seven) << "the last one stays";
    EXPECT_EQ(CandidatesAt(1, 9), Seven);
    EXPECT_EQ(CellsWith(SelectedBit), "A1 A9 J1 J9");
    EXPECT_EQ(HistoryCount, 2);
    EXPECT_EQ(CellsWith(AlertBit), "") << "a scan follows";
    EXPECT_EQ(Seen.BoardPaints, 1);
    EXPECT_EQ(Seen.WindowRefreshes, 0);
}

TEST_F(PencilmarkPress, RightPressLooksAtNoModifier)
{
    for (std::int32_t shift = 0; shift <= 7; ++shift) {
        SetMarks();
        RightPressOn(5, 5, 7, shift);
        EXPECT_EQ(CandidatesAt(1, 1), Two | Nine) << shift;
    }
}

TEST_F(PencilmarkPress, RightPressOnASingleThatIsSelectedAloneTakesNothing)
{
    Hold(4, 7, Seven, SelectedBit);
    RightPressOn(4, 7, 1);
    EXPECT_EQ(CandidatesAt(4, 7), Seven);
    EXPECT_EQ(HistoryCount, 0);
    EXPECT_EQ(Seen.Calls, Texts{"board: "}) << "painted all the same";
}

TEST_F(PencilmarkPress, RightPressOnAGivenChoosesItsNumber)
{
    SetMarks();
    RightPressOn(1, 9, 1); // the place within the cell does not matter
    EXPECT_EQ(CandidatesAt(1, 1), Two | Nine);
    EXPECT_EQ(CandidatesAt(1, 9), Seven);
}

TEST_F(PencilmarkPress, RightPressOnThePlaceOfANumberThatTheCellLacksTakesItFromOthers)
{
    SetMarks();
    RightPressOn(5, 5, 9);
    EXPECT_EQ(CandidatesAt(1, 1), Two | Seven);
    EXPECT_EQ(CandidatesAt(9, 9), Seven);
    EXPECT_EQ(CandidatesAt(5, 5), Two | Seven);
}

TEST_F(PencilmarkPress, RightPressThatFindsNoNumberDoesNotEvenPaint)
{
    SetMarks();
    RightPressOn(3, 3, 5); // an empty cell
    EXPECT_EQ(Seen.Calls, Texts{});
    EXPECT_EQ(ClickX, Ninth(3, 3, 5).X);
}

TEST_F(PencilmarkPress, RightPressBesideTheCellsDropsTheSelection)
{
    SetMarks();
    BoardPressed(Right, 0, 0, 0);
    EXPECT_EQ(CellsWith(SelectedBit), "");
    EXPECT_EQ(Seen.Calls, Texts{"board: "});
}

TEST_F(PencilmarkPress, RightPressKeepsHintMarksAndChain)
{
    SetMarks();
    Grid[3][3] |= HintCellBit | HintDomainBit;
    ChainColumns = {2, 1, 2};
    ChainRows = {0, 1, 1};
    RightPressOn(5, 5, 1);
    EXPECT_EQ(CellsWith(HintCellBit), "C3");
    EXPECT_EQ(ChainColumns[0], 2);
}

// A grid that lacks one number: A1 can be 5 or 7.
void SetNearlyWon()
{
    PencilmarkLayout = 1;
    SetGivens(EasySolution);
    Hold(1, 1, BitTable[5] | Seven);
    StartGame(0);
    Hold(1, 1, BitTable[5] | Seven, SelectedBit);
    ForgetRecord();
}

TEST_F(PencilmarkPress, RightPressCanWin)
{
    SetNearlyWon();
    RightPressOn(1, 1, 7);
    EXPECT_EQ(WinDisplayRunning, True);
    EXPECT_EQ(HistoryCount, 2);
}

// ---- Double click --------------------------------------------------------------------------

void DoubleClickOn(int column, int row, int number, std::int32_t shift = 0)
{
    const Point point = Ninth(column, row, number);
    BoardPressed(Left, shift, point.X, point.Y);
    ForgetRecord();
    BoardDoubleClicked();
}

TEST_F(PencilmarkPress, DoubleClickKeepsTheNumberAlone)
{
    SetMarks();
    WordAt({5, 5}) |= CellColour | AlertBit;
    DoubleClickOn(5, 5, 7);
    EXPECT_EQ(WordAt({5, 5}) & ~AlertBit, Seven | CellColour | SelectedBit);
    EXPECT_EQ(CandidatesAt(1, 1), Two | Seven | Nine) << "no longer selected";
    EXPECT_EQ(HistoryCount, 2);
    EXPECT_EQ(CellsWith(AlertBit), "") << "a scan follows";
    EXPECT_EQ(Seen.BoardPaints, 1);
    EXPECT_EQ(Seen.WindowRefreshes, 0);
}

TEST_F(PencilmarkPress, DoubleClickWithCtrlActsOnTheWholeSelection)
{
    SetMarks();
    DoubleClickOn(5, 5, 7, 2);
    EXPECT_EQ(CandidatesAt(1, 1), Seven);
    EXPECT_EQ(CandidatesAt(9, 9), Seven);
    EXPECT_EQ(CandidatesAt(5, 5), Seven);
    EXPECT_EQ(WordAt({1, 9}), Seven | SelectedBit | GivenBit);
}

TEST_F(PencilmarkPress, DoubleClickWithShiftSparesTheCellItself)
{
    SetMarks();
    DoubleClickOn(5, 5, 7, 1);
    EXPECT_EQ(CandidatesAt(5, 5), Two | Seven);
    EXPECT_EQ(CandidatesAt(1, 1), Seven);
}

TEST_F(PencilmarkPress, DoubleClickOnANumberThatTheCellLacksOnlyPaints)
{
    SetMarks();
    DoubleClickOn(5, 5, 1);
    EXPECT_EQ(CandidatesAt(5, 5), Two | Seven);
    EXPECT_EQ(HistoryCount, 1);
    EXPECT_EQ(Seen.Calls, Texts{"board: "});
}

TEST_F(PencilmarkPress, DoubleClickOnAGivenOrASingleDoesNothingAtAll)
{
    SetMarks();
    WordAt({9, 1}) &= ~SelectedBit;
    for (const auto &[column, row] : {std::pair{1, 9}, std::pair{9, 1}}) {
        DoubleClickOn(column, row, 7, 2);
        EXPECT_EQ(Seen.Calls, Texts{}) << "not even a repaint";
        EXPECT_EQ(CandidatesAt(1, 1), Two | Seven | Nine);
    }
}

TEST_F(PencilmarkPress, GivenOfSeveralNumbersIsSkippedByADoubleClick)
{
    SetMarks();
    WordAt({5, 5}) |= GivenBit; // only a file can hold such a word
    GameFilePath = "such.sdk";
    CountGivens();
    DoubleClickOn(5, 5, 7);
    EXPECT_EQ(CandidatesAt(5, 5), Two | Seven);
    EXPECT_EQ(Seen.Calls, Texts{"board: "});
}

TEST_F(PencilmarkPress, DoubleClickBesideTheCellsDoesNothing)
{
    SetMarks();
    BoardPressed(Left, 2, 0, 0);
    ForgetRecord();
    BoardDoubleClicked();
    EXPECT_EQ(Seen.Calls, Texts{});
    EXPECT_EQ(HistoryCount, 1);
}

TEST_F(PencilmarkPress, DoubleClickUsesThePointOfTheFirstPress)
{
    SetMarks();
    const Point point = Ninth(5, 5, 2);
    BoardPressed(Left, 0, point.X, point.Y);
    for (const Point way : {Ninth(9, 9, 1), Ninth(5, 5, 7)}) {
        BoardMoved(Left, 0, way.X, way.Y);
    }
    BoardDoubleClicked();
    EXPECT_EQ(CandidatesAt(5, 5), Two);
}

TEST_F(PencilmarkPress, DoubleClickCanWin)
{
    SetNearlyWon();
    DoubleClickOn(1, 1, 5);
    EXPECT_EQ(WinDisplayRunning, True);
    EXPECT_EQ(CellsWith(SelectedBit), "");
}

TEST_F(PencilmarkPress, DoubleClickDuringASearchDoesNothing)
{
    SetMarks();
    const Point point = Ninth(5, 5, 7);
    BoardPressed(Left, 0, point.X, point.Y);
    SearchActive = True;
    SearchKind = 1;
    ForgetRecord();
    BoardDoubleClicked();
    EXPECT_EQ(Seen.Calls, Texts{});
    EXPECT_EQ(CandidatesAt(5, 5), Two | Seven);
}

} // namespace
} // namespace kelvarine::testing
