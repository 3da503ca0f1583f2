// Where the eight tabs of the configuration screen stand: two rows of four, of which the one with
// the current tab stands in front, below the other.
#pragma once

#include <cstdint>
#include <optional>

namespace kelvarine {

inline constexpr std::int32_t TabCount = 8;
inline constexpr std::int32_t TabsInRow = 4;

// Rows of pixels: the rear one, the front one, and the line under both.
inline constexpr int RearRowTop = 10;
inline constexpr int FrontRowTop = 30;
inline constexpr int TabRowsEnd = 50;
inline constexpr int TabBaseline = 52;

inline constexpr int FirstTabLeft = 11; // of the front row
inline constexpr int RearRowShift = 8;  // the rear row stands so far to the right

// Width of a tab in a window of a client width.
int TabWidthFor(int clientWidth);

// True when a tab, 0..7, stands in the front row. A current tab of 8 or 9 counts to the second
// four.
bool IsInFront(std::int32_t tab, std::int32_t currentTab);

// Left edge of a tab, 0..7.
int TabLeft(std::int32_t tab, std::int32_t currentTab, int tabWidth);

// Tab under a point of the window, or nothing. The pixel between two tabs belongs to neither.
std::optional<std::int32_t> TabAt(double x, double y, std::int32_t currentTab, int tabWidth);

} // namespace kelvarine
