// Where a message opens: beside the board, so that the cells it speaks of stay in view.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include <optional>

namespace kelvarine {

// Top left corner for a box of a size, its frame included, on a screen: to the right of an area
// where there is room, else to its left, else below it. Nothing where there is room nowhere.
std::optional<QPoint> BoxBeside(const QRect &area, const QSize &box, const QRect &screen);

} // namespace kelvarine
