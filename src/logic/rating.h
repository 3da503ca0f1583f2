// How hard a game is: the highest level among the techniques that its full solution needed.
#pragma once

namespace kelvarine {

// Works out GameRating for Grid: 7 without a solution, 6 with several, else the highest level
// used, or 5 when nothing had to be used. Writes the solution into SolutionMask of every cell of
// a game with one solution that has none yet. Leaves SolutionCount, and in UsedMask
// what the solving of a game with one solution used; everything else is as before.
void RateGame();

// Leaves in UsedMask what counting uses that goes by logic and trial and error on Grid; for games
// with several solutions, of which no logic tells more. A count that goes on for long is broken
// off, and tells what it has used by then. Everything else is as before.
void FindLogicOfCount();

} // namespace kelvarine
