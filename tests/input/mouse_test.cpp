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
constexpr std::array<std::int32_t, 6> OtherThanShift{2, 3, 4, 5, 6, 7};

class Mouse : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        SecondaryThickness = 3;
        LayoutBoard(600, 700, 0);
    }
};

// A point well inside a cell.
Point Inside(int column, int row)
{
    return {CellX(column) + CellWidth / 2, CellY(row) + CellHeight / 2};
}

void PressOn(int column, int row, std::int32_t shift = 0, std::int32_t button = Left)
{
    const Point point = Inside(column, row);
    BoardPressed(button, shift, point.X, point.Y);
}

void DragTo(int column, int row, std::int32_t shift = 0)
{
    const Point point = Inside(column, row);
    BoardMoved(Left, shift, point.X, point.Y);
}

void ExpectPointer(int anchorColumn, int anchorRow, int cursorColumn, int cursorRow)
{
    EXPECT_EQ(AnchorColumn, anchorColumn);
    EXPECT_EQ(AnchorRow, anchorRow);
    EXPECT_EQ(CursorColumn, cursorColumn);
    EXPECT_EQ(CursorRow, cursorRow);
}

// ---- Hit test ------------------------------------------------------------------------------

TEST_F(Mouse, EveryPointIsOnTheCellThatItsPixelBelongsTo)
{
    // Lines and cells laid side by side, as the board paints them.
    const auto lay = [](int size) {
        std::vector<int> lines(static_cast<std::size_t>(BorderThickness), 0);
        for (int line = 1; line <= 9; ++line) {
            const int before = line % 3 == 1 ? PrimaryThickness : SecondaryThickness;
            lines.insert(lines.end(), static_cast<std::size_t>(before), 0);
            lines.insert(lines.end(), static_cast<std::size_t>(size), line);
        }
        return lines;
    };
    const std::vector<int> columns = lay(CellWidth);
    const std::vector<int> rows = lay(CellHeight);
    for (int x = -3; x < BoardPlace.Width + 3; ++x) {
        for (int y = -3; y < BoardPlace.Height + 3; ++y) {
            const bool inside = x >= 0 && y >= 0 && x < static_cast<int>(columns.size()) &&
                                y < static_cast<int>(rows.size());
            const int column = inside ? columns[static_cast<std::size_t>(x)] : 0;
            const int row = inside ? rows[static_cast<std::size_t>(y)] : 0;
            const std::optional<Cell> cell = CellAt(x, y);
            if (column == 0 || row == 0) {
                ASSERT_FALSE(cell) << x << ' ' << y;
            } else {
                ASSERT_TRUE(cell) << x << ' ' << y;
                ASSERT_EQ(*cell, MakeCell(column, row));
            }
        }
    }
}

TEST_F(Mouse, FarEdgeOfACellIsOnNoCell)
{
    EXPECT_TRUE(CellAt(CellX(1) + CellWidth - 1, CellY(1)));
    EXPECT_FALSE(CellAt(CellX(1) + CellWidth, CellY(1)));
    EXPECT_TRUE(CellAt(CellX(1), CellY(1) + CellHeight - 1));
    EXPECT_FALSE(CellAt(CellX(1), CellY(1) + CellHeight));
}

// ---- Press ---------------------------------------------------------------------------------

TEST_F(Mouse, PlainClickSelectsOneCell)
{
    Grid[1][1] = SelectedBit | HintCellBit;
    Grid[2][2] = HintDomainBit | AlertBit;
    ChainColumns[0] = 3;
    PressOn(4, 7);
    EXPECT_EQ(CellsWith(SelectedBit), "D7");
    EXPECT_EQ(CellsWith(HintCellBit | HintDomainBit), "");
    EXPECT_EQ(CellsWith(AlertBit), "B2");
    EXPECT_EQ(ChainColumns[0], 0);
    ExpectPointer(4, 7, 4, 7);
    EXPECT_EQ(ClickX, Inside(4, 7).X);
    EXPECT_EQ(ClickY, Inside(4, 7).Y);
    EXPECT_EQ(Seen.Calls, Texts{"board: "});
    EXPECT_EQ(HistoryCount, 0) << "selection is not history";
}

TEST_F(Mouse, ShiftClickRemovesTheCell)
{
    Grid[1][1] = SelectedBit | HintCellBit;
    Grid[4][7] = SelectedBit | HintDomainBit;
    PressOn(4, 7, 1);
    EXPECT_EQ(CellsWith(SelectedBit), "A1");
    EXPECT_EQ(CellsWith(HintCellBit | HintDomainBit), "A1 D7");
    ExpectPointer(4, 7, 4, 7);
}

TEST_F(Mouse, AnyOtherModifierAddsTheCell)
{
    for (const std::int32_t shift : OtherThanShift) {
        Grid = {};
        Grid[1][1] = SelectedBit | HintCellBit;
        PressOn(4, 7, shift);
        EXPECT_EQ(CellsWith(SelectedBit), "A1 D7") << shift;
        EXPECT_EQ(CellsWith(HintCellBit), "A1");
    }
}

TEST_F(Mouse, PressOnALineDropsTheSelectionAndKeepsTheHintMarks)
{
    Grid[1][1] = SelectedBit | HintCellBit | HintDomainBit;
    ChainColumns[0] = 3;
    ClearPointerState();
    AnchorColumn = 5;
    CursorRow = 5;
    BoardPressed(Left, 0, CellX(1) + CellWidth, CellY(1));
    EXPECT_EQ(Grid[1][1], HintCellBit | HintDomainBit);
    EXPECT_EQ(ChainColumns[0], 3) << "the chain stays";
    ExpectPointer(0, 0, 0, 0);
    EXPECT_EQ(ClickX, CellX(1) + CellWidth);
    EXPECT_EQ(ClickY, CellY(1));
    EXPECT_EQ(Seen.Calls, Texts{"board: "});
}

TEST_F(Mouse, PressBesideTheCellsWithAModifierOnlyPaints)
{
    for (std::int32_t shift = 1; shift <= 7; ++shift) {
        Grid[1][1] = SelectedBit | HintCellBit;
        ForgetRecord();
        BoardPressed(NoButton, shift, -1, -1);
        EXPECT_EQ(Grid[1][1], SelectedBit | HintCellBit);
        EXPECT_EQ(Seen.Calls, Texts{"board: "});
    }
    BoardPressed(NoButton, 0, -1, -1);
    EXPECT_EQ(Grid[1][1], HintCellBit);
}

TEST_F(Mouse, RightPressSelectsNothing)
{
    Grid[1][1] = SelectedBit;
    AnchorColumn = 1;
    PressOn(4, 7, 0, Right);
    EXPECT_EQ(CellsWith(SelectedBit), "A1");
    ExpectPointer(0, 0, 0, 0);
}

TEST_F(Mouse, EveryOtherButtonSelectsAsTheLeftOne)
{
    for (const std::int32_t button : {0, 1, 3, 4}) {
        Grid = {};
        PressOn(4, 7, 0, button);
        EXPECT_EQ(CellsWith(SelectedBit), "D7") << button;
        ExpectPointer(4, 7, 4, 7);
    }
}

TEST_F(Mouse, PressEndsTheWinDisplayAndThenActs)
{
    StartWinDisplay();
    PressOn(4, 7);
    EXPECT_EQ(WinDisplayRunning, False);
    EXPECT_EQ(Seen.Calls, (Texts{"stop sound: ", "board: ", "board: "}));
    EXPECT_EQ(CellsWith(SelectedBit), "D7");
}

TEST_F(Mouse, PressDuringASearchOnlyAsks)
{
    StartWinDisplay();
    for (const std::int32_t kind : {0, 1, 4}) {
        SearchActive = True;
        SearchKind = kind;
        ForgetRecord();
        PressOn(4, 7);
        DragTo(5, 7);
        EXPECT_EQ(Seen.Questions, kind == 1 ? Texts{"Would you like to stop searching?"} : Texts{});
        EXPECT_EQ(CellsWith(SelectedBit), "");
        EXPECT_EQ(Seen.BoardPaints, 0);
        EXPECT_EQ(SearchActive, True);
        EXPECT_EQ(WinDisplayRunning, True);
        EXPECT_EQ(ClickX, 0);
    }
}

// ---- Drag ----------------------------------------------------------------------------------

TEST_F(Mouse, DragSelectsTheRectangle)
{
    PressOn(4, 7);
    ForgetRecord();
    DragTo(2, 8);
    EXPECT_EQ(CellsWith(SelectedBit), "B7 B8 C7 C8 D7 D8");
    ExpectPointer(4, 7, 2, 8);
    EXPECT_EQ(Seen.Calls, Texts{"board: "});
}

TEST_F(Mouse, DraggingBackKeepsWhatWasPassed)
{
    PressOn(4, 7);
    DragTo(6, 7);
    DragTo(4, 7);
    EXPECT_EQ(CellsWith(SelectedBit), "D7 E7 F7");
}

TEST_F(Mouse, ShiftDragRemovesTheRectangle)
{
    for (const Cell cell : Cells) {
        WordAt(cell) |= SelectedBit;
    }
    PressOn(1, 1, 1);
    DragTo(9, 8, 1);
    EXPECT_EQ(CellsWith(SelectedBit), "A9 B9 C9 D9 E9 F9 G9 H9 J9");
}

TEST_F(Mouse, AnyOtherModifierAddsTheRectangle)
{
    for (const std::int32_t shift : OtherThanShift) {
        Grid = {};
        Grid[9][9] = SelectedBit | HintCellBit;
        PressOn(1, 1, shift);
        DragTo(2, 1, shift);
        EXPECT_EQ(CellsWith(SelectedBit), "A1 B1 J9") << shift;
        EXPECT_EQ(CellsWith(HintCellBit), "J9");
    }
}

TEST_F(Mouse, OffTheCellsTheLastRectangleIsAppliedAgain)
{
    PressOn(1, 1);
    DragTo(2, 1);
    ClearCellBits(SelectedBit);
    ForgetRecord();
    BoardMoved(Left, 0, -50, 100000);
    EXPECT_EQ(CellsWith(SelectedBit), "A1 B1");
    ExpectPointer(1, 1, 2, 1);
    EXPECT_EQ(Seen.Calls, Texts{"board: "});
}

TEST_F(Mouse, DragThatBeganBesideTheCellsTakesItsFirstCellAsAnchor)
{
    BoardPressed(Left, 0, 0, 0);
    ForgetRecord();
    BoardMoved(Left, 0, 1, 1);
    EXPECT_EQ(CellsWith(SelectedBit), "");
    ExpectPointer(0, 0, 0, 0);
    EXPECT_EQ(Grid, GridTable{});
    EXPECT_EQ(Seen.Calls, Texts{"board: "}) << "every move paints";
    DragTo(3, 3);
    DragTo(3, 4);
    EXPECT_EQ(CellsWith(SelectedBit), "C3 C4");
    ExpectPointer(3, 3, 3, 4);
}

TEST_F(Mouse, MoveWithoutTheLeftButtonDoesNothing)
{
    PressOn(1, 1);
    ForgetRecord();
    for (const std::int32_t button : {0, 2, 3}) {
        const Point point = Inside(5, 5);
        BoardMoved(button, 0, point.X, point.Y);
    }
    EXPECT_EQ(CellsWith(SelectedBit), "A1");
    ExpectPointer(1, 1, 1, 1);
    EXPECT_EQ(Seen.Calls, Texts{});
}

// ---- Arrows --------------------------------------------------------------------------------

TEST_F(Mouse, ArrowsFromNoAnchor)
{
    StepSelection(Arrow::Up, 0);
    EXPECT_EQ(CellsWith(SelectedBit), "A9");
    ExpectPointer(1, 9, 1, 9);
    ClearPointerState();
    StepSelection(Arrow::Right, 0);
    EXPECT_EQ(CellsWith(SelectedBit), "A1");
    ClearPointerState();
    StepSelection(Arrow::Down, 0);
    EXPECT_EQ(CellsWith(SelectedBit), "A1");
    ClearPointerState();
    StepSelection(Arrow::Left, 0);
    EXPECT_EQ(CellsWith(SelectedBit), "J1");
    ExpectPointer(9, 1, 9, 1);
}

TEST_F(Mouse, ArrowsWalkRoundTheEdges)
{
    for (const Cell start : Cells) {
        const int column = start.Column;
        const int row = start.Row;
        const auto step = [&](Arrow arrow) {
            AnchorColumn = column;
            AnchorRow = row;
            CursorColumn = 5;
            CursorRow = 5;
            StepSelection(arrow, 0);
        };
        step(Arrow::Up);
        ExpectPointer(column, row == 1 ? 9 : row - 1, column, row == 1 ? 9 : row - 1);
        step(Arrow::Down);
        ExpectPointer(column, row == 9 ? 1 : row + 1, column, row == 9 ? 1 : row + 1);
        step(Arrow::Left);
        ExpectPointer(column == 1 ? 9 : column - 1, row, column == 1 ? 9 : column - 1, row);
        step(Arrow::Right);
        ExpectPointer(column == 9 ? 1 : column + 1, row, column == 9 ? 1 : column + 1, row);
    }
}

TEST_F(Mouse, PlainArrowMovesTheSelectionAndDropsTheHintMarks)
{
    PressOn(4, 7);
    Grid[1][1] = HintCellBit | HintDomainBit | SelectedBit;
    ChainColumns[0] = 2;
    ForgetRecord();
    StepSelection(Arrow::Right, 0);
    EXPECT_EQ(CellsWith(SelectedBit), "E7");
    EXPECT_EQ(CellsWith(HintCellBit | HintDomainBit), "");
    EXPECT_EQ(ChainColumns[0], 2) << "arrows leave a chain on the board";
    EXPECT_EQ(Seen.Calls, Texts{"board: "});
}

TEST_F(Mouse, ShiftArrowRemovesAndAnyOtherAdds)
{
    PressOn(4, 7);
    for (const std::int32_t shift : OtherThanShift) {
        StepSelection(Arrow::Up, shift);
    }
    EXPECT_EQ(CellsWith(SelectedBit), "D1 D2 D3 D4 D5 D6 D7");
    StepSelection(Arrow::Down, 1);
    EXPECT_EQ(CellsWith(SelectedBit), "D1 D3 D4 D5 D6 D7");
}

} // namespace
} // namespace kelvarine::testing
