// The painter's strokes on the pixels of a picture: rectangles, lines and masks. Positions are
// logical pixels; at a device pixel ratio of 1 each is one pixel of the picture. Both ends of a
// stroke are painted, and whatever lies outside the picture is cut off. On paper the same strokes
// are drawn at the printer's resolution.
#pragma once

#include "board/geometry.h"
#include "grid/colour.h"

#include <QImage>
#include <QPainter>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kelvarine {

// The pixels of a picture, open for painting. Good as long as the picture is neither resized nor
// copied.
struct Canvas {
    std::uint32_t *Pixels = nullptr;
    std::ptrdiff_t Stride = 0; // pixels from one line to the next
    int DeviceWidth = 0;
    int DeviceHeight = 0;
    int Width = 0; // logical
    int Height = 0;
    double Ratio = 1;
    QPainter *Paper = nullptr; // draws the strokes on paper besides, in logical pixels
};

// How far each pixel of a small picture is covered, 0..255, line by line.
struct Mask {
    int Width = 0; // device pixels
    int Height = 0;
    std::vector<std::uint8_t> Coverage;
};

// Part of a picture in device pixels, the ends not included.
struct DeviceArea {
    int Left = 0;
    int Top = 0;
    int Right = 0;
    int Bottom = 0;
};

// Opens a picture of format RGB32; any other gives a canvas without pixels.
Canvas CanvasOf(QImage &picture);

// Paper to draw on: rectangles, lines and digits reach the painter as such, at its scale. The
// picture, of format RGB32 and ratio 1, follows them pixel by pixel, since textures depend on what
// lies beneath; masks go to it alone.
Canvas PaperCanvas(QPainter &paper, QImage &beneath);

// Device pixel at which a logical pixel begins, not clipped.
int DeviceEdge(const Canvas &canvas, int position);

// The logical pixel that is painted at a place in device pixels: the other way round.
int PixelOfDevice(double ratio, double place);

// Device pixels of a rectangle that lie in the picture.
DeviceArea DevicePart(const Canvas &canvas, const Rectangle &rectangle);

// Fills the rectangle between two of its corners, both included, given in any order.
void FillCorners(const Canvas &canvas, Point a, Point b, Colour colour);

// Draws a line of one pixel. Only a slanted one has steps; none is smoothed.
void DrawLine(const Canvas &canvas, Point from, Point to, Colour colour);

// Covers of a painted picture of format ARGB32_Premultiplied.
Mask MaskOf(const QImage &painted);

// Lays a colour through a mask whose top left corner is at a point.
void BlendMask(const Canvas &canvas, const Mask &mask, Point place, Colour colour);

} // namespace kelvarine
