#include "paint/margin_painter.h"

#include "board/geometry.h"
#include "board/margin.h"
#include "grid/colour.h"
#include "paint/text_painter.h"
#include "paint/toolkit_colour.h"

#include <algorithm>

namespace kelvarine {

namespace {

constexpr int TextDistance = 4;    // from the board, at its left and below it
constexpr std::size_t Blanks = 17; // wipe the tail of a longer word that stood there before

// What the margin's texts are written with.
struct Pen {
    Face Letters;
    Colour Ink = 0;
};

void Write(QPainter &painter, const Pen &pen, Point place, std::string_view text)
{
    WriteText(painter, pen.Letters, place, text, pen.Ink);
}

// A thin edge that lets the client area look sunk into the window.
void DrawWindowEdge(QPainter &painter, int width, int height)
{
    const QColor light = ToolkitColour(StandardColours[15]);
    const QColor dark = ToolkitColour(StandardColours[8]);
    painter.fillRect(0, 0, width, 1, dark);
    painter.fillRect(0, 0, 1, height, dark);
    painter.fillRect(0, height - 1, width, 1, light);
    painter.fillRect(width - 1, 0, 1, height, light);
}

void WriteColumnLabels(QPainter &painter, const Pen &pen)
{
    for (int column = 1; column <= 9; ++column) {
        const std::string label = ColumnLabel(column);
        const int x =
            BoardPlace.X + CellWidth / 2 + CellX(column) - TextWidth(pen.Letters, label) / 2;
        Write(painter, pen, {x, BoardPlace.Y - pen.Letters.Height}, label);
    }
}

void WriteRowLabels(QPainter &painter, const Pen &pen)
{
    for (int row = 1; row <= 9; ++row) {
        const std::string label = RowLabel(row);
        const int x = BoardPlace.X - TextWidth(pen.Letters, label) - TextDistance;
        const int y = BoardPlace.Y + CellHeight / 2 + CellY(row) - pen.Letters.Height / 2;
        Write(painter, pen, {x, y}, label);
    }
}

void WriteRatingAndGivenCount(QPainter &painter, const Pen &pen)
{
    const int y = BoardPlace.Y + BoardPlace.Height + TextDistance;
    const std::string rating(MarginRatingWord());
    Write(painter, pen, {BoardPlace.X, y}, rating + std::string(Blanks, ' '));

    const std::string count = GivenCountText();
    const int width = TextWidth(pen.Letters, count);
    if (GivenCountFits(TextWidth(pen.Letters, rating), width)) {
        Write(painter, pen, {BoardPlace.X + BoardPlace.Width - width, y}, count);
    }
}

} // namespace

void PaintWindowTexts(QPainter &painter, int clientWidth, int clientHeight)
{
    painter.fillRect(0, 0, clientWidth, clientHeight, ToolkitColour(ColourTable[MarginColour]));
    DrawWindowEdge(painter, clientWidth, clientHeight);
    if (MarginThickness < LeastTextMargin) {
        return;
    }
    Pen pen;
    if (CoordinatesVisible != False) {
        pen = {BoardFace(std::min(GivenFontSize, LargestMarginFont)), CoordinateTextColour};
        WriteColumnLabels(painter, pen);
        WriteRowLabels(painter, pen);
    } else {
        // The pen of the window would be black on black in the usual look.
        pen = {FaceOf(painter.font()), CoordinateTextColour};
    }
    WriteRatingAndGivenCount(painter, pen);
}

} // namespace kelvarine
