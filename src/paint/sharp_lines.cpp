#include "paint/sharp_lines.h"

#include <algorithm>
#include <cmath>

namespace kelvarine {

namespace {

// One direction of a painter's scale.
struct Direction {
    double Origin;
    double Ratio;
};

// Device pixel at which a logical one begins. The toolkit cuts widgets in the same way.
int Edge(const Direction &direction, int position)
{
    return static_cast<int>(std::lround(direction.Origin + position * direction.Ratio));
}

// Never more than what is left behind an edge for so many logical pixels.
int Thickness(const Direction &direction, int pixels)
{
    return std::max(1, static_cast<int>(std::floor(pixels * direction.Ratio)));
}

Direction Across(const QTransform &toDevice)
{
    return {toDevice.dx(), toDevice.m11()};
}

Direction Down(const QTransform &toDevice)
{
    return {toDevice.dy(), toDevice.m22()};
}

// The device pixels of a logical rectangle.
QRect DeviceRectangle(const QTransform &toDevice, const QRect &rectangle)
{
    const Direction across = Across(toDevice);
    const Direction down = Down(toDevice);
    const QPoint begin(Edge(across, rectangle.x()), Edge(down, rectangle.y()));
    const QPoint end(Edge(across, rectangle.x() + rectangle.width()),
                     Edge(down, rectangle.y() + rectangle.height()));
    return {begin, QSize(end.x() - begin.x(), end.y() - begin.y())};
}

void FillDevicePixels(QPainter &painter, const QRect &pixels, const QColor &colour)
{
    painter.fillRect(painter.deviceTransform().inverted().mapRect(QRectF(pixels)), colour);
}

} // namespace

void DrawLineDown(QPainter &painter, const QRect &rectangle, int x, int thickness,
                  const QColor &colour)
{
    const Direction across = Across(painter.deviceTransform());
    QRect line = DeviceRectangle(painter.deviceTransform(), rectangle);
    line.moveLeft(Edge(across, x));
    line.setWidth(Thickness(across, thickness));
    FillDevicePixels(painter, line, colour);
}

void DrawLineAcross(QPainter &painter, const QRect &rectangle, int y, int thickness,
                    const QColor &colour)
{
    const Direction down = Down(painter.deviceTransform());
    QRect line = DeviceRectangle(painter.deviceTransform(), rectangle);
    line.moveTop(Edge(down, y));
    line.setHeight(Thickness(down, thickness));
    FillDevicePixels(painter, line, colour);
}

void DrawSharpFrame(QPainter &painter, const QRect &rectangle, const QColor &colour)
{
    const QTransform toDevice = painter.deviceTransform();
    const QRect outer = DeviceRectangle(toDevice, rectangle);
    const int across = Thickness(Across(toDevice), 1);
    const int down = Thickness(Down(toDevice), 1);
    const QRect inner = outer.adjusted(across, down, -across, -down);
    FillDevicePixels(painter, {outer.topLeft(), QSize(outer.width(), down)}, colour);
    FillDevicePixels(painter, {outer.x(), inner.y() + inner.height(), outer.width(), down}, colour);
    FillDevicePixels(painter, {outer.x(), inner.y(), across, inner.height()}, colour);
    FillDevicePixels(painter, {inner.x() + inner.width(), inner.y(), across, inner.height()},
                     colour);
}

} // namespace kelvarine
