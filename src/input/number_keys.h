// What a number means: one operation in which the keyboard, the toolbar and the menus all end.
#pragma once

#include "grid/cell_word.h"

#include <cstdint>

namespace kelvarine {

// What a number does.
inline constexpr std::int32_t EditMode = 0;              // candidates of the selected cells
inline constexpr std::int32_t HighlightMode = 1;         // colour of the selected cells
inline constexpr std::int32_t SelectSinglesMode = 10;    // cells that hold that one number
inline constexpr std::int32_t SelectDomainsMode = 11;    // the domains of those cells
inline constexpr std::int32_t SelectCountMode = 12;      // cells with that many candidates
inline constexpr std::int32_t SelectContainingMode = 13; // cells that have that candidate
inline constexpr std::int32_t ViewMode = 20;             // the numbers in view

// How it does it: replace, take away, add.
inline constexpr std::int32_t Replace = 0;
inline constexpr std::int32_t TakeAway = 1;
inline constexpr std::int32_t Add = 2;

// Acts with number 0..9 (0 stands for all numbers, in SelectCountMode for the count zero) in one
// of the modes above; shiftStat is one of the three above, and the modes say what any other value
// does. Sets update when something changed and never clears it. Pushes an undo state after a
// change of candidates or colours; scan and win test, and mostly the repaint, are the caller's.
void ProcessNumKey(std::int32_t number, std::int32_t mode, std::int32_t shiftStat, Flag &update);

} // namespace kelvarine
