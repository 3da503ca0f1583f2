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
    Flag &Found;
    CellSet Open{};                            // cells at which the mode still has to act
    std::array<std::uint8_t, 512> CellsWith{}; // how many cells hold exactly these candidates
    CellWord PairMask = 0;                     // candidates of the chain
    CellSet Pairs{};                           // cells that hold exactly these
    CellSet Targets{};                         // all that a chain from the start cell may hit
    Chain Stack{};
    std::array<CellSet, 82> LinePeers{}; // by depth: peers in column and row still to be visited
    std::array<CellSet, 82> BoxPeers{};  // and, after them, in the box
};

std::uint8_t &CellsHolding(Search &search, CellWord word)
{
    return search.CellsWith[(word & CandidateMask) >> 1];
}

void Prepare(Search &search)
{
    for (const Cell cell : Cells) {
        CellWord &word = WordAt(cell);
        word &= ~ScratchMarks;
        if (CandidatesIn(word) == 2) {
            word |= ScratchMark0;
        }
        ++CellsHolding(search, word);
    }
}

// Finds Pairs and Targets for a start cell.
void Survey(Search &search, int start)
{
    CellSet holders;
    search.Pairs = {};
    for (int k = 0; k < 81; ++k) {
        const CellWord word = WordOf(k);
        if ((word & search.PairMask) != 0) {
            holders.Add(k);
        }
        if ((word & CandidateMask) == search.PairMask) {
            search.Pairs.Add(k);
        }
    }
    const Reach reach = ReachFrom(start, [&](int cell) { return PeersOf(cell) & search.Pairs; });
    CellSet seen;
    for (CellSet ends = reach.Even; ends.Any(); ends.DropFirst()) {
        seen = seen | PeersOf(ends.First());
    }
    search.Targets = seen & PeersOf(start) & holders & search.Open;
}

void TakePair(Search &search, int target)
{
    CellWord &word = WordOf(target);
    --CellsHolding(search, word);
    word &= ~search.PairMask;
    ++CellsHolding(search, word);
    search.Pairs.Remove(target);
}

// ---- Words ---------------------------------------------------------------------------------

void Explain(const Search &search, Cell target)
{
    CellWord rest = WordAt(target) & search.PairMask;
    HintTitle = "Conflict with remote pair";
    HintText += "Cell " + NameOf(target) + " contains a " + std::to_string(LowestCandidate(rest));
    rest &= ~BitTable[static_cast<std::size_t>(LowestCandidate(rest))];
    if (rest != 0) {
        HintText += " and a " + std::to_string(LowestCandidate(rest));
    }
    HintText += " which conflicts with the following chain of remote pairs:";
    HintText += LineEnd;
    ReportChain(search.Stack, Marks, 0);
}

// ---- Walk ----------------------------------------------------------------------------------

bool ActOn(Search &search, int target, std::string_view leadIn)
{
    const Cell cell = CellOf(target);
    return ActOnTarget(
        search.Mode, search.Found, cell, [&](CellWord &) { TakePair(search, target); },
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
            search.Open =
                search.Mode == ModeAlert ? search.Open.Without(CellSet::Of(target)) : search.Open;
        }
        seen = seen.Without(house);
    }
    return false;
}

void Enter(Search &search, int cell)
{
    const CellSet free = search.Pairs.Without(search.Stack.On) & PeersOf(cell);
    const CellSet box = HouseSetOf(CellOf(cell), HouseKind::Box);
    const CellSet lines =
        HouseSetOf(CellOf(cell), HouseKind::Column) | HouseSetOf(CellOf(cell), HouseKind::Row);
    search.Stack.Push(cell);
    const auto depth = static_cast<std::size_t>(search.Stack.Depth);
    search.LinePeers[depth] = free & lines;
    // Cells of the box that lie in the column or row are visited again here; intended.
    search.BoxPeers[depth] = free & box;
}

// Enters the next peer of the top cell, if there is one and anything is left to be hit.
bool StepOn(Search &search)
{
    if (search.Stack.Depth == MaxRPLinks || !search.Targets.Any()) {
        return false;
    }
    const auto depth = static_cast<std::size_t>(search.Stack.Depth);
    for (CellSet *peers : {&search.LinePeers[depth], &search.BoxPeers[depth]}) {
        *peers = *peers & search.Pairs;
        if (peers->Any()) {
            const int next = FirstPeer(search.Stack.Top(), *peers);
            peers->Remove(next);
            Enter(search, next);
            return true;
        }
    }
    return false;
}

bool Walk(Search &search, int start)
{
    search.Stack = {};
    Enter(search, start);
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
    Search search{.Mode = mode, .Found = found, .Open = OpenTargets(mode)};
    Prepare(search);
    for (int start = 0; start < 81; ++start) {
        // The mark tells of the start of the call; the cell may have lost candidates since then.
        if ((WordOf(start) & ScratchMark0) == 0) {
            continue;
        }
        search.PairMask = WordOf(start) & CandidateMask;
        if (search.PairMask == 0 || CellsHolding(search, search.PairMask) < 2) {
            continue;
        }
        Survey(search, start);
        if (search.Targets.Any() && Walk(search, start)) {
            return;
        }
    }
}

} // namespace kelvarine
