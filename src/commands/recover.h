// Games that were not closed, offered to the player.
#pragma once

namespace kelvarine {

// Asks for each game whose program has gone, the newest first, whether to go on with it, until the
// player wants one. It comes back modified; those that are not wanted are kept aside.
void OfferLostGames();

} // namespace kelvarine
