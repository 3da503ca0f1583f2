// The candidates of a whole grid by number, as sets of cells, and the conclusions that plain
// arithmetic on such sets draws from them. This is what the counting of solutions works on; it
// knows nothing of Grid, and nothing is allocated.
#pragma once

#include "grid/grid.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace kelvarine {

// What each cell may hold, in scan order, in the shape of CandidateMask; all other bits are
// ignored. A cell with nothing is allowed: such a field has no filling.
using Field = std::array<CellWord, 81>;

// The words of a grid in scan order.
Field FieldOf(const GridTable &grid);

// A set of the 81 cells. A lane holds three columns of the grid, a stack: its column c, 0..2,
// stands in bits 10 * c to 10 * c + 8 in the order of the rows. The bit above each column, its
// guard, is free and catches carries. The fourth lane is not used and always 0. The compiler makes
// one instruction of an operation on all lanes.
using CellLanes [[gnu::vector_size(16)]] = std::uint32_t;

inline constexpr std::size_t StackCount = 3;
inline constexpr std::size_t NumberCount = 9;

// The same bits in every stack, and a pattern of one column repeated for the three of a stack.
constexpr CellLanes InAllStacks(std::uint32_t bits)
{
    return CellLanes{bits, bits, bits, 0};
}

constexpr std::uint32_t InThreeColumns(std::uint32_t rows)
{
    return rows | rows << 10 | rows << 20;
}

inline constexpr CellLanes AllCells = InAllStacks(InThreeColumns(0x1FF));
inline constexpr CellLanes ColumnGuards = InAllStacks(InThreeColumns(0x200));

// The cell of a lane and bit.
constexpr std::size_t ScanIndex(std::size_t stack, unsigned bit)
{
    return stack * 27 + std::size_t{bit / 10} * 9 + bit % 10;
}

inline bool IsAny(CellLanes cells)
{
    const auto halves = std::bit_cast<std::array<std::uint64_t, 2>>(cells);
    return (halves[0] | halves[1]) != 0;
}

// The guards of the columns that hold a cell of a set.
inline CellLanes Occupied(CellLanes cells)
{
    return (cells + AllCells) & ColumnGuards;
}

// All cells of some columns, given by their guards.
inline CellLanes WholeColumns(CellLanes guards)
{
    return guards - (guards >> 9);
}

// The cells of a set but for the first of each column.
inline CellLanes BehindFirst(CellLanes cells)
{
    return cells & ((cells | ColumnGuards) - InAllStacks(InThreeColumns(1)));
}

// The first cell of a set in scan order, as a set; the set must have one.
CellLanes FirstOf(CellLanes cells);

// What occurs once, twice and three times among sets that are added one after the other.
template <typename Set>
struct Repeats {
    Set One{}; // at least once
    Set Two{};
    Set Three{};

    constexpr void Add(Set set)
    {
        Three |= Two & set;
        Two |= One & set;
        One |= set;
    }
};

// By number less 1 the cells that may hold it.
struct NumberBoard {
    std::array<CellLanes, NumberCount> Places;
};

NumberBoard BoardOf(const Field &field);

// What a board says wherever a contradiction shows, added up over many boards.
struct Blame {
    std::array<std::int32_t, 81> Cells{}; // by scan order
    std::array<std::array<std::int32_t, StackCount>, NumberCount> Numbers{};
};

// Draws all conclusions from numbers whose places in a house lie in a second house, from numbers
// with one place in a house and from cells with one number, over and over. False when this shows
// that there is no filling; the contradiction is then added to blame, if there is one. On true,
// counts says which cells hold one, two, and three numbers or more; when no cell holds two, the
// board is filled by the rules.
bool Conclude(NumberBoard &board, Repeats<CellLanes> &counts, Blame *blame = nullptr);

// Leaves a number, less 1, as the only one in a cell.
void Decide(NumberBoard &board, CellLanes cell, std::size_t number);

// The lowest number, less 1, that a cell may hold; it must have one.
std::size_t LowestIn(const NumberBoard &board, CellLanes cell);

} // namespace kelvarine
