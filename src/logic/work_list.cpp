#include "logic/work_list.h"

#include <algorithm>
#include <cassert>

namespace kelvarine {

namespace {

// Cell of a house that is number length, from 1, among the collected ones.
Cell CellNumber(std::size_t length, const House &house, Places collected)
{
    while (--length > 0) {
        collected &= static_cast<Places>(collected - 1);
    }
    return house.Cells[FirstPlace(collected)];
}

// Writes element length from the last visit of a round that reached it; one of them must have.
void WriteElement(std::size_t length, const PlacesByHouse &round)
{
    std::size_t h = Houses.size() - 1;
    while (CountPlaces(round[h]) < length) {
        assert(h > 0);
        --h;
    }
    const Cell cell = CellNumber(length, Houses[h], round[h]);
    ChainColumns[length] = cell.Column;
    ChainRows[length] = cell.Row;
}

} // namespace

Places LongestVisit(const PlacesByHouse &collected)
{
    Places longest = 0;
    for (const Places cells : collected) {
        longest = std::max(longest, CountPlaces(cells));
    }
    return longest;
}

void NoteRound(WorkList &list, const PlacesByHouse &collected, Places longest)
{
    list.Latest[longest] = collected;
    list.Time[longest] = ++list.Now;
}

void WriteWorkList(const WorkList &list)
{
    const PlacesByHouse *latest = nullptr;
    int time = 0;
    for (std::size_t length = 9; length >= 1; --length) {
        if (list.Time[length] > time) {
            latest = &list.Latest[length];
            time = list.Time[length];
        }
        if (latest != nullptr) {
            WriteElement(length, *latest);
        }
    }
}

} // namespace kelvarine
