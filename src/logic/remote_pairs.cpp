#include "logic/remote_pairs.h"

#include "logic/chain_walk.h"

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

// The candidates of a chain take turns: it carries the one out of each cell in an odd place and the
// other out of each in an even one, whichever they are.
constexpr int CarriedOutOfOdd = 1;
constexpr int CarriedOutOfEven = 2;

struct Search {
    std::int32_t Mode;
    Flag *Found;
    CellSet Eligible;  // the cells with two candidates, after a removal any cell
    CellWord PairMask; // candidates of the chain
    ChainWalk Walk;
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

void SetLinks(Search &search, CellSet pairs)
{
    ChainLinks &links = search.Walk.Links;
    links.All = pairs;
    links.With[CarriedOutOfOdd] = pairs;
    links.With[CarriedOutOfEven] = pairs;
}

// Finds the links and the open cells for a start cell; false when no chain can hit anything.
bool Survey(Search &search, int start)
{
    const CellSet pairs = PairCells(search);
    if (!(pairs & PeersOf(start)).Any()) {
        return false; // no chain at all
    }
    SetLinks(search, pairs);
    search.Walk.Open = OpenTargets(search.Mode, search.PairMask, PeersOf(start));
    return search.Walk.Open.Any();
}

CellSet SeenByBoth(int start, int end)
{
    return PeersOf(start) & PeersOf(end);
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
    ReportChain(search.Walk.Stack, Marks, 0);
}

// ---- Walk ----------------------------------------------------------------------------------

bool ActOn(Search &search, int target, std::string_view leadIn)
{
    const Cell cell = CellOf(target);
    return ActOnTarget(
        search.Mode, *search.Found, cell,
        [&](CellWord &word) {
            word &= ~search.PairMask;
            SetLinks(search, search.Walk.Links.All.Without(CellSet::Of(target)));
            search.Eligible = AllCells;
        },
        [] { HintText = "There's a conflict with a Remote Pair."; },
        [&] { AddNumberLine(leadIn, LowestCandidate(WordAt(cell) & search.PairMask)); },
        [&] { Explain(search, cell); });
}

void LeaveMarks(const Search &search)
{
    const Chain &chain = search.Walk.Stack;
    MarkChain(chain, ScratchMark1);
    for (CellSet rest = PeersOf(chain.Start()); rest.Any(); rest.DropFirst()) {
        WordOf(rest.First()) |= ScratchMark2;
    }
}

// Acts on the cells that see both ends. Cells of the chain are targets like any other.
bool Evaluate(Search &search)
{
    CellSet seen = Hits(search.Walk);
    for (const TargetScan &scan : TargetScans) {
        const CellSet house = HouseSetOf(CellOf(search.Walk.Stack.Top()), scan.Kind);
        for (CellSet rest = seen & house; rest.Any(); rest.DropFirst()) {
            const int target = rest.First();
            if (ActOn(search, target, scan.LeadIn)) {
                LeaveMarks(search);
                return true;
            }
            // Done for good: cells never gain a candidate or lose a mark during a call.
            search.Walk.Open.Remove(target);
        }
        seen = seen.Without(house);
    }
    return false;
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
    search.Walk.StartNumber = CarriedOutOfEven;
    search.Walk.MaxCells = MaxRPLinks;
    search.Walk.Seen = SeenByBoth;
    search.Walk.HitsItself = true;
    search.Walk.Links.NumberSum.fill(CarriedOutOfOdd + CarriedOutOfEven);
    const CellSet twos = MarkTwos(ScratchMark0);
    search.Eligible = twos;
    // A start cell may have lost candidates when its turn comes.
    for (CellSet starts = twos; starts.Any(); starts.DropFirst()) {
        const int start = starts.First();
        search.PairMask = WordOf(start) & CandidateMask;
        if (search.PairMask == 0 || !Survey(search, start)) {
            continue; // nothing to be taken away
        }
        // The walk visits the cells of the box that lie in the column or row a second time there;
        // it can find nothing new by that, so they are left out.
        StartWalk(search.Walk, start, CarriedOutOfOdd);
        if (WalkChains(search.Walk, mode != ModeAlert, [&] { return Evaluate(search); })) {
            return;
        }
    }
}

} // namespace kelvarine
