// The parts of the board as assistive tools see them: its cells and the headers of its lines.
#pragma once

#include "grid/houses.h"

#include <cstdint>

class QAccessibleInterface;

namespace kelvarine {

// The description of the board, which owns those of its parts; null without a window.
QAccessibleInterface *BoardInterface();

// Does, as soon as the tool that asks for it has its answer, what a press of the left button on a
// cell and a drag to another do with a modifier sum. The keyboard goes to the board.
void DragOverCells(Cell first, Cell last, std::int32_t modifiers);

// Makes the description of a cell: its words, where it is, whether it is selected, and actions that
// go there as a press of the left button does, or take it into the selection and out again.
QAccessibleInterface *DescribeCell(Cell cell);

// Makes the description of the header of a column or a row, 1..9.
QAccessibleInterface *DescribeHeader(HouseKind kind, int line);

} // namespace kelvarine
