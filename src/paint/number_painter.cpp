#include "paint/number_painter.h"

#include "board/look.h"
#include "game/win_display.h"
#include "grid/colour.h"
#include "grid/grid.h"
#include "paint/text_painter.h"

#include <algorithm>
#include <cmath>

namespace kelvarine {

namespace {

Colour NumberColour(CellWord word)
{
    if (WinDisplayRunning != False) {
        return StandardColours[0];
    }
    return ColourTable[(word & GivenBit) != 0 ? GivenNumberColour : UnknownNumberColour];
}

double FontSizeOf(NumberLayout layout)
{
    switch (layout) {
    case NumberLayout::Pair:
        return PairFontSize;
    case NumberLayout::Quad:
        return QuadFontSize;
    case NumberLayout::Nine:
        return NineFontSize;
    default:
        return GivenFontSize;
    }
}

// The same where pixels are finer: all lines take so many of them, and end with the cell.
void DrawFineDividers(const Canvas &canvas, int x, int y, int parts)
{
    const Colour colour = ColourTable[PencilmarkLineColour];
    const DeviceArea cell{DeviceX(canvas, x), DeviceY(canvas, y), DeviceX(canvas, x + CellWidth),
                          DeviceY(canvas, y + CellHeight)};
    const int pen = std::max(1, static_cast<int>(std::lround(canvas.Ratio)));
    for (int part = 1; part < parts; ++part) {
        const int across = cell.Top + (cell.Bottom - cell.Top) * part / parts - pen / 2;
        const int down = cell.Left + (cell.Right - cell.Left) * part / parts - pen / 2;
        FillDeviceArea(canvas, {cell.Left, across, cell.Right, across + pen}, colour);
        FillDeviceArea(canvas, {down, cell.Top, down + pen, cell.Bottom}, colour);
    }
}

// Lines across and down at every part of the cell, such as its thirds. Each runs one pixel past
// the cell.
void DrawDividers(const Canvas &canvas, int x, int y, int parts)
{
    if (HasFinerPixels(canvas)) {
        DrawFineDividers(canvas, x, y, parts);
        return;
    }
    const Colour colour = ColourTable[PencilmarkLineColour];
    for (int part = 1; part < parts; ++part) {
        const int across = y + CellHeight * part / parts;
        DrawLine(canvas, {x, across}, {x + CellWidth, across}, colour);
    }
    for (int part = 1; part < parts; ++part) {
        const int down = x + CellWidth * part / parts;
        DrawLine(canvas, {down, y}, {down, y + CellHeight}, colour);
    }
}

void DrawRuledLines(const Canvas &canvas, NumberLayout layout, Cell cell)
{
    const int x = CellX(cell.Column);
    const int y = CellY(cell.Row);
    switch (layout) {
    case NumberLayout::Pair:
        DrawLine(canvas, {x, y + CellHeight}, {x + CellWidth, y - 1},
                 ColourTable[PencilmarkLineColour]);
        break;
    case NumberLayout::Quad:
        DrawDividers(canvas, x, y, 2);
        break;
    case NumberLayout::Nine:
        DrawDividers(canvas, x, y, 3);
        break;
    default:
        break;
    }
}

// Where the middle of a number is in a cell, in parts of its sides.
struct Share {
    double Across = 0.5;
    double Down = 0.5;
};

Share ShareOf(NumberLayout layout, int number, int place)
{
    switch (layout) {
    case NumberLayout::Pair: {
        const double part = place == 1 ? 5 / 16.0 : 11 / 16.0;
        return {part, part};
    }
    case NumberLayout::Quad:
        return {place % 2 == 1 ? 0.25 : 0.75, place < 3 ? 0.25 : 0.75};
    case NumberLayout::Nine: {
        const int column = (number - 1) % 3;
        const int row = (number - 1) / 3;
        return {(2 * column + 1) / 6.0, (2 * row + 1) / 6.0};
    }
    default:
        return {};
    }
}

// Lays a digit with the middle of its ink on its place in the cell, as near as device pixels allow.
void BlendDigit(const Canvas &canvas, const DigitPicture &picture, Cell cell, Share share,
                Colour colour)
{
    const int left = DeviceX(canvas, CellX(cell.Column));
    const int top = DeviceY(canvas, CellY(cell.Row));
    const int width = DeviceX(canvas, CellX(cell.Column) + CellWidth) - left;
    const int height = DeviceY(canvas, CellY(cell.Row) + CellHeight) - top;
    BlendMaskAtPixel(canvas, picture.Shape,
                     static_cast<int>(std::lround(left + width * share.Across - picture.InkX)),
                     static_cast<int>(std::lround(top + height * share.Down - picture.InkY)),
                     colour);
}

// A number of a cell: its layout there, and its place among the cell's numbers.
struct PlacedNumber {
    Cell In;
    NumberLayout Layout = NumberLayout::One;
    int Number = 0;
    int Place = 1;
};

void DrawDigit(const Canvas &canvas, const PlacedNumber &placed, Colour colour)
{
    if ((NumberFilter & BitOf(placed.Number)) == 0) {
        return;
    }
    const double points = FontSizeOf(placed.Layout);
    const DigitPicture &picture = DigitAt(points, canvas.Ratio, placed.Number);
    if (HasFinerPixels(canvas)) {
        BlendDigit(canvas, picture, placed.In, ShareOf(placed.Layout, placed.Number, placed.Place),
                   colour);
        return;
    }
    const Point centre = NumberCentre(placed.Layout, placed.In, placed.Number, placed.Place);
    const Point corner{centre.X - picture.Width / 2, centre.Y - picture.Height / 2};
    if (canvas.Paper != nullptr) {
        WriteDigit(*canvas.Paper, points, corner, placed.Number, colour);
    } else {
        BlendMask(canvas, picture.Shape, corner, colour);
    }
}

NumberLayout LayoutOf(CellWord word)
{
    return (word & GivenBit) != 0 ? NumberLayout::One : LayoutFor(CandidatesIn(word));
}

bool ShowsRuledLines()
{
    return PencilmarkLines != False && NumberFilter == CandidateMask;
}

void DrawGiven(const Canvas &canvas, CellWord word, Cell cell)
{
    if (const int number = LowestCandidate(word); number != 0) {
        DrawDigit(canvas, {cell, NumberLayout::One, number, 1}, NumberColour(word));
    }
}

} // namespace

int NumberReach(double ratio)
{
    double points = 0;
    for (const Cell cell : Cells) {
        if (const NumberLayout layout = LayoutOf(WordAt(cell)); layout != NumberLayout::None) {
            points = std::max(points, FontSizeOf(layout));
        }
    }
    return points > 0 ? DigitAt(points, ratio, 0).Height + 1 : 0;
}

bool HasSmoothLines(const Canvas &canvas)
{
    return HasFinerPixels(canvas) && ShowsRuledLines() &&
           std::any_of(Cells.begin(), Cells.end(),
                       [](Cell cell) { return LayoutOf(WordAt(cell)) == NumberLayout::Pair; });
}

void DrawNumbers(const Canvas &canvas, Cell cell)
{
    const CellWord word = WordAt(cell);
    if ((word & GivenBit) != 0) {
        DrawGiven(canvas, word, cell);
        return;
    }
    const NumberLayout layout = LayoutOf(word);
    if (ShowsRuledLines()) {
        DrawRuledLines(canvas, layout, cell);
    }
    int place = 0; // counts the candidates out of view, too
    for (int number = 1; number <= 9; ++number) {
        if ((word & BitOf(number)) != 0) {
            ++place;
            DrawDigit(canvas, {cell, layout, number, place}, NumberColour(word));
        }
    }
}

} // namespace kelvarine
