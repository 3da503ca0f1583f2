// What stands on paper: games and the board, drawn by the painter of the board without the marks
// that belong to the screen, namely selection, alerts, hints, links and chains.
#pragma once

#include <QImage>
#include <QPainter>

namespace kelvarine {

// Draws Grid at the fixed size of printed games, stretched to a place: lines, fills, frames and,
// when wished, all of its numbers.
void PrintGrid(QPainter &painter, const QRectF &place, bool withNumbers);

// Draws the board as it stands on the screen, stretched to a place.
void PrintBoard(QPainter &painter, const QRectF &place);

// The same two as pictures in their own size, for the preview.
QImage PictureOfGrid(bool withNumbers);
QImage PictureOfBoard();

} // namespace kelvarine
