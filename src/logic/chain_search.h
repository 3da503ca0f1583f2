// What the chain searches share: the chain under way, the order in which the peers of a cell are
// visited, the cells that see both ends of a chain, and the exhibit and words of a report.
#pragma once

#include "logic/cell_set.h"
#include "logic/technique.h"

#include <array>
#include <cassert>
#include <cstdint>
#include <string_view>

namespace kelvarine {

// The chain from its first cell to the top of the stack. A search keeps what else it must know of
// each cell in arrays of its own beside it, by depth.
struct Chain {
    int Depth = 0;                      // number of cells on the chain
    CellSet On = NoCells;               // these cells
    std::array<std::uint8_t, 82> Place; // the same by depth from 1 on, by CellIndex

    void StartAt(int cell)
    {
        Depth = 0;
        On = NoCells;
        Push(cell);
    }

    [[nodiscard]] int At(int depth) const
    {
        return Place[static_cast<std::size_t>(depth)];
    }

    [[nodiscard]] int Start() const
    {
        return At(1);
    }

    [[nodiscard]] int Top() const
    {
        return At(Depth);
    }

    void Push(int cell)
    {
        ++Depth;
        Place[static_cast<std::size_t>(Depth)] = static_cast<std::uint8_t>(cell);
        On.Add(cell);
    }

    void Pop()
    {
        On.Remove(Top());
        --Depth;
    }
};

// Cell and word of a CellIndex.
inline Cell CellOf(int index)
{
    return Cells[static_cast<std::size_t>(index)];
}

inline CellWord &WordOf(int index)
{
    return WordAt(CellOf(index));
}

inline CellSet PeersOf(int index)
{
    return PeerSets[static_cast<std::size_t>(index)];
}

// Those of some cells that have any of some candidates and at which a mode has something to do: in
// mode 1 the cells without AlertBit, in mode 2 those with SelectedBit. A cell that is no open
// target does not become one during a call, so a search may leave out what can end at no other
// cell.
inline CellSet OpenTargets(std::int32_t mode, CellWord candidates, CellSet among)
{
    const CellWord without = mode == ModeAlert ? AlertBit : 0;
    const CellWord with = mode == ModeExplain ? SelectedBit : 0;
    CellSet open = among;
    for (; among.Any(); among.DropFirst()) {
        const CellWord word = WordOf(among.First());
        if ((word & candidates) == 0 || (word & (without | with)) != with) {
            open.Remove(among.First());
        }
    }
    return open;
}

// Clears the scratch marks of all cells, sets mark on those with two candidates and returns these.
CellSet MarkTwos(CellWord mark);

// Which of some peers of a cell comes first in the order of a walk: those of the column by
// ascending row, those of the row by ascending column, the rest of the box column by column. There
// must be one.
inline int FirstPeer(int cell, CellSet peers)
{
    assert(peers.Any());
    const CellSet inColumn = peers & HouseSetOf(CellOf(cell), HouseKind::Column);
    if (inColumn.Any()) {
        return inColumn.First();
    }
    const CellSet inRow = peers & HouseSetOf(CellOf(cell), HouseKind::Row);
    return inRow.Any() ? inRow.First() : peers.First();
}

// Ends in one band but in different stacks: what becomes of the cell in the end's column and the
// start's row.
enum class Corner : std::uint8_t { Taken, PassedOver };

// A short list of cells; a line and a box at most.
struct CellList {
    std::array<Cell, 18> Items;
    std::size_t Count = 0;

    void Add(Cell cell)
    {
        Items[Count] = cell;
        ++Count;
    }

    [[nodiscard]] const Cell *begin() const
    {
        return Items.data();
    }

    [[nodiscard]] const Cell *end() const
    {
        return Items.data() + Count;
    }
};

// The cells that are examined for a chain from start to end, in their order. A cell may come twice,
// and the ends themselves may be among them.
CellList CellsSeenByEnds(Cell start, Cell end, Corner corner);

// The same cells as a set, corners taken and the ends left out.
inline CellSet SeenByEnds(int start, int end)
{
    const Cell s = CellOf(start);
    const Cell e = CellOf(end);
    if (BoxStart[s.Column] != BoxStart[e.Column] && BoxStart[s.Row] != BoxStart[e.Row]) {
        // The other crossing, in the end's column and the start's row, sees both ends as well and
        // is passed over; intended. The chain found from its other end covers it.
        return CellSet::Of(CellIndex(s.Column, e.Row));
    }
    return PeersOf(start) & PeersOf(end);
}

// Sets bits in the words of the cells of the chain.
void MarkChain(const Chain &chain, CellWord bits);

// The marks that a report gives to the cells of a chain by their place on it.
struct ChainMarks {
    CellWord Odd;
    CellWord Even;
};

// Appends the names of the chain's cells to HintText, marks them, and exhibits the chain with the
// given number in ChainRows[0].
void ReportChain(const Chain &chain, ChainMarks marks, std::int32_t number);

// Appends the sentence on a target that conflicts with the ends of a chain to HintText.
void ReportEndsConflict(Cell target, int number);

inline constexpr std::string_view InvolvesNumber = "It involves the number ";

// Appends a line of a lead-in and a number to HintText.
void AddNumberLine(std::string_view leadIn, int number);

} // namespace kelvarine
