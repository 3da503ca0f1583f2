// Remote pairs: chains of peers that all hold the same two candidates. Cells at an odd distance
// along such a chain carry opposite values, so a cell that sees both ends of a chain with an even
// number of cells can hold neither number.
#pragma once

#include "grid/cell_word.h"

#include <cstdint>

namespace kelvarine {

// Acts on the chains of up to MaxRPLinks cells in the order of a depth-first walk; all modes.
// Nothing happens with MaxRPLinks 0. Leaves ScratchMark0 on the cells that had two candidates at
// the start of the call; after a report also ScratchMark1 on the chain and ScratchMark2 on the
// domain of its first cell, and the chain in ChainColumns and ChainRows.
void SearchRemotePairs(std::int32_t mode, Flag &found);

} // namespace kelvarine
