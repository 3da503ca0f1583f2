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

inline constexpr std::uint32_t Opaque = 0xFF000000; // of every pixel of a picture

// Part of a picture in device pixels, the ends not included.
struct DeviceArea {
    int Left = 0;
    int Top = 0;
    int Right = 0;
    int Bottom = 0;
};

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
    DeviceArea Clip;   // what strokes may touch
    int FirstLine = 0; // logical lines; strokes wholly above the first or below the last miss Clip
    int LastLine = 0;
    QPainter *Paper = nullptr; // draws the strokes on paper besides, in logical pixels
};

// Neighbours on a line of a mask that are covered, all of them wholly or each as far as it is.
struct MaskRun {
    int Begin = 0; // device pixels from the left, the end not included
    int End = 0;
    bool Whole = false;
};

// How far each pixel of a small picture is covered, 0..255, line by line, and where it is at all.
struct Mask {
    int Width = 0; // device pixels
    int Height = 0;
    std::vector<std::uint8_t> Coverage;
    std::vector<MaskRun> Runs;         // line by line, from left to right
    std::vector<std::size_t> RunsUpTo; // entry k counts those above line k; Height + 1 entries
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

// The same canvas with its strokes kept within a part of what they could touch before.
Canvas Within(const Canvas &canvas, const DeviceArea &part);

// False when nothing that is painted between two logical lines, both included, can touch the clip.
bool TouchesLines(const Canvas &canvas, int first, int last);

// Device pixel at which a logical pixel begins, not clipped.
int DeviceX(const Canvas &canvas, int x);
int DeviceY(const Canvas &canvas, int y);

// Device pixels of a rectangle that strokes may touch.
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
