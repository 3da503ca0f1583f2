// The walk that naked and hidden groups share: over the sets of numbers, and with each set over
// the columns, rows and boxes. The two differ in which cells of a house are members of a group,
// and in what a group says about the other cells.
#pragma once

#include "logic/number_sets.h"
#include "logic/places.h"
#include "logic/technique.h"
#include "logic/work_list.h"

#include <algorithm>
#include <cstdint>
#include <string>

namespace kelvarine {

// The houses seen with one set of numbers.
struct Round {
    PlacesByHouse Members{}; // cells that join the list of members
    PlacesByHouse Groups{};  // the same where they are as many as a group needs, else none
    Places Longest = 0;      // most members in a house
    Places AnyGroup = 0;     // not 0 when there is any in Groups
};

// The size that the search goes by: every size but 1..4 is taken as 4.
constexpr std::int32_t SearchedSize(std::int32_t size)
{
    return size >= 1 && size <= 4 ? size : 4;
}

// The cells of each house that hold any of some numbers.
inline PlacesByHouse CellsWithAny(const PlaceTable &table, CellWord numbers)
{
    PlacesByHouse cells{};
    for (CellWord rest = numbers; rest != 0; rest &= rest - 1) {
        const PlacesByHouse &places = table.Of[static_cast<std::size_t>(LowestCandidate(rest))];
        for (std::size_t h = 0; h < cells.size(); ++h) {
            cells[h] |= places[h];
        }
    }
    return cells;
}

// "single", "pair", "triple", "quad", or such as "5-cell group".
std::string GroupName(std::int32_t size);

// Visits the houses that may have a group with a set. Leaves in the round what the visits found,
// with no members in houses that were not visited. True when the call is over.
template <typename Technique>
bool VisitGroups(std::int32_t mode, CellWord set, const Technique &technique, Round &round)
{
    PlacesByHouse targets = technique.Targets(PlacesNow(), set, round.Groups);
    bool over = false;
    for (std::size_t h = 0; !over && h < Houses.size(); ++h) {
        if (targets[h] == 0) {
            continue;
        }
        const std::size_t next = h + 1;
        over = technique.Act(Houses[h], set, round.Members[h], targets[h]);
        if (over) {
            std::fill(round.Members.begin() + next, round.Members.end(), Places{0});
        } else if (mode == ModeChange) {
            // The houses still to come see the changed grid.
            const PlaceTable &table = PlacesNow();
            const Round now = technique.Look(table, set);
            std::copy(now.Members.begin() + next, now.Members.end(), round.Members.begin() + next);
            targets = technique.Targets(table, set, now.Groups);
        }
    }
    round.Longest = LongestVisit(round.Members);
    return over;
}

// Visits all houses with all sets of numbers of a size. Leaves the members of the visits in the
// work list. The technique is a struct of
//   Look(table, set)                   the round of a set
//   Targets(table, set, groups)        by house the cells that may be targets of the groups
//   Act(house, set, members, targets)  acts in a house that has any; true when the call is over
template <typename Technique>
void WalkGroups(std::int32_t mode, std::int32_t size, const Technique &technique)
{
    const PlaceTable &table = PlacesNow();
    WorkList list;
    bool over = false;
    for (const CellWord set : NumberSets(size)) {
        Round round = technique.Look(table, set);
        over = round.AnyGroup != 0 && VisitGroups(mode, set, technique, round);
        NoteRound(list, round.Members, round.Longest);
        if (over) {
            break;
        }
    }
    WriteWorkList(list);
}

} // namespace kelvarine
