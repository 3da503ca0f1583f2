#include "paint/board_painter.h"

#include "board/look.h"
#include "game/clock.h"
#include "grid/colour.h"
#include "grid/grid.h"
#include "outside/board.h"
#include "paint/cell_painter.h"
#include "paint/grid_painter.h"
#include "paint/link_painter.h"
#include "paint/number_painter.h"

#include <algorithm>
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
    DrawPrimaryGrid(canvas);
    CloseGrid(canvas);
    DrawSecondaryGrid(canvas);
    TextureBackground(canvas);
    DrawExteriorBorder(canvas);
    for (const Cell cell : Cells) {
        DrawCell(canvas, cell);
    }
}

void PaintNumbers(const Canvas &canvas)
{
    for (const Cell cell : Cells) {
        DrawNumbers(canvas, cell);
    }
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
    const Canvas canvas = BoardCanvasOf(picture);
    if (canvas.Pixels == nullptr) {
        return;
    }
    PaintLeftOver(canvas);
    // 1. Lines, what grains and frames them, and cells.
    PaintCells(canvas);

    // 2. Links and chains, under the numbers.
    DrawLinks(picture);

    // 3. Numbers, hidden while the game is paused.
    if (!IsPaused()) {
        PaintNumbers(canvas);
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
