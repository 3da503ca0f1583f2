// The hidden groups, plainly: every set, every house, every cell.
#pragma once

#include "logic/plain/walks.h"

namespace kelvarine::testing::plain {

namespace hidden {

inline std::string Noun(int size)
{
    switch (size) {
    case 1:
        return "single";
    case 2:
        return "pair";
    case 3:
        return "triple";
    case 4:
        return "quad";
    default:
        return std::to_string(size) + "-cell group";
    }
}

inline std::string Where(const PlainHouse &house)
{
    const Place first = house.Places[0];
    return house.Kind == 'c'   ? "column " + ColumnName(first.Column)
           : house.Kind == 'r' ? "row " + RowName(first.Row)
                               : "the " + BoxName(first.Column, first.Row) + " box";
}

inline void Explain(Place target, const PlainHouse &house, const Slots &slots, int count, int size)
{
    HintTitle = "Hidden " + Noun(size);
    if (size == 1) {
        HintText = "Cell " + NameAt(target) + " is the only cell in " + Where(house) +
                   " containing the number " + std::to_string(slots[3]) + "\r" +
                   "All other numbers should be removed from this cell.\r";
    } else {
        HintText = "Cells  ";
        for (int k = 1; k <= count; ++k) {
            HintText += NameAt(FromList(k)) + " ";
            At(FromList(k)) |= HintCellBit;
        }
        HintText += " form a hidden " + Noun(size) + "\r in " + Where(house) +
                    " containing the numbers " + NumbersInWords(slots) + "\r\r" +
                    "All other numbers should be removed from these cells.\r";
    }
    for (const Place place : house.Places) {
        At(place) |= HintDomainBit;
    }
    At(target) |= HintCellBit;
}

// Walks the house and puts the members in the list; false when the walk ends early.
inline bool CollectMembers(const PlainHouse &house, const Slots &slots, int size, int &count,
                           CellWord &united)
{
    for (const Place place : house.Places) {
        const CellWord word = At(place);
        if ((word & CandidateMask) == 0) {
            return false;
        }
        if ((word & MaskOf(slots)) == 0) {
            continue;
        }
        if (size != 1 && IncludeSingles == False) {
            int score = 0;
            for (const int number : slots) {
                score += (word & Bit(number)) != 0 ? 1 : 0; // number 0 is the bit of a given
            }
            if (score < 2) {
                return false;
            }
        }
        PutInList(++count, place);
        united |= word & CandidateMask;
    }
    return true;
}

// True when the call is over.
inline bool LookInHouse(const PlainHouse &house, const Slots &slots, int size, std::int32_t mode,
                        Flag &found)
{
    const CellWord set = MaskOf(slots);
    int count = 0;
    CellWord united = 0;
    if (!CollectMembers(house, slots, size, count, united)) {
        return false;
    }
    if (count != (size >= 1 && size <= 4 ? size : 4) || (united & set) != set) {
        return false;
    }
    for (const Place target : house.Places) {
        const CellWord word = At(target);
        if ((word & GivenBit) != 0 || (word & set) == 0 || (word & CandidateMask & ~set) == 0) {
            continue;
        }
        if (mode == 0) {
            At(target) &= ~(CandidateMask & ~set);
            found = True;
        } else if (mode == 1) {
            At(target) |= AlertBit;
        } else if (mode == 3 || mode == 4) {
            HintText = "There's a hidden " + Noun(size) + ".";
            if (mode == 4) {
                HintText += "\rIt's in a " + HouseNoun(house, "box") + ".";
            }
            return true;
        } else if (mode == 5 || (mode == 2 && (word & SelectedBit) != 0)) {
            At(target) |= mode == 5 ? SelectedBit : 0;
            Explain(target, house, slots, count, size);
            return true;
        }
    }
    return false;
}

} // namespace hidden

inline void FindHiddenGroup(std::int32_t mode, Flag &found, std::int32_t size)
{
    for (const Slots &slots : SetsOf(size)) {
        for (const PlainHouse &house : AllHouses()) {
            if (hidden::LookInHouse(house, slots, size, mode, found)) {
                return;
            }
        }
    }
}

} // namespace kelvarine::testing::plain
