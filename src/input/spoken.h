// The board and the toolbar in words, for those who have them read to them.
#pragma once

#include "grid/houses.h"

#include <cstdint>
#include <optional>
#include <string>

namespace kelvarine {

// Cell at which the player is: the one under the pointer or the arrows, else the only selected one.
std::optional<Cell> SpokenPlace();

// The numbers of a cell that are in view: "5", "pencilmarks 2 7", or why none is told.
std::string SpokenNumbers(Cell cell);

// The color that the player has given to a cell, such as "cyan" or "frozen hint"; empty for none.
std::string SpokenColour(Cell cell);

// What a cell shows, such as "5, given, alert" or "pencilmarks 2 7, cyan". Its place is told by the
// headers of its lines. Numbers that are not in view are not told.
std::string SpokenCell(Cell cell);

// Where a cell is: "[A3], row 3 of 9, column 1 of 9, upper-left box".
std::string SpokenWhere(Cell cell);

// How much is selected: "9 cells selected, column A", "[B2] selected" or "no cells selected".
std::string SpokenSelection();

// What a button of the toolbar is called, which does not depend on the sign but for the button that
// sets it, and what a press on it would do now.
std::string SpokenTool(std::int32_t index);
std::string SpokenToolUse(std::int32_t index);

} // namespace kelvarine
