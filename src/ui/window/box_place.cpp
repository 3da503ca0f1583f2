#include "ui/window/box_place.h"

#include <algorithm>

namespace kelvarine {

namespace {

constexpr int Gap = 8; // pixels between the area and the box

// Start of a stretch of a length that lies centred on a middle, but within the bounds.
int Centred(int middle, int length, int first, int last)
{
    return std::clamp(middle - length / 2, first, std::max(first, last - length + 1));
}

} // namespace

std::optional<QPoint> BoxBeside(const QRect &area, const QSize &box, const QRect &screen)
{
    const int y = Centred(area.center().y(), box.height(), screen.top(), screen.bottom());
    if (const int x = area.right() + 1 + Gap; x + box.width() - 1 <= screen.right()) {
        return QPoint(x, y);
    }
    if (const int x = area.left() - Gap - box.width(); x >= screen.left()) {
        return QPoint(x, y);
    }
    if (const int below = area.bottom() + 1 + Gap; below + box.height() - 1 <= screen.bottom()) {
        return QPoint(Centred(area.center().x(), box.width(), screen.left(), screen.right()),
                      below);
    }
    return std::nullopt;
}

} // namespace kelvarine
