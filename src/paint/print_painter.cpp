#include "paint/print_painter.h"

#include "game/clock.h"
#include "game/win_display.h"
#include "grid/grid.h"
#include "paint/board_painter.h"
#include "print/page_layout.h"

namespace kelvarine {

namespace {

constexpr CellWord ScreenMarks = SelectedBit | AlertBit | HintCellBit | HintDomainBit;

// What the painter reads and paper wants to be otherwise.
struct PaintedState {
    GridTable Cells = Grid;
    CellSizes Sizes = SizesInUse();
    std::uint32_t Filter = NumberFilter;
    Flag WinDisplay = WinDisplayRunning;
};

void BringBack(const PaintedState &state)
{
    Grid = state.Cells;
    UseSizes(state.Sizes);
    NumberFilter = state.Filter;
    WinDisplayRunning = state.WinDisplay;
}

void PaintBoardOn(const Canvas &canvas)
{
    const PaintedState before;
    ClearCellBits(ScreenMarks);
    PaintCells(canvas);
    if (!IsPaused()) {
        PaintNumbers(canvas);
    }
    BringBack(before);
}

void PaintGridOn(const Canvas &canvas, bool withNumbers)
{
    const PaintedState before;
    ClearCellBits(ScreenMarks);
    UseSizes(PrintCellSizes());
    NumberFilter = CandidateMask;
    WinDisplayRunning = False;
    PaintCells(canvas);
    if (withNumbers) {
        PaintNumbers(canvas);
    }
    BringBack(before);
}

QSize BoardSize()
{
    return {BoardPlace.Width, BoardPlace.Height};
}

QSize GridSize()
{
    return {PrintGridSide(), PrintGridSide()};
}

QImage BlankPicture(QSize size)
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::white);
    return picture;
}

// Stretches what paint draws on a canvas of a size to a place on paper.
template <typename Paint>
void Stretch(QPainter &painter, const QRectF &place, QSize size, const Paint &paint)
{
    QImage beneath = BlankPicture(size);
    if (beneath.isNull()) {
        return;
    }
    painter.save();
    painter.translate(place.topLeft());
    painter.scale(place.width() / size.width(), place.height() / size.height());
    // Tiles keep their pixels, however large these are on paper.
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    painter.setRenderHint(QPainter::LosslessImageRendering);
    paint(PaperCanvas(painter, beneath));
    painter.restore();
}

} // namespace

void PrintGrid(QPainter &painter, const QRectF &place, bool withNumbers)
{
    Stretch(painter, place, GridSize(),
            [&](const Canvas &canvas) { PaintGridOn(canvas, withNumbers); });
}

void PrintBoard(QPainter &painter, const QRectF &place)
{
    Stretch(painter, place, BoardSize(), PaintBoardOn);
}

QImage PictureOfGrid(bool withNumbers)
{
    QImage picture = BlankPicture(GridSize());
    PaintGridOn(CanvasOf(picture), withNumbers);
    return picture;
}

QImage PictureOfBoard()
{
    QImage picture = BlankPicture(BoardSize());
    PaintBoardOn(CanvasOf(picture));
    return picture;
}

} // namespace kelvarine
