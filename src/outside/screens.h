// The screens beside the board: opened, brought to the front, brought up to date.
#pragma once

#include <cstdint>

namespace kelvarine {

// Opens the statistics screen, or brings it to the front.
void ShowStatisticsScreen();

// Brings the labels of the statistics screen up to date, when it is open.
void RefreshStatisticsScreen();

// Opens the solutions screen, or brings it to the front. It never waits.
void ShowSolutionsScreen();

// Brings text, count and format of the solutions screen up to date, when it is open.
void RefreshSolutionsScreen();

// Tells that SolutionCount has gone up while solutions are listed. Takes it into the words of the
// solutions screen and brings these alone up to date, when it is open.
void ShowSolutionCount();

// Shows name, version and licence of the program until the player has read them.
void ShowAboutScreen();

// Opens the configuration screen on CurrentTab, or switches it there and brings it up.
void ShowConfigureScreen();

// Moves the bar of the margin's thickness, 0..100, on the open configuration screen, as the player
// would; its change sets MarginThickness and lays the window out anew. Nothing while the screen is
// closed.
void MoveMarginBar(std::int32_t thickness);

} // namespace kelvarine
