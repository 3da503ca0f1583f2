#include "logic/chain_search.h"

namespace kelvarine {

namespace {

bool Contains(const House &house, Cell cell)
{
    for (const Cell other : house.Cells) {
        if (other == cell) {
            return true;
        }
    }
    return false;
}

const House &HouseOf(Cell cell, HouseKind kind)
{
    return Houses[HousesOf(cell.Column, cell.Row)[static_cast<std::size_t>(kind)]];
}

void AddHouse(CellList &list, const House &house)
{
    for (const Cell cell : house.Cells) {
        list.Add(cell);
    }
}

// Adds the cells of a line that lie in the box of another cell, ascending.
void AddCrossing(CellList &list, const House &line, Cell other)
{
    for (const Cell cell : line.Cells) {
        if (Contains(HouseOf(other, HouseKind::Box), cell)) {
            list.Add(cell);
        }
    }
}

} // namespace

CellSet MarkTwos(CellWord mark)
{
    return CellsWhere([=](CellWord &word) {
        const bool two = CandidatesIn(word) == 2;
        word = (word & ~ScratchMarks) | (two ? mark : 0);
        return two;
    });
}

CellList CellsSeenByEnds(Cell start, Cell end, Corner corner)
{
    const bool sameStack = BoxStart[start.Column] == BoxStart[end.Column];
    const bool sameBand = BoxStart[start.Row] == BoxStart[end.Row];
    CellList list;
    if (start.Row == end.Row) {
        AddHouse(list, HouseOf(start, HouseKind::Row));
        if (sameStack) {
            AddHouse(list, HouseOf(end, HouseKind::Box));
        }
    } else if (start.Column == end.Column) {
        AddHouse(list, HouseOf(start, HouseKind::Column));
        if (sameBand) {
            AddHouse(list, HouseOf(end, HouseKind::Box));
        }
    } else if (sameStack && sameBand) {
        AddHouse(list, HouseOf(end, HouseKind::Box));
    } else if (sameStack) {
        AddCrossing(list, HouseOf(start, HouseKind::Column), end);
        AddCrossing(list, HouseOf(end, HouseKind::Column), start);
    } else if (sameBand) {
        for (const Cell cell : HouseOf(start, HouseKind::Row).Cells) {
            const bool passedOver = corner == Corner::PassedOver && cell.Column == end.Column;
            if (Contains(HouseOf(end, HouseKind::Box), cell) && !passedOver) {
                list.Add(cell);
            }
        }
        AddCrossing(list, HouseOf(end, HouseKind::Row), start);
    } else {
        list.Add({start.Column, end.Row}); // one of the two crossings, as in SeenByEnds
    }
    return list;
}

void MarkChain(const Chain &chain, CellWord bits)
{
    for (int i = 1; i <= chain.Depth; ++i) {
        WordOf(chain.At(i)) |= bits;
    }
}

void ReportChain(const Chain &chain, ChainMarks marks, std::int32_t number)
{
    for (int i = 1; i <= chain.Depth; ++i) {
        const Cell cell = CellOf(chain.At(i));
        HintText += "  " + NameOf(cell);
        ChainColumns[static_cast<std::size_t>(i)] = cell.Column;
        ChainRows[static_cast<std::size_t>(i)] = cell.Row;
        WordAt(cell) |= i % 2 == 0 ? marks.Even : marks.Odd;
    }
    ChainColumns[0] = chain.Depth;
    ChainRows[0] = number;
}

void ReportEndsConflict(Cell target, int number)
{
    HintText += "Cell " + NameOf(target) + " contains a " + std::to_string(number) +
                " which conflicts with the ends of the following chained cells:";
    HintText += MessageLineEnd;
}

void AddNumberLine(std::string_view leadIn, int number)
{
    HintText += MessageLineEnd;
    HintText += leadIn;
    HintText += std::to_string(number);
}

} // namespace kelvarine
