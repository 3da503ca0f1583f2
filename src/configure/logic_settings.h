// What the Logic tab does to the state: which techniques solve, which raise alerts, how hard each
// of them is, and how long chains may be.
#pragma once

#include "grid/grid.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace kelvarine {

// What stands in front of the level of a technique that new games must need.
inline constexpr std::string_view RequiredMark = "*  ";

// Rows of the tab are those of TechniqueRows; k is the number of a row.

// True when the driver, or the alert scan, may use technique k.
bool UsesLogic(std::int32_t k);
bool ShowsAlerts(std::int32_t k);

// Lets the driver use technique k or not. Nothing is solved by it.
void SetUseLogic(std::int32_t k, bool on);

// Lets the alert scan use technique k or not; scans and paints the board.
void SetShowAlerts(std::int32_t k, bool on);

// Selects the techniques of all rows for alerts, other bits untouched; scans once and paints once.
void SelectAllAlerts();

// Takes every technique and every alert off, and paints the board.
void DeselectAllAlerts();

void SetIncludeSingles(bool on);

// Takes a number into one of the three link limits; scans and paints the board.
void SetLinkLimit(std::int32_t &limit, std::int32_t links);

// The level of technique k in words, with a star in front when it is required. A technique in no
// level has no word.
std::string LevelCaption(std::int32_t k);

// Moves technique k to a level, 1..5, which also ends its being required; rates the game anew.
void SetLevel(std::int32_t k, std::int32_t level);

// Makes technique k one that new games must need, or no longer one. The game is not rated again.
void ToggleRequired(std::int32_t k);

// True when some technique is required.
bool AnyRequired();

} // namespace kelvarine
