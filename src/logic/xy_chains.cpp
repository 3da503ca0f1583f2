#include "logic/xy_chains.h"

#include "logic/chain_search.h"

#include <algorithm>

namespace kelvarine {

namespace {

constexpr ChainMarks Marks{.Odd = HintDomainBit, .Even = HintCellBit};

// A walk that takes more steps than this looks ahead before it goes on.
constexpr int ShortWalk = 12;

// How many more cells a chain needs at least, by the number carried out of a cell, to be complete
// in a cell that has a target in common with the start. Links and open targets only get fewer
// during a call, so a step without prospects can be left out: nothing can be found behind it.
struct Prospects {
    CellSet Targets;             // all targets of these ends, some perhaps on the chain under way
    std::array<CellSet, 10> Any; // by number carried: cells from which there is a way
    std::array<std::array<std::uint8_t, 81>, 10> Cells; // valid for these
};

struct Search {
    std::int32_t Mode;
    std::int32_t MinCells;
    std::int32_t MaxCells;
    Flag *Found;
    std::array<CellSet, 10> Links;          // cells with two candidates, by number
    std::array<std::uint8_t, 81> NumberSum; // of such a cell
    int StartNumber;
    int StepsLeft;   // of a short walk
    Prospects Ahead; // known when none is left
    Chain Stack;
    std::array<CellSet, 82> Peers;      // by depth: peers still to be visited
    std::array<std::uint8_t, 82> Carry; // by depth: number carried out of the cell
};

// The number carried out of a link that another number is carried into.
int CarriedOn(const Search &search, int cell, int number)
{
    return search.NumberSum[static_cast<std::size_t>(cell)] - number;
}

CellSet LinksWith(const Search &search, int number)
{
    return search.Links[static_cast<std::size_t>(number)];
}

void FindLinks(Search &search, CellSet twos)
{
    search.Links.fill(NoCells);
    for (CellSet rest = twos; rest.Any(); rest.DropFirst()) {
        const int cell = rest.First();
        const CellWord pair = WordOf(cell) & CandidateMask;
        const int low = std::countr_zero(pair);
        const int high = std::countr_zero(pair & (pair - 1));
        search.Links[static_cast<std::size_t>(low)].Add(cell);
        search.Links[static_cast<std::size_t>(high)].Add(cell);
        search.NumberSum[static_cast<std::size_t>(cell)] = static_cast<std::uint8_t>(low + high);
    }
}

// The open targets of a complete chain, cells of the chain included.
CellSet TargetsOf(const Search &search, int start, int end)
{
    return OpenTargets(search.Mode, BitOf(search.StartNumber), SeenByEnds(start, end));
}

// ---- Prospects -----------------------------------------------------------------------------

// Works out Ahead from the ends backwards.
void LookAhead(Search &search)
{
    const int start = search.Stack.Start();
    struct Place {
        std::uint8_t Cell;
        std::uint8_t Carried;
    };
    std::array<Place, 162> queue; // each link at most once for each of its numbers
    std::size_t tail = 0;
    search.Ahead.Targets = NoCells;
    search.Ahead.Any.fill(NoCells);
    const auto enter = [&](int cell, int carried, int cells) {
        const auto number = static_cast<std::size_t>(carried);
        search.Ahead.Any[number].Add(cell);
        search.Ahead.Cells[number][static_cast<std::size_t>(cell)] =
            static_cast<std::uint8_t>(cells);
        queue[tail] = {static_cast<std::uint8_t>(cell), static_cast<std::uint8_t>(carried)};
        ++tail;
    };
    for (CellSet ends = LinksWith(search, search.StartNumber); ends.Any(); ends.DropFirst()) {
        const CellSet targets = TargetsOf(search, start, ends.First());
        if (targets.Any()) {
            search.Ahead.Targets = search.Ahead.Targets | targets;
            enter(ends.First(), search.StartNumber, 0);
        }
    }
    for (std::size_t head = 0; head < tail; ++head) {
        const auto [cell, carriedOut] = queue[head];
        const int carriedIn = CarriedOn(search, cell, carriedOut);
        const int cells = search.Ahead.Cells[carriedOut][cell] + 1;
        CellSet before = PeersOf(cell) & LinksWith(search, carriedIn);
        before = before.Without(search.Ahead.Any[static_cast<std::size_t>(carriedIn)]);
        for (; before.Any(); before.DropFirst()) {
            enter(before.First(), carriedIn, cells);
        }
    }
}

// Whether a chain that reaches a cell as its cell number depth, with a number carried out of it,
// can still find something.
bool HasProspects(const Search &search, int cell, int carried, int depth)
{
    if (search.StepsLeft > 0) {
        return true; // not known yet
    }
    const auto number = static_cast<std::size_t>(carried);
    return search.Ahead.Any[number].Has(cell) &&
           search.Ahead.Targets.Without(search.Stack.On).Any() &&
           depth + search.Ahead.Cells[number][static_cast<std::size_t>(cell)] <= search.MaxCells;
}

// ---- Words ---------------------------------------------------------------------------------

void Explain(const Search &search, Cell target)
{
    HintTitle =
        search.Stack.Depth == 3 ? "Conflict with XY-wing (XY-chain)" : "Conflict with XY-chain";
    ReportEndsConflict(target, search.StartNumber);
    ReportChain(search.Stack, Marks, -search.StartNumber);
}

// ---- Walk ----------------------------------------------------------------------------------

// Takes the start number out of a cell, which then is no link any more for the rest of the call,
// as little as a cell that comes down to two candidates becomes one.
void TakeNumber(Search &search, int target)
{
    WordOf(target) &= ~(BitOf(search.StartNumber) | ScratchMark1);
    for (CellSet &links : search.Links) {
        links.Remove(target);
    }
}

bool ActOn(Search &search, Cell target)
{
    return ActOnTarget(
        search.Mode, *search.Found, target,
        [&](CellWord &) { TakeNumber(search, CellIndex(target)); },
        [] { HintText = "There's a conflict with an XY-chain."; },
        [&] { AddNumberLine(InvolvesNumber, search.StartNumber); },
        [&] { Explain(search, target); });
}

// Acts on the cells that see both ends of a complete chain; cells of the chain are no targets.
bool Evaluate(Search &search)
{
    const int start = search.Stack.Start();
    const int end = search.Stack.Top();
    CellSet targets = TargetsOf(search, start, end).Without(search.Stack.On);
    if (!targets.Any()) {
        return false;
    }
    for (const Cell target : CellsSeenByEnds(CellOf(start), CellOf(end), Corner::Taken)) {
        if (!targets.Has(CellIndex(target))) {
            continue;
        }
        if (ActOn(search, target)) {
            MarkChain(search.Stack, ScratchMark2);
            return true;
        }
        targets.Remove(CellIndex(target));
    }
    if (search.StepsLeft == 0) {
        LookAhead(search);
    }
    return false;
}

// Notes the number carried out of the top cell and which peers may follow it.
void Open(Search &search, int carried)
{
    const auto depth = static_cast<std::size_t>(search.Stack.Depth);
    CellSet peers = PeersOf(search.Stack.Top()) & LinksWith(search, carried);
    if (search.Stack.Depth + 1 >= search.MaxCells) {
        // No cell may follow at all, or just one, which must complete the chain.
        peers = search.Stack.Depth < search.MaxCells ? peers & LinksWith(search, search.StartNumber)
                                                     : NoCells;
    }
    search.Carry[depth] = static_cast<std::uint8_t>(carried);
    search.Peers[depth] = peers.Without(search.Stack.On);
}

// Enters the next peer of the top cell from which the chain can get somewhere, if there is one.
bool StepOn(Search &search)
{
    if (!SpendChainStep()) {
        return false;
    }
    const auto depth = static_cast<std::size_t>(search.Stack.Depth);
    const int carried = search.Carry[depth];
    CellSet &peers = search.Peers[depth];
    peers = peers & LinksWith(search, carried);
    while (peers.Any()) {
        const int next = FirstPeer(search.Stack.Top(), peers);
        peers.Remove(next);
        const int carriedOn = CarriedOn(search, next, carried);
        if (HasProspects(search, next, carriedOn, search.Stack.Depth + 1)) {
            search.Stack.Push(next);
            Open(search, carriedOn);
            if (search.StepsLeft > 0 && --search.StepsLeft == 0) {
                LookAhead(search);
            }
            return true;
        }
    }
    return false;
}

bool Walk(Search &search, int start, int carried)
{
    search.StepsLeft = ShortWalk;
    search.Stack.StartAt(start);
    Open(search, carried);
    while (true) {
        if (StepOn(search)) {
            const int depth = search.Stack.Depth;
            const bool complete =
                search.Carry[static_cast<std::size_t>(depth)] == search.StartNumber;
            // The walk goes on beyond a complete chain.
            if (complete && depth >= search.MinCells && Evaluate(search)) {
                return true;
            }
        } else if (search.Stack.Depth < 2) {
            return false;
        } else {
            search.Stack.Pop();
        }
    }
}

bool WalkFrom(Search &search, int start)
{
    for (CellWord rest = WordOf(start) & CandidateMask; rest != 0; rest &= rest - 1) {
        search.StartNumber = std::countr_zero(rest);
        const int carried = CarriedOn(search, start, search.StartNumber);
        if ((PeersOf(start) & LinksWith(search, carried)).Any() && Walk(search, start, carried)) {
            return true;
        }
    }
    return false;
}

} // namespace

void SearchXYChains(std::int32_t mode, std::int32_t minCells, std::int32_t maxCells, Flag &found)
{
    if (maxCells < 2) {
        return;
    }
    const CellSet twos = MarkTwos(ScratchMark1);
    if (twos.Count() < std::max(minCells, 2)) {
        return; // too few links for a chain of that length
    }
    Search search;
    search.Mode = mode;
    search.MinCells = minCells;
    search.MaxCells = maxCells;
    search.Found = &found;
    FindLinks(search, twos);
    for (CellSet starts = twos; starts.Any(); starts.DropFirst()) {
        const int start = starts.First();
        // A removal takes the mark.
        if ((WordOf(start) & ScratchMark1) != 0 && WalkFrom(search, start)) {
            return;
        }
    }
}

void ScanXYChains(std::int32_t mode, Flag &found)
{
    if (mode == ModeAlert) {
        SearchXYChains(mode, 0, MaxXYLinks, found);
        return;
    }
    for (std::int32_t cells = 2; cells <= MaxXYLinks; ++cells) {
        SearchXYChains(mode, cells, cells, found);
        if (!HintText.empty()) {
            return;
        }
    }
}

} // namespace kelvarine
