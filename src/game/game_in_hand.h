// The game in hand put aside: what a search for other games may touch, and must give back when no
// new game takes its place.
#pragma once

#include "generator/game_number.h"
#include "grid/grid.h"
#include "grid/history.h"

#include <array>
#include <cstdint>

namespace kelvarine {

// A copy of the game, taken when it is made. The history is part of it, since the logic that is
// applied to new games records undo states, also for games that are thrown away; so is the chain,
// since the techniques use its lists as their own. Too large for the stack.
struct GameInHand {
    GameInHand();
    GameInHand(const GameInHand &) = delete;
    GameInHand &operator=(const GameInHand &) = delete;
    ~GameInHand();

    GridTable Cells = Grid;
    std::array<GridTable, HistorySlots> Levels = History;
    std::int32_t Count = HistoryCount;
    std::int32_t Position = HistoryPosition;
    Flag Modified = GameModified;
    std::int32_t Number = GameNumber;
    decltype(ChainColumns) Columns = ChainColumns;
    decltype(ChainRows) Rows = ChainRows;
};

// The copy that stands at the moment; null while the game in hand is on the board.
extern const GameInHand *GameAside;

// Puts a copy in the place of what stands there now, but for the number, which is that of the game
// chosen last; BringBack counts and rates it, too.
void GiveBack(const GameInHand &game);
void BringBack(const GameInHand &game);

} // namespace kelvarine
