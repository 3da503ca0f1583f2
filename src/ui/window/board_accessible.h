// The board as assistive tools see it: a table of 81 cells with their words, of which one has the
// player's attention, and a header for each column and row.
#pragma once

#include "grid/houses.h"

namespace kelvarine {

// Makes the toolkit describe the board widget this way. Further calls do nothing.
void DescribeBoardToTools();

// Places among the children of the board: the cells row by row, then the headers of the columns,
// then those of the rows. A line is 1..9.
int ChildOf(Cell cell);
int ChildOfHeader(HouseKind kind, int line);

} // namespace kelvarine
