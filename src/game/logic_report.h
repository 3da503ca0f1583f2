// What logic a game needs, told to the player.
#pragma once

namespace kelvarine {

// Shows the techniques that the game needs, with its rating.
void mnuShowLogicNeeded();

} // namespace kelvarine
