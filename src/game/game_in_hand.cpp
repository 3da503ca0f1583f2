#include "game/game_in_hand.h"

#include "grid/history.h"
#include "logic/rating.h"

#include <cassert>

namespace kelvarine {

const GameInHand *GameAside = nullptr;

GameInHand::GameInHand()
{
    assert(GameAside == nullptr);
    GameAside = this;
}

GameInHand::~GameInHand()
{
    GameAside = nullptr;
}

void GiveBack(const GameInHand &game)
{
    Grid = game.Cells;
    History = game.Levels;
    HistoryCount = game.Count;
    HistoryPosition = game.Position;
    GameModified = game.Modified;
    ChainColumns = game.Columns;
    ChainRows = game.Rows;
}

void BringBack(const GameInHand &game)
{
    GiveBack(game);
    CountGivens();
    RateGame();
    // The rating runs techniques, too.
    ChainColumns = game.Columns;
    ChainRows = game.Rows;
}

} // namespace kelvarine
