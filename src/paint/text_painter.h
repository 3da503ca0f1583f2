// Text on the board and its margin: the board's typeface at sizes in points at 96 to the inch,
// whatever the screen, measured by advance and line box; and its digits as ready masks.
#pragma once

#include "grid/colour.h"
#include "paint/pixel_painter.h"

#include <QPainter>
#include <QRawFont>

#include <string_view>

namespace kelvarine {

// A typeface at one size.
struct Face {
    QRawFont Font;
    int Ascent = 0; // whole logical pixels from the top of the line box to the foot of the letters
    int Height = 0;
};

// The board's typeface, Arial. Points may have a fraction; above 0.
Face BoardFace(double points);

// The face that a painter would write with.
Face FaceOf(const QFont &font);

// Advance of a text of plain letters, in whole logical pixels.
int TextWidth(const Face &face, std::string_view text);

// Writes a text of plain letters with the top left corner of its line box at a point.
void WriteText(QPainter &painter, const Face &face, Point place, std::string_view text,
               Colour colour);

// A digit ready to be laid on the board.
struct DigitPicture {
    Mask Shape;
    int Width = 0; // its advance and the height of its line box, logical pixels
    int Height = 0;
    double InkX = 0; // middle of its ink in the mask, device pixels
    double InkY = 0;
};

// Picture of a digit 0..9 at a size, from a cache. Good until the next call.
const DigitPicture &DigitAt(double points, double ratio, int digit);

// Writes a digit 0..9 with the top left corner of its line box at a point.
void WriteDigit(QPainter &painter, double points, Point place, int digit, Colour colour);

} // namespace kelvarine
