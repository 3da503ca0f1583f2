#include "paint/link_painter.h"

#include "board/links.h"
#include "board/look.h"
#include "game/win_display.h"
#include "grid/grid.h"
#include "paint/device_axis.h"
#include "paint/toolkit_colour.h"

#include <QImage>
#include <QPainter>

namespace kelvarine {

namespace {

constexpr int LinkPen = 2;

// Where a point of the board is painted, for a painter who knows logical pixels.
QPointF OnScreen(const QPainter &painter, Point point)
{
    const double ratio = painter.device()->devicePixelRatioF();
    return {EdgeOn(BoardAxis(ratio, CellWidth), point.X) / ratio,
            EdgeOn(BoardAxis(ratio, CellHeight), point.Y) / ratio};
}

void DrawLines(QPainter &painter, const std::vector<Line> &lines)
{
    for (const Line &line : lines) {
        painter.drawLine(OnScreen(painter, line.From), OnScreen(painter, line.To));
    }
}

void DrawDiscs(QPainter &painter, const std::vector<Disc> &discs)
{
    painter.setBrush(painter.pen().color());
    painter.setPen(Qt::NoPen);
    for (const Disc &disc : discs) {
        const auto [across, down] = CellEllipse(disc.Radius);
        painter.drawEllipse(OnScreen(painter, disc.Centre), across, down);
    }
}

bool ShowsChain()
{
    return ChainColumns[0] > 0;
}

} // namespace

bool ShowsLinks()
{
    return WinDisplayRunning == False && (ShowsStrongLinks() || ShowsChain());
}

void DrawLinks(QImage &picture)
{
    if (!ShowsLinks()) {
        return;
    }
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ToolkitColour(ColourTable[AlertColour]), LinkPen));
    if (ShowsStrongLinks()) {
        DrawLines(painter, StrongLinks());
    }
    if (ShowsChain()) {
        const ChainDrawing drawing = ChainOnBoard();
        DrawLines(painter, drawing.Lines);
        DrawDiscs(painter, drawing.Discs);
    }
}

} // namespace kelvarine
