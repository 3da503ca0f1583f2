// The commands that begin again.
#pragma once

namespace kelvarine {

// Begins an empty game, after the question about the game in hand.
void mnuGameBlankGrid();

// Begins the same game from its start position, after a question of its own.
void mnuRestartSameGame();

} // namespace kelvarine
