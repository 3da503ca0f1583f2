#include "logic/chain_walk.h"

namespace kelvarine {

namespace {

CellSet LinksWith(const ChainWalk &walk, int number)
{
    return walk.Links.With[static_cast<std::size_t>(number)];
}

// The open cells that a chain from the start to an end hits, if it does not run through them.
CellSet HitsFor(const ChainWalk &walk, int end)
{
    const CellSet hits = walk.Seen(walk.Stack.Start(), end) & walk.Open;
    return walk.HitsItself ? hits : hits.Without(walk.Stack.On);
}

// Ends of which a chain could hit something.
CellSet EndsInQuestion(const ChainWalk &walk)
{
    CellSet ends = LinksWith(walk, walk.StartNumber).Without(walk.Stack.On);
    for (CellSet rest = ends; rest.Any(); rest.DropFirst()) {
        if (!HitsFor(walk, rest.First()).Any()) {
            ends.Remove(rest.First());
        }
    }
    return ends;
}

// Finds all ways on through free cells. Returns those of some ends that they come to.
CellSet EndsReached(ChainWalk &walk, CellSet free, CellSet ends)
{
    const int most = walk.MaxCells - walk.Stack.Depth;
    FindWays(walk.Found, walk.Links, walk.Stack.Top(), CarriedOut(walk), free, most);
    ends = ends & walk.Found.Out[static_cast<std::size_t>(walk.StartNumber)];
    for (CellSet rest = ends; rest.Any(); rest.DropFirst()) {
        if (walk.Found.CellsTo(rest.First(), walk.StartNumber) > most) {
            ends.Remove(rest.First());
        }
    }
    return ends;
}

void TakeWayTo(ChainWalk &walk, int end)
{
    walk.Way = TraceWay(walk.Found, walk.Links, walk.Stack.Top(), end, walk.StartNumber);
}

CellSet CellsOn(const CellRun &run)
{
    CellSet cells = NoCells;
    for (int k = 0; k < run.Count; ++k) {
        cells.Add(run.Items[static_cast<std::size_t>(k)]);
    }
    return cells;
}

// Looks for a way that does not run through one of the cells that all others run through.
bool FindWayAround(ChainWalk &walk, CellSet free, CellSet ends, CellSet inTheWay)
{
    for (; inTheWay.Any(); inTheWay.DropFirst()) {
        const int cell = inTheWay.First();
        for (CellSet reached = EndsReached(walk, free.Without(CellSet::Of(cell)), ends);
             reached.Any(); reached.DropFirst()) {
            if (HitsFor(walk, reached.First()).Has(cell)) {
                TakeWayTo(walk, reached.First());
                return true;
            }
        }
    }
    return false;
}

} // namespace

void StartWalk(ChainWalk &walk, int start, int carried)
{
    walk.Stack.StartAt(start);
    walk.Carry[1] = static_cast<std::uint8_t>(carried);
    walk.Peers[1] = PeersOf(start);
}

CellSet NextLinks(const ChainWalk &walk)
{
    return walk.Peers[static_cast<std::size_t>(walk.Stack.Depth)] &
           LinksWith(walk, CarriedOut(walk)).Without(walk.Stack.On);
}

void StepOn(ChainWalk &walk, CellSet next)
{
    const int cell = FirstPeer(walk.Stack.Top(), next);
    walk.Peers[static_cast<std::size_t>(walk.Stack.Depth)].Remove(cell);
    const int carried = walk.Links.Other(cell, CarriedOut(walk));
    walk.Stack.Push(cell);
    walk.Carry[static_cast<std::size_t>(walk.Stack.Depth)] = static_cast<std::uint8_t>(carried);
    walk.Peers[static_cast<std::size_t>(walk.Stack.Depth)] = PeersOf(cell);
}

CellSet Hits(const ChainWalk &walk)
{
    return CarriedOut(walk) == walk.StartNumber ? HitsFor(walk, walk.Stack.Top()) : NoCells;
}

bool FindWay(ChainWalk &walk)
{
    if (walk.Stack.Depth >= walk.MaxCells || !NextLinks(walk).Any()) {
        return false;
    }
    const CellSet ends = EndsInQuestion(walk);
    if (!ends.Any()) {
        return false;
    }
    const CellSet free = walk.Links.All.Without(walk.Stack.On);
    CellSet inTheWay = NoCells;
    for (CellSet reached = EndsReached(walk, free, ends); reached.Any(); reached.DropFirst()) {
        const int end = reached.First();
        const CellSet hits = HitsFor(walk, end);
        TakeWayTo(walk, end);
        if (walk.HitsItself || hits.Without(CellsOn(walk.Way)).Any()) {
            return true;
        }
        inTheWay = inTheWay | hits;
    }
    return FindWayAround(walk, free, ends, inTheWay);
}

void GoToFirst(ChainWalk &walk)
{
    CellRun way = walk.Way;
    while (!Hits(walk).Any()) {
        assert(way.Count > 0);
        const CellSet next = NextLinks(walk);
        if (FirstPeer(walk.Stack.Top(), next) == way.Last()) {
            StepOn(walk, next);
            --way.Count;
            continue;
        }
        StepOn(walk, next);
        if (Hits(walk).Any()) {
            return;
        }
        if (FindWay(walk)) {
            way = walk.Way;
        } else {
            walk.Stack.Pop();
        }
    }
}

void GoToEnd(ChainWalk &walk)
{
    for (; walk.Way.Count > 0; --walk.Way.Count) {
        StepOn(walk, CellSet::Of(walk.Way.Last()));
    }
}

void GoToStart(ChainWalk &walk)
{
    StartWalk(walk, walk.Stack.Start(), walk.Carry[1]);
}

bool GoBack(ChainWalk &walk)
{
    while (!FindWay(walk)) {
        if (walk.Stack.Depth < 2) {
            return false;
        }
        walk.Stack.Pop();
    }
    return true;
}

} // namespace kelvarine
