// The painting of the margin, which is the window's own background round the board.
#pragma once

#include <QPainter>

namespace kelvarine {

// Paints the whole client area of the window, of a size in logical pixels: the background, its
// edge and, where the margin leaves room, the coordinates, the rating and the number of givens.
// Call after LayoutBoard. Without coordinates the texts take the painter's own font and pen.
void PaintWindowTexts(QPainter &painter, int clientWidth, int clientHeight);

} // namespace kelvarine
