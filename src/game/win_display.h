// The display after a win: the board runs through seven stages of moving colours until a key, a
// click or a menu ends it.
#pragma once

#include "grid/cell_word.h"
#include "grid/colour.h"

#include <array>
#include <cstdint>

namespace kelvarine {

extern std::int32_t WinStage;             // 0..7
extern std::array<Colour, 10> WinColours; // 1..9 used
extern Flag WinColoursSet;                // false until one of them is first written
extern Flag WinDisplayRunning;            // whether tmrGameWon is enabled

// Puts the state above to its defaults.
void SetWinDisplayDefaults();

// Starts the display at the stage before the first.
void StartWinDisplay();

// When the display runs: ends it, stops the sound and paints the board.
void StopWinDisplay();

// One firing of the display's timer.
void WinDisplayTick();

// A number from 0 up to but not including 1 from the platform's plain random function. The games'
// own random stream is not touched.
double RandomFraction();

} // namespace kelvarine
