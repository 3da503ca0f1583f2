// The one engine behind solving, rating, counting and listing solutions: it runs the selected
// techniques on Grid, cheapest first, and adds trial and error on top when the mask asks for it.
#pragma once

#include "grid/grid.h"

#include <cstdint>
#include <functional>

namespace kelvarine {

inline constexpr std::int32_t SolveAsPlayer = 0;   // the player's techniques on the player's grid
inline constexpr std::int32_t SolveForPlayer = 1;  // solve the game
inline constexpr std::int32_t SolveForRating = 2;  // solve without an undo state
inline constexpr std::int32_t CountSolutions = 3;  // count up to 2, grid restored
inline constexpr std::int32_t ListSolutions25 = 4; // list up to 25, grid restored

inline constexpr std::int32_t MostSolutionsListed = 25;

inline constexpr std::int32_t Solved = -1;
inline constexpr std::int32_t NotSolved = 0;
inline constexpr std::int32_t Stopped = -2;

// What the driver runs for while SearchActive.
inline constexpr std::int32_t NotStoppable = 0;
inline constexpr std::int32_t SearchingGame = 1;
inline constexpr std::int32_t ListingSolutions = 4;
extern std::int32_t SearchKind;

// True when a run has lasted so long that it can be stopped whatever SearchKind says; stands until
// the next run starts.
inline constexpr double LongRunSeconds = 2;
extern Flag RunIsLong;

// True from the start of a run to its end, also after it was told to stop. What is to be done when
// it has ended is handed to the event loop then, or when the run becomes long and can be asked
// about.
extern Flag RunUnderWay;
extern std::function<void()> AfterRun;

// Hands AfterRun to the event loop, if there is one.
void DoAfterRun();

// Set when the player has agreed to stop a search; cleared by the search for a game, which asks for
// it. It outlasts SearchActive, which every run of the driver sets anew.
extern Flag StopRequested;

// Puts the state above to its defaults.
void SetDriverDefaults();

// Runs the techniques of SolveMask and LevelTable on Grid; mode is one of the five above. Returns
// Solved when a solved grid was reached in modes 0..2, Stopped when SearchActive was cleared from
// outside, and NotSolved otherwise. Leaves UsedMask and SolutionCount; modes 3 and 4, and every
// search that finds nothing to try, restore the grid from the safe copy in History slot 102. A
// stopped search leaves the grid as it is. Modes 0 and 1 push an undo state when they end on a
// grid that a technique changed; mode 0 tells the player when there is no solution.
std::int32_t ApplyLogic(std::int32_t mode);

// The same, but after mostPasses passes it ends as a search that has tried everything.
std::int32_t ApplyLogicWithin(std::int64_t mostPasses, std::int32_t mode);

// Paints the board anew when a long run has left a banner there, and tells whether it has.
bool TakeBannerAway();

// Parts of a run, for those that are not walked: the state that a run starts with and ends with,
// the grid as it was at the start, and the numbers on the grid as one more solution of
// SolutionList.
void StartRun();
void EndRun();
void RestoreSafeCopy();
void RecordSolution();

} // namespace kelvarine
