#include "logic/plain/singles.h"

#include "grid/grid.h"
#include "grid/names.h"

#include <string>
#include <utility>
#include <vector>

namespace kelvarine::testing::plain {

namespace {

using Spot = std::pair<std::size_t, std::size_t>; // column, row

struct Line {
    std::string Kind; // "column", "row" or "box"
    std::vector<Spot> Spots;
};

int Number(std::size_t line)
{
    return static_cast<int>(line);
}

std::vector<Line> ColumnLines()
{
    std::vector<Line> lines;
    for (std::size_t column = 1; column <= 9; ++column) {
        Line line{"column", {}};
        for (std::size_t row = 1; row <= 9; ++row) {
            line.Spots.emplace_back(column, row);
        }
        lines.push_back(line);
    }
    return lines;
}

std::vector<Line> RowLines()
{
    std::vector<Line> lines;
    for (std::size_t row = 1; row <= 9; ++row) {
        Line line{"row", {}};
        for (std::size_t column = 1; column <= 9; ++column) {
            line.Spots.emplace_back(column, row);
        }
        lines.push_back(line);
    }
    return lines;
}

std::vector<Line> BoxLines()
{
    std::vector<Line> lines;
    for (std::size_t left = 1; left <= 7; left += 3) {
        for (std::size_t top = 1; top <= 7; top += 3) {
            Line line{"box", {}};
            for (std::size_t column = left; column <= left + 2; ++column) {
                for (std::size_t row = top; row <= top + 2; ++row) {
                    line.Spots.emplace_back(column, row);
                }
            }
            lines.push_back(line);
        }
    }
    return lines;
}

const std::vector<Line> &AllLines()
{
    static const std::vector<Line> lines = [] {
        std::vector<Line> all = ColumnLines();
        for (const Line &line : RowLines()) {
            all.push_back(line);
        }
        for (const Line &line : BoxLines()) {
            all.push_back(line);
        }
        return all;
    }();
    return lines;
}

std::string NameOfLine(const Line &line)
{
    const auto [column, row] = line.Spots[0];
    if (line.Kind == "column") {
        return "column " + ColumnName(Number(column));
    }
    if (line.Kind == "row") {
        return "row " + RowName(Number(row));
    }
    return "the " + BoxName(Number(column), Number(row)) + " box";
}

CellWord &At(const Spot &spot)
{
    return Grid[spot.first][spot.second];
}

int CountBits(CellWord word)
{
    int count = 0;
    for (CellWord rest = word & 0x3FE; rest != 0; rest &= rest - 1) {
        ++count;
    }
    return count;
}

std::string NameOfSpot(const Spot &spot)
{
    return CellName(Number(spot.first), Number(spot.second));
}

// The number whose bit a mask is; 10 when it is none.
int NumberOfMask(CellWord mask)
{
    int number = 1;
    while (number <= 9 && mask != CellWord{1} << number) {
        ++number;
    }
    return number;
}

void SetNumbers(const Spot &spot, CellWord mask)
{
    At(spot) = (At(spot) & ~CellWord{0x3FE}) | mask;
}

void MarkLine(const Line &line)
{
    for (const Spot &spot : line.Spots) {
        At(spot) |= 0x400000;
    }
}

bool Contains(const Line &line, const Spot &wanted)
{
    for (const Spot &spot : line.Spots) {
        if (spot == wanted) {
            return true;
        }
    }
    return false;
}

// True when the words of a target are to be written.
bool TellsAbout(std::int32_t mode, const Spot &spot)
{
    if (mode == 5) {
        At(spot) |= 0x400;
    }
    return (mode == 2 || mode == 5) && (At(spot) & 0x400) != 0;
}

// One house of the search for a last candidate; true when the call is over.
bool LastCandidateOf(const Line &line, std::int32_t mode, Flag &found)
{
    int count = 0;
    CellWord united = 0;
    Spot open;
    for (const Spot &spot : line.Spots) {
        if (CountBits(At(spot)) == 1) {
            ++count;
            united |= At(spot);
        } else {
            open = spot;
        }
    }
    if (count != 8) {
        return false;
    }
    const CellWord missing = 0x3FE & ~united;
    if (mode == 0) {
        SetNumbers(open, missing);
        found = -1;
    } else if (mode == 1) {
        At(open) |= 0x100000;
    } else if (mode == 3 || mode == 4) {
        HintText = "There's an unplaced last candidate.";
        if (mode == 4) {
            HintText += "\rIt's in a " + line.Kind + ".";
        }
        return true;
    } else if (TellsAbout(mode, open)) {
        HintTitle = "Unplaced last candidate";
        HintText = "Cell " + NameOfSpot(open) + " is the last incomplete cell in " +
                   NameOfLine(line) + "\rand must contain the last candidate which is a " +
                   std::to_string(NumberOfMask(missing)) + ".";
        MarkLine(line);
        At(open) |= 0x200000;
        return true;
    }
    return false;
}

// One cell of the search for a naked single; true when the call is over.
bool NakedSingleAt(const Spot &spot, std::int32_t mode, Flag &found)
{
    CellWord united = 0;
    for (const Line &line : AllLines()) {
        if (!Contains(line, spot)) {
            continue;
        }
        for (const Spot &other : line.Spots) {
            if (CountBits(At(other)) == 1) {
                united |= At(other);
            }
        }
    }
    const CellWord open = 0x3FE & ~united;
    if (CountBits(open) != 1) {
        return false;
    }
    if (mode == 0) {
        SetNumbers(spot, open);
        found = -1;
    } else if (mode == 1) {
        At(spot) |= 0x100000;
    } else if (mode == 3 || mode == 4) {
        HintText = "There's an unplaced naked single.";
        if (mode == 4) {
            HintText +=
                "\rIt's in the " + BoxName(Number(spot.first), Number(spot.second)) + " box.";
        }
        return true;
    } else if (TellsAbout(mode, spot)) {
        HintTitle = "Unplaced naked single";
        HintText = "Cell " + NameOfSpot(spot) + " must contain a " +
                   std::to_string(NumberOfMask(open)) +
                   " because it's the \ronly unused number in its domain.";
        for (const Line &line : AllLines()) {
            if (Contains(line, spot)) {
                MarkLine(line);
            }
        }
        At(spot) |= 0x200000;
        return true;
    }
    return false;
}

// The grid of the search for hidden singles: what each cell can hold by the placed numbers.
GridTable WorkingCopy()
{
    GridTable work = Grid;
    for (std::size_t column = 1; column <= 9; ++column) {
        for (std::size_t row = 1; row <= 9; ++row) {
            CellWord &word = work[column][row];
            if (CountBits(word) == 1) {
                word |= 0x40000000;
            } else {
                word = (word & ~CellWord{0x40000000}) | 0x3FE;
            }
        }
    }
    for (const Line &line : AllLines()) {
        CellWord united = 0;
        for (const auto &[column, row] : line.Spots) {
            if ((work[column][row] & 0x40000000) != 0) {
                united |= work[column][row] & 0x3FE;
            }
        }
        for (const auto &[column, row] : line.Spots) {
            if ((work[column][row] & 0x40000000) == 0) {
                work[column][row] &= ~united;
            }
        }
    }
    return work;
}

// One house and number of the search for hidden singles; true when the call is over.
bool HiddenSingleOf(const GridTable &work, const Line &line, int number, std::int32_t mode,
                    Flag &found)
{
    const CellWord bit = CellWord{1} << number;
    int count = 0;
    Spot only;
    for (const Spot &spot : line.Spots) {
        const CellWord word = work[spot.first][spot.second];
        if ((word & bit) != 0) {
            if ((word & 0x40000000) != 0) {
                return false;
            }
            if (++count == 1) {
                only = spot;
            }
        }
    }
    if (count != 1) {
        return false;
    }
    if (mode == 0) {
        SetNumbers(only, bit);
        found = -1;
    } else if (mode == 1) {
        At(only) |= 0x100000;
    } else if (mode == 3 || mode == 4) {
        HintText = "There's a hidden single.";
        if (mode == 4) {
            HintText += "\rIt's in a " + line.Kind + ".";
        }
        return true;
    } else if (TellsAbout(mode, only)) {
        HintTitle = "Hidden single";
        HintText = "Cell " + NameOfSpot(only) + " is the only cell in " + NameOfLine(line) +
                   " that can hold the number " + std::to_string(number) + ".";
        MarkLine(line);
        return true;
    }
    return false;
}

void TakeOutOfLine(const Line &line, const Spot &spot, Flag &found)
{
    const CellWord number = At(spot) & 0x3FE;
    for (const Spot &other : line.Spots) {
        if (other != spot && (At(other) & 0x1) == 0 && (At(other) & number) != 0) {
            At(other) &= ~number;
            found = -1;
        }
    }
}

void PlaceHiddenSingle(const Line &line, CellWord bit, Flag &found)
{
    int count = 0;
    Spot last;
    for (const Spot &spot : line.Spots) {
        if ((At(spot) & bit) != 0) {
            if ((At(spot) & 0x1) != 0) {
                return;
            }
            ++count;
            last = spot;
        }
    }
    if (count == 1 && (At(last) & 0x3FE) != bit) {
        SetNumbers(last, bit);
        found = -1;
    }
}

} // namespace

void FindUnplacedLastCandidate(std::int32_t mode, Flag &found)
{
    for (const Line &line : AllLines()) {
        if (LastCandidateOf(line, mode, found)) {
            return;
        }
    }
}

void FindUnplacedNakedSingle(std::int32_t mode, Flag &found)
{
    for (std::size_t column = 1; column <= 9; ++column) {
        for (std::size_t row = 1; row <= 9; ++row) {
            if (CountBits(Grid[column][row]) != 1 && NakedSingleAt({column, row}, mode, found)) {
                return;
            }
        }
    }
}

void FindUnplacedHiddenSingle(std::int32_t mode, Flag &found)
{
    const GridTable work = WorkingCopy();
    for (int number = 1; number <= 9; ++number) {
        for (const Line &line : AllLines()) {
            if (HiddenSingleOf(work, line, number, mode, found)) {
                return;
            }
        }
    }
}

void ApplyNakedSingles(std::int32_t /*mode*/, Flag &found)
{
    for (std::size_t column = 1; column <= 9; ++column) {
        for (std::size_t row = 1; row <= 9; ++row) {
            const Spot spot{column, row};
            for (const Line &line : AllLines()) {
                if (CountBits(At(spot)) == 1 && Contains(line, spot)) {
                    TakeOutOfLine(line, spot, found);
                }
            }
        }
    }
}

void ApplyHiddenSingles(std::int32_t /*mode*/, Flag &found)
{
    for (int number = 1; number <= 9; ++number) {
        for (const Line &line : AllLines()) {
            PlaceHiddenSingle(line, CellWord{1} << number, found);
        }
    }
}

Flag IsGridSolved()
{
    for (std::size_t column = 1; column <= 9; ++column) {
        for (std::size_t row = 1; row <= 9; ++row) {
            if (CountBits(Grid[column][row]) != 1) {
                return 0;
            }
        }
    }
    for (const Line &line : AllLines()) {
        CellWord united = 0;
        for (const Spot &spot : line.Spots) {
            united |= At(spot) & 0x3FE;
        }
        if (united != 0x3FE) {
            return 0;
        }
    }
    return -1;
}

} // namespace kelvarine::testing::plain
