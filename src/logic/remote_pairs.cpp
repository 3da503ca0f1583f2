#include "logic/remote_pairs.h"

#include "logic/chain_search.h"

namespace kelvarine {

namespace {

// The order in which the houses of the chain's last cell are scanned for targets, with the words
// of the second hint stage. "numbers" for the one number that follows is intended.
struct TargetScan {
    HouseKind Kind;
    std::string_view LeadIn;
};

constexpr std::array TargetScans{
    TargetScan{HouseKind::Column, InvolvesNumber},
    TargetScan{HouseKind::Row, "It involves the numbers "},
    TargetScan{HouseKind::Box, "It involves the numbers "},
};

constexpr ChainMarks Marks{.Odd = HintDomainBit, .Even = HintCellBit};

struct Search {
    std::int32_t Mode;
    Flag *Found;
    CellSet Eligible;  // the cells with two candidates, after a removal any cell
    CellWord PairMask; // candidates of the chain
    CellSet Pairs;     // cells that hold exactly these
    CellSet Targets;   // all that a chain from the start cell may hit
    Chain Stack;
    std::array<CellSet, 82> LinePeers; // by depth: peers in column and row still to be visited
    std::array<CellSet, 82> BoxPeers;  // and, after them, in the box
};

// The cells that hold exactly the pair.
CellSet PairCells(const Search &search)
{
    CellSet pairs = NoCells;
    for (CellSet rest = search.Eligible; rest.Any(); rest.DropFirst()) {
        if ((WordOf(rest.First()) & CandidateMask) == search.PairMask) {
            pairs.Add(rest.First());
        }
    }
    return pairs;
}

// Finds Pairs and Targets for a start cell.
void Survey(Search &search, int start)
{
    search.Targets = NoCells;
    search.Pairs = PairCells(search);
    if (!(search.Pairs & PeersOf(start)).Any()) {
        return; // no chain at all
    }
    const Reach reach = ReachFrom(start, [&](int cell) { return PeersOf(cell) & search.Pairs; });
    CellSet seen = NoCells;
    for (CellSet ends = reach.Even; ends.Any(); ends.DropFirst()) {
        seen = seen | PeersOf(ends.First());
    }
    search.Targets = OpenTargets(search.Mode, search.PairMask, seen & PeersOf(start));
}

// ---- Words ---------------------------------------------------------------------------------

void Explain(const Search &search, Cell target)
{
    CellWord rest = WordAt(target) & search.PairMask;
    HintTitle = "Conflict with remote pair";
    HintText += "Cell " + NameOf(target) + " contains a " + std::to_string(LowestCandidate(rest));
    rest &= ~BitOf(LowestCandidate(rest));
    if (rest != 0) {
        HintText += " and a " + std::to_string(LowestCandidate(rest));
    }
    HintText += " which conflicts with the following chain of remote pairs:";
    HintText += MessageLineEnd;
    ReportChain(search.Stack, Marks, 0);
}

// ---- Walk ----------------------------------------------------------------------------------

bool ActOn(Search &search, int target, std::string_view leadIn)
{
    const Cell cell = CellOf(target);
    return ActOnTarget(
        search.Mode, *search.Found, cell,
        [&](CellWord &word) {
            word &= ~search.PairMask;
            search.Pairs.Remove(target);
            search.Eligible = AllCells;
        },
        [] { HintText = "There's a conflict with a Remote Pair."; },
        [&] { AddNumberLine(leadIn, LowestCandidate(WordAt(cell) & search.PairMask)); },
        [&] { Explain(search, cell); });
}

void LeaveMarks(const Search &search)
{
    MarkChain(search.Stack, ScratchMark1);
    for (CellSet rest = PeersOf(search.Stack.Start()); rest.Any(); rest.DropFirst()) {
        WordOf(rest.First()) |= ScratchMark2;
    }
}

// Acts on the cells that see both ends. Cells of the chain are targets like any other.
bool Evaluate(Search &search)
{
    CellSet seen = PeersOf(search.Stack.Start()) & PeersOf(search.Stack.Top()) & search.Targets;
    for (const TargetScan &scan : TargetScans) {
        const CellSet house = HouseSetOf(CellOf(search.Stack.Top()), scan.Kind);
        for (CellSet rest = seen & house; rest.Any(); rest.DropFirst()) {
            const int target = rest.First();
            if (ActOn(search, target, scan.LeadIn)) {
                LeaveMarks(search);
                return true;
            }
            // Done for good: cells never gain a candidate or lose a mark during a call.
            search.Targets.Remove(target);
        }
        seen = seen.Without(house);
    }
    return false;
}

// Notes which peers may follow the top cell.
void Open(Search &search)
{
    const Cell top = CellOf(search.Stack.Top());
    const CellSet free = search.Pairs.Without(search.Stack.On);
    const auto depth = static_cast<std::size_t>(search.Stack.Depth);
    search.LinePeers[depth] =
        free & (HouseSetOf(top, HouseKind::Column) | HouseSetOf(top, HouseKind::Row));
    // Cells of the box that lie in the column or row are visited again here; intended.
    search.BoxPeers[depth] = free & HouseSetOf(top, HouseKind::Box);
}

// Enters the next peer of the top cell, if there is one and anything is left to be hit.
bool StepOn(Search &search)
{
    if (search.Stack.Depth == MaxRPLinks || !search.Targets.Any() || !SpendChainStep()) {
        return false;
    }
    const auto depth = static_cast<std::size_t>(search.Stack.Depth);
    for (CellSet *peers : {&search.LinePeers[depth], &search.BoxPeers[depth]}) {
        *peers = *peers & search.Pairs;
        if (peers->Any()) {
            const int next = FirstPeer(search.Stack.Top(), *peers);
            peers->Remove(next);
            search.Stack.Push(next);
            Open(search);
            return true;
        }
    }
    return false;
}

bool Walk(Search &search, int start)
{
    search.Stack.StartAt(start);
    Open(search);
    while (true) {
        if (StepOn(search)) {
            if (search.Stack.Depth % 2 == 0 && Evaluate(search)) {
                return true;
            }
        } else if (search.Stack.Depth < 2) {
            return false;
        } else {
            search.Stack.Pop();
        }
    }
}

} // namespace

void SearchRemotePairs(std::int32_t mode, Flag &found)
{
    if (MaxRPLinks == 0) {
        return;
    }
    Search search;
    search.Mode = mode;
    search.Found = &found;
    const CellSet twos = MarkTwos(ScratchMark0);
    search.Eligible = twos;
    // A start cell may have lost candidates when its turn comes.
    for (CellSet starts = twos; starts.Any(); starts.DropFirst()) {
        const int start = starts.First();
        search.PairMask = WordOf(start) & CandidateMask;
        if (search.PairMask == 0) {
            continue; // nothing to be taken away
        }
        Survey(search, start);
        if (search.Targets.Any() && Walk(search, start)) {
            return;
        }
    }
}

} // namespace kelvarine
