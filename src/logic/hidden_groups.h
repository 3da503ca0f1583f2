// Hidden groups: so many numbers that occur in as many cells of a house, so that those cells can
// hold nothing else.
#pragma once

#include "grid/cell_word.h"

#include <cstdint>

namespace kelvarine {

// Hidden singles to quads by size 1..4; another size searches as 4 and is named by its number. All
// modes. Leaves the members of the last visits in the work list.
void FindHiddenGroup(std::int32_t mode, Flag &found, std::int32_t size);

} // namespace kelvarine
