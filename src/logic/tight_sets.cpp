#include "logic/tight_sets.h"

namespace kelvarine {

namespace {

// Where a cell stands in a board.
struct Spot {
    std::uint8_t Stack;
    std::uint8_t Bit;
};

constexpr auto HouseSpots = [] {
    std::array<std::array<Spot, 9>, 27> spots{};
    for (std::size_t h = 0; h < spots.size(); ++h) {
        for (std::size_t k = 0; k < 9; ++k) {
            const auto [column, row] = Houses[h].Cells[k];
            spots[h][k] = {static_cast<std::uint8_t>((column - 1) / 3),
                           static_cast<std::uint8_t>((column - 1) % 3 * 10 + row - 1)};
        }
    }
    return spots;
}();

using HousePlaces = std::array<std::uint16_t, NumberCount>; // bit k is cell k of the house

HousePlaces PlacesIn(const NumberBoard &board, std::size_t house)
{
    HousePlaces places{};
    for (std::size_t n = 0; n < NumberCount; ++n) {
        for (unsigned k = 0; k < 9; ++k) {
            const auto [stack, bit] = HouseSpots[house][k];
            places[n] |= static_cast<std::uint16_t>((board.Places[n][stack] >> bit & 1) << k);
        }
    }
    return places;
}

void TakeOut(NumberBoard &board, std::size_t house, std::size_t number, unsigned places)
{
    for (std::size_t k = 0; k < 9; ++k) {
        if ((places >> k & 1) != 0) {
            const auto [stack, bit] = HouseSpots[house][k];
            board.Places[number][stack] &= ~(std::uint32_t{1} << bit);
        }
    }
}

// What each number loses in a house. False when a set of numbers has too few places.
bool FindLosses(const HousePlaces &places, HousePlaces &losses)
{
    std::array<std::uint16_t, 512> together{}; // places of each set of numbers
    for (unsigned set = 1; set < together.size(); ++set) {
        const auto first = static_cast<std::size_t>(std::countr_zero(set));
        together[set] = static_cast<std::uint16_t>(together[set & (set - 1)] | places[first]);
        const int spare = CandidateCounts[together[set]] - CandidateCounts[set];
        if (spare < 0) {
            return false;
        }
        for (std::size_t n = 0; spare == 0 && n < NumberCount; ++n) {
            losses[n] |= (set >> n & 1) != 0 ? 0 : together[set];
        }
    }
    return true;
}

bool ConcludeInHouse(NumberBoard &board, std::size_t house, bool &changed)
{
    const HousePlaces places = PlacesIn(board, house);
    HousePlaces losses{};
    if (!FindLosses(places, losses)) {
        return false;
    }
    for (std::size_t n = 0; n < NumberCount; ++n) {
        const unsigned lost = places[n] & losses[n];
        if (lost != 0) {
            TakeOut(board, house, n, lost);
            changed = true;
        }
    }
    return true;
}

} // namespace

bool ConcludeByTightSets(NumberBoard &board)
{
    bool changed = true;
    while (changed) {
        changed = false;
        for (std::size_t house = 0; house < HouseSpots.size(); ++house) {
            if (!ConcludeInHouse(board, house, changed)) {
                return false;
            }
        }
        Repeats<CellLanes> counts;
        if (changed && !Conclude(board, counts)) {
            return false;
        }
    }
    return true;
}

} // namespace kelvarine
