#include "logic/xy_chains.h"

#include "logic/chain_walk.h"

#include <algorithm>
#include <cassert>

namespace kelvarine {

namespace {

constexpr ChainMarks Marks{.Odd = HintDomainBit, .Even = HintCellBit};

struct Search {
    std::int32_t Mode;
    std::int32_t MinCells;
    Flag *Found;
    std::array<CellSet, 10> Open; // the open targets, by number
    ChainWalk Walk;
};

void FindLinks(Search &search, CellSet twos)
{
    ChainLinks &links = search.Walk.Links;
    links.All = twos;
    links.With.fill(NoCells);
    for (CellSet rest = twos; rest.Any(); rest.DropFirst()) {
        const int cell = rest.First();
        const CellWord pair = WordOf(cell) & CandidateMask;
        const int low = std::countr_zero(pair);
        const int high = std::countr_zero(pair & (pair - 1));
        links.With[static_cast<std::size_t>(low)].Add(cell);
        links.With[static_cast<std::size_t>(high)].Add(cell);
        links.NumberSum[static_cast<std::size_t>(cell)] = static_cast<std::uint8_t>(low + high);
    }
}

// Finds all open targets at once.
void FindTargets(Search &search)
{
    search.Open.fill(NoCells);
    const CellSet cells = OpenTargets(search.Mode, CandidateMask, AllCells);
    for (CellSet rest = cells; rest.Any(); rest.DropFirst()) {
        const int cell = rest.First();
        for (CellWord word = WordOf(cell) & CandidateMask; word != 0; word &= word - 1) {
            search.Open[static_cast<std::size_t>(std::countr_zero(word))].Add(cell);
        }
    }
}

// Starts a walk in a cell with a number; false when no link can follow the cell.
bool Start(Search &search, int start, int number)
{
    ChainWalk &walk = search.Walk;
    const int carried = walk.Links.Other(start, number);
    walk.StartNumber = number;
    walk.Open = search.Open[static_cast<std::size_t>(number)];
    StartWalk(walk, start, carried);
    return NextLinks(walk).Any();
}

// ---- Words ---------------------------------------------------------------------------------

void Explain(const Search &search, Cell target)
{
    const Chain &chain = search.Walk.Stack;
    HintTitle = chain.Depth == 3 ? "Conflict with XY-wing (XY-chain)" : "Conflict with XY-chain";
    ReportEndsConflict(target, search.Walk.StartNumber);
    ReportChain(chain, Marks, -search.Walk.StartNumber);
}

// ---- Walk ----------------------------------------------------------------------------------

// Takes the start number out of a cell, which then is no link any more for the rest of the call,
// as little as a cell that comes down to two candidates becomes one.
void TakeNumber(Search &search, int target)
{
    WordOf(target) &= ~(BitOf(search.Walk.StartNumber) | ScratchMark1);
    search.Walk.Links.All.Remove(target);
    for (CellSet &links : search.Walk.Links.With) {
        links.Remove(target);
    }
}

bool ActOn(Search &search, Cell target)
{
    const int number = search.Walk.StartNumber;
    return ActOnTarget(
        search.Mode, *search.Found, target,
        [&](CellWord &) { TakeNumber(search, CellIndex(target)); },
        [] { HintText = "There's a conflict with an XY-chain."; },
        [&] { AddNumberLine(InvolvesNumber, number); }, [&] { Explain(search, target); });
}

// Takes down that a target has been dealt with.
void Close(Search &search, int target)
{
    search.Walk.Open.Remove(target);
    search.Open[static_cast<std::size_t>(search.Walk.StartNumber)].Remove(target);
    if (search.Mode == ModeAlert) {
        for (CellSet &open : search.Open) {
            open.Remove(target); // whatever the number
        }
    }
}

// Acts on the cells that see both ends of the chain if it is long enough and complete; cells of the
// chain are no targets.
bool Evaluate(Search &search)
{
    const Chain &chain = search.Walk.Stack;
    const int number = search.Walk.StartNumber;
    if (chain.Depth < search.MinCells || CarriedOut(search.Walk) != number) {
        return false;
    }
    const CellSet seen = SeenByEnds(chain.Start(), chain.Top()).Without(chain.On);
    CellSet targets = OpenTargets(search.Mode, BitOf(number), seen);
    if (!targets.Any()) {
        return false;
    }
    for (const Cell target :
         CellsSeenByEnds(CellOf(chain.Start()), CellOf(chain.Top()), Corner::Taken)) {
        if (!targets.Has(CellIndex(target))) {
            continue;
        }
        if (ActOn(search, target)) {
            MarkChain(chain, ScratchMark2);
            return true;
        }
        targets.Remove(CellIndex(target));
        Close(search, CellIndex(target));
    }
    return false;
}

// Walks all chains, whether they can hit anything or not.
bool WalkAll(Search &search)
{
    ChainWalk &walk = search.Walk;
    while (true) {
        CellSet next = walk.Stack.Depth < walk.MaxCells ? NextLinks(walk) : NoCells;
        if (walk.Stack.Depth + 1 == walk.MaxCells) {
            // One more cell alone may follow, which must complete the chain.
            next = next & walk.Links.With[static_cast<std::size_t>(walk.StartNumber)];
        }
        if (next.Any()) {
            StepOn(walk, next);
            // The walk goes on beyond a complete chain.
            if (Evaluate(search)) {
                return true;
            }
        } else if (walk.Stack.Depth < 2) {
            return false;
        } else {
            walk.Stack.Pop();
        }
    }
}

// A lower limit is for short chains: whether there is a chain of so many cells at least cannot be
// told by a search for ways, and all of them are walked along.
bool WalkFrom(Search &search, int start)
{
    for (CellWord rest = WordOf(start) & CandidateMask; rest != 0; rest &= rest - 1) {
        if (!Start(search, start, std::countr_zero(rest))) {
            continue;
        }
        const bool over = search.MinCells > 2 ? WalkAll(search)
                                              : WalkChains(search.Walk, search.Mode != ModeAlert,
                                                           [&] { return Evaluate(search); });
        if (over) {
            return true;
        }
    }
    return false;
}

// Marks and finds the links and, where ways are searched for, the targets. False when they are too
// few for a chain of that many cells.
bool SetUp(Search &search, std::int32_t mode, std::int32_t minCells, std::int32_t maxCells)
{
    const CellSet twos = MarkTwos(ScratchMark1);
    if (twos.Count() < std::max(minCells, 2)) {
        return false;
    }
    search.Mode = mode;
    search.MinCells = minCells;
    search.Walk.MaxCells = maxCells;
    search.Walk.Seen = SeenByEnds;
    search.Walk.HitsItself = false;
    FindLinks(search, twos);
    if (minCells <= 2) {
        FindTargets(search);
    }
    return true;
}

// The number of cells of the shortest chain of up to maxCells that hits something; 0 for none.
std::int32_t ShortestChain(std::int32_t mode, std::int32_t maxCells)
{
    Search search;
    if (!SetUp(search, mode, 2, maxCells)) {
        return 0;
    }
    ChainWalk &walk = search.Walk;
    std::int32_t shortest = 0;
    for (CellSet starts = walk.Links.All; starts.Any(); starts.DropFirst()) {
        const int start = starts.First();
        for (CellWord rest = WordOf(start) & CandidateMask; rest != 0; rest &= rest - 1) {
            const bool started = Start(search, start, std::countr_zero(rest));
            while (started && FindWay(walk)) {
                shortest = 1 + walk.Way.Count;
                walk.MaxCells = shortest - 1;
            }
        }
    }
    return shortest;
}

} // namespace

void SearchXYChains(std::int32_t mode, std::int32_t minCells, std::int32_t maxCells, Flag &found)
{
    Search search;
    if (maxCells < 2 || !SetUp(search, mode, minCells, maxCells)) {
        return;
    }
    search.Found = &found;
    for (CellSet starts = search.Walk.Links.All; starts.Any(); starts.DropFirst()) {
        const int start = starts.First();
        // A removal takes the mark.
        if ((WordOf(start) & ScratchMark1) != 0 && WalkFrom(search, start)) {
            return;
        }
    }
}

void ScanXYChains(std::int32_t mode, Flag &found)
{
    assert(mode >= ModeChange && mode <= ModeFull);
    if (mode == ModeAlert) {
        SearchXYChains(mode, 0, MaxXYLinks, found);
    } else if (MaxXYLinks >= 2) {
        // No chain that is shorter hits anything, so the search need not pass over them.
        const std::int32_t shortest = ShortestChain(mode, MaxXYLinks);
        if (shortest > 0) {
            SearchXYChains(mode, 0, shortest, found);
        }
    }
}

} // namespace kelvarine
