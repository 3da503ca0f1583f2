#include "paint/board_painter.h"

#include "game/clock.h"
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

void Resize(QImage &picture, QSize size, double ratio)
{
    if (picture.isNull()) {
        picture = QImage(size, QImage::Format_RGB32);
        picture.fill(Qt::black);
    } else if (picture.size() != size) {
        picture = picture.copy(QRect(QPoint(0, 0), size));
    }
    if (picture.devicePixelRatio() != ratio) {
        picture.setDevicePixelRatio(ratio);
    }
}

} // namespace

void SetBoardPictureSize(int width, int height, double ratio)
{
    const QSize size(std::max(1, static_cast<int>(std::lround(width * ratio))),
                     std::max(1, static_cast<int>(std::lround(height * ratio))));
    Resize(picBoardBuild, size, ratio);
    Resize(picBoard, size, ratio);
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

void PaintBoard(QImage &picture)
{
    const Canvas canvas = CanvasOf(picture);
    if (canvas.Pixels == nullptr) {
        return;
    }
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
