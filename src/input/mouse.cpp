#include "input/mouse.h"

#include "board/geometry.h"
#include "board/look.h"
#include "game/check_state.h"
#include "game/lifecycle.h"
#include "game/search.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "grid/rounding.h"
#include "input/selected_cells.h"
#include "outside/board.h"

#include <algorithm>
#include <bit>
#include <cassert>

namespace kelvarine {

std::int32_t ClickX;
std::int32_t ClickY;

namespace {

// Shift alone takes cells out of the selection, anything else takes them in.
void SelectCell(Cell cell, std::int32_t shift)
{
    if (shift == ShiftKey) {
        WordAt(cell) &= ~SelectedBit;
    } else {
        WordAt(cell) |= SelectedBit;
    }
}

void SetAnchor(Cell cell)
{
    AnchorColumn = cell.Column;
    AnchorRow = cell.Row;
}

void SetCursor(Cell cell)
{
    CursorColumn = cell.Column;
    CursorRow = cell.Row;
}

void PressCell(Cell cell, std::int32_t shift)
{
    if (shift == 0) {
        ClearCellBits(SelectionMarks);
    }
    ChainColumns[0] = 0;
    SetAnchor(cell);
    SetCursor(cell);
    SelectCell(cell, shift);
    DrawBoard();
}

// The cells between anchor and cursor, both included.
void SelectRectangle(std::int32_t shift)
{
    const auto [left, right] = std::minmax(AnchorColumn, CursorColumn);
    const auto [top, bottom] = std::minmax(AnchorRow, CursorRow);
    for (std::int32_t column = left; column <= right; ++column) {
        for (std::int32_t row = top; row <= bottom; ++row) {
            SelectCell(MakeCell(column, row), shift);
        }
    }
}

// The place-th number of a mask counted upward from 1; 0 when it has fewer.
std::int32_t NumberAtPlace(CellWord mask, int place)
{
    for (int k = 1; k < place; ++k) {
        mask &= mask - 1;
    }
    return mask == 0 ? 0 : std::countr_zero(mask);
}

// 0, 1 or 2 for the third of a side in which an offset lies.
int ThirdOf(int offset, int side)
{
    if (offset < side / 3) {
        return 0;
    }
    return offset >= 2 * side / 3 ? 2 : 1;
}

// Changes the selected cells that are no givens and hold a number; what follows a change follows,
// and the board is painted in any case.
template <typename Change>
void ChangeCellsWith(CellWord number, const Change &change)
{
    if (ChangeSelectedCells(
            [&](CellWord word) { return (word & number) == 0 ? word : change(word); })) {
        PushUndoState();
        ScanAndTestWin();
    }
    DrawBoard();
}

// The clicked cell only chooses the number; the selected cells lose it, but for their last one.
void StrikeOut(Cell cell, int x, int y)
{
    const std::int32_t number = NumberAtPoint(cell.Column, cell.Row, x, y);
    if (number == 0) {
        return;
    }
    const CellWord bit = BitOf(number);
    ChangeCellsWith(
        bit, [=](CellWord word) { return (word & CandidateMask) == bit ? word : word & ~bit; });
}

// One line on or back, from 9 round to 1 and the other way.
std::int32_t StepLine(std::int32_t line, int step)
{
    const std::int32_t next = line + step;
    if (next < 1) {
        return 9;
    }
    return next > 9 ? 1 : next;
}

} // namespace

void SetMouseDefaults()
{
    ClickX = 0;
    ClickY = 0;
}

void BoardPressed(std::int32_t button, std::int32_t shift, int x, int y)
{
    if (!ReadyForCommand()) {
        return;
    }
    ClickX = x;
    ClickY = y;
    ClearPointerState();
    const std::optional<Cell> cell = CellAt(x, y);
    if (!cell) {
        // The hint marks stay, unlike with a press on a cell.
        if (shift == 0) {
            ClearCellBits(SelectedBit);
        }
        DrawBoard();
        return;
    }
    if (button == RightButton) {
        StrikeOut(*cell, x, y);
    } else {
        PressCell(*cell, shift);
    }
    AssertStateIsSound();
}

void BoardDoubleClicked()
{
    if (IsBusy()) {
        return;
    }
    const std::optional<Cell> cell = CellAt(ClickX, ClickY);
    if (!cell || CountCandidates(cell->Column, cell->Row) < 2) {
        return;
    }
    const std::int32_t number = NumberAtPoint(cell->Column, cell->Row, ClickX, ClickY);
    if (number == 0) {
        return;
    }
    const CellWord bit = BitOf(number);
    ChangeCellsWith(bit, [=](CellWord word) { return (word & ~CandidateMask) | bit; });
    AssertStateIsSound();
}

std::int32_t NumberAtPoint(std::int32_t column, std::int32_t row, int x, int y)
{
    assert(IsLine(column) && IsLine(row));
    const CellWord candidates = CandidatesOf(MakeCell(column, row));
    const int count = std::popcount(candidates);
    const int acrossCell = x - CellX(column);
    const int downCell = y - CellY(row);
    if (count == 0) {
        return 0;
    }
    // With one number in view there is only one thing that a click can mean.
    if (count == 1 || std::popcount(NumberFilter & CandidateMask) == 1) {
        return NumberAtPlace(candidates & NumberFilter, 1);
    }
    switch (LayoutFor(count)) {
    case NumberLayout::Nine:
        return 1 + ThirdOf(acrossCell, CellWidth) + 3 * ThirdOf(downCell, CellHeight);
    case NumberLayout::Pair: {
        // The diagonal of the cell decides.
        const auto cut =
            static_cast<int>(RoundHalfEven(static_cast<double>(downCell) * CellWidth / CellHeight));
        return NumberAtPlace(candidates, acrossCell >= CellWidth - cut ? 2 : 1);
    }
    default: {
        const int across = acrossCell < CellWidth / 2 ? 1 : 2;
        const int down = downCell > CellHeight / 2 ? 2 : 0;
        return NumberAtPlace(candidates, across + down);
    }
    }
}

void BoardMoved(std::int32_t button, std::int32_t shift, int x, int y)
{
    if (button != LeftButton || IsBusy()) {
        return;
    }
    if (const std::optional<Cell> cell = CellAt(x, y)) {
        SetCursor(*cell);
        if (AnchorColumn == 0) {
            SetAnchor(*cell);
        }
    }
    // Before any cell was hit there is no rectangle; the board is painted all the same.
    if (AnchorColumn != 0) {
        SelectRectangle(shift);
    }
    DrawBoard();
    AssertStateIsSound();
}

void StepSelection(Arrow arrow, std::int32_t shift)
{
    if (shift == 0) {
        ClearCellBits(SelectionMarks);
    }
    switch (arrow) {
    case Arrow::Up:
        AnchorRow = StepLine(AnchorRow, -1);
        break;
    case Arrow::Down:
        AnchorRow = StepLine(AnchorRow, 1);
        break;
    case Arrow::Left:
        AnchorColumn = StepLine(AnchorColumn, -1);
        break;
    case Arrow::Right:
        AnchorColumn = StepLine(AnchorColumn, 1);
        break;
    }
    const Cell reached = MakeCell(std::max(AnchorColumn, 1), std::max(AnchorRow, 1));
    SetAnchor(reached);
    SetCursor(reached);
    SelectCell(reached, shift);
    DrawBoard();
}

} // namespace kelvarine
