// The frames and lines that make the board look cut from a block: strokes of lighter and darker
// shades that grow outward from a rectangle.
#pragma once

#include "paint/pixel_painter.h"

namespace kelvarine {

// Styles of DrawFrame3D.
inline constexpr int Sunken = 0;
inline constexpr int Raised = 1;
inline constexpr int RaisedDimmer = 2;

// Draws a grey frame of so many pixels round the rectangle with its corner at (x, y). Nothing for
// a thickness below 1 or a style that there is not.
void DrawFrame3D(const Canvas &target, int style, int thickness, int x, int width, int y,
                 int height);

// Draws the same frame within a rectangle, along its edges.
void DrawFrameWithin3D(const Canvas &target, int style, int thickness, const Rectangle &place);

// Draws a frame round a rectangle in the colour of the primary lines and its dark shade: dark at
// the bottom and the right when raised, at the top and the left when not.
void DrawBoxFrame3D(const Canvas &target, bool raised, int thickness, int x, int width, int y,
                    int height);

// Draw the secondary line above, or left of, a cell with its corner at (x, y), out of so many
// lines in the colour of the secondary lines and as many in its dark shade.
void DrawHorizontalSecondaryLine3D(const Canvas &target, int lines, int x, int y);
void DrawVerticalSecondaryLine3D(const Canvas &target, int lines, int x, int y);

} // namespace kelvarine
