// The lines of the board: those between boxes and between cells, the texture under them, and the
// border round it all.
#pragma once

#include "board/fill.h"
#include "paint/pixel_painter.h"

namespace kelvarine {

// Lines above and left of every box. Nothing with a PrimaryThickness of 0.
void DrawPrimaryGrid(const Canvas &canvas);

// Lines right of and below the last boxes.
void CloseGrid(const Canvas &canvas);

// Lines between the cells of a box.
void DrawSecondaryGrid(const Canvas &canvas);

// Texture over everything inside the border.
void TextureBackground(const Canvas &canvas);

// The same where the fills of the cells will leave it to be seen.
void TextureUncovered(const Canvas &canvas, const CellFills &fills);

// The lines once more, with their texture, between the cells alone. What shows paper may give a
// cell the whole of a pixel that a line has a part of, so on paper lines come last as well as
// first; where each has pixels of its own nothing changes by it.
void DrawLinesAnew(const Canvas &canvas);

// The raised border round the board.
void DrawExteriorBorder(const Canvas &canvas);

} // namespace kelvarine
