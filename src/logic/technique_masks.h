// The techniques by name, and the sets of them that stand in SolveMask for one operation. All else
// that is told of a technique stands in its row of logic/technique_table.h.
#pragma once

#include <cstdint>
#include <initializer_list>

namespace kelvarine {

// Number of each technique: its bit in every mask, its row on the Logic tab, and its place in the
// order in which those of one level are tried.
enum TechniqueNumber : std::int32_t {
    NakedSingle = 1,
    HiddenSingle,
    NakedPair,
    HiddenPair,
    NakedTriple,
    HiddenTriple,
    NakedQuad,
    HiddenQuad,
    Intersection,
    XWing,
    Swordfish,
    Jellyfish,
    XYWing,
    RemotePairs,
    XYChain,
    XYZWing,
    HingeWing,
    SinglesChain,
};

// The mask of some techniques.
constexpr std::uint32_t MaskOf(std::initializer_list<TechniqueNumber> techniques)
{
    std::uint32_t mask = 0;
    for (const TechniqueNumber technique : techniques) {
        mask |= std::uint32_t{1} << technique;
    }
    return mask;
}

// Trial and error, which is no technique but stands in the masks like one.
inline constexpr std::uint32_t TrialBit = std::uint32_t{1} << 30;

inline constexpr std::uint32_t SinglesMask = MaskOf({NakedSingle, HiddenSingle});

// What counts the solutions of a position, what lists them, and what rates a game: everything.
inline constexpr std::uint32_t CountingMask =
    SinglesMask | MaskOf({NakedPair, Intersection}) | TrialBit;
inline constexpr std::uint32_t ListingMask = SinglesMask | TrialBit;
inline constexpr std::uint32_t RatingMask = ~std::uint32_t{0};

} // namespace kelvarine
