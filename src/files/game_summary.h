// A game in a file, told in short without touching the game in hand.
#pragma once

#include "grid/grid.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace kelvarine {

struct GameSummary {
    GridTable Cells{};
    std::int32_t Givens = 0;
    std::int32_t Rating = 0; // as GameRating; 0 when nobody could rate it now
    double Seconds = -1;     // played; below 0 for a text, which tells no time
};

// What the contents of a file tell; none when they are no game. The game is rated by the player's
// levels, unless the logic is at work on something else. All state is as before.
std::optional<GameSummary> SummaryOf(std::string_view contents);

} // namespace kelvarine
