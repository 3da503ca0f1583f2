#include "logic/places.h"

namespace kelvarine {

namespace {

// The one table, and the candidates and givens that it stands for. They only ever repeat what Grid
// says and are compared with it at every reading, so that no restart needs to reset them.
PlaceTable Table;
GridTable Read{};

constexpr CellWord WatchedBits = CandidateMask | GivenBit;

void Toggle(PlacesByHouse &places, Cell cell)
{
    const std::array<int, 3> bits{cell.Row - 1, cell.Column - 1,
                                  (cell.Column - 1) % 3 * 3 + (cell.Row - 1) % 3};
    const auto houses = HousesOf(cell.Column, cell.Row);
    for (std::size_t kind = 0; kind < houses.size(); ++kind) {
        places[houses[kind]] ^= static_cast<Places>(1U << bits[kind]);
    }
}

void BringUpToDate(Cell cell)
{
    CellWord &before = Read[cell.Column][cell.Row];
    const CellWord now = WordAt(cell) & WatchedBits;
    for (CellWord changed = before ^ now; changed != 0; changed &= changed - 1) {
        Toggle(Table.Of[static_cast<std::size_t>(std::countr_zero(changed))], cell);
    }
    if (((before & CandidateMask) == 0) != ((now & CandidateMask) == 0)) {
        Toggle(Table.Filled, cell);
    }
    before = now;
}

} // namespace

const PlaceTable &PlacesNow()
{
    for (int column = 1; column <= 9; ++column) {
        const auto c = static_cast<std::size_t>(column);
        CellWord changed = 0;
        for (std::size_t r = 1; r <= 9; ++r) {
            changed |= (Grid[c][r] ^ Read[c][r]) & WatchedBits;
        }
        for (int row = 1; changed != 0 && row <= 9; ++row) {
            BringUpToDate(MakeCell(column, row));
        }
    }
    return Table;
}

std::vector<Cell> CellsAt(const House &house, Places some)
{
    std::vector<Cell> cells;
    for (std::size_t k = 0; k < house.Cells.size(); ++k) {
        if (HasPlace(some, k)) {
            cells.push_back(house.Cells[k]);
        }
    }
    return cells;
}

CellWord CandidatesAmong(const House &house, Places some)
{
    CellWord numbers = 0;
    for (std::size_t k = 0; k < house.Cells.size(); ++k) {
        if (HasPlace(some, k)) {
            numbers |= WordAt(house.Cells[k]);
        }
    }
    return numbers & CandidateMask;
}

} // namespace kelvarine
