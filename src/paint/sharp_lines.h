// Lines that a widget paints itself, in whole pixels of the device: at every ratio each is as thick
// as all others of its kind, and none is lost at the widget's edge.
#pragma once

#include <QColor>
#include <QPainter>
#include <QRect>

namespace kelvarine {

// Draws a line down a rectangle at a position across it, or across it at a position down it. Its
// thickness, in logical pixels, is cut to whole ones of the device, of which it has at least one.
void DrawLineDown(QPainter &painter, const QRect &rectangle, int x, int thickness,
                  const QColor &colour);
void DrawLineAcross(QPainter &painter, const QRect &rectangle, int y, int thickness,
                    const QColor &colour);

// Draws a frame of one logical pixel just inside a rectangle.
void DrawSharpFrame(QPainter &painter, const QRect &rectangle, const QColor &colour);

} // namespace kelvarine
