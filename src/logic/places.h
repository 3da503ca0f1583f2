// The grid seen by number: for every number and house the places that the number has there, one
// bit to a cell. The searches for groups, intersections and fish read this instead of words.
//
// A row of the table runs over all houses, so that one loop asks one question of all 27 at once;
// such loops have no branches and compile to a few wide instructions.
#pragma once

#include "grid/grid.h"

#include <array>
#include <bit>
#include <cassert>
#include <cstdint>
#include <vector>

namespace kelvarine {

// Cells of one house: bit k is the cell k, 0..8, of the house in scan order.
using Places = std::uint16_t;

inline constexpr Places AllPlaces = 0x1FF;

// Where the columns, the rows and the boxes begin in Houses.
inline constexpr std::size_t FirstColumn = 0;
inline constexpr std::size_t FirstRow = 9;
inline constexpr std::size_t FirstBox = 18;

// One entry to a house; entries from 27 up fill the last wide word and stay 0.
using PlacesByHouse = std::array<Places, 32>;

struct PlaceTable {
    // Of[n][house] are the cells with candidate n. Entry 0 are the givens: the given's bit stands
    // in the word where a candidate 0 would.
    std::array<PlacesByHouse, 10> Of{};
    PlacesByHouse Filled{}; // the cells with any candidate
};

// The places as they stand in Grid now. There is one table, and a call brings it up to date: it
// costs next to nothing when Grid has not changed since the last call, and little when a few
// cells have. So a search that changes the grid simply calls it again.
const PlaceTable &PlacesNow();

// Number of cells, 0..9.
constexpr Places CountPlaces(Places places)
{
    const auto pairs = static_cast<Places>(places - (places >> 1 & 0x5555));
    const auto fours = static_cast<Places>((pairs & 0x3333) + (pairs >> 2 & 0x3333));
    const auto eights = static_cast<Places>((fours + (fours >> 4)) & 0x0F0F);
    return static_cast<Places>((eights + (eights >> 8)) & 0xF);
}

// The cells that come before the first of some, all of them when there is none.
constexpr Places PlacesBefore(Places some)
{
    return static_cast<Places>((some - 1) & ~some);
}

// Whether the cell k, 0..8, is among some.
constexpr bool HasPlace(Places some, std::size_t k)
{
    assert(k < 9);
    return (some >> k & 1) != 0;
}

// The first cell, 0..8, of some that are not none.
constexpr std::size_t FirstPlace(Places some)
{
    assert(some != 0);
    return static_cast<std::size_t>(std::countr_zero(some));
}

// Some cells of a house in order, as a list for words and marks.
std::vector<Cell> CellsAt(const House &house, Places some);

// The candidates that some cells of a house hold together.
CellWord CandidatesAmong(const House &house, Places some);

} // namespace kelvarine
