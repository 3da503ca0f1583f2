// The toolbar: twelve buttons for the numbers, three wide ones for the modes that decide what the
// numbers mean. What each button says, its colour, its tip and its place stand here; the window
// only shows them.
#pragma once

#include "board/geometry.h"
#include "grid/cell_word.h"
#include "grid/colour.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace kelvarine {

inline constexpr int ToolbarHeight = 54; // pixels

// Buttons by their index.
inline constexpr std::int32_t EscapeButton = 0;
inline constexpr std::int32_t AllButton = 10; // 1..9 are the numbers
inline constexpr std::int32_t SignButton = 11;
inline constexpr std::int32_t SelectButton = 12;
inline constexpr std::int32_t EditButton = 13;
inline constexpr std::int32_t ViewButton = 14;
inline constexpr std::size_t ToolButtonCount = 15;

struct ToolButton {
    std::string Caption;
    std::string Tip; // empty for none
    Colour Background = 0;
    Rectangle Place; // in the toolbar
};

extern std::array<ToolButton, ToolButtonCount> ToolButtons; // cmdTool

// What the number buttons do: one of the modes of number keys.
extern std::int32_t ToolMode;

// How they do it, passed on as shiftStat: 0 replace, 1 take away, 2 add.
extern std::int32_t ToolSign;

// Whether the mode of the toolbar knows a sign. In the others ToolSign is what a modifier key left
// there, up to 3.
bool HasSign();

// The button of a mode, one of the last three.
std::int32_t ModeButton(std::int32_t mode);

// Puts the toolbar to the state of a start.
void SetToolbarDefaults();

// A press on a button, 0..14: ends the win display, then acts. While a search runs it acts as a
// press on the board does.
void ToolPressed(std::int32_t index);

// Carries out what a button stands for, and gives the focus back to the board where it should.
void ProcessToolbar(std::int32_t index);

// Sets the tips of buttons 0..11 by mode and sign; none when tips are switched off.
void UpdateToolTips();

// A modifier key goes down or up on the board: the number buttons show what the number keys will
// do.
void ShowSignOfShift();
void ShowSignOfCtrl();
void ShowPlainSign();

// A modifier key is no longer the board's: as when it comes up there, but the keyboard stays where
// it is.
void LetSignGo();

// Places the buttons in a toolbar of a width, in pixels.
void LayoutToolbar(int width);

// The button that a finger at a point of the toolbar means: each row of them reaches to the middle
// between the rows and to the toolbar's edge, so that none is lower than 24 pixels, and the gap
// between two belongs to the nearer one. Nothing beside the rows.
std::optional<std::int32_t> ToolUnderFinger(int x, int y);

// The pointer moves over a button, px pixels from the left of a toolbar of a width: at its ends a
// row that sticks out slides.
void SlideToolbar(int px, int width);

} // namespace kelvarine
