#include "logic/intersections.h"

#include "logic/places.h"
#include "logic/technique.h"
#include "logic/work_list.h"

#include <algorithm>
#include <vector>

namespace kelvarine {

namespace {

// A number that is locked: all its places in the first house lie in the second as well.
struct Lock {
    int Number;
    std::uint8_t First; // index into Houses
    std::uint8_t Second;
    Places Listed; // its places in the first house
    bool Crossing; // whether a lone cell is told as such, and not as one of several
};

// ---- Words and marks -----------------------------------------------------------------------

std::string KindOf(std::uint8_t house)
{
    return std::string(HouseWord(Houses[house].Kind));
}

// Such as "column/box intersection".
std::string Pairing(const Lock &lock)
{
    return KindOf(lock.First) + "/" + KindOf(lock.Second) + " intersection";
}

void TeaseLock(const Lock &lock)
{
    Tease("There's a conflict with a " + Pairing(lock) + ".");
}

void LocateNumber(const Lock &lock)
{
    HintText += MessageLineEnd;
    HintText += "It involves the number " + std::to_string(lock.Number);
}

void Explain(const Lock &lock, Cell target)
{
    const std::vector<Cell> listed = CellsAt(Houses[lock.First], lock.Listed);
    const std::string number = std::to_string(lock.Number);
    HintTitle = "Conflict with " + Pairing(lock);
    HintText = "Cell " + NameOf(target) + " contains a " + number + " which conflicts with ";
    if (lock.Crossing) {
        HintText += "cell " + NameOf(listed.front());
        HintText += MessageLineEnd;
        HintText += " where the "; // the blank at the start of the line is intended
    } else {
        // A lone cell is told in the plural, but for box/row, which the search has no use for: it
        // takes a lone cell of a box for a column. Intended.
        const bool single = listed.size() == 1 && lock.First >= FirstBox &&
                            Houses[lock.Second].Kind == HouseKind::Row;
        HintText += (single ? "cell " : "cells ") + NamesOf(listed);
        HintText += MessageLineEnd;
        HintText += "where the ";
    }
    HintText += number + " must appear due to " + KindOf(lock.First) + " requirements.";
    HintText += MessageLineEnd;
    for (const Cell cell : listed) {
        WordAt(cell) |= HintCellBit;
    }
    MarkHouse(Houses[lock.First], HintDomainBit);
    MarkHouse(Houses[lock.Second], HintDomainBit);
}

// ---- Search --------------------------------------------------------------------------------

// The three cells that a line shares with a box, and a box with a column; and those that a box
// shares with a row.
constexpr std::array<Places, 3> Thirds{0x7, 0x38, 0x1C0};
constexpr std::array<Places, 3> BoxRows{0x49, 0x92, 0x124};

constexpr bool LieInOne(const std::array<Places, 3> &parts, Places places)
{
    return (places & ~parts[0]) == 0 || (places & ~parts[1]) == 0 || (places & ~parts[2]) == 0;
}

// A line is walked up to the fourth place of the number.
constexpr Places ListedInLine(Places places)
{
    Places rest = places;
    for (int k = 0; k < 4; ++k) {
        rest &= static_cast<Places>(rest - 1);
    }
    return static_cast<Places>(places & ~rest);
}

// A box is walked up to the first place that is not in line with those before it.
constexpr Places ListedInBox(Places places)
{
    Places listed = 0;
    for (Places rest = places; rest != 0; rest &= static_cast<Places>(rest - 1)) {
        listed |= static_cast<Places>(rest & ~(rest - 1));
        if (!LieInOne(Thirds, listed) && !LieInOne(BoxRows, listed)) {
            break;
        }
    }
    return listed;
}

// The answer of a function for all combinations of places.
template <auto Function>
constexpr auto Tabulated = [] {
    std::array<decltype(Function(Places{0})), 512> table{};
    for (Places places = 0; places < table.size(); ++places) {
        table[places] = Function(places);
    }
    return table;
}();

// Whether there are places and all of them lie in a second house.
constexpr bool AreLockedInLine(Places places)
{
    return places != 0 && LieInOne(Thirds, places);
}

constexpr bool AreLockedInBox(Places places)
{
    return places != 0 && (LieInOne(Thirds, places) || LieInOne(BoxRows, places));
}

// The cells that the walks through all houses list for a number. A cell without candidates ends
// a walk too.
PlacesByHouse ListedCells(const PlaceTable &table, int number)
{
    PlacesByHouse listed = table.Of[static_cast<std::size_t>(number)];
    for (std::size_t h = 0; h < listed.size(); ++h) {
        listed[h] &= PlacesBefore(static_cast<Places>(AllPlaces & ~table.Filled[h]));
    }
    for (std::size_t h = 0; h < FirstBox; ++h) {
        listed[h] = ListedInLine(listed[h]);
    }
    for (std::size_t h = FirstBox; h < Houses.size(); ++h) {
        listed[h] = Tabulated<ListedInBox>[listed[h]];
    }
    return listed;
}

// Three cells are where a line and a box meet. A number in them can go from the rest of one of
// the two houses exactly when the rest of the other does not hold it. Returns the numbers for
// which this is so anywhere, on nine parallel lines.
CellWord RemovableNumbers(std::size_t firstLine)
{
    std::array<std::array<CellWord, 3>, 9> meeting{}; // by line and box along it
    for (std::size_t line = 0; line < 9; ++line) {
        for (std::size_t k = 0; k < 9; ++k) {
            meeting[line][k / 3] |= WordAt(Houses[firstLine + line].Cells[k]);
        }
    }
    CellWord removable = 0;
    for (std::size_t line = 0; line < 9; ++line) {
        const auto &second = meeting[line / 3 * 3 + (line + 1) % 3];
        const auto &third = meeting[line / 3 * 3 + (line + 2) % 3];
        for (std::size_t box = 0; box < 3; ++box) {
            const CellWord restOfLine = meeting[line][(box + 1) % 3] | meeting[line][(box + 2) % 3];
            const CellWord restOfBox = second[box] | third[box];
            removable |= meeting[line][box] & (restOfLine ^ restOfBox);
        }
    }
    return removable & CandidateMask;
}

struct Search {
    std::int32_t Mode;
    const PlaceTable &Table;
    PlacesByHouse Counts{}; // places of the number by house
    Flag Changed = False;   // by the visit of a house
};

bool IsIn(std::uint8_t house, Cell cell)
{
    const auto kind = static_cast<std::size_t>(Houses[house].Kind);
    return HousesOf(cell.Column, cell.Row)[kind] == house;
}

// Acts on a cell of the second house, when it lies outside the first and the number can go from
// it. True when the call is over, as in all of the following.
bool ActOnCell(Search &search, const Lock &lock, Cell cell)
{
    const CellWord word = WordAt(cell);
    const CellWord bit = BitOf(lock.Number);
    if ((word & bit) == 0 || (word & GivenBit) != 0 || IsIn(lock.First, cell)) {
        return false;
    }
    return ActOnTarget(
        search.Mode, search.Changed, cell, [=](CellWord &target) { target &= ~bit; },
        [&] { TeaseLock(lock); }, [&] { LocateNumber(lock); }, [&] { Explain(lock, cell); });
}

// The order of the cells of the second house. The box of a row is the mirror of the box of a
// column: it is looked at row by row.
constexpr std::array<std::uint8_t, 9> InOrder{0, 1, 2, 3, 4, 5, 6, 7, 8};
constexpr std::array<std::uint8_t, 9> RowByRow{0, 3, 6, 1, 4, 7, 2, 5, 8};

bool ActOnLock(Search &search, const Lock &lock, const std::array<std::uint8_t, 9> &order = InOrder)
{
    if (search.Counts[lock.Second] == search.Counts[lock.First]) {
        return false;
    }
    return std::ranges::any_of(order, [&](std::uint8_t k) {
        return ActOnCell(search, lock, Houses[lock.Second].Cells[k]);
    });
}

// The places in a column or row: a lone one crosses the other line, and up to three may lie in
// one box.
bool ActInLine(Search &search, int number, std::uint8_t line, Places places)
{
    const bool isColumn = Houses[line].Kind == HouseKind::Column;
    const Cell first = Houses[line].Cells[FirstPlace(places)];
    const auto [column, row, box] = HousesOf(first.Column, first.Row);
    if (search.Counts[line] == 1 &&
        ActOnLock(search, {number, line, isColumn ? row : column, places, true})) {
        return true;
    }
    return LieInOne(Thirds, places) &&
           ActOnLock(search, {number, line, box, places, false}, isColumn ? InOrder : RowByRow);
}

// A lone place in a box: its column and its row, cell by cell in turn.
bool ActOnLonePlace(Search &search, const Lock &inColumn, const Lock &inRow)
{
    if (search.Counts[inColumn.Second] == 1 && search.Counts[inRow.Second] == 1) {
        return false;
    }
    for (std::size_t k = 0; k < 9; ++k) {
        if (ActOnCell(search, inColumn, Houses[inColumn.Second].Cells[k]) ||
            ActOnCell(search, inRow, Houses[inRow.Second].Cells[k])) {
            return true;
        }
    }
    return false;
}

// The places in a box. A lone one is looked at twice: as one, and then as a column.
bool ActInBox(Search &search, int number, std::uint8_t box, Places places)
{
    const Cell first = Houses[box].Cells[FirstPlace(places)];
    const auto [column, row, itself] = HousesOf(first.Column, first.Row);
    if (search.Counts[box] == 1 && ActOnLonePlace(search, {number, box, column, places, true},
                                                  {number, box, row, places, true})) {
        return true;
    }
    if (LieInOne(Thirds, places)) {
        return ActOnLock(search, {number, box, column, places, false});
    }
    return LieInOne(BoxRows, places) && ActOnLock(search, {number, box, row, places, false});
}

PlacesByHouse CountsOf(const PlacesByHouse &places)
{
    PlacesByHouse counts{};
    for (std::size_t h = 0; h < counts.size(); ++h) {
        counts[h] = CountPlaces(places[h]);
    }
    return counts;
}

// Visits all houses for a number. Leaves in listed what the visits listed.
bool VisitHouses(Search &search, Flag &found, int number, PlacesByHouse &listed)
{
    const PlacesByHouse &places = search.Table.Of[static_cast<std::size_t>(number)];
    search.Counts = CountsOf(places);
    for (std::size_t next = 1; next <= Houses.size(); ++next) {
        const auto h = static_cast<std::uint8_t>(next - 1);
        // A cell without candidates ends the walk before any conclusion.
        const auto &locked = h < FirstBox ? Tabulated<AreLockedInLine> : Tabulated<AreLockedInBox>;
        if (!locked[places[h]] || search.Table.Filled[h] != AllPlaces) {
            continue;
        }
        if (h < FirstBox ? ActInLine(search, number, h, places[h])
                         : ActInBox(search, number, h, places[h])) {
            std::fill(listed.begin() + next, listed.end(), Places{0});
            return true;
        }
        if (search.Changed != False) {
            // The houses still to come see the changed grid.
            found = True;
            search.Changed = False;
            const PlacesByHouse now = ListedCells(PlacesNow(), number);
            std::copy(now.begin() + next, now.end(), listed.begin() + next);
            search.Counts = CountsOf(places);
        }
    }
    return false;
}

} // namespace

void FindIntersections(std::int32_t mode, Flag &found)
{
    Search search{mode, PlacesNow()};
    const CellWord removable = RemovableNumbers(FirstColumn) | RemovableNumbers(FirstRow);
    WorkList list;
    for (int number = 1; number <= 9; ++number) {
        PlacesByHouse listed = ListedCells(search.Table, number);
        const bool over =
            (removable & BitOf(number)) != 0 && VisitHouses(search, found, number, listed);
        NoteRound(list, listed, LongestVisit(listed));
        if (over) {
            break;
        }
    }
    WriteWorkList(list);
}

} // namespace kelvarine
