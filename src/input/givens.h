// The commands that change the puzzle itself: givens of the selected cells are hidden, placed
// numbers become givens.
#pragma once

namespace kelvarine {

// Empties the selected givens, all of them.
void mnuHideSelectedCellsForce();

// Empties the selected givens that the game can do without: in scan order, each one whose absence
// leaves the game its one solution. Rates the game once for each; that cannot be stopped.
void mnuHideSelectedCellsConditional();

// Turns the selected cells that hold one number into givens, after a question.
void mnuMakeGiven();

} // namespace kelvarine
