// Where everything on the board lies, in pixels from the board's top left corner: the sizes that
// follow from the window, the origins of the cells, the places of the numbers in a cell and the
// cell under a point. Painter, mouse, links and print share these sums.
#pragma once

#include "grid/cell_word.h"
#include "grid/houses.h"

#include <cstdint>
#include <optional>

namespace kelvarine {

struct Point {
    int X = 0;
    int Y = 0;

    friend constexpr bool operator==(const Point &, const Point &) = default;
};

struct Rectangle {
    int X = 0;
    int Y = 0;
    int Width = 0;
    int Height = 0;

    friend constexpr bool operator==(const Rectangle &, const Rectangle &) = default;
};

extern int CellWidth; // at least 1
extern int CellHeight;
extern double GivenFontSize; // points at 96 to the inch, above 0
extern double PairFontSize;
extern double QuadFontSize;
extern double NineFontSize;
extern Rectangle BoardPlace; // picBoard in the client area of the window

// Puts the state above to that of a small window.
void SetGeometryDefaults();

// Works out everything above from the client area of the window, the thicknesses and the height
// of the toolbar, 0 when it is hidden. Any size will do; cells are at least one pixel.
void LayoutBoard(int clientWidth, int clientHeight, int toolbarHeight);

// The sizes that cells and numbers are drawn with, all of those above but the board's place.
struct CellSizes {
    int Width = 0;
    int Height = 0;
    double GivenFont = 0;
    double PairFont = 0;
    double QuadFont = 0;
    double NineFont = 0;

    friend constexpr bool operator==(const CellSizes &, const CellSizes &) = default;
};

// Sizes of cells of at least one pixel, with the fonts that suit a side; any side will do.
CellSizes SizesOfCells(int width, int height, int fontSide);

// The sizes in use, and putting others in their place. Who draws a grid of another size gives the
// board's own back when it is drawn.
CellSizes SizesInUse();
void UseSizes(const CellSizes &sizes);

// Pixels that all lines across the board take.
int LinesAcross();

// Origin of the cells of a column or a row, 1..9.
int CellX(int column);
int CellY(int row);

// Cell under a point of the board; nothing on a line or in the border.
std::optional<Cell> CellAt(int x, int y);

// Half axes of an ellipse with the aspect of a cell; the radius is the longer one, so that the
// ellipse stays as far inside the cell as a circle would.
struct HalfAxes {
    double Across = 0;
    double Down = 0;
};
HalfAxes CellEllipse(int radius);

// How the numbers of a cell are laid out, by its number of candidates and PencilmarkLayout.
enum class NumberLayout : std::uint8_t { None, One, Pair, Quad, Nine };

// Layout of a cell that is no given and has so many candidates, 0..9.
NumberLayout LayoutFor(int candidates);

// Centre of number in a cell with so many candidates: place is where the number stands among the
// cell's candidates, counted upward from 1. The point is on the board.
Point NumberCentre(NumberLayout layout, Cell cell, int number, int place);

} // namespace kelvarine
