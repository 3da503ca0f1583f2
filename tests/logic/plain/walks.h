// What the plain forms of the techniques share: houses written out by loops, the sets of numbers
// in their order, and a few words. The plain forms walk cell by cell and keep nothing in mind;
// they are the yardstick that the fast searches are compared with, and use none of their tables.
#pragma once

#include "grid/grid.h"
#include "grid/names.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace kelvarine::testing::plain {

struct Place {
    int Column = 0;
    int Row = 0;

    friend bool operator==(const Place &, const Place &) = default;
};

struct PlainHouse {
    char Kind = ' '; // 'c', 'r' or 'b'
    std::array<Place, 9> Places;
};

inline CellWord &At(Place place)
{
    return Grid[static_cast<std::size_t>(place.Column)][static_cast<std::size_t>(place.Row)];
}

inline CellWord Bit(int number)
{
    return CellWord{1} << number;
}

inline int CountBits(CellWord word)
{
    int count = 0;
    for (int number = 1; number <= 9; ++number) {
        count += (word & Bit(number)) != 0 ? 1 : 0;
    }
    return count;
}

inline std::vector<PlainHouse> MakeHouses()
{
    std::vector<PlainHouse> houses;
    for (int c = 1; c <= 9; ++c) {
        PlainHouse house{'c', {}};
        for (int r = 1; r <= 9; ++r) {
            house.Places[static_cast<std::size_t>(r - 1)] = {c, r};
        }
        houses.push_back(house);
    }
    for (int r = 1; r <= 9; ++r) {
        PlainHouse house{'r', {}};
        for (int c = 1; c <= 9; ++c) {
            house.Places[static_cast<std::size_t>(c - 1)] = {c, r};
        }
        houses.push_back(house);
    }
    for (int left = 1; left <= 7; left += 3) {
        for (int top = 1; top <= 7; top += 3) {
            PlainHouse house{'b', {}};
            std::size_t place = 0;
            for (int c = left; c <= left + 2; ++c) {
                for (int r = top; r <= top + 2; ++r) {
                    house.Places[place++] = {c, r};
                }
            }
            houses.push_back(house);
        }
    }
    return houses;
}

inline const std::vector<PlainHouse> &AllHouses()
{
    static const std::vector<PlainHouse> houses = MakeHouses();
    return houses;
}

inline std::string HouseNoun(const PlainHouse &house, const std::string &box)
{
    return house.Kind == 'c' ? "column" : house.Kind == 'r' ? "row" : box;
}

// Four slots n1..n4 of numbers; those not in use hold 0.
using Slots = std::array<int, 4>;

// All sets of size numbers, 1..4, the smallest number the slowest; any other size as 4.
inline std::vector<Slots> MakeSets(int size)
{
    const int used = size >= 1 && size <= 4 ? size : 4;
    std::vector<Slots> sets;
    for (int n1 = used >= 4 ? 1 : 0; n1 <= (used >= 4 ? 6 : 0); ++n1) {
        for (int n2 = used >= 3 ? n1 + 1 : 0; n2 <= (used >= 3 ? 7 : 0); ++n2) {
            for (int n3 = used >= 2 ? n2 + 1 : 0; n3 <= (used >= 2 ? 8 : 0); ++n3) {
                for (int n4 = n3 + 1; n4 <= 9; ++n4) {
                    sets.push_back({n1, n2, n3, n4});
                }
            }
        }
    }
    return sets;
}

inline const std::vector<Slots> &SetsOf(int size)
{
    static const std::array<std::vector<Slots>, 4> sets{MakeSets(1), MakeSets(2), MakeSets(3),
                                                        MakeSets(4)};
    return sets[static_cast<std::size_t>((size >= 1 && size <= 4 ? size : 4) - 1)];
}

inline CellWord MaskOf(const Slots &slots)
{
    CellWord mask = 0;
    for (const int number : slots) {
        mask |= number > 0 ? Bit(number) : 0;
    }
    return mask;
}

// The numbers of the slots as words.
inline std::string NumbersInWords(const Slots &slots)
{
    std::string text;
    text += slots[0] > 0 ? std::to_string(slots[0]) + "," : "";
    text += slots[1] > 0 ? std::to_string(slots[1]) + "," : "";
    text += slots[2] > 0 ? std::to_string(slots[2]) + " and " : "";
    return text + std::to_string(slots[3]);
}

inline void PutInList(int element, Place place)
{
    ChainColumns[static_cast<std::size_t>(element)] = place.Column;
    ChainRows[static_cast<std::size_t>(element)] = place.Row;
}

inline Place FromList(int element)
{
    return {ChainColumns[static_cast<std::size_t>(element)],
            ChainRows[static_cast<std::size_t>(element)]};
}

inline std::string NameAt(Place place)
{
    return CellName(place.Column, place.Row);
}

} // namespace kelvarine::testing::plain
