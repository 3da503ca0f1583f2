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

    // Adds the cells of another tally, none of which is in this one.
    constexpr void Merge(const Tally &other)
    {
        Twice |= other.Twice | (Once & other.Once);
        Once |= other.Once;
    }

    // Numbers in exactly one counted cell.
    [[nodiscard]] constexpr CellWord Single() const
    {
        return Once & ~Twice;
    }
};

// One for each house, in the order of Houses.
using HouseTallies = std::array<Tally, 27>;

// Tallies all houses at once. value(index, word) says which numbers count for the cell at a place
// 0..80 of the scan. Columns and boxes are put together from the runs of three cells that they
// share.
template <typename Value>
HouseTallies TallyHouses(const Value &value)
{
    HouseTallies tallies{};
    Tally *const rows = &tallies[9];
    std::size_t index = 0;
    for (std::size_t column = 0; column < 9; ++column) {
        for (std::size_t band = 0; band < 3; ++band) {
            Tally run;
            for (std::size_t row = 3 * band; row < 3 * band + 3; ++row, ++index) {
                const CellWord numbers = value(index, Grid[column + 1][row + 1]);
                run.Add(numbers);
                rows[row].Add(numbers);
            }
            tallies[column].Merge(run);
            tallies[18 + column / 3 * 3 + band].Merge(run);
        }
    }
    return tallies;
}

} // namespace kelvarine
