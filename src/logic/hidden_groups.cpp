#include "logic/hidden_groups.h"

#include "logic/group_walk.h"
#include "logic/technique.h"

#include <algorithm>
#include <vector>

namespace kelvarine {

namespace {

struct HiddenGroup {
    const House &In;
    CellWord Set;
    Places Members;
    std::int32_t Size;
};

// ---- Words and marks -----------------------------------------------------------------------

void Explain(const HiddenGroup &group, Cell target)
{
    HintTitle = "Hidden " + GroupName(group.Size);
    if (group.Size == 1) {
        HintText = "Cell " + NameOf(target) + " is the only cell in " + HouseName(group.In) +
                   " containing the number " + JoinNumbers(group.Set);
        HintText += MessageLineEnd;
        HintText += "All other numbers should be removed from this cell.";
    } else {
        const std::vector<Cell> members = CellsAt(group.In, group.Members);
        HintText = "Cells  " + NamesOf(members) + " form a hidden " + GroupName(group.Size);
        HintText += MessageLineEnd;
        HintText +=
            " in " + HouseName(group.In) + " containing the numbers " + JoinNumbers(group.Set);
        HintText += MessageLineEnd;
        HintText += MessageLineEnd;
        HintText += "All other numbers should be removed from these cells.";
        for (const Cell member : members) {
            WordAt(member) |= HintCellBit;
        }
    }
    HintText += MessageLineEnd;
    MarkHouse(group.In, HintDomainBit);
    WordAt(target) |= HintCellBit;
}

// ---- Search --------------------------------------------------------------------------------

// The cells that score two among four slots of numbers. A set of fewer than four leaves slots
// with a 0, and these test the given's bit; so a given gets by with one number. Intended.
PlacesByHouse CellsScoringTwo(const PlaceTable &table, CellWord set)
{
    std::array<std::size_t, 4> slots{};
    for (std::size_t used = 0; set != 0; set &= set - 1) {
        slots[used++] = static_cast<std::size_t>(LowestCandidate(set));
    }
    const PlacesByHouse &a = table.Of[slots[0]];
    const PlacesByHouse &b = table.Of[slots[1]];
    const PlacesByHouse &c = table.Of[slots[2]];
    const PlacesByHouse &d = table.Of[slots[3]];
    PlacesByHouse two{};
    for (std::size_t h = 0; h < two.size(); ++h) {
        const auto across = static_cast<Places>((a[h] | b[h]) & (c[h] | d[h]));
        two[h] = static_cast<Places>((a[h] & b[h]) | across | (c[h] & d[h]));
    }
    return two;
}

struct HiddenSearch {
    std::int32_t Mode;
    Flag &Found;
    std::int32_t Size;
    bool LoneNumbersCount; // whether a cell with one number of the set may be a member

    // The members are the cells with a number of the set, up to a cell that ends the walk through
    // the house: one without candidates, or one that spoils the group by a lone number.
    [[nodiscard]] Round Look(const PlaceTable &table, CellWord set) const
    {
        const PlacesByHouse inside = CellsWithAny(table, set);
        const PlacesByHouse good = LoneNumbersCount ? inside : CellsScoringTwo(table, set);
        const auto size = static_cast<Places>(SearchedSize(Size));
        Round round;
        Places longest = 0;
        Places any = 0;
        for (std::size_t h = 0; h < good.size(); ++h) {
            const auto empty = static_cast<Places>(AllPlaces & ~table.Filled[h]);
            const auto ends = static_cast<Places>(empty | (inside[h] & ~good[h]));
            const auto members = static_cast<Places>(inside[h] & PlacesBefore(ends));
            const Places count = CountPlaces(members);
            round.Members[h] = members;
            round.Groups[h] = ends == 0 && count == size ? members : Places{0};
            longest = std::max(longest, count);
            any |= round.Groups[h];
        }
        round.Longest = longest;
        round.AnyGroup = any;
        return round;
    }

    // The members that hold further numbers.
    [[nodiscard]] static PlacesByHouse Targets(const PlaceTable &table, CellWord set,
                                               const PlacesByHouse &groups)
    {
        PlacesByHouse targets = CellsWithAny(table, CandidateMask & ~set);
        for (std::size_t h = 0; h < targets.size(); ++h) {
            targets[h] &= static_cast<Places>(groups[h] & ~table.Of[0][h]);
        }
        return targets;
    }

    // True when the call is over.
    [[nodiscard]] bool Act(const House &house, CellWord set, Places members, Places targets) const
    {
        const HiddenGroup group{house, set, members, Size};
        if ((set & ~CandidatesAmong(house, members)) != 0) {
            return false;
        }
        for (std::size_t k = 0; k < house.Cells.size(); ++k) {
            const Cell cell = house.Cells[k];
            if (!HasPlace(targets, k)) {
                continue;
            }
            if (ActOnTarget(
                    Mode, Found, cell, [&](CellWord &word) { word &= ~CandidateMask | set; },
                    [&] { Tease("There's a hidden " + GroupName(Size) + "."); },
                    [&] { LocateInHouse(HouseWord(house.Kind)); }, [&] { Explain(group, cell); })) {
                return true;
            }
        }
        return false;
    }
};

} // namespace

void FindHiddenGroup(std::int32_t mode, Flag &found, std::int32_t size)
{
    const bool loneNumbersCount = size == 1 || IncludeSingles != False;
    WalkGroups(mode, size, HiddenSearch{mode, found, size, loneNumbersCount});
}

} // namespace kelvarine
