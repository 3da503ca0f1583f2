// The board in words, for those who have it read to them.
#pragma once

#include "grid/houses.h"

#include <cstdint>
#include <optional>
#include <string>

namespace kelvarine {

// Cell at which the player is: the one under the pointer or the arrows, else the only selected one.
std::optional<Cell> SpokenPlace();

// What a cell shows, such as "[A1]: 5, given, alert" or "[B2]: pencilmarks 2 7". Numbers that are
// not in view are not told.
std::string SpokenCell(Cell cell);

// What a listener should hear since the last time that this was asked.
enum class SpokenChange : std::uint8_t {
    None,
    Place, // the player is at another cell
    Text   // the cell shows something else
};
SpokenChange NextSpokenChange();

} // namespace kelvarine
