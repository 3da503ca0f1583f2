#include "paint/cell_painter.h"

#include "board/look.h"
#include "grid/grid.h"
#include "paint/frame_painter.h"
#include "paint/texture_painter.h"

#include <QPainter>

#include <algorithm>

namespace kelvarine {

namespace {

constexpr int RingPen = 2;

// The alert ring in a cell of a size, kept because all cells of a board share it.
struct RingPicture {
    int Width = 0; // logical pixels
    int Height = 0;
    QSize Device; // the same in device pixels
    Mask Shape;
};

RingPicture ringPicture; // picture cache

QSize DeviceSizeOf(const Canvas &canvas, int x, int y)
{
    return {DeviceX(canvas, x + CellWidth) - DeviceX(canvas, x),
            DeviceY(canvas, y + CellHeight) - DeviceY(canvas, y)};
}

Mask PaintRing(QSize device)
{
    QImage picture(device.expandedTo(QSize(1, 1)), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    const int radius = std::max(1, std::max(CellWidth, CellHeight) / 2) - 1;
    if (radius > 0) {
        const auto [across, down] = CellEllipse(radius);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(static_cast<double>(picture.width()) / CellWidth,
                      static_cast<double>(picture.height()) / CellHeight);
        painter.setPen(QPen(Qt::black, RingPen));
        const QPoint centre(CellWidth / 2, CellHeight / 2);
        painter.drawEllipse(QPointF(centre), across, down);
    }
    return MaskOf(picture);
}

const Mask &RingFor(QSize device)
{
    RingPicture &ring = ringPicture;
    if (ring.Width != CellWidth || ring.Height != CellHeight || ring.Device != device) {
        ring = {CellWidth, CellHeight, device, PaintRing(device)};
    }
    return ring.Shape;
}

void FillCell(const Canvas &canvas, const CellFill &fill, const Rectangle &place)
{
    if (fill.Paint.has_value()) {
        FillTextured(canvas, place, *fill.Paint, fill.Texture);
    } else {
        TextureRectangle(canvas, place, fill.Texture);
    }
}

void FrameCell(const Canvas &canvas, CellWord word, int x, int y)
{
    const bool selected = (word & SelectedBit) != 0;
    const bool given = (word & GivenBit) != 0;
    const Flag shown = selected ? SelectedCells3D : given ? GivenCells3D : UnknownCells3D;
    if (shown != False) {
        DrawFrameWithin3D(canvas, selected ? Sunken : Raised, FrameThickness,
                          {x, y, CellWidth, CellHeight});
    }
}

} // namespace

void DrawCell(const Canvas &canvas, Cell cell, const CellFill &fill)
{
    const CellWord word = WordAt(cell);
    const int x = CellX(cell.Column);
    const int y = CellY(cell.Row);
    FillCell(canvas, fill, {x, y, CellWidth, CellHeight});
    FrameCell(canvas, word, x, y);
    if ((word & AlertBit) != 0) {
        BlendMask(canvas, RingFor(DeviceSizeOf(canvas, x, y)), {x, y}, ColourTable[AlertColour]);
    }
}

} // namespace kelvarine
