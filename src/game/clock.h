// The clock of the game, shown as the caption of the last menu.
#pragma once

#include "grid/cell_word.h"

#include <string>

namespace kelvarine {

extern double SolveSeconds;      // seconds played, kept in the game file
extern Flag ClockRunning;        // whether tmrSolveTime is enabled
extern std::string TimeCaption;  // caption of mnuTime
extern std::string PauseCaption; // caption of mnuPauseTime: "Pause" or "Resume"

// Puts the state above to its defaults.
void SetClockDefaults();

// True while the caption of mnuPauseTime says that the game is paused; hides the numbers.
bool IsPaused();

// Sets SolveSeconds to 0 and starts the clock; the caption follows at the next tick.
void ResetSolveTime();

// Stops the clock with "Solved at " in front of the time; a clock that stands keeps its caption.
void StopClockAtWin();

// Brings the caption in line with the time of a game that has come back: as it stands, or with
// "Solved at " in front of it where the clock stands.
void ShowTimeOfGame();

// One second has passed.
void ClockTick();

// A time in seconds as the caption shows it: "0:05 " or "1:02:03 ". Any number will do.
std::string TimeText(double solveSeconds);

void mnuPauseTime();
void mnuResetTime();

} // namespace kelvarine
