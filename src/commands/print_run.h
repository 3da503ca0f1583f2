// Printing the current game, and batches of new games with their solutions.
#pragma once

#include "grid/cell_word.h"

#include <cstdint>
#include <string>

namespace kelvarine {

extern Flag PrintRunning;            // a batch is being made and printed
extern Flag BatchUnderWay;           // until its document has been handed over, too
extern std::int32_t PrintGameNumber; // the game of the batch that is being made, from 1
extern std::int32_t PrintGameCount;  // games of the batch

// Puts the state above to that of a start.
void SetPrintRunDefaults();

// Prints what PrintMode asks for. While a batch runs, asks whether to stop it instead; while
// another search runs, does what any command does then. When a batch ends, by itself, stopped or
// with a failure, the game in hand is back.
void cmdPrint();

// How far the batch is: " Game 3 of 12 ".
std::string BatchProgressText();

} // namespace kelvarine
