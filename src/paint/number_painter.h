// The numbers of the board and the ruled lines between pencilmarks.
#pragma once

#include "grid/houses.h"
#include "paint/pixel_painter.h"

namespace kelvarine {

// How far the numbers that stand on Grid, and their ruled lines, may reach above and below their
// cells at a device pixel ratio, in logical pixels: no number stands outside its cell.
int NumberReach(double ratio);

// True when the ruled lines of Grid are smoothed on a canvas, which paints them beyond its clip.
bool HasSmoothLines(const Canvas &canvas);

// Paints the numbers of a cell of Grid that are in view, and its ruled lines where they show.
void DrawNumbers(const Canvas &canvas, Cell cell);

} // namespace kelvarine
