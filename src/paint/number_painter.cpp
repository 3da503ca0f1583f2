#include "paint/number_painter.h"

#include "board/look.h"
#include "game/win_display.h"
#include "grid/colour.h"
#include "grid/grid.h"
#include "paint/text_painter.h"

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

// Lines across and down at every part of the cell, such as its thirds. Each runs one pixel past
// the cell.
void DrawDividers(const Canvas &canvas, int x, int y, int parts)
{
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

void DrawDigit(const Canvas &canvas, int digit, double points, Point centre, Colour colour)
{
    if ((NumberFilter & BitOf(digit)) == 0) {
        return;
    }
    const DigitPicture &picture = DigitAt(points, canvas.Ratio, digit);
    const Point place{centre.X - picture.Width / 2, centre.Y - picture.Height / 2};
    if (canvas.Paper != nullptr) {
        WriteDigit(*canvas.Paper, points, place, digit, colour);
    } else {
        BlendMask(canvas, picture.Shape, place, colour);
    }
}

void DrawGiven(const Canvas &canvas, CellWord word, Cell cell)
{
    if (const int number = LowestCandidate(word); number != 0) {
        DrawDigit(canvas, number, GivenFontSize, NumberCentre(NumberLayout::One, cell, number, 1),
                  NumberColour(word));
    }
}

} // namespace

void DrawNumbers(const Canvas &canvas, Cell cell)
{
    const CellWord word = WordAt(cell);
    if ((word & GivenBit) != 0) {
        DrawGiven(canvas, word, cell);
        return;
    }
    const NumberLayout layout = LayoutFor(CandidatesIn(word));
    if (PencilmarkLines != False && NumberFilter == CandidateMask) {
        DrawRuledLines(canvas, layout, cell);
    }
    int place = 0; // counts the candidates out of view, too
    for (int number = 1; number <= 9; ++number) {
        if ((word & BitOf(number)) != 0) {
            ++place;
            DrawDigit(canvas, number, FontSizeOf(layout), NumberCentre(layout, cell, number, place),
                      NumberColour(word));
        }
    }
}

} // namespace kelvarine
