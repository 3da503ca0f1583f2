#include "logic/singles_chains.h"

#include "logic/chain_search.h"

namespace kelvarine {

namespace {

// The other way round than for XY-chains; intended.
constexpr ChainMarks Marks{.Odd = HintCellBit, .Even = HintDomainBit};

constexpr std::uint8_t NoCell = 81;

// By house of a cell, column, row and box: the cell at the other end of its strong link.
using Partners = std::array<std::uint8_t, 3>;

struct Search {
    std::int32_t Mode;
    Flag *Found;
    CellSet Givens;
    std::array<CellSet, 10> Holders; // cells with a number as candidate
    int Number;
    std::array<Partners, 81> Links; // strong links of the number
    CellSet Linked;                 // cells with a link
    CellSet Targets;                // all that a chain from the start cell may hit
    Chain Stack;
    std::array<std::uint8_t, 82> NextHouse; // by depth: which house is tried next, 0..3
    bool DepthZeroDone;                     // the walk from there comes once in a call
};

CellWord NumberBit(const Search &search)
{
    return BitOf(search.Number);
}

CellSet &HoldersOf(Search &search)
{
    return search.Holders[static_cast<std::size_t>(search.Number)];
}

void FindPlaces(Search &search)
{
    search.Givens = NoCells;
    search.Holders.fill(NoCells);
    for (int k = 0; k < 81; ++k) {
        const CellWord word = WordOf(k);
        if ((word & GivenBit) != 0) {
            search.Givens.Add(k);
        }
        for (CellWord rest = word & CandidateMask; rest != 0; rest &= rest - 1) {
            search.Holders[static_cast<std::size_t>(std::countr_zero(rest))].Add(k);
        }
    }
}

// Finds the houses in which exactly two cells hold the number, none of them a given.
void FindLinks(Search &search)
{
    const CellSet holders = HoldersOf(search);
    search.Links.fill({NoCell, NoCell, NoCell});
    search.Linked = NoCells;
    for (std::size_t house = 0; house < HouseSets.size(); ++house) {
        CellSet rest = holders & HouseSets[house];
        const CellSet places = rest;
        rest.DropFirst();
        if (!rest.Any()) {
            continue;
        }
        const int second = rest.First();
        rest.DropFirst();
        if (rest.Any() || (places & search.Givens).Any()) {
            continue;
        }
        const int first = places.First();
        const std::size_t kind = house / 9;
        search.Links[static_cast<std::size_t>(first)][kind] = static_cast<std::uint8_t>(second);
        search.Links[static_cast<std::size_t>(second)][kind] = static_cast<std::uint8_t>(first);
        search.Linked = search.Linked | places;
    }
}

const Partners &PartnersOf(const Search &search, int cell)
{
    return search.Links[static_cast<std::size_t>(cell)];
}

CellSet PartnersOfAll(const Search &search, CellSet cells)
{
    CellSet partners = NoCells;
    for (; cells.Any(); cells.DropFirst()) {
        for (const int partner : PartnersOf(search, cells.First())) {
            partners = partner == NoCell ? partners : partners | CellSet::Of(partner);
        }
    }
    return partners;
}

// The cells that chains from a start lead to, by the number of cells on the way. Ways that meet a
// cell twice are counted in, so a search may leave out what lies outside, and nothing else.
struct Reach {
    CellSet Odd; // the start among them
    CellSet Even;
};

Reach ReachFrom(const Search &search, int start)
{
    Reach reach{CellSet::Of(start), NoCells};
    Reach fresh = reach;
    while (fresh.Odd.Any() || fresh.Even.Any()) {
        fresh = {PartnersOfAll(search, fresh.Even).Without(reach.Odd),
                 PartnersOfAll(search, fresh.Odd).Without(reach.Even)};
        reach = {reach.Odd | fresh.Odd, reach.Even | fresh.Even};
    }
    return reach;
}

// Finds Targets for a start cell: where the mode may have to act on a chain from it.
void Survey(Search &search, int start)
{
    const Reach reach = ReachFrom(search, start);
    CellSet hit = (reach.Odd & PeersOf(start)).Any() ? reach.Odd : NoCells;
    for (CellSet ends = reach.Even; ends.Any(); ends.DropFirst()) {
        hit = hit | SeenByEnds(start, ends.First());
    }
    search.Targets = OpenTargets(search.Mode, NumberBit(search), hit);
}

// Takes the number out of a cell. Links may appear by that and are found anew.
void TakeNumber(Search &search, int target)
{
    WordOf(target) &= ~NumberBit(search);
    HoldersOf(search).Remove(target);
}

// Brings what was found out before up to date after the search acted on a cell.
void Settle(Search &search, int start)
{
    if (search.Mode == ModeChange) {
        FindLinks(search);
    }
    Survey(search, start);
}

// ---- Words ---------------------------------------------------------------------------------

void ExplainWithChain(const Search &search, Cell target)
{
    HintTitle = "Conflict with singles chain";
    ReportEndsConflict(target, search.Number);
    ReportChain(search.Stack, Marks, search.Number);
}

void ExplainWithinChain(const Search &search, Cell target)
{
    const std::string number = std::to_string(search.Number);
    HintTitle = "Conflict in singles chain";
    HintText += "Cell " + NameOf(target) + " is a link in the following chain of " + number +
                "'s which conflict with each other:";
    HintText += MessageLineEnd;
    ReportChain(search.Stack, Marks, search.Number);
    HintText += MessageLineEnd;
    HintText += MessageLineEnd;
    HintText += search.Stack.Depth >= 3 ? "The " + number + "'s in these links can be removed:"
                                        : "The " + number + " in this link can be removed:";
    HintText += MessageLineEnd;
    for (int i = 1; i <= search.Stack.Depth; i += 2) {
        HintText += "  " + NameOf(CellOf(search.Stack.At(i)));
    }
}

// ---- Conflicts -----------------------------------------------------------------------------

using Explanation = void (*)(const Search &search, Cell target);

// Acts on a cell; true when the call is over.
bool ActOn(Search &search, int target, std::string_view teaser, Explanation explain)
{
    const bool over = ActOnTarget(
        search.Mode, *search.Found, CellOf(target), [&](CellWord &) { TakeNumber(search, target); },
        [=] { HintText = teaser; }, [&] { AddNumberLine(InvolvesNumber, search.Number); },
        [&] { explain(search, CellOf(target)); });
    if (over) {
        MarkChain(search.Stack, ScratchMark0);
    }
    return over;
}

// Conflict with a chain: acts on the cells that see both ends and do not stand on it.
bool ActOnCellsSeen(Search &search)
{
    const int start = search.Stack.Start();
    const int end = search.Stack.Top();
    CellSet targets = OpenTargets(search.Mode, NumberBit(search),
                                  SeenByEnds(start, end).Without(search.Stack.On));
    if (!targets.Any()) {
        return false;
    }
    bool acted = false;
    // The corner in the end's column is passed over, its counterpart is taken; intended.
    for (const Cell cell : CellsSeenByEnds(CellOf(start), CellOf(end), Corner::PassedOver)) {
        const int target = CellIndex(cell);
        if (!targets.Has(target)) {
            continue;
        }
        if (ActOn(search, target, "There's a conflict with a singles chain.", ExplainWithChain)) {
            return true;
        }
        targets.Remove(target);
        acted = true;
    }
    if (acted) {
        Settle(search, start);
    }
    return false;
}

// Ends the walk after a removal within its chain, by way of depth 0. There the walk takes one last
// step, from a place at column 0 and row 0 whose box, lines 0 to 2, meets the four cells in columns
// 1 and 2 and rows 1 and 2. When two of these hold the number, the later one counts as a chain of
// one cell in conflict with itself and loses it. This is unsound: on about three in 10,000 games
// of 17 givens it takes a right number away, such as on
// ..............1..2..3....4.........1..4.3..5...6..7......5.6.8..1..9....27.......
// It is kept all the same, for games are rated by it. It happens the first time in a call only.
void EndWalkAtDepthZero(Search &search)
{
    if (!search.DepthZeroDone) {
        search.DepthZeroDone = true;
        constexpr CellSet corner =
            HouseSets[18] & (HouseSets[0] | HouseSets[1]) & (HouseSets[9] | HouseSets[10]);
        const CellSet places = HoldersOf(search) & corner;
        CellSet later = places;
        later.DropFirst();
        const bool twoPlaces = later.Any() && !later.After(later.First()).Any();
        if (twoPlaces && !(places & search.Givens).Any() && !search.Stack.On.Has(later.First())) {
            TakeNumber(search, later.First());
        }
    }
    FindLinks(search);
    search.Stack.Depth = 0;
}

// Conflict within a chain: acts on the cells in odd places if the ends share a house.
bool ActOnOddCells(Search &search)
{
    const int start = search.Stack.Start();
    if (!PeersOf(start).Has(search.Stack.Top())) {
        return false;
    }
    for (int i = 1; i <= search.Stack.Depth; i += 2) {
        if (ActOn(search, search.Stack.At(i), "There's a conflict in a singles chain.",
                  ExplainWithinChain)) {
            return true;
        }
    }
    if (search.Mode == ModeChange) {
        EndWalkAtDepthZero(search);
    } else {
        Settle(search, start);
    }
    return false;
}

// ---- Walk ----------------------------------------------------------------------------------

std::uint8_t &NextHouse(Search &search)
{
    return search.NextHouse[static_cast<std::size_t>(search.Stack.Depth)];
}

// Enters the other end of the next strong link of the top cell, if there is one and anything is
// left to be hit.
bool StepOn(Search &search)
{
    if (search.Stack.Depth == MaxSinglesLinks || !search.Targets.Any()) {
        return false;
    }
    const int top = search.Stack.Top();
    std::uint8_t &house = NextHouse(search);
    while (house < 3) {
        const int partner = PartnersOf(search, top)[house];
        ++house;
        if (partner != NoCell && !search.Stack.On.Has(partner)) {
            search.Stack.Push(partner);
            NextHouse(search) = 0;
            return true;
        }
    }
    return false;
}

// Walks along all chains from a start, unless nothing is left to be hit. That comes to an end soon:
// a number has 27 links at most, one to a house, and a cell no more than three of them. The worst
// arrangement known has 118,776 chains from all starts together.
bool Walk(Search &search, int start)
{
    search.Stack.StartAt(start);
    NextHouse(search) = 0;
    while (search.Stack.Depth > 0) {
        if (StepOn(search)) {
            const bool even = search.Stack.Depth % 2 == 0;
            if (even ? ActOnCellsSeen(search) : ActOnOddCells(search)) {
                return true;
            }
        } else {
            search.Stack.Pop();
        }
    }
    return false;
}

// Walks from every cell in scan order that has a link when its turn comes.
bool WalkNumber(Search &search)
{
    FindLinks(search);
    for (CellSet starts = search.Linked; starts.Any();) {
        const int start = starts.First();
        Survey(search, start);
        if (search.Targets.Any() && Walk(search, start)) {
            return true;
        }
        starts = search.Linked.After(start);
    }
    return false;
}

} // namespace

void SearchSinglesChains(std::int32_t mode, Flag &found)
{
    if (MaxSinglesLinks == 0) {
        return;
    }
    ClearCellBits(ScratchMark0);
    Search search;
    search.Mode = mode;
    search.Found = &found;
    search.DepthZeroDone = false;
    FindPlaces(search);
    for (search.Number = 1; search.Number <= 9; ++search.Number) {
        if (WalkNumber(search)) {
            return;
        }
    }
}

} // namespace kelvarine
