#include "logic/naked_groups.h"

#include "logic/group_walk.h"
#include "logic/technique.h"

#include <algorithm>
#include <vector>

namespace kelvarine {

namespace {

struct NakedGroup {
    const House &In;
    CellWord Set;
    Places Members;
    std::int32_t Size;
};

// ---- Words and marks -----------------------------------------------------------------------

// Here, unlike elsewhere, the box is called a 3x3 box.
std::string HouseWordOf(const NakedGroup &group)
{
    return std::string(group.In.Kind == HouseKind::Box ? "3x3 box" : HouseWord(group.In.Kind));
}

std::vector<Cell> MembersBut(Cell target, const NakedGroup &group)
{
    std::vector<Cell> members = CellsAt(group.In, group.Members);
    std::erase(members, target);
    return members;
}

// What the target holds of the group.
std::string Clash(const NakedGroup &group, Cell target)
{
    const CellWord candidates = WordAt(target) & CandidateMask;
    const CellWord held = candidates & group.Set;
    if (CandidatesIn(held) == 1 && candidates == group.Set) {
        return " conflicts with ";
    }
    return " contains a " + JoinNumbers(held) + " which conflicts with ";
}

std::string GroupWords(std::int32_t size)
{
    return size >= 2 && size <= 4 ? "naked " + GroupName(size)
                                  : std::to_string(size) + "-cell exclusive group";
}

void TeaseGroup(std::int32_t size)
{
    Tease("There's a conflict with a naked " + GroupName(size) + ".");
}

void Explain(const NakedGroup &group, Cell target)
{
    const std::vector<Cell> others = MembersBut(target, group);
    HintTitle = "Conflict with naked " + GroupName(group.Size);
    HintText = "Cell " + NameOf(target) + Clash(group, target);
    if (group.Size == 1) {
        HintText += "cell " + NameOf(others.front()) + " in the same " + HouseWordOf(group) + ".";
        HintText += MessageLineEnd;
    } else {
        HintText += "cells  " + NamesOf(others);
        HintText += MessageLineEnd;
        HintText += "a " + GroupWords(group.Size) + " in the same " + HouseWordOf(group) +
                    " containing the numbers " + JoinNumbers(group.Set);
    }
    for (const Cell member : others) {
        WordAt(member) |= HintCellBit;
    }
    MarkHouse(group.In, HintDomainBit);
}

// ---- Search --------------------------------------------------------------------------------

// Marks the cells that can be members in the grid: those with a candidate when single cells take
// part, else those with two.
void MarkPossibleMembers(bool singles)
{
    for (std::size_t c = 1; c <= 9; ++c) {
        for (std::size_t r = 1; r <= 9; ++r) {
            const CellWord candidates = Grid[c][r] & CandidateMask;
            const CellWord needed = singles ? candidates : candidates & (candidates - 1);
            Grid[c][r] = (Grid[c][r] & ~ScratchMark2) | (needed != 0 ? ScratchMark2 : 0);
        }
    }
}

// The same cells by house.
PlacesByHouse PossibleMembers(const PlaceTable &table, bool singles)
{
    PlacesByHouse once{};
    PlacesByHouse twice{};
    for (std::size_t n = 1; n <= 9; ++n) {
        for (std::size_t h = 0; h < once.size(); ++h) {
            twice[h] |= static_cast<Places>(once[h] & table.Of[n][h]);
            once[h] |= table.Of[n][h];
        }
    }
    return singles ? once : twice;
}

// The numbers of the set that the other cells of the house that lie inside it hold. In a
// contradiction mode 0 empties cell after cell, so this is asked of the grid each time.
CellWord NumbersOfOthersInside(const NakedGroup &group, Cell target)
{
    CellWord numbers = 0;
    for (const Cell other : group.In.Cells) {
        const CellWord candidates = WordAt(other) & CandidateMask;
        if (other != target && (candidates & ~group.Set) == 0) {
            numbers |= candidates;
        }
    }
    return numbers;
}

bool IsTarget(const NakedGroup &group, bool sound, Cell cell)
{
    const CellWord word = WordAt(cell);
    if ((word & group.Set) == 0 || (word & GivenBit) != 0) {
        return false;
    }
    return sound ? (word & CandidateMask & ~group.Set) != 0
                 : (word & NumbersOfOthersInside(group, cell)) != 0;
}

struct NakedSearch {
    std::int32_t Mode;
    Flag &Found;
    std::int32_t Size;
    PlacesByHouse Possible; // the marked cells

    // The members are the marked cells that lie inside the set.
    [[nodiscard]] Round Look(const PlaceTable &table, CellWord set) const
    {
        const PlacesByHouse outside = CellsWithAny(table, CandidateMask & ~set);
        const auto size = static_cast<Places>(SearchedSize(Size));
        Round round;
        Places longest = 0;
        Places any = 0;
        for (std::size_t h = 0; h < outside.size(); ++h) {
            const auto members = static_cast<Places>(Possible[h] & ~outside[h]);
            const Places count = CountPlaces(members);
            round.Members[h] = members;
            round.Groups[h] = count >= size ? members : Places{0};
            longest = std::max(longest, count);
            any |= round.Groups[h];
        }
        round.Longest = longest;
        round.AnyGroup = any;
        return round;
    }

    // As many members as numbers make a sound group: its targets have numbers inside and outside
    // the set. With more members than numbers every cell with a number of the set may be one.
    [[nodiscard]] PlacesByHouse Targets(const PlaceTable &table, CellWord set,
                                        const PlacesByHouse &groups) const
    {
        const PlacesByHouse inside = CellsWithAny(table, set);
        const PlacesByHouse outside = CellsWithAny(table, CandidateMask & ~set);
        const std::int32_t size = SearchedSize(Size);
        PlacesByHouse targets{};
        for (std::size_t h = 0; h < targets.size(); ++h) {
            const auto held = static_cast<Places>(inside[h] & ~table.Of[0][h]);
            const auto mixed = static_cast<Places>(held & outside[h]);
            const Places count = CountPlaces(groups[h]);
            targets[h] = count == size ? mixed : count > size ? held : Places{0};
        }
        return targets;
    }

    // True when the call is over.
    [[nodiscard]] bool Act(const House &house, CellWord set, Places members, Places targets) const
    {
        const NakedGroup group{house, set, members, Size};
        if (CandidatesAmong(house, members) != set) {
            return false;
        }
        const bool sound = CountPlaces(members) == SearchedSize(Size);
        for (std::size_t k = 0; k < house.Cells.size(); ++k) {
            const Cell cell = house.Cells[k];
            if (!HasPlace(targets, k) || !IsTarget(group, sound, cell)) {
                continue;
            }
            if (ActOnTarget(
                    Mode, Found, cell, [&](CellWord &word) { word &= ~set; },
                    [&] { TeaseGroup(Size); }, [&] { LocateInHouse(HouseWordOf(group)); },
                    [&] { Explain(group, cell); })) {
                return true;
            }
        }
        return false;
    }
};

// ---- Pairs, for the driver -----------------------------------------------------------------

// For each pair of numbers a bit of its own, by the field of candidates; none for other fields.
constexpr auto PairBits = [] {
    std::array<std::uint64_t, 512> bits{};
    std::uint64_t next = 1;
    for (const CellWord pair : NumberSets(2)) {
        bits[pair >> 1] = next;
        next <<= 1;
    }
    return bits;
}();

std::uint64_t PairBit(Cell cell)
{
    return PairBits[(WordAt(cell) & CandidateMask) >> 1];
}

// By house the pairs that stood in one cell and in two.
struct PairTally {
    std::array<std::uint64_t, 27> Once{};
    std::array<std::uint64_t, 27> Twice{};
    std::uint64_t AnyTwice = 0;
};

void TallyPair(PairTally &tally, Cell cell)
{
    const std::uint64_t bit = PairBit(cell);
    for (const std::uint8_t h : HousesOf(cell.Column, cell.Row)) {
        tally.Twice[h] |= tally.Once[h] & bit;
        tally.AnyTwice |= tally.Twice[h];
        tally.Once[h] |= bit;
    }
}

// Takes the numbers of the pair in two cells of a house out of its other cells.
void ClearPair(const House &house, Cell first, Cell second, PairTally &tally, Flag &found)
{
    const CellWord pair = WordAt(first) & CandidateMask;
    for (const Cell other : house.Cells) {
        if (other != first && other != second && (WordAt(other) & pair) != 0) {
            WordAt(other) &= ~pair;
            found = True;
            TallyPair(tally, other); // it may be the next pair
        }
    }
}

} // namespace

void ApplyNakedPairs(std::int32_t mode, Flag &found)
{
    if (mode != ModeChange) {
        return;
    }
    PairTally tally;
    for (const Cell cell : Cells) {
        if (CandidatesIn(WordAt(cell)) == 2) {
            TallyPair(tally, cell);
        }
    }
    for (std::size_t k = 0; tally.AnyTwice != 0 && k < Cells.size(); ++k) {
        const Cell first = Cells[k];
        for (const std::uint8_t h : HousesOf(first.Column, first.Row)) {
            if ((tally.Twice[h] & PairBit(first)) == 0) {
                continue;
            }
            for (const Cell second : Houses[h].Cells) {
                if (second != first && PairBit(second) == PairBit(first)) {
                    ClearPair(Houses[h], first, second, tally, found);
                }
            }
        }
    }
}

void FindNakedGroup(std::int32_t mode, Flag &found, std::int32_t size)
{
    const bool singles = size == 1 || IncludeSingles != False;
    MarkPossibleMembers(singles);
    const NakedSearch search{mode, found, size, PossibleMembers(PlacesNow(), singles)};
    WalkGroups(mode, size, search);
}

} // namespace kelvarine
