#include "paint/board_painter.h"

#include "board/fill.h"
#include "board/look.h"
#include "game/clock.h"
#include "grid/colour.h"
#include "grid/grid.h"
#include "grid/houses.h"
#include "outside/board.h"
#include "paint/cell_painter.h"
#include "paint/grid_painter.h"
#include "paint/link_painter.h"
#include "paint/number_painter.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kelvarine {

std::int64_t BoardsPainted;

namespace {

QImage picBoardBuild; // keeps its pixels between paintings
QImage picBoard;      // shares the pixels of picBoardBuild until a banner is drawn on it

QImage BlackPicture(QSize size, double ratio)
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::black);
    picture.setDevicePixelRatio(ratio);
    return picture;
}

// Pixels of a strip of the picture that stay in the processor's cache while all that lies on it is
// painted.
constexpr int StripPixels = 192 * 1024;

// Hands a canvas to paint strip by strip, from the top down.
template <typename Paint>
void InStrips(const Canvas &canvas, int lines, const Paint &paint)
{
    for (int top = 0; top < canvas.DeviceHeight; top += lines) {
        const int bottom = std::min(canvas.DeviceHeight - top, lines) + top;
        paint(Within(canvas, {0, top, canvas.DeviceWidth, bottom}));
    }
}

// Does what draw does for each cell, in scan order, that touches a canvas with what it may paint so
// many logical pixels above and below it.
template <typename Draw>
void ForCellsNear(const Canvas &canvas, int reach, const Draw &draw)
{
    std::array<bool, 10> near{};
    for (int row = 1; row <= 9; ++row) {
        const int y = CellY(row);
        near[static_cast<std::size_t>(row)] =
            TouchesLines(canvas, y - reach, y + CellHeight + reach);
    }
    for (const Cell cell : Cells) {
        if (near[cell.Row]) {
            draw(cell);
        }
    }
}

void PaintNumbers(const Canvas &canvas, int reach)
{
    ForCellsNear(canvas, reach, [&](Cell cell) { DrawNumbers(canvas, cell); });
}

void PaintCells(const Canvas &canvas, const CellFills &fills)
{
    DrawPrimaryGrid(canvas);
    CloseGrid(canvas);
    DrawSecondaryGrid(canvas);
    if (canvas.Paper != nullptr) {
        TextureBackground(canvas);
    } else {
        TextureUncovered(canvas, fills);
    }
    DrawExteriorBorder(canvas);
    ForCellsNear(canvas, FrameThickness, [&](Cell cell) {
        DrawCell(canvas, cell, fills[static_cast<std::size_t>(CellIndex(cell.Column, cell.Row))]);
    });
    if (canvas.Paper != nullptr) {
        DrawLinesAnew(canvas);
    }
}

} // namespace

void SetBoardPictureSize(int width, int height, double ratio)
{
    const QSize size(std::max(1, static_cast<int>(std::lround(width * ratio))),
                     std::max(1, static_cast<int>(std::lround(height * ratio))));
    // Some pixels of odd lines in 3D are never painted: they must not show another layout's.
    picBoardBuild = BlackPicture(size, ratio);
    // What is on view stays until the next painting, which a search may put off.
    const QImage shown = picBoard.copy(QRect(QPoint(0, 0), size));
    picBoard = shown.isNull() ? picBoardBuild : shown;
    picBoard.setDevicePixelRatio(ratio);
}

const QImage &BoardPicture()
{
    return picBoard;
}

QImage &VisibleBoardPicture()
{
    return picBoard;
}

void PaintCells(const Canvas &canvas)
{
    PaintCells(canvas, FillsOfCells());
}

void PaintNumbers(const Canvas &canvas)
{
    PaintNumbers(canvas, NumberReach(canvas.Ratio));
}

namespace {

// Device pixels that are left over beside a board without a border show the margin.
void PaintLeftOver(const Canvas &canvas)
{
    const Colour colour = ColourTable[MarginColour];
    const int right = DeviceX(canvas, canvas.Width);
    const int bottom = DeviceY(canvas, canvas.Height);
    if (BorderThickness > 0 || canvas.Across.Count == 0 || canvas.Down.Count == 0) {
        return;
    }
    const int left = DeviceX(canvas, 0);
    const int top = DeviceY(canvas, 0);
    FillDeviceArea(canvas, {0, 0, left, canvas.DeviceHeight}, colour);
    FillDeviceArea(canvas, {0, 0, canvas.DeviceWidth, top}, colour);
    FillDeviceArea(canvas, {right, 0, canvas.DeviceWidth, canvas.DeviceHeight}, colour);
    FillDeviceArea(canvas, {0, bottom, canvas.DeviceWidth, canvas.DeviceHeight}, colour);
}

} // namespace

void PaintBoard(QImage &picture)
{
    PaintBoardInStrips(picture, std::max(1, StripPixels / std::max(1, picture.width())));
}

void PaintBoardInStrips(QImage &picture, int lines)
{
    const Canvas canvas = BoardCanvasOf(picture);
    if (canvas.Pixels == nullptr) {
        return;
    }
    PaintLeftOver(canvas);
    const CellFills fills = FillsOfCells();
    const int reach = NumberReach(canvas.Ratio);
    const bool numbers = !IsPaused(); // hidden while the game is paused
    // Links and smoothed lines are not drawn in strips, and links lie under all numbers.
    const bool divided = ShowsLinks() || HasSmoothLines(canvas);
    InStrips(canvas, lines, [&](const Canvas &strip) {
        PaintCells(strip, fills);
        if (numbers && !divided) {
            PaintNumbers(strip, reach);
        }
    });
    if (divided) {
        DrawLinks(picture);
        if (numbers) {
            PaintNumbers(canvas, reach);
        }
    }
}

void DrawBoard()
{
    if (SearchActive != False) {
        return;
    }
    // With the visible picture out of the way nothing is copied when the other one is painted on.
    picBoard = QImage();
    PaintBoard(picBoardBuild);
    picBoard = picBoardBuild;
    ++BoardsPainted;
    ShowBoardPicture();
}

} // namespace kelvarine
