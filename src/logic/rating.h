// How hard a game is: the highest level among the techniques that its full solution needed.
#pragma once

namespace kelvarine {

// Works out GameRating for Grid: 7 without a solution, 6 with several, else the highest level
// used, or 5 when nothing had to be used. Writes the solution into SolutionMask of every cell of
// a game with one solution that has none yet. Leaves SolutionCount and UsedMask; everything else
// is as before.
void RateGame();

} // namespace kelvarine
