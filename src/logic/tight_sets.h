// Sets of numbers that have no more places in a house than they are many: a strong conclusion for
// positions on which plain ones lead a search astray.
#pragma once

#include "logic/number_board.h"

namespace kelvarine {

// Takes the places of each such set from all other numbers, house by house, and the conclusions of
// Conclude after it, until nothing changes. False when this shows that there is no filling. The
// board must be as Conclude left it. That a house can be filled exactly when no set of numbers has
// too few places is the theorem of Hall (1935).
bool ConcludeByTightSets(NumberBoard &board);

} // namespace kelvarine
