// The 27 houses and the domains of the 81 cells as constant tables, in the order in which every
// scan takes them: columns, rows, boxes; boxes with the left column outer and the top row inner;
// the cells of a box with the column outer and the row inner. This order decides which conclusion
// the player is told first.
#pragma once

#include "grid/cell_word.h"

#include <array>
#include <cassert>
#include <cstdint>

namespace kelvarine {

// True for a number of a column or a row.
constexpr bool IsLine(int line)
{
    return line >= 1 && line <= 9;
}

// A cell by column and row, both 1..9.
struct Cell {
    std::uint8_t Column;
    std::uint8_t Row;

    friend constexpr bool operator==(const Cell &, const Cell &) = default;
};

enum class HouseKind : std::uint8_t { Column, Row, Box };

struct House {
    HouseKind Kind;
    std::array<Cell, 9> Cells;
};

// The first line of the band or stack of a line. Entry 0 exists and is 0.
inline constexpr std::array<std::uint8_t, 10> BoxStart{0, 1, 1, 1, 4, 4, 4, 7, 7, 7};

// Place of a cell in the scan with the column outer and the row inner, 0..80.
constexpr int CellIndex(int column, int row)
{
    assert(IsLine(column) && IsLine(row));
    return (column - 1) * 9 + row - 1;
}

constexpr int CellIndex(Cell cell)
{
    return CellIndex(cell.Column, cell.Row);
}

// Number of a box, 0..8: left column outer, top row inner.
constexpr int BoxIndex(int column, int row)
{
    assert(IsLine(column) && IsLine(row));
    return (column - 1) / 3 * 3 + (row - 1) / 3;
}

constexpr Cell MakeCell(int column, int row)
{
    return {static_cast<std::uint8_t>(column), static_cast<std::uint8_t>(row)};
}

// The 81 cells in scan order.
inline constexpr auto Cells = [] {
    std::array<Cell, 81> cells{};
    for (int column = 1; column <= 9; ++column) {
        for (int row = 1; row <= 9; ++row) {
            cells[static_cast<std::size_t>(CellIndex(column, row))] = MakeCell(column, row);
        }
    }
    return cells;
}();

// Houses 0..8 are columns 1..9, 9..17 rows 1..9, 18..26 the boxes.
inline constexpr auto Houses = [] {
    std::array<House, 27> houses{};
    for (int line = 1; line <= 9; ++line) {
        House &column = houses[static_cast<std::size_t>(line - 1)];
        House &row = houses[static_cast<std::size_t>(line + 8)];
        House &box = houses[static_cast<std::size_t>(line + 17)];
        column.Kind = HouseKind::Column;
        row.Kind = HouseKind::Row;
        box.Kind = HouseKind::Box;
        for (int place = 1; place <= 9; ++place) {
            const auto k = static_cast<std::size_t>(place - 1);
            column.Cells[k] = MakeCell(line, place);
            row.Cells[k] = MakeCell(place, line);
            box.Cells[k] = MakeCell((line - 1) / 3 * 3 + 1 + (place - 1) / 3,
                                    (line - 1) % 3 * 3 + 1 + (place - 1) % 3);
        }
    }
    return houses;
}();

// The three houses of every cell, in scan order, as indices into Houses: column, row, box.
inline constexpr auto CellHouses = [] {
    std::array<std::array<std::uint8_t, 3>, 81> houses{};
    for (const Cell cell : Cells) {
        houses[static_cast<std::size_t>(CellIndex(cell))] = {
            static_cast<std::uint8_t>(cell.Column - 1), static_cast<std::uint8_t>(cell.Row + 8),
            static_cast<std::uint8_t>(18 + BoxIndex(cell.Column, cell.Row))};
    }
    return houses;
}();

// The three houses of the cell at column and row, both 1..9.
constexpr const std::array<std::uint8_t, 3> &HousesOf(int column, int row)
{
    return CellHouses[static_cast<std::size_t>(CellIndex(column, row))];
}

// True when two different cells share a column, a row or a box.
constexpr bool ArePeers(Cell a, Cell b)
{
    return a != b && (a.Column == b.Column || a.Row == b.Row ||
                      BoxIndex(a.Column, a.Row) == BoxIndex(b.Column, b.Row));
}

} // namespace kelvarine
