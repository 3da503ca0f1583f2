#include "board/geometry.h"

#include "board/look.h"

#include <algorithm>
#include <cassert>

namespace kelvarine {

int CellWidth;
int CellHeight;
double GivenFontSize;
double PairFontSize;
double QuadFontSize;
double NineFontSize;
Rectangle BoardPlace;

namespace {

// Offset of line 1..9 from the inside of the border, for cells of a size.
int LineOffset(int line, int size)
{
    const int boxes = (line + 2) / 3; // primary lines crossed
    return (line - 1) * size + boxes * PrimaryThickness + (line - boxes) * SecondaryThickness;
}

double FontSize(int smallerSide, double divisor)
{
    const double size = smallerSide / divisor;
    return size > 0 ? size : 0.1;
}

// Line 1..9 whose cells hold a coordinate, or 0.
template <typename Origin>
int LineAt(int coordinate, int size, const Origin &origin)
{
    for (int line = 1; line <= 9; ++line) {
        if (origin(line) <= coordinate && coordinate < origin(line) + size) {
            return line;
        }
    }
    return 0;
}

} // namespace

void SetGeometryDefaults()
{
    constexpr int width = 600;
    constexpr int height = 650;
    LayoutBoard(width, height, 0);
}

void LayoutBoard(int clientWidth, int clientHeight, int toolbarHeight)
{
    const int lines = LinesAcross();
    const int edges = 2 * (MarginThickness + BorderThickness);
    const int roomDown = (clientHeight - lines - edges - toolbarHeight) / 9;
    const int roomAcross = (clientWidth - lines - edges) / 9;
    // Cells that had no room at all, though they are one pixel, get the smallest of fonts.
    UseSizes(SizesOfCells(std::max(1, roomAcross), std::max(1, roomDown),
                          std::min(roomAcross, roomDown)));

    BoardPlace.Width = 9 * CellWidth + lines + 2 * BorderThickness;
    BoardPlace.Height = 9 * CellHeight + lines + 2 * BorderThickness;
    BoardPlace.X = (clientWidth - BoardPlace.Width) / 2;
    BoardPlace.Y = (clientHeight - BoardPlace.Height + toolbarHeight) / 2;
}

CellSizes SizesOfCells(int width, int height, int fontSide)
{
    return {width,
            height,
            FontSize(fontSide, 1.5),
            FontSize(fontSide, 3),
            FontSize(fontSide, 4),
            FontSize(fontSide, 5)};
}

CellSizes SizesInUse()
{
    return {CellWidth, CellHeight, GivenFontSize, PairFontSize, QuadFontSize, NineFontSize};
}

void UseSizes(const CellSizes &sizes)
{
    CellWidth = sizes.Width;
    CellHeight = sizes.Height;
    GivenFontSize = sizes.GivenFont;
    PairFontSize = sizes.PairFont;
    QuadFontSize = sizes.QuadFont;
    NineFontSize = sizes.NineFont;
}

int LinesAcross()
{
    return 4 * PrimaryThickness + 6 * SecondaryThickness;
}

int CellX(int column)
{
    assert(IsLine(column));
    return BorderThickness + LineOffset(column, CellWidth);
}

int CellY(int row)
{
    assert(IsLine(row));
    return BorderThickness + LineOffset(row, CellHeight);
}

std::optional<Cell> CellAt(int x, int y)
{
    const int column = LineAt(x, CellWidth, CellX);
    const int row = LineAt(y, CellHeight, CellY);
    if (column == 0 || row == 0) {
        return std::nullopt;
    }
    return MakeCell(column, row);
}

HalfAxes CellEllipse(int radius)
{
    const double aspect = static_cast<double>(CellHeight) / CellWidth;
    return {aspect > 1 ? radius / aspect : radius, aspect > 1 ? radius : radius * aspect};
}

NumberLayout LayoutFor(int candidates)
{
    if (candidates <= 1) {
        return candidates == 1 ? NumberLayout::One : NumberLayout::None;
    }
    if (PencilmarkLayout == 1 || candidates > 4) {
        return NumberLayout::Nine;
    }
    return candidates == 2 ? NumberLayout::Pair : NumberLayout::Quad;
}

Point NumberCentre(NumberLayout layout, Cell cell, int number, int place)
{
    const int x = CellX(cell.Column);
    const int y = CellY(cell.Row);
    switch (layout) {
    case NumberLayout::None:
    case NumberLayout::One:
        break;
    case NumberLayout::Pair: {
        const int sixteenths = place == 1 ? 5 : 11;
        return {x + CellWidth * sixteenths / 16, y + CellHeight * sixteenths / 16};
    }
    case NumberLayout::Quad:
        if (place % 2 == 1) {
            return {x + CellWidth / 4, y + CellHeight * place / 4};
        }
        return {x + 3 * CellWidth / 4, y + CellHeight * (place - 1) / 4};
    case NumberLayout::Nine: {
        const int column = (number - 1) % 3;
        const int row = (number - 1) / 3;
        return {x + CellWidth * (2 * column + 1) / 6, y + CellHeight * (2 * row + 1) / 6};
    }
    }
    return {x + CellWidth / 2, y + CellHeight / 2};
}

} // namespace kelvarine
