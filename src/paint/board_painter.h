// The painting of the whole board: into an off-screen picture, shown when it is finished, so that
// the player never sees half a board.
#pragma once

#include "paint/pixel_painter.h"

#include <QImage>

#include <cstdint>

namespace kelvarine {

// Gives the off-screen picture and the visible one a size in logical pixels, at least 1 by 1, and
// the device pixel ratio of their screen, above 0. The off-screen picture is black after that; what
// the visible one holds stays where it fits. Call after LayoutBoard.
void SetBoardPictureSize(int width, int height, double ratio);

// The visible board: the latest finished picture and any banner over it. Do not keep a copy.
const QImage &BoardPicture();

// The same picture, for a banner to be drawn on.
QImage &VisibleBoardPicture();

// Number of boards that DrawBoard has painted since the start of the program: what a change costs.
extern std::int64_t BoardsPainted;

// Paints Grid in the current look and layout into a picture of format RGB32, whose device pixel
// ratio it heeds. What no rule paints keeps what the picture held. Any other format stays as it
// is.
void PaintBoard(QImage &picture);

// The same, strip by strip of so many device lines, at least 1. The pixels are the same for any
// number; one whose strip fits the processor's cache is fastest.
void PaintBoardInStrips(QImage &picture, int lines);

// Two steps of the painting, for pictures and for paper: the grid with the fills and frames of the
// cells of Grid, and the numbers in view.
void PaintCells(const Canvas &canvas);
void PaintNumbers(const Canvas &canvas);

// Shows BoardPicture() to the player. Implemented by the window.
void ShowBoardPicture();

} // namespace kelvarine
