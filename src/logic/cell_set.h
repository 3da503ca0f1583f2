// Sets of cells as bits, one for each place in the scan order, so that "the cells that see both of
// these and hold that" is a few machine words.
#pragma once

#include "grid/grid.h"

#include <array>
#include <bit>
#include <cassert>
#include <cstdint>

namespace kelvarine {

// A set of cells by CellIndex, 0..80. Walking it from First on gives the scan order. Left without
// initial values so that the long stacks of sets in a search cost nothing before they are used.
struct CellSet {
    std::uint64_t Low;  // cells 0..63
    std::uint64_t High; // cells 64..80

    static constexpr CellSet Of(int cell)
    {
        const std::uint64_t bit = std::uint64_t{1} << (cell & 63);
        return cell < 64 ? CellSet{bit, 0} : CellSet{0, bit};
    }

    [[nodiscard]] constexpr bool Any() const
    {
        return (Low | High) != 0;
    }

    [[nodiscard]] constexpr bool Has(int cell) const
    {
        return (((cell < 64 ? Low : High) >> (cell & 63)) & 1) != 0;
    }

    [[nodiscard]] constexpr int Count() const
    {
        return std::popcount(Low) + std::popcount(High);
    }

    // The first cell in scan order; the set must have one.
    [[nodiscard]] constexpr int First() const
    {
        assert(Low != 0 || High != 0);
        return Low != 0 ? std::countr_zero(Low) : 64 + std::countr_zero(High);
    }

    constexpr void DropFirst()
    {
        if (Low != 0) {
            Low &= Low - 1;
        } else {
            High &= High - 1;
        }
    }

    constexpr void Add(int cell)
    {
        *this = *this | Of(cell);
    }

    // Adds cells of a column, bit 0 of the bits for row 1.
    constexpr void AddColumn(int column, std::uint64_t bits)
    {
        const int first = (column - 1) * 9;
        if (first < 64) {
            Low |= bits << first;
            High |= first == 63 ? bits >> 1 : 0; // column 8 begins in the last bit
        } else {
            High |= bits << (first - 64);
        }
    }

    constexpr void Remove(int cell)
    {
        *this = Without(Of(cell));
    }

    // The members behind a cell in scan order.
    [[nodiscard]] constexpr CellSet After(int cell) const
    {
        constexpr std::uint64_t all = ~std::uint64_t{0};
        return cell < 63 ? CellSet{Low & (all << (cell + 1)), High}
                         : CellSet{0, High & (all << (cell - 63))};
    }

    [[nodiscard]] constexpr CellSet Without(CellSet other) const
    {
        return {Low & ~other.Low, High & ~other.High};
    }

    friend constexpr CellSet operator&(CellSet a, CellSet b)
    {
        return {a.Low & b.Low, a.High & b.High};
    }

    friend constexpr CellSet operator|(CellSet a, CellSet b)
    {
        return {a.Low | b.Low, a.High | b.High};
    }

    friend constexpr bool operator==(CellSet, CellSet) = default;
};

inline constexpr CellSet NoCells{0, 0};
inline constexpr CellSet AllCells{~std::uint64_t{0}, (std::uint64_t{1} << 17) - 1};

// The cells of each house of Houses.
inline constexpr auto HouseSets = [] {
    std::array<CellSet, 27> sets{};
    for (std::size_t house = 0; house < sets.size(); ++house) {
        for (const Cell cell : Houses[house].Cells) {
            sets[house].Add(CellIndex(cell));
        }
    }
    return sets;
}();

// The set of a cell's column, row or box.
constexpr CellSet HouseSetOf(Cell cell, HouseKind kind)
{
    return HouseSets[HousesOf(cell.Column, cell.Row)[static_cast<std::size_t>(kind)]];
}

// The peers of each cell by CellIndex.
inline constexpr auto PeerSets = [] {
    std::array<CellSet, 81> sets{};
    for (std::size_t k = 0; k < sets.size(); ++k) {
        for (const std::uint8_t house : HousesOf(Cells[k].Column, Cells[k].Row)) {
            sets[k] = sets[k] | HouseSets[house];
        }
        sets[k].Remove(static_cast<int>(k));
    }
    return sets;
}();

// The cells of Grid whose word passes a test.
template <typename Test>
CellSet CellsWhere(const Test &test)
{
    CellSet set = NoCells;
    for (std::size_t column = 1; column <= 9; ++column) {
        std::uint64_t bits = 0; // without a branch by cell
        for (std::size_t row = 1; row <= 9; ++row) {
            bits |= static_cast<std::uint64_t>(test(Grid[column][row])) << row;
        }
        set.AddColumn(static_cast<int>(column), bits >> 1);
    }
    return set;
}

} // namespace kelvarine
