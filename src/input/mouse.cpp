#include "input/mouse.h"

#include "board/board.h"
#include "board/geometry.h"
#include "game/lifecycle.h"
#include "grid/grid.h"
#include "input/keys.h"

#include <algorithm>

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
    if (button != RightButton) {
        PressCell(*cell, shift);
    }
}

void BoardMoved(std::int32_t button, std::int32_t shift, int x, int y)
{
    if (button != LeftButton || SearchActive != False) {
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
