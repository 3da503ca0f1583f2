// The chain or pattern that a hint or a reason has left on the board, as a series of cells that can
// be walked along.
#pragma once

#include "grid/houses.h"

#include <string>
#include <vector>

namespace kelvarine {

// Its cells: those of the chain in order, else those that bear the mark of a hint, row by row; none
// when there is neither.
std::vector<Cell> PatternCells();

// What a cell is in it, such as "cell 3 of 7 of the chain, number 4" or "cell 1 of 2 of the
// pattern"; empty for a cell that is not in it.
std::string SpokenInPattern(Cell cell);

// All of it: "chain of 3 cells: [A1] 4, [B1] 4, [B7] 4" or "pattern: [A1] [A2]"; empty for none.
std::string SpokenPattern();

// Goes to the next cell of it, or to the one before, and from the last to the first. From a cell
// that is not in it the way goes to its beginning or its end. Selection and marks stay. Without a
// pattern nothing happens.
void StepInPattern(bool onward);

} // namespace kelvarine
