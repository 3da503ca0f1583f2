// The mouse and the arrow keys on the board: what a press, a drag and a step select, and what the
// number under the pointer is for.
#pragma once

#include <cstdint>

namespace kelvarine {

// Modifier states are sums of these, tested by exact value.
inline constexpr std::int32_t ShiftKey = 1;
inline constexpr std::int32_t CtrlKey = 2;
inline constexpr std::int32_t AltKey = 4;

inline constexpr std::int32_t NoButton = 0;
inline constexpr std::int32_t LeftButton = 1;
inline constexpr std::int32_t RightButton = 2;

extern std::int32_t ClickX; // point of the latest press on the board, pixels
extern std::int32_t ClickY;

// Puts the state above to its defaults.
void SetMouseDefaults();

// A press on the board at (x, y) with one button and a modifier sum. The left one selects, the
// right one strikes the number under the pointer out of the selected cells. A press beside the
// cells, such as (-1, -1) for the margin of the window, only drops the selection. Repaints.
void BoardPressed(std::int32_t button, std::int32_t shift, int x, int y);

// A double click, after the press of its first click: the selected cells that have the number
// under the pointer keep it alone.
void BoardDoubleClicked();

// Number that a point of a cell means, by where the numbers of the cell stand; 0 for none. It need
// not be a candidate of the cell.
std::int32_t NumberAtPoint(std::int32_t column, std::int32_t row, int x, int y);

// A move over the board while a button is held: stretches the selection from where it began.
void BoardMoved(std::int32_t button, std::int32_t shift, int x, int y);

enum class Arrow : std::uint8_t { Left, Up, Right, Down };

// Steps from the anchor cell, round the edges, and selects the cell reached. Repaints.
void StepSelection(Arrow arrow, std::int32_t shift);

} // namespace kelvarine
