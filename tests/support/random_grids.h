// Positions drawn at random for properties and comparisons: sound ones made from a solved grid,
// and absurd ones that no game ever reaches.
#pragma once

#include "grid/grid.h"

#include <random>

namespace kelvarine::testing {

// Where the candidates of a sound position stand.
enum class Pencilmarks : std::uint8_t {
    Clean, // no candidate clashes with a placed number
    Stale, // numbers are placed, their peers' pencilmarks were left as they were
};

// A position of a game with a solution: some cells givens, some placed, the others with
// candidates among which the solution's number always stands. Replaces Grid.
void SetSoundPosition(std::mt19937 &random, Pencilmarks marks);

// Words without any sense: all 32 bits at random, with few or many candidates, empty cells and
// contradictions. Replaces Grid.
void SetAbsurdPosition(std::mt19937 &random);

// Sets bits in about one cell of every oneIn, whatever it holds.
void ScatterBits(std::mt19937 &random, CellWord bits, unsigned oneIn);

} // namespace kelvarine::testing
