// What a search leaves in elements 1 up of ChainColumns and ChainRows. A search visits house after
// house, and each visit writes the cells that it collects over the front of the list; so the
// list ends with the first cells of the last visit, followed by leftovers of longer ones before
// it. The searches note a whole round of houses at a time and write the list once, at the end.
#pragma once

#include "logic/places.h"

#include <array>

namespace kelvarine {

struct WorkList {
    // The latest round by the length of its longest visit, and when it was, 0 for never.
    std::array<PlacesByHouse, 10> Latest;
    std::array<int, 10> Time{};
    int Now = 0;
};

// The most cells that a visit of a round collected, 0..9.
Places LongestVisit(const PlacesByHouse &collected);

// Takes down the cells that a round of visits collected, in house order; none for a house that
// was not visited. longest is the LongestVisit of the round.
void NoteRound(WorkList &list, const PlacesByHouse &collected, Places longest);

// Writes the elements that the rounds reached; element 0 and those beyond stay as they are.
void WriteWorkList(const WorkList &list);

} // namespace kelvarine
