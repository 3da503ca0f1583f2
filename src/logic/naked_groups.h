// Naked groups: so many numbers that as many cells of a house share among themselves, so that no
// other cell of the house can hold them.
#pragma once

#include "grid/cell_word.h"

#include <cstdint>

namespace kelvarine {

// Takes the numbers of every naked pair out of the other cells of its house, givens included.
// Mode 0 only.
void ApplyNakedPairs(std::int32_t mode, Flag &found);

// Naked singles to quads by size 1..4; another size searches as 4 and is named by its number. All
// modes. Size 1 is a number that clashes with a candidate in its house. More cells than numbers
// are a contradiction, and then the members themselves are targets. Leaves ScratchMark2 on the
// cells that can be members, and the members of the last visits in the work list.
void FindNakedGroup(std::int32_t mode, Flag &found, std::int32_t size);

} // namespace kelvarine
