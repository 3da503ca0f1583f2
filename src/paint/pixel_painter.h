// The painter's strokes on the pixels of a picture: rectangles, lines and masks. Positions are
// logical pixels; at a device pixel ratio of 1 each is one pixel of the picture. Both ends of a
// stroke are painted, and whatever lies outside the picture is cut off. On paper the same strokes
// are drawn at the printer's resolution.
#pragma once

#include "board/geometry.h"
#include "grid/colour.h"
#include "paint/device_axis.h"

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
    DeviceAxis Across; // where logical pixels lie among those of the device
    DeviceAxis Down;
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

// The same with the board on it, whose cells and lines take whole pixels of the device.
Canvas BoardCanvasOf(QImage &picture);

// Whether the canvas has more device pixels than logical ones, so that there is something to be
// gained by looking at them; paper is none of these.
bool HasFinerPixels(const Canvas &canvas);

// Device pixel at which a logical pixel begins, not clipped.
int DeviceX(const Canvas &canvas, int x);
int DeviceY(const Canvas &canvas, int y);

// Device pixels of a rectangle that lie in the picture.
DeviceArea DevicePart(const Canvas &canvas, const Rectangle &rectangle);

// Fills the rectangle between two of its corners, both included, given in any order.
void FillCorners(const Canvas &canvas, Point a, Point b, Colour colour);

// Draws a line of one pixel. A slanted one has steps, and is smoothed where pixels are finer.
void DrawLine(const Canvas &canvas, Point from, Point to, Colour colour);

// Covers of a painted picture of format ARGB32_Premultiplied.
Mask MaskOf(const QImage &painted);

// Lays a colour through a mask whose top left corner is at a point, and the same at a device pixel.
void BlendMask(const Canvas &canvas, const Mask &mask, Point place, Colour colour);
void BlendMaskAtPixel(const Canvas &canvas, const Mask &mask, int x, int y, Colour colour);

// Fills a part of the picture in device pixels.
void FillDeviceArea(const Canvas &canvas, const DeviceArea &area, Colour colour);

} // namespace kelvarine
