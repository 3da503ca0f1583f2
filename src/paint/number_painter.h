// The numbers of the board and the ruled lines between pencilmarks.
#pragma once

#include "grid/houses.h"
#include "paint/pixel_painter.h"

namespace kelvarine {

// Paints the numbers of a cell of Grid that are in view, and its ruled lines where they show.
void DrawNumbers(const Canvas &canvas, Cell cell);

} // namespace kelvarine
