// For every house the numbers that occur in it once and those that occur more often, as masks.
// The fast searches look here before they walk a house.
#pragma once

#include "grid/grid.h"

#include <array>

namespace kelvarine {

struct Tally {
    CellWord Once = 0;  // numbers in at least one counted cell
    CellWord Twice = 0; // numbers in at least two

    constexpr void Add(CellWord word)
    {
        Twice |= Once & word & CandidateMask;
        Once |= word & CandidateMask;
    }

    // Numbers in exactly one counted cell.
    [[nodiscard]] constexpr CellWord Single() const
    {
        return Once & ~Twice;
    }
};

using HouseTallies = std::array<Tally, 27>;

} // namespace kelvarine
