#include "generator/patterns.h"

#include <algorithm>
#include <cassert>

namespace kelvarine {

const std::array<RevealPatternRow, PatternCount> RevealPatterns{{
    {" Random (no intentional symmetry)", FreeStart::ThreeCells},
    {" 180 degree rotation", FreeStart::OneGroup},
    {" Diagonal reflection", FreeStart::OneGroup},
    {" Diagonal && anti-diagonal reflection", FreeStart::None},
    {" Horizontal reflection", FreeStart::OneGroup},
    {" Horizontal && vertical reflection", FreeStart::None},
    {" Horizontal box tiling", FreeStart::OneGroup},
    {" All box tiling", FreeStart::None},
    {" None (expose cells manually)", FreeStart::None},
    {" Full rotation", FreeStart::None},
}};

namespace {

constexpr std::size_t MostPartners = 8;

struct Partners {
    std::array<Cell, MostPartners> Cells{};
    std::size_t Count = 0;

    // A cell that a transformation leaves in place, or brings to a partner that is there already,
    // adds nothing.
    constexpr void Add(Cell self, int column, int row)
    {
        const Cell partner = MakeCell(column, row);
        Cell *const end = Cells.begin() + Count;
        if (partner != self && std::find(Cells.begin(), end, partner) == end) {
            Cells[Count] = partner;
            ++Count;
        }
    }
};

// The line so many boxes on, round the edge.
constexpr int BoxesOn(int line, int boxes)
{
    return (line - 1 + 3 * boxes) % 9 + 1;
}

constexpr Partners MakePartners(std::int32_t pattern, Cell cell)
{
    const int c = cell.Column;
    const int r = cell.Row;
    Partners partners;
    switch (pattern) {
    case 1:
        partners.Add(cell, 10 - c, 10 - r);
        break;
    case 2:
        partners.Add(cell, r, c);
        break;
    case 3:
        partners.Add(cell, r, c);
        partners.Add(cell, 10 - r, 10 - c);
        partners.Add(cell, 10 - c, 10 - r);
        break;
    case 4:
        partners.Add(cell, 10 - c, r);
        break;
    case 5:
        partners.Add(cell, 10 - c, r);
        partners.Add(cell, c, 10 - r);
        partners.Add(cell, 10 - c, 10 - r);
        break;
    case 6:
        partners.Add(cell, BoxesOn(c, 1), r);
        partners.Add(cell, BoxesOn(c, 2), r);
        break;
    case 7:
        for (int box = 1; box < 9; ++box) {
            partners.Add(cell, BoxesOn(c, box / 3), BoxesOn(r, box % 3));
        }
        break;
    case 9:
        partners.Add(cell, r, 10 - c);
        partners.Add(cell, 10 - c, 10 - r);
        partners.Add(cell, 10 - r, c);
        break;
    default:
        break;
    }
    return partners;
}

constexpr auto PartnerTable = [] {
    std::array<std::array<Partners, 81>, PatternCount> table{};
    for (std::int32_t pattern = 0; pattern < PatternCount; ++pattern) {
        for (const Cell cell : Cells) {
            table[static_cast<std::size_t>(pattern)][static_cast<std::size_t>(CellIndex(cell))] =
                MakePartners(pattern, cell);
        }
    }
    return table;
}();

} // namespace

std::span<const Cell> PartnersOf(std::int32_t pattern, Cell cell)
{
    assert(pattern >= 0 && pattern <= 9);
    const Partners &partners =
        PartnerTable[static_cast<std::size_t>(pattern)][static_cast<std::size_t>(CellIndex(cell))];
    return {partners.Cells.data(), partners.Count};
}

} // namespace kelvarine
