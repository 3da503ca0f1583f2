#include "logic/counter.h"

#include "logic/tight_sets.h"

#include <algorithm>

namespace kelvarine {

namespace {

using CellCounts = Repeats<CellLanes>;

// A cell and a number, less 1: either it stands there or it does not.
struct Decision {
    CellLanes Cell;
    std::size_t Number;
};

// ---- Places in twos ------------------------------------------------------------------------

CellLanes TwinsInColumns(CellLanes places)
{
    const CellLanes second = BehindFirst(places);
    return places & WholeColumns(Occupied(second) & ~Occupied(BehindFirst(second)));
}

// The places of a number in houses that have it exactly twice.
CellLanes Twins(CellLanes places)
{
    CellLanes twins = TwinsInColumns(places);
    Repeats<std::uint32_t> rows;
    for (std::size_t stack = 0; stack < StackCount; ++stack) {
        for (unsigned column = 0; column < 30; column += 10) {
            rows.Add(places[stack] >> column & 0x1FF);
        }
        for (unsigned row = 0; row < 9; row += 3) {
            const std::uint32_t inBox = places[stack] & InThreeColumns(0x7) << row;
            twins[stack] |= std::popcount(inBox) == 2 ? inBox : 0;
        }
    }
    return twins | (places & InAllStacks(InThreeColumns(rows.Two & ~rows.Three)));
}

// ---- Decisions -----------------------------------------------------------------------------

// One of the cells with two numbers. They are taken where there are most of them, and among those
// a cell comes first of which a number has but one other place in the column.
Decision DecideInPair(const NumberBoard &board, CellLanes pairs)
{
    std::size_t best = 0;
    int most = 0;
    for (std::size_t stack = 0; stack < StackCount; ++stack) {
        const int count = std::popcount(pairs[stack]);
        if (count > most) {
            most = count;
            best = stack;
        }
    }
    CellLanes twins{};
    for (const CellLanes places : board.Places) {
        twins |= TwinsInColumns(places);
    }
    const std::uint32_t preferred = pairs[best] & twins[best];
    const std::uint32_t cells = preferred != 0 ? preferred : pairs[best];
    CellLanes cell{};
    cell[best] = cells & (~cells + 1);
    return {cell, LowestIn(board, cell)};
}

// The tightest decision: a cell with two numbers, else a house with two places for a number, else
// any cell.
Decision TightestDecision(const NumberBoard &board, const CellCounts &counts)
{
    const CellLanes pairs = counts.Two & ~counts.Three;
    if (IsAny(pairs)) {
        return DecideInPair(board, pairs);
    }
    for (std::size_t n = 0; n < NumberCount; ++n) {
        const CellLanes twins = Twins(board.Places[n]);
        if (IsAny(twins)) {
            return {FirstOf(twins), n};
        }
    }
    const CellLanes cell = FirstOf(counts.Two);
    return {cell, LowestIn(board, cell)};
}

// What speaks for a decision in a cell that is still open.
struct Offer {
    std::int64_t Weight = -1;
    std::size_t Number = 0;
};

// The blame of the cell and of its numbers, shared out among the ways to decide: two for a pair and
// for a number with but one other place in a house, which is then the one to try.
Offer OfferOf(const NumberBoard &board, const NumberBoard &twins, const Blame &blame,
              std::size_t stack, unsigned bit)
{
    std::int64_t weight = 1 + blame.Cells[ScanIndex(stack, bit)];
    std::int64_t ways = 0;
    std::array<std::int32_t, 2> most{-1, -1}; // among all numbers, and among twins
    std::array<std::size_t, 2> number{};
    for (std::size_t n = 0; n < NumberCount; ++n) {
        if ((board.Places[n][stack] >> bit & 1) == 0) {
            continue;
        }
        const std::int32_t blamed = blame.Numbers[n][stack];
        weight += blamed;
        ++ways;
        for (std::size_t k = 0; k <= (twins.Places[n][stack] >> bit & 1); ++k) {
            if (blamed > most[k]) {
                most[k] = blamed;
                number[k] = n;
            }
        }
    }
    constexpr std::int64_t scale = 1000;
    const bool byTwin = ways > 2 && most[1] >= 0;
    return {weight * scale / (byTwin ? 2 : ways), number[byTwin ? 1 : 0]};
}

// The decision whose cell and numbers have been in the most contradictions for the ways that it
// has: the rule of Boussemart, Hemery, Lecoutre and Sais (2004).
Decision MostBlamedDecision(const NumberBoard &board, CellLanes open, const Blame &blame)
{
    NumberBoard twins;
    std::ranges::transform(board.Places, twins.Places.begin(), Twins);
    Offer best;
    CellLanes cell{};
    for (std::size_t stack = 0; stack < StackCount; ++stack) {
        for (std::uint32_t rest = open[stack]; rest != 0; rest &= rest - 1) {
            const auto bit = static_cast<unsigned>(std::countr_zero(rest));
            const Offer offer = OfferOf(board, twins, blame, stack, bit);
            if (offer.Weight > best.Weight) {
                best = offer;
                cell = CellLanes{};
                cell[stack] = std::uint32_t{1} << bit;
            }
        }
    }
    return {cell, best.Number};
}

// ---- The search ----------------------------------------------------------------------------

struct Search {
    std::int32_t Limit;
    std::int64_t Bound;      // on the boards looked at
    Blame *Blamed = nullptr; // guides the decisions, if there is one
    std::int32_t Found = 0;  // all there are up to the limit, unless it gave up
    std::int64_t Boards = 0;

    // Whether the bound came before the end.
    [[nodiscard]] bool GaveUp() const
    {
        return Boards > Bound;
    }

    void Count(NumberBoard board)
    {
        while (++Boards <= Bound) {
            CellCounts counts;
            if (!Conclude(board, counts, Blamed)) {
                return;
            }
            if (!IsAny(counts.Two)) {
                ++Found;
                return;
            }
            const auto [cell, number] = Blamed == nullptr
                                            ? TightestDecision(board, counts)
                                            : MostBlamedDecision(board, counts.Two, *Blamed);
            NumberBoard with = board;
            Decide(with, cell, number);
            Count(with);
            if (Found >= Limit) {
                return;
            }
            board.Places[number] &= ~cell;
        }
    }
};

// For the few boards on which an early decision was a bad one. Each try goes on longer than the
// one before and starts where those before it met contradictions, so that what cannot be is soon
// decided first.
std::int32_t CountCarefully(NumberBoard board, std::int32_t limit)
{
    constexpr std::int64_t shortTry = 100;
    CellCounts counts;
    if (!Conclude(board, counts) || !ConcludeByTightSets(board)) {
        return 0;
    }
    Blame blame;
    for (std::int64_t bound = shortTry;; bound *= 2) {
        Search search{limit, bound, &blame};
        search.Count(board);
        if (!search.GaveUp()) {
            return search.Found;
        }
    }
}

} // namespace

std::int32_t CountFillings(const Field &field, std::int32_t limit)
{
    return CountFillings(BoardOf(field), limit);
}

std::int32_t CountFillings(const NumberBoard &board, std::int32_t limit)
{
    constexpr std::int64_t patience = 200; // boards; games take a few dozen at most
    Search search{limit, patience};
    search.Count(board);
    return search.GaveUp() ? CountCarefully(board, limit) : search.Found;
}

} // namespace kelvarine
