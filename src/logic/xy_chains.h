// XY-chains and XY-wings: chains of cells with two candidates. A chain starts in a cell with the
// number N, leaves it by its other candidate and runs on from cell to cell; when the candidate
// carried out of the last cell is N again, one of the two ends holds N, and a cell that sees both
// cannot.
#pragma once

#include "grid/cell_word.h"

#include <cstdint>

namespace kelvarine {

// Walks all chains of minCells to maxCells cells; all modes. Nothing happens with maxCells below 2.
// Leaves ScratchMark1 on the cells with two candidates, less those that lost one in mode 0, and
// after a report also ScratchMark2 on the chain, and the chain in ChainColumns and ChainRows.
void SearchXYChains(std::int32_t mode, std::int32_t minCells, std::int32_t maxCells, Flag &found);

// Chains of up to MaxXYLinks cells as the alert scan asks for them: in mode 1 in one search, in the
// other modes one search for each length from 2 on until there is a text, so that the player is
// told the shortest chain first.
void ScanXYChains(std::int32_t mode, Flag &found);

} // namespace kelvarine
