// The search grows a tree of first ways from the start, level by level, and closes rings: where a
// link joins two cells that can both be left by its number, all cells of the ring so closed can be
// left in the other direction as well, those above the point where its two sides part excepted. A
// ring counts as one cell from then on. With rings closed in the order of their size the first way
// to a place is a shortest one; this is the search for a cheapest augmenting path with all links
// at the same cost.
#include "logic/chain_ways.h"

#include <algorithm>
#include <cassert>

namespace kelvarine {

std::int64_t SearchesForWays;

namespace {

constexpr int MostCells = 80; // behind the start
constexpr std::uint8_t NoCell = 81;

// What is to be done at a time. Time runs in half cells: a ring is closed when both of its sides
// together, and a cell is entered when twice the way to it, are that long.
struct Deed {
    std::int16_t Next;
    std::uint8_t From;
    std::uint8_t To; // NoCell to enter all cells behind From
    std::uint8_t Number;
};

struct Search {
    Ways *Found;
    const ChainLinks *Links;
    int Start;
    int Now;
    int LastTime;
    int Open; // deeds not yet done
    int Deeds;
    std::array<std::int16_t, 2 * MostCells + 1> First; // by time, -1 for none
    // Each of at most 162 places once, each link of two places once.
    std::array<Deed, 162 + 162 * 20 / 2> List;
};

Ways::Entry &EntryOf(Search &search, int cell)
{
    return search.Found->Of[static_cast<std::size_t>(cell)];
}

void Post(Search &search, int time, int from, int to, int number)
{
    assert(time >= search.Now);
    if (time > search.LastTime) {
        return;
    }
    std::int16_t &first = search.First[static_cast<std::size_t>(time)];
    search.List[static_cast<std::size_t>(search.Deeds)] = {first, static_cast<std::uint8_t>(from),
                                                           static_cast<std::uint8_t>(to),
                                                           static_cast<std::uint8_t>(number)};
    first = static_cast<std::int16_t>(search.Deeds);
    ++search.Deeds;
    ++search.Open;
}

// The cell that stands for all cells of a ring.
int BaseOf(Search &search, int cell)
{
    while (EntryOf(search, cell).Base != cell) {
        Ways::Entry &entry = EntryOf(search, cell);
        entry.Base = EntryOf(search, entry.Base).Base;
        cell = entry.Base;
    }
    return cell;
}

// Takes down that a chain can leave a cell by a number, and what may follow from that.
void Leave(Search &search, int cell, int number)
{
    Ways &ways = *search.Found;
    const int cells = ways.CellsTo(cell, number);
    CellSet &out = ways.Out[static_cast<std::size_t>(number)];
    const CellSet peers =
        PeerSets[static_cast<std::size_t>(cell)] &
        (search.Links->With[static_cast<std::size_t>(number)] | CellSet::Of(search.Start));
    for (CellSet ends = peers & out; ends.Any(); ends.DropFirst()) {
        const int end = ends.First();
        if (ways.At(end).Base != ways.At(cell).Base) {
            Post(search, 1 + cells + ways.CellsTo(end, number), cell, end, number);
        }
    }
    if (peers.Without(ways.Closed).Any()) {
        Post(search, 2 * (cells + 1), cell, NoCell, number);
    }
    out.Add(cell);
}

// Enters all cells behind one that were not reached before.
void Enter(Search &search, int from, int number)
{
    Ways &ways = *search.Found;
    const int cells = ways.CellsTo(from, number) + 1;
    CellSet fresh = PeerSets[static_cast<std::size_t>(from)] &
                    search.Links->With[static_cast<std::size_t>(number)];
    fresh = fresh.Without(ways.Closed);
    ways.Closed = ways.Closed | fresh;
    for (; fresh.Any(); fresh.DropFirst()) {
        const int cell = fresh.First();
        Ways::Entry &entry = EntryOf(search, cell);
        entry.Base = static_cast<std::uint8_t>(cell);
        entry.Before = static_cast<std::uint8_t>(from);
        entry.FirstOut = static_cast<std::uint8_t>(search.Links->Other(cell, number));
        entry.FirstCells = static_cast<std::uint8_t>(cells);
        Leave(search, cell, entry.FirstOut);
    }
}

// The base from which the ways to two bases part.
int PartingOf(Search &search, int one, int other)
{
    while (one != other) {
        int &farther =
            search.Found->At(one).FirstCells > search.Found->At(other).FirstCells ? one : other;
        farther = BaseOf(search, search.Found->At(farther).Before);
    }
    return one;
}

// Turns the cells on one side of a ring round; adds them to a list.
void TurnRound(Search &search, const Deed &link, int parting, CellRun &turned)
{
    for (int cell = BaseOf(search, link.From); cell != parting;) {
        Ways::Entry &entry = EntryOf(search, cell);
        entry.SecondCells = static_cast<std::uint8_t>(search.Now - entry.FirstCells);
        entry.Near = link.From;
        entry.Far = link.To;
        entry.RingNumber = link.Number;
        entry.Base = static_cast<std::uint8_t>(parting);
        turned.Add(cell);
        cell = BaseOf(search, entry.Before);
    }
}

void CloseRing(Search &search, const Deed &link)
{
    const int one = BaseOf(search, link.From);
    const int other = BaseOf(search, link.To);
    if (one == other) {
        return;
    }
    const int parting = PartingOf(search, one, other);
    CellRun turned;
    TurnRound(search, link, parting, turned);
    TurnRound(search, {link.Next, link.To, link.From, link.Number}, parting, turned);
    for (int k = 0; k < turned.Count; ++k) {
        const int cell = turned.Items[static_cast<std::size_t>(k)];
        Leave(search, cell, search.Links->Other(cell, search.Found->At(cell).FirstOut));
    }
}

// Appends the cells of a way to a place, from it back to a cell on the way that is left as at
// first.
void TraceBack(const Ways &ways, const ChainLinks &links, int cell, int number, int stop,
               CellRun &run)
{
    while (true) {
        const Ways::Entry &entry = ways.At(cell);
        if (number != entry.FirstOut) {
            // From the cell along the ring to the link that closes it, and on from its other end.
            const int from = run.Count;
            TraceBack(ways, links, entry.Near, entry.RingNumber, cell, run);
            std::reverse(run.Items.begin() + from, run.Items.begin() + run.Count);
            cell = entry.Far;
            number = entry.RingNumber;
            continue;
        }
        run.Add(cell);
        if (cell == stop) {
            return;
        }
        number = links.Other(cell, number);
        cell = entry.Before;
    }
}

} // namespace

void FindWays(Ways &ways, const ChainLinks &links, int start, int number, CellSet free, int most)
{
    assert(!free.Has(start));
    ++SearchesForWays;
    Search search;
    search.Found = &ways;
    search.Links = &links;
    search.Start = start;
    search.Now = 0;
    search.LastTime = 2 * std::min(most, MostCells);
    search.Open = 0;
    search.Deeds = 0;
    search.First.fill(-1);
    ways.Out.fill(NoCells);
    ways.Closed = AllCells.Without(free);
    Ways::Entry &entry = EntryOf(search, start);
    entry.Base = static_cast<std::uint8_t>(start);
    entry.FirstOut = static_cast<std::uint8_t>(number);
    entry.FirstCells = 0;
    Leave(search, start, number);
    while (search.Open > 0) {
        ++search.Now;
        std::int16_t &first = search.First[static_cast<std::size_t>(search.Now)];
        while (first >= 0) {
            const Deed deed = search.List[static_cast<std::size_t>(first)];
            first = deed.Next;
            --search.Open;
            if (deed.To == NoCell) {
                Enter(search, deed.From, deed.Number);
            } else {
                CloseRing(search, deed);
            }
        }
    }
}

CellRun TraceWay(const Ways &ways, const ChainLinks &links, int start, int cell, int number)
{
    CellRun run;
    TraceBack(ways, links, cell, number, start, run);
    --run.Count; // the start
    return run;
}

} // namespace kelvarine
