#include "logic/singles.h"

#include "grid/names.h"
#include "logic/tally.h"
#include "logic/technique.h"

#include <algorithm>

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
    HintText += LineEnd;
    HintText += "and must contain the last candidate which is a " + std::to_string(number) + ".";
    MarkHouse(house, HintDomainBit);
    WordAt(cell) |= HintCellBit;
}

void LocateNakedSingle(Cell cell)
{
    HintText += LineEnd;
    HintText += "It's in the " + BoxName(cell.Column, cell.Row) + " box.";
}

void ExplainNakedSingle(Cell cell, CellWord number)
{
    HintTitle = "Unplaced naked single";
    HintText = "Cell " + NameOf(cell) + " must contain a " +
               std::to_string(LowestCandidate(number)) + " because it's the ";
    HintText += LineEnd;
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

// The numbers already placed in each house.
std::array<CellWord, 27> PlacedNumbers()
{
    std::array<CellWord, 27> placed{};
    for (const Cell cell : Cells) {
        const CellWord word = WordAt(cell);
        if (HoldsNumber(word)) {
            for (const std::uint8_t house : HousesOf(cell.Column, cell.Row)) {
                placed[house] |= word & CandidateMask;
            }
        }
    }
    return placed;
}

CellWord PlacedInDomain(const std::array<CellWord, 27> &placed, Cell cell)
{
    CellWord numbers = 0;
    for (const std::uint8_t house : HousesOf(cell.Column, cell.Row)) {
        numbers |= placed[house];
    }
    return numbers;
}

// First cell of a house, in scan order, that passes a test; the house must have one.
template <typename Test>
Cell FirstCell(const House &house, const Test &test)
{
    return *std::ranges::find_if(house.Cells, test);
}

// Tally of the cells of a house that are no givens, together with what stands in the way of
// finding a hidden single there: numbers of givens and numbers that already stand alone.
struct OpenNumbers {
    Tally Open;
    CellWord Closed = 0;

    void Add(CellWord word)
    {
        if ((word & GivenBit) != 0) {
            Closed |= word & CandidateMask;
            return;
        }
        Open.Add(word);
        if (HoldsNumber(word)) {
            Closed |= word & CandidateMask;
        }
    }

    // Numbers with one place left, in a cell that has other candidates too.
    [[nodiscard]] CellWord Singles() const
    {
        return Open.Single() & ~Closed;
    }
};

CellWord HiddenSinglesOf(const House &house)
{
    OpenNumbers numbers;
    for (const Cell cell : house.Cells) {
        numbers.Add(WordAt(cell));
    }
    return numbers.Singles();
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
    std::array<CellWord, 27> placed = PlacedNumbers();
    for (const Cell cell : Cells) {
        if (HoldsNumber(WordAt(cell))) {
            continue;
        }
        const CellWord open = CandidateMask & ~PlacedInDomain(placed, cell);
        if (CandidatesIn(open) != 1) {
            continue;
        }
        const auto place = [&](CellWord &word) {
            SetCandidates(word, open);
            for (const std::uint8_t house : HousesOf(cell.Column, cell.Row)) {
                placed[house] |= open;
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
    const std::array<CellWord, 27> placed = PlacedNumbers();
    std::array<CellWord, 81> possible{};
    HouseTallies tallies{};
    for (std::size_t k = 0; k < Cells.size(); ++k) {
        const Cell cell = Cells[k];
        if (!HoldsNumber(WordAt(cell))) {
            possible[k] = CandidateMask & ~PlacedInDomain(placed, cell);
            for (const std::uint8_t house : HousesOf(cell.Column, cell.Row)) {
                tallies[house].Add(possible[k]);
            }
        }
    }
    CellWord any = 0;
    for (std::size_t h = 0; h < Houses.size(); ++h) {
        any |= tallies[h].Single();
    }
    for (int number = 1; number <= 9; ++number) {
        const CellWord bit = BitTable[static_cast<std::size_t>(number)];
        if ((any & bit) == 0) {
            continue;
        }
        for (std::size_t h = 0; h < Houses.size(); ++h) {
            if ((tallies[h].Single() & bit) == 0) {
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
    // Numbers that occur twice in a house; the removals below can only shorten these, so a number
    // that is missing here needs no walk.
    HouseTallies tallies{};
    for (const Cell cell : Cells) {
        for (const std::uint8_t house : HousesOf(cell.Column, cell.Row)) {
            tallies[house].Add(WordAt(cell));
        }
    }
    for (const Cell cell : Cells) {
        const CellWord number = WordAt(cell) & CandidateMask;
        if (!HoldsNumber(number)) {
            continue;
        }
        for (const std::uint8_t house : HousesOf(cell.Column, cell.Row)) {
            if ((tallies[house].Twice & number) == 0) {
                continue;
            }
            for (const Cell other : Houses[house].Cells) {
                CellWord &word = WordAt(other);
                if (other != cell && (word & GivenBit) == 0 && (word & number) != 0) {
                    word &= ~number;
                    found = True;
                }
            }
        }
    }
}

void ApplyHiddenSingles(std::int32_t mode, Flag &found)
{
    if (mode != ModeChange) {
        return;
    }
    std::array<OpenNumbers, 27> open{};
    for (const Cell cell : Cells) {
        for (const std::uint8_t house : HousesOf(cell.Column, cell.Row)) {
            open[house].Add(WordAt(cell));
        }
    }
    std::array<CellWord, 27> singles{};
    CellWord any = 0;
    for (std::size_t h = 0; h < Houses.size(); ++h) {
        singles[h] = open[h].Singles();
        any |= singles[h];
    }
    if (any == 0) {
        return;
    }
    for (int number = 1; number <= 9; ++number) {
        const CellWord bit = BitTable[static_cast<std::size_t>(number)];
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
