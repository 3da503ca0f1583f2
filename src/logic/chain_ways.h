// Where a chain can still get to when no cell may come twice. A cell of two numbers is entered by
// one of them and left by the other, so a chain is a path through the places (cell, number by which
// it is left), and the two places of a cell are mates of which it may hold one: a regular path in a
// skew-symmetric graph. Such paths, the shortest ones too, are found in polynomial time (Goldberg
// and Karzanov, Path problems in skew-symmetric graphs, 1996), in the same way as alternating paths
// for matchings (Edmonds, Paths, trees, and flowers, 1965).
#pragma once

#include "logic/cell_set.h"

#include <array>
#include <cstdint>

namespace kelvarine {

// The cells of two numbers through which chains may run: all, those with each number, and the sum
// of the two numbers of each such cell.
struct ChainLinks {
    CellSet All;
    std::array<CellSet, 10> With;
    std::array<std::uint8_t, 81> NumberSum;

    // The number by which a cell is left that is entered by another one.
    [[nodiscard]] int Other(int cell, int number) const
    {
        return NumberSum[static_cast<std::size_t>(cell)] - number;
    }
};

// What FindWays found out. Entries of cells that it did not reach mean nothing.
struct Ways {
    // How a cell was reached: first by a step from a cell before it, which settles the number by
    // which it is left, and later perhaps the other way round, against the direction of a ring of
    // cells that a link between Near and Far closes.
    struct Entry {
        std::uint8_t Base; // cell of its ring that is nearest to the start, perhaps of a part
        std::uint8_t Before;
        std::uint8_t FirstOut;   // number by which it is left
        std::uint8_t FirstCells; // cells on the way, the start not counted
        std::uint8_t SecondCells;
        std::uint8_t Near; // on the side of the cell itself
        std::uint8_t Far;
        std::uint8_t RingNumber; // number that Near and Far share
    };

    std::array<CellSet, 10> Out; // by number: cells that a chain can leave by it, the start too
    CellSet Closed;              // cells reached, and those that were not free
    std::array<Entry, 81> Of;

    [[nodiscard]] const Entry &At(int cell) const
    {
        return Of[static_cast<std::size_t>(cell)];
    }

    // Cells on a shortest way to a cell that is left by a number of Out, the start not counted.
    [[nodiscard]] int CellsTo(int cell, int number) const
    {
        const Entry &entry = At(cell);
        return number == entry.FirstOut ? entry.FirstCells : entry.SecondCells;
    }
};

// Cells in the order of a chain, or against it.
struct CellRun {
    std::array<std::uint8_t, 81> Items;
    int Count = 0;

    void Add(int cell)
    {
        Items[static_cast<std::size_t>(Count)] = static_cast<std::uint8_t>(cell);
        ++Count;
    }

    [[nodiscard]] int Last() const
    {
        return Items[static_cast<std::size_t>(Count) - 1];
    }
};

// How often FindWays has been called, which is what long searches for chains spend their time with.
extern std::int64_t SearchesForWays;

// Finds all ways of a chain that leaves a cell by a number and goes on through free cells, up to
// most of them, each from a peer to a peer with the number by which it was left. The start must
// not be free.
void FindWays(Ways &ways, const ChainLinks &links, int start, int number, CellSet free, int most);

// A shortest way to a cell of Out that is left by a number, from that cell back to the one behind
// the start.
CellRun TraceWay(const Ways &ways, const ChainLinks &links, int start, int cell, int number);

} // namespace kelvarine
