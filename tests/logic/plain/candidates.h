// The count of candidates in its plain form, for the plain forms of the techniques.
#pragma once

#include "grid/grid.h"

namespace kelvarine::testing::plain {

// Number of candidates of a cell, by clearing the lowest one until none is left.
inline int CandidateCount(int column, int row)
{
    CellWord rest =
        Grid[static_cast<std::size_t>(column)][static_cast<std::size_t>(row)] & CandidateMask;
    int count = 0;
    while (rest != 0) {
        rest &= rest - 1;
        ++count;
    }
    return count;
}

} // namespace kelvarine::testing::plain
