// A game to play with, and all the state that a command of the player may change, so that two
// ways to the same command can be compared.
#pragma once

#include "grid/grid.h"

#include <string>
#include <string_view>
#include <vector>

namespace kelvarine::testing {

// A game that singles solve, and its one solution.
inline constexpr std::string_view EasyGame = R"(
    53..7....
    6..195...
    .98....6.
    8...6...3
    4..8.3..1
    7...2...6
    .6....28.
    ...419..5
    ....8..79
)";

inline constexpr std::string_view EasySolution = R"(
    534678912
    672195348
    198342567
    859761423
    426853791
    713924856
    961537284
    287419635
    345286179
)";

// The fields of a word that stay as the player left them until the player changes them.
inline constexpr CellWord LastingFields = GivenBit | CandidateMask;

// Starts a game with all pencilmarks as a new one that counts as saved, and forgets what was
// recorded so far.
void StartSavedGame(std::string_view drawing);

// Forgets what was recorded, and keeps the scripts, the clock and the clipboard.
void ForgetRecord();

// The recorded calls in order, without those that only bring captions up to date.
std::vector<std::string> Acts();

// Everything that a command may change, as one text of which each line names its piece.
std::string ProgramState();

// So many empty cells as text.
std::string Dots(std::size_t count);

// The 81 words of two grids, compared in some fields.
bool SameCells(const GridTable &a, const GridTable &b, CellWord fields = ~CellWord{0});

// A level of the history, 1 the newest.
GridTable &Level(std::int32_t level);

} // namespace kelvarine::testing
