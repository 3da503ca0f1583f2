// What logic a game needs, told to the player.
#pragma once

#include <cstdint>
#include <string_view>

namespace kelvarine {

// Shows the techniques that the game needs, with its rating.
void mnuShowLogicNeeded();

// Word of a rating 0..7 as the report shows it; empty for any other value.
std::string_view RatingWord(std::int32_t rating);

} // namespace kelvarine
