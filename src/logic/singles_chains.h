// Singles chains: for one number, chains of strong links, each between the only two cells of a
// house that can hold it. The cells of a chain are true and false in turn. One of the two ends of
// a chain with an even number of cells holds the number, so a cell that sees both cannot; and when
// the ends of a chain with an odd number share a house, neither of them holds it.
#pragma once

#include "grid/cell_word.h"

#include <cstdint>

namespace kelvarine {

// Walks all chains of up to MaxSinglesLinks cells; all modes. Nothing happens with MaxSinglesLinks
// 0. Leaves, after a report alone, ScratchMark0 on the chain, and in modes 2 and 5 the chain in
// ChainColumns and ChainRows.
void SearchSinglesChains(std::int32_t mode, Flag &found);

} // namespace kelvarine
