#include "grid/grid.h"

#include "grid/names.h"

#include <algorithm>
#include <cassert>

namespace kelvarine {

GridTable Grid{};
std::int32_t GivenCount;
std::int32_t GameRating;

std::array<std::int32_t, 82> ChainColumns{};
std::array<std::int32_t, 82> ChainRows{};
CellWord NumberFilter;

std::uint32_t UsedMask;
std::int32_t SolutionCount;
std::string SolutionList;
Flag SearchActive;
std::string HintText;
std::string HintTitle;

std::uint32_t SolveMask;
std::uint32_t AlertMask;
std::array<std::uint32_t, 10> LevelTable{};
std::int32_t MaxSinglesLinks;
std::int32_t MaxRPLinks;
std::int32_t MaxXYLinks;
Flag IncludeSingles;

void SetGridDefaults()
{
    Grid = {};
    GivenCount = 0;
    GameRating = RatedMultiple;

    ChainColumns = {};
    ChainRows = {};
    NumberFilter = CandidateMask;

    UsedMask = 0;
    SolutionCount = 0;
    SolutionList.clear();
    SearchActive = False;
    HintText.clear();
    HintTitle.clear();

    SolveMask = 0;
    AlertMask = 0;
    LevelTable = {};
    MaxSinglesLinks = LinkLimitRange.Most;
    MaxRPLinks = LinkLimitRange.Most;
    MaxXYLinks = LinkLimitRange.Most;
    IncludeSingles = False;

    SetNamingDefaults();
}

int CountCandidates(int column, int row)
{
    assert(IsLine(column) && IsLine(row));
    return CandidatesIn(Grid[static_cast<std::size_t>(column)][static_cast<std::size_t>(row)]);
}

void ClearCellBits(CellWord mask)
{
    for (std::size_t column = 1; column <= 9; ++column) {
        for (std::size_t row = 1; row <= 9; ++row) {
            Grid[column][row] &= ~mask;
        }
    }
}

void FillPencilmarks()
{
    for (const Cell cell : Cells) {
        if ((WordAt(cell) & GivenBit) == 0) {
            WordAt(cell) |= CandidateMask;
        }
    }
}

void CountGivens()
{
    GivenCount = static_cast<std::int32_t>(
        std::ranges::count_if(Cells, [](Cell cell) { return (WordAt(cell) & GivenBit) != 0; }));
}

Flag IsGridSolved()
{
    for (const House &house : Houses) {
        CellWord numbers = 0;
        for (const Cell cell : house.Cells) {
            const CellWord word = WordAt(cell);
            // The columns come first and cover all cells, so rows and boxes need no count.
            if (house.Kind == HouseKind::Column && CandidatesIn(word) != 1) {
                return False;
            }
            numbers |= word;
        }
        if ((numbers & CandidateMask) != CandidateMask) {
            return False;
        }
    }
    return True;
}

void CopyCells(const GridTable &from, GridTable &to)
{
    for (std::size_t column = 1; column <= 9; ++column) {
        std::copy(from[column].begin() + 1, from[column].end(), to[column].begin() + 1);
    }
}

} // namespace kelvarine
