// What the New Games tab does to the player's wishes for the games to come. None of it acts before
// the next game is made.
#pragma once

#include "grid/rating_words.h"

#include <array>
#include <cstdint>
#include <string>

namespace kelvarine {

// Caption of the box of a level, 1..5.
std::string DifficultyCaption(std::int32_t level);

// Makes the accepted levels anew out of the five boxes; element 0 is not used.
void SetAcceptedLevels(const std::array<bool, Levels + 1> &boxes);

} // namespace kelvarine
