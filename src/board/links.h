// Strong links and chains on the board as lines and discs, from number to number: what is drawn
// and where, without pixels.
#pragma once

#include "board/geometry.h"
#include "grid/houses.h"

#include <vector>

namespace kelvarine {

struct Line {
    Point From;
    Point To;

    friend constexpr bool operator==(const Line &, const Line &) = default;
};

struct Disc {
    Point Centre;
    int Radius = 0; // of the longer half axis, pixels

    friend constexpr bool operator==(const Disc &, const Disc &) = default;
};

struct ChainDrawing {
    std::vector<Line> Lines;
    std::vector<Disc> Discs;
};

// True when strong links are to be drawn, by StrongLinkMode and the numbers in view.
bool ShowsStrongLinks();

// Point at which number stands in a cell of Grid. Only for a cell with one candidate in the three
// by three layout it isn't where the painter puts the number; intended.
Point NumberPoint(Cell cell, int number);

// A line for each house that holds a number in view exactly twice: number by number, and for each
// the columns, the rows and the boxes. Two cells that share two houses get their line twice.
std::vector<Line> StrongLinks();

// The chain that stands in ChainColumns and ChainRows; empty when there is none. Cells off the
// board and lengths beyond the list are cut off.
ChainDrawing ChainOnBoard();

} // namespace kelvarine
