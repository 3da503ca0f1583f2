// A quick proof that a position has no solution, for the walks through all trials that would take
// minutes to come to the same end.
#pragma once

#include "grid/grid.h"

namespace kelvarine {

// True when no choice of the cells' candidates fills a grid by the rules. False when there is a
// solution, and also when the search gave up after some seconds' work without an answer. Nothing
// is changed.
bool IsProvenUnsolvable(const GridTable &grid);

} // namespace kelvarine
