// The cells of the board under their numbers: fill, texture, frame and alert ring.
#pragma once

#include "board/pixel_painter.h"
#include "grid/houses.h"

namespace kelvarine {

// Paints a cell of Grid without its numbers.
void DrawCell(const Canvas &canvas, Cell cell);

} // namespace kelvarine
