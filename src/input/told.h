// What happens on the board in words, for those who have it read to them: told once, by comparing
// what is there with what was there at the last look.
#pragma once

#include "grid/houses.h"

#include <cstdint>
#include <optional>
#include <string>

namespace kelvarine {

// What a listener should be told of the cell at which the player is.
enum class PlaceChange : std::uint8_t {
    None,
    Place, // the player is at another cell, or comes to the board
    Text   // the cell shows something else
};

// What a listener should be told of the selection: that it is now the cell at which the player has
// been, or anything else. A step that selects the cell reached is told as a step alone.
enum class SelectionChange : std::uint8_t { None, One, Many };

struct Told {
    PlaceChange Place = PlaceChange::None;
    SelectionChange Selection = SelectionChange::None;
    std::string Words; // such as "5; alert: naked single"; empty for nothing
};

// Makes the next look the first one, which tells of nothing but the place.
void SetToldDefaults();

// The player has come to the board: the next look tells where he is, and if he is at no cell that
// the place is the board.
void TellPlaceAgain();

// What is to be told since the last look. The sign of the toolbar is not told while it follows a
// modifier key that is held. Leaves all tables as they are.
Told NextTold(bool signFollowsKey);

// What is to be told of a search for a game, now that the clock of SteadySeconds shows this: that
// it runs, and later, at most every ten seconds, how many games were screened. Empty for nothing.
std::string NextToldOfSearch(double seconds);

// What is to be told of any other run of the logic that keeps the player waiting: once for each,
// that a key asks whether to stop it. Empty for nothing.
std::string NextToldOfLongRun();

} // namespace kelvarine
