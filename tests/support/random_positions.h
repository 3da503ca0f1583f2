// Positions at random, for comparing a fast form of the logic with a plain one and for rules that
// must hold on any grid.
#pragma once

#include "support/solution_counter.h"

#include <array>
#include <cstdint>
#include <random>
#include <string>

namespace kelvarine::testing {

enum class PositionKind : std::uint8_t {
    Sound,    // candidates follow from the numbers; some wrong ones are gone, never the right one
    Stale,    // as Sound, but the candidates of an earlier position still stand
    Clashing, // a solved grid with numbers repeated, cells emptied and candidates thrown in
    Absurd,   // words at random in all 32 bits
};

inline constexpr std::array PositionKinds{PositionKind::Sound, PositionKind::Stale,
                                          PositionKind::Clashing, PositionKind::Absurd};

// A complete grid as 81 digits, row by row.
std::string DrawSolution(std::mt19937 &random);

// A game of so many givens, taken from a complete grid, as 81 marks. It has at least that
// solution.
std::string DrawGame(std::mt19937 &random, int givens);

// Puts a position on Grid in which about open cells, 0..81, do not hold a number. Of a number that
// stands, about three in four are givens. Cells may be selected and carry marks and colours.
// Returns the complete grid it was made from; only Sound and Stale positions agree with it.
Solution SetRandomPosition(std::mt19937 &random, PositionKind kind, int open);

} // namespace kelvarine::testing
