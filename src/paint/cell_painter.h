// The cells of the board under their numbers: fill, texture, frame and alert ring.
#pragma once

#include "grid/houses.h"
#include "paint/pixel_painter.h"

namespace kelvarine {

// Paints a cell of Grid without its numbers.
void DrawCell(const Canvas &canvas, Cell cell);

} // namespace kelvarine
