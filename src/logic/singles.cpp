#include "logic/singles.h"

#include "grid/names.h"
#include "logic/tally.h"
#include "logic/technique.h"

#include <algorithm>
#include <cassert>

namespace kelvarine {

namespace {

bool HoldsNumber(CellWord word)
{
    return CandidatesIn(word) == 1;
}

// ---- Words of the unplaced forms -----------------------------------------------------------

constexpr std::string_view LastCandidateTeaser = "There's an unplaced last candidate.";
constexpr std::string_view NakedSingleTeaser = "There's an unplaced naked single.";
constexpr std::string_view HiddenSingleTeaser = "There's a hidden single.";

void ExplainLastCandidate(Cell cell, const House &house, CellWord missing)
{
    // Several missing numbers match no number, and the walk through the numbers ends at 10.
    const int number = CandidatesIn(missing) == 1 ? LowestCandidate(missing) : 10;
    HintTitle = "Unplaced last candidate";
    HintText = "Cell " + NameOf(cell) + " is the last incomplete cell in " + HouseName(house);
    HintText += MessageLineEnd;
    HintText += "and must contain the last candidate which is a " + std::to_string(number) + ".";
    MarkHouse(house, HintDomainBit);
    WordAt(cell) |= HintCellBit;
}

void LocateNakedSingle(Cell cell)
{
    HintText += MessageLineEnd;
    HintText += "It's in the " + BoxName(cell.Column, cell.Row) + " box.";
}

void ExplainNakedSingle(Cell cell, CellWord number)
{
    HintTitle = "Unplaced naked single";
    HintText = "Cell " + NameOf(cell) + " must contain a " +
               std::to_string(LowestCandidate(number)) + " because it's the ";
    HintText += MessageLineEnd;
    HintText += "only unused number in its domain.";
    MarkDomain(cell, HintDomainBit);
    WordAt(cell) |= HintCellBit;
}

void ExplainHiddenSingle(Cell cell, const House &house, int number)
{
    HintTitle = "Hidden single";
    HintText = "Cell " + NameOf(cell) + " is the only cell in " + HouseName(house) +
               " that can hold the number " + std::to_string(number) + ".";
    // The cell itself gets no hint mark: it is the selected cell.
    MarkHouse(house, HintDomainBit);
}

// ---- Searches ------------------------------------------------------------------------------

// Leaves the numbers of mask as the cell's only candidates.
void SetCandidates(CellWord &word, CellWord mask)
{
    word = (word & ~CandidateMask) | mask;
}

// The numbers already placed in each house, as the tallies' numbers in at least one cell.
HouseTallies PlacedNumbers()
{
    return TallyHouses([](std::size_t /*index*/, CellWord word) {
        return HoldsNumber(word) ? word & CandidateMask : 0;
    });
}

// Numbers that any of a cell's houses holds once, and that any of them holds twice.
Tally InDomain(const HouseTallies &tallies, std::size_t index)
{
    const auto &houses = CellHouses[index];
    const Tally &column = tallies[houses[0]];
    const Tally &row = tallies[houses[1]];
    const Tally &box = tallies[houses[2]];
    return {column.Once | row.Once | box.Once, column.Twice | row.Twice | box.Twice};
}

// First cell of a house, in scan order, that passes a test; the house must have one.
template <typename Test>
Cell FirstCell(const House &house, const Test &test)
{
    const auto *const cell = std::ranges::find_if(house.Cells, test);
    assert(cell != house.Cells.end());
    return *cell;
}

// Candidates that may be hidden singles, and those that stand in the way of one in their houses:
// numbers of givens and numbers that already stand alone.
CellWord OpenNumbers(CellWord word)
{
    return (word & GivenBit) != 0 ? 0 : word & CandidateMask;
}

CellWord ClosedNumbers(CellWord word)
{
    return (word & GivenBit) != 0 || HoldsNumber(word) ? word & CandidateMask : 0;
}

// Numbers with one place left in a house, in a cell that has other candidates too.
CellWord HiddenSinglesOf(const House &house)
{
    Tally open;
    CellWord closed = 0;
    for (const Cell cell : house.Cells) {
        open.Add(OpenNumbers(WordAt(cell)));
        closed |= ClosedNumbers(WordAt(cell));
    }
    return open.Single() & ~closed;
}

using HouseNumbers = std::array<CellWord, 27>;

HouseNumbers HiddenSinglesNow()
{
    const HouseTallies open =
        TallyHouses([](std::size_t /*index*/, CellWord word) { return OpenNumbers(word); });
    const HouseTallies closed =
        TallyHouses([](std::size_t /*index*/, CellWord word) { return ClosedNumbers(word); });
    HouseNumbers singles{};
    for (std::size_t h = 0; h < singles.size(); ++h) {
        singles[h] = open[h].Single() & ~closed[h].Once;
    }
    return singles;
}

CellWord AnyOf(const HouseNumbers &numbers)
{
    CellWord any = 0;
    for (const CellWord house : numbers) {
        any |= house;
    }
    return any;
}

} // namespace

void FindUnplacedLastCandidate(std::int32_t mode, Flag &found)
{
    for (const House &house : Houses) {
        int placed = 0;
        CellWord numbers = 0;
        Cell open{};
        for (const Cell cell : house.Cells) {
            if (HoldsNumber(WordAt(cell))) {
                ++placed;
                numbers |= WordAt(cell);
            } else {
                open = cell;
            }
        }
        if (placed != 8) {
            continue;
        }
        const CellWord missing = CandidateMask & ~numbers;
        if (ActOnTarget(
                mode, found, open, [=](CellWord &word) { SetCandidates(word, missing); },
                [] { Tease(LastCandidateTeaser); }, [&] { LocateInHouse(HouseWord(house.Kind)); },
                [&] { ExplainLastCandidate(open, house, missing); })) {
            return;
        }
    }
}

void FindUnplacedNakedSingle(std::int32_t mode, Flag &found)
{
    HouseTallies placed = PlacedNumbers();
    for (std::size_t k = 0; k < Cells.size(); ++k) {
        const Cell cell = Cells[k];
        if (HoldsNumber(WordAt(cell))) {
            continue;
        }
        const CellWord open = CandidateMask & ~InDomain(placed, k).Once;
        if (CandidatesIn(open) != 1) {
            continue;
        }
        const auto place = [&](CellWord &word) {
            SetCandidates(word, open);
            for (const std::uint8_t house : CellHouses[k]) {
                placed[house].Add(open);
            }
        };
        if (ActOnTarget(
                mode, found, cell, place, [] { Tease(NakedSingleTeaser); },
                [&] { LocateNakedSingle(cell); }, [&] { ExplainNakedSingle(cell, open); })) {
            return;
        }
    }
}

void FindUnplacedHiddenSingle(std::int32_t mode, Flag &found)
{
    // What each open cell could hold by the numbers placed now. Placements of this call do not
    // change it: all of them are judged on the position at its start.
    const HouseTallies placed = PlacedNumbers();
    std::array<CellWord, 81> possible{};
    const HouseTallies tallies = TallyHouses([&](std::size_t index, CellWord word) {
        possible[index] = HoldsNumber(word) ? 0 : CandidateMask & ~InDomain(placed, index).Once;
        return possible[index];
    });
    HouseNumbers singles{};
    std::ranges::transform(tallies, singles.begin(),
                           [](const Tally &house) { return house.Single(); });
    const CellWord any = AnyOf(singles);
    for (int number = 1; number <= 9; ++number) {
        const CellWord bit = BitOf(number);
        if ((any & bit) == 0) {
            continue;
        }
        for (std::size_t h = 0; h < Houses.size(); ++h) {
            if ((singles[h] & bit) == 0) {
                continue;
            }
            const House &house = Houses[h];
            const Cell target = FirstCell(house, [&](Cell cell) {
                return (possible[static_cast<std::size_t>(CellIndex(cell))] & bit) != 0;
            });
            if (ActOnTarget(
                    mode, found, target, [=](CellWord &word) { SetCandidates(word, bit); },
                    [] { Tease(HiddenSingleTeaser); },
                    [&] { LocateInHouse(HouseWord(house.Kind)); },
                    [&] { ExplainHiddenSingle(target, house, number); })) {
                return;
            }
        }
    }
}

void ApplyNakedSingles(std::int32_t mode, Flag &found)
{
    if (mode != ModeChange) {
        return;
    }
    // The numbers that the cells met so far take out of their houses. Each cell is met as it stands
    // after the removals of those before it; the words themselves are brought up to date at the
    // end, which is the same, since only removals happen in between.
    HouseTallies removed{};
    std::array<CellWord, 81> own{}; // what a cell takes out of its houses
    for (std::size_t k = 0; k < Cells.size(); ++k) {
        const CellWord word = WordAt(Cells[k]);
        const bool isGiven = (word & GivenBit) != 0;
        const CellWord numbers = word & CandidateMask & ~(isGiven ? 0 : InDomain(removed, k).Once);
        if (HoldsNumber(numbers)) {
            own[k] = numbers;
            for (const std::uint8_t house : CellHouses[k]) {
                removed[house].Add(numbers);
            }
        }
    }
    for (std::size_t k = 0; k < Cells.size(); ++k) {
        CellWord &word = WordAt(Cells[k]);
        const Tally domain = InDomain(removed, k);
        // A cell loses its own number only to another cell.
        const CellWord gone = (domain.Once & ~own[k]) | (domain.Twice & own[k]);
        if ((word & GivenBit) == 0 && (word & gone) != 0) {
            word &= ~gone;
            found = True;
        }
    }
}

void ApplyHiddenSingles(std::int32_t mode, Flag &found)
{
    if (mode != ModeChange) {
        return;
    }
    HouseNumbers singles = HiddenSinglesNow();
    if (AnyOf(singles) == 0) {
        return;
    }
    for (int number = 1; number <= 9; ++number) {
        const CellWord bit = BitOf(number);
        for (std::size_t h = 0; h < Houses.size(); ++h) {
            if ((singles[h] & bit) == 0) {
                continue;
            }
            const Cell target =
                FirstCell(Houses[h], [=](Cell cell) { return (WordAt(cell) & bit) != 0; });
            SetCandidates(WordAt(target), bit);
            found = True;
            // The scan sees its own changes.
            for (const std::uint8_t house : HousesOf(target.Column, target.Row)) {
                singles[house] = HiddenSinglesOf(Houses[house]);
            }
        }
    }
}

} // namespace kelvarine
