// Intersections: when all places of a number in one house lie in a second house as well, the
// number can go from the rest of the second one.
#pragma once

#include "grid/cell_word.h"

#include <cstdint>

namespace kelvarine {

// All six pairings of column, row and box. All modes. Leaves the cells of the last visits in the
// work list.
void FindIntersections(std::int32_t mode, Flag &found);

} // namespace kelvarine
