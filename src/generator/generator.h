// Making games: a random solved grid, cells taken out of it under a pattern as long as one
// solution stays, and the screening against the player's wishes.
#pragma once

#include "grid/cell_word.h"
#include "grid/rating_words.h"

#include <cstdint>

namespace kelvarine {

// Settings, kept in the configuration file.
extern std::int32_t RevealPattern;        // see patterns.h; default 5
extern std::uint32_t DifficultySelection; // bit n for level n, 1..5; default easy alone
extern std::int32_t MinGivens;            // default 17
extern std::int32_t MaxGivens;            // default 40
extern Flag FillOnStart;                  // fill all pencilmarks of a new game in
extern Flag SolveOnStart;                 // run the selected logic on a new game

// Removal runs of the search under way; shown on the banner, reset by the caller.
extern std::int32_t GamesScreened;

// Puts the state above to its defaults.
void SetGeneratorDefaults();

// The bits of DifficultySelection that stand for a level.
inline constexpr std::uint32_t LevelBits = BitOf(Levels + 1) - BitOf(RatedEasy);

// True when games of a level, 1..5, are accepted.
bool AcceptsLevel(std::int32_t level);

// Fills Grid with a random complete solution: GivenBit and one bit of SolutionMask in each word.
void MakeSolvedGrid();

// Takes cells out of the solved grid, each group of partners in its one turn, as long as one
// solution stays. False when the player stopped the search. Leaves SolveMask at CountingMask, which
// is GenerateGame's to put back.
bool RemoveCells();

// Makes games until one passes the settings, and leaves it on Grid. False when the player stopped
// the search; the grid of before is lost either way.
bool GenerateGame();

} // namespace kelvarine
