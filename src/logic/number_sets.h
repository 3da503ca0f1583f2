// The sets of one to four numbers out of nine, in the order in which the searches take them: as
// ascending tuples, the smallest number the slowest. The same sets serve as selections of lines.
#pragma once

#include "grid/cell_word.h"

#include <array>
#include <cstdint>
#include <span>

namespace kelvarine {

// All sets of Size numbers as masks in the shape of CandidateMask; Count is how many there are.
template <int Size, std::size_t Count>
inline constexpr auto SetsOfSize = [] {
    std::array<CellWord, Count> sets{};
    std::size_t next = 0;
    // With number 1 as the highest of nine bits that order is the descending one.
    for (std::uint32_t mirrored = 512; mirrored-- > 0;) {
        CellWord set = 0;
        for (std::uint32_t number = 1; number <= 9; ++number) {
            set |= (mirrored >> (9 - number) & 1U) << number;
        }
        if (CandidatesIn(set) == Size) {
            sets[next++] = set;
        }
    }
    return sets;
}();

// The sets of size numbers; any size but 1..4 is taken as 4.
constexpr std::span<const CellWord> NumberSets(std::int32_t size)
{
    switch (size) {
    case 1:
        return SetsOfSize<1, 9>;
    case 2:
        return SetsOfSize<2, 36>;
    case 3:
        return SetsOfSize<3, 84>;
    default:
        return SetsOfSize<4, 126>;
    }
}

} // namespace kelvarine
