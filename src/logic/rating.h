// How hard a game is: the highest level among the techniques that its full solution needed.
#pragma once

#include <cstdint>
#include <string_view>

namespace kelvarine {

// Works out GameRating for Grid: 7 without a solution, 6 with several, else the highest level
// used, or 5 when nothing had to be used. Writes the solution into SolutionMask of every cell of
// a game with one solution that has none yet. Leaves SolutionCount and UsedMask; everything else
// is as before.
void RateGame();

// Shows the techniques that the game needs, with its rating.
void mnuShowLogicNeeded();

// Word of a rating 0..7 as the report shows it; empty for any other value.
std::string_view RatingWord(std::int32_t rating);

} // namespace kelvarine
