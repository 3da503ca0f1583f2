// XY-chains and XY-wings: chains of cells with two candidates. A chain starts in a cell with the
// number N, leaves it by its other candidate and runs on from cell to cell; when the candidate
// carried out of the last cell is N again, one of the two ends holds N, and a cell that sees both
// cannot.
#pragma once

#include "grid/cell_word.h"

#include <cstdint>

namespace kelvarine {

// Acts on the chains of minCells to maxCells cells in the order of a depth-first walk; all modes.
// Nothing happens with maxCells below 2. With minCells above 2 the time grows with the number of
// chains, so maxCells must be small then; otherwise it does not.
// Leaves ScratchMark1 on the cells with two candidates, less those that lost one in mode 0, and
// after a report also ScratchMark2 on the chain, and the chain in ChainColumns and ChainRows.
void SearchXYChains(std::int32_t mode, std::int32_t minCells, std::int32_t maxCells, Flag &found);

// Chains of up to MaxXYLinks cells as the alert scan asks for them: in mode 1 all, in the others
// those of the shortest length of which one hits anything, so that the player is told the shortest
// chain first. The scan asks in modes 1 to 5; mode 0 removes what such a chain hits.
void ScanXYChains(std::int32_t mode, Flag &found);

} // namespace kelvarine
