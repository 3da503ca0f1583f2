// What the New Games tab does to the player's wishes for the games to come. None of it acts before
// the next game is made.
#pragma once

#include "configure/logic_settings.h"
#include "grid/cell_word.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace kelvarine {

// Captions of the levels, 1..5; element 0 is not used.
extern const std::array<std::string_view, Levels + 1> DifficultyCaptions;

// True when games of a level, 1..5, are accepted.
bool AcceptsLevel(std::int32_t level);

// Makes the accepted levels anew out of the five boxes; element 0 is not used.
void SetAcceptedLevels(const std::array<bool, Levels + 1> &boxes);

} // namespace kelvarine
