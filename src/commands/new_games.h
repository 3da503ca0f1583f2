// The commands that make a new game, at random or by number.
#pragma once

namespace kelvarine {

// Checks the settings of making, tells or asks about those that cannot work, and searches for a
// game. Stopped by the player, the game of before is back with its history, name and rating.
void mnuGameRandom();

// Asks for a number and makes the game of that number under the settings as they are.
void UserSelectedGame();

// Fills the pencilmarks of a game just made, when the settings ask for them or for logic.
void FillIfWished();

} // namespace kelvarine
