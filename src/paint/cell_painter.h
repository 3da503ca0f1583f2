// The cells of the board under their numbers: fill, texture, frame and alert ring.
#pragma once

#include "board/fill.h"
#include "grid/houses.h"
#include "paint/pixel_painter.h"

namespace kelvarine {

// Of a cell's frame, logical pixels. It is also the inset, so the frame ends at the edge of the
// cell and leaves it by less than that even where the cell is smaller.
inline constexpr int FrameThickness = 2;

// Paints a cell of Grid without its numbers. The fill is what FillOf told of it: a board that is
// painted in parts asks only once, for the answer may be a matter of chance.
void DrawCell(const Canvas &canvas, Cell cell, const CellFill &fill);

} // namespace kelvarine
