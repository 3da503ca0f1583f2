// The naked groups, plainly: every set, every house, every cell.
#pragma once

#include "logic/plain/walks.h"

namespace kelvarine::testing::plain {

inline void ApplyNakedPairs(std::int32_t mode, Flag &found)
{
    if (mode != 0) {
        return;
    }
    for (int c = 1; c <= 9; ++c) {
        for (int r = 1; r <= 9; ++r) {
            const Place first{c, r};
            if (CountBits(At(first)) != 2) {
                continue;
            }
            const CellWord pair = At(first) & CandidateMask;
            for (const PlainHouse &house : AllHouses()) {
                if (std::ranges::find(house.Places, first) == house.Places.end()) {
                    continue;
                }
                for (const Place second : house.Places) {
                    if (second == first || (At(second) & CandidateMask) != pair) {
                        continue;
                    }
                    for (const Place other : house.Places) {
                        if (other != first && other != second && (At(other) & pair) != 0) {
                            At(other) &= ~pair;
                            found = True;
                        }
                    }
                }
            }
        }
    }
}

namespace naked {

inline std::string FirstLine(int size)
{
    switch (size) {
    case 1:
        return "There's a conflict with a naked single.";
    case 2:
        return "There's a conflict with a naked pair.";
    case 3:
        return "There's a conflict with a naked triple.";
    case 4:
        return "There's a conflict with a naked quad.";
    default:
        return "There's a conflict with a naked " + std::to_string(size) + "-cell group.";
    }
}

inline std::string Title(int size)
{
    switch (size) {
    case 1:
        return "Conflict with naked single";
    case 2:
        return "Conflict with naked pair";
    case 3:
        return "Conflict with naked triple";
    case 4:
        return "Conflict with naked quad";
    default:
        return "Conflict with naked " + std::to_string(size) + "-cell group";
    }
}

inline std::string Noun(int size)
{
    switch (size) {
    case 2:
        return "a naked pair in the same ";
    case 3:
        return "a naked triple in the same ";
    case 4:
        return "a naked quad in the same ";
    default:
        return "a " + std::to_string(size) + "-cell exclusive group in the same ";
    }
}

// " conflicts with " or " contains a ... which conflicts with ".
inline std::string Clash(Place target, CellWord set)
{
    std::vector<int> held;
    for (int number = 1; number <= 9; ++number) {
        if ((At(target) & set & Bit(number)) != 0) {
            held.push_back(number);
        }
    }
    if (held.size() == 1) {
        return (At(target) & CandidateMask) == set
                   ? " conflicts with "
                   : " contains a " + std::to_string(held[0]) + " which conflicts with ";
    }
    std::string text = " contains a ";
    for (std::size_t k = 0; k < held.size(); ++k) {
        text += std::to_string(held[k]);
        text += k + 2 < held.size() ? "," : k + 2 == held.size() ? " and " : "";
    }
    return text + " which conflicts with ";
}

inline void Explain(Place target, const PlainHouse &house, const Slots &slots, int count, int size)
{
    HintText = "Cell " + NameAt(target) + Clash(target, MaskOf(slots));
    if (size == 1) {
        const Place other = FromList(1) == target ? FromList(2) : FromList(1);
        HintText += "cell " + NameAt(other) + " in the same " + HouseNoun(house, "3x3 box") + ".\r";
    } else {
        HintText += "cells  ";
        for (int k = 1; k <= count; ++k) {
            if (FromList(k) != target) {
                HintText += NameAt(FromList(k)) + " ";
            }
        }
        HintText += "\r" + Noun(size) + HouseNoun(house, "3x3 box") + " containing the numbers " +
                    NumbersInWords(slots);
    }
    HintTitle = Title(size);
    for (int k = 1; k <= count; ++k) {
        if (FromList(k) != target) {
            At(FromList(k)) |= HintCellBit;
        }
    }
    for (const Place place : house.Places) {
        At(place) |= HintDomainBit;
    }
}

inline bool IsTarget(Place place, const PlainHouse &house, CellWord set, bool sound)
{
    const CellWord word = At(place);
    if ((word & set) == 0 || (word & GivenBit) != 0) {
        return false;
    }
    if (sound) {
        return (word & CandidateMask & ~set) != 0;
    }
    CellWord others = 0;
    for (const Place other : house.Places) {
        if (other != place && (At(other) & CandidateMask & ~set) == 0) {
            others |= At(other) & CandidateMask;
        }
    }
    return (word & others) != 0;
}

// True when the call is over.
inline bool LookInHouse(const PlainHouse &house, const Slots &slots, int size, std::int32_t mode,
                        Flag &found)
{
    const CellWord set = MaskOf(slots);
    const int wanted = size >= 1 && size <= 4 ? size : 4;
    int count = 0;
    CellWord united = 0;
    for (const Place place : house.Places) {
        if ((At(place) & ScratchMark2) != 0 && (At(place) & CandidateMask & ~set) == 0) {
            PutInList(++count, place);
            united |= At(place) & CandidateMask;
        }
    }
    if (united != set || count < wanted) {
        return false;
    }
    for (const Place target : house.Places) {
        if (!IsTarget(target, house, set, count == wanted)) {
            continue;
        }
        if (mode == 0) {
            At(target) &= ~set;
            found = True;
        } else if (mode == 1) {
            At(target) |= AlertBit;
        } else if (mode == 3 || mode == 4) {
            HintText = FirstLine(size);
            if (mode == 4) {
                HintText += "\rIt's in a " + HouseNoun(house, "3x3 box") + ".";
            }
            return true;
        } else if (mode == 5 || (mode == 2 && (At(target) & SelectedBit) != 0)) {
            At(target) |= mode == 5 ? SelectedBit : 0;
            Explain(target, house, slots, count, size);
            return true;
        }
    }
    return false;
}

} // namespace naked

inline void FindNakedGroup(std::int32_t mode, Flag &found, std::int32_t size)
{
    const int fewest = size == 1 || IncludeSingles != False ? 1 : 2;
    for (int c = 1; c <= 9; ++c) {
        for (int r = 1; r <= 9; ++r) {
            At({c, r}) &= ~ScratchMark2;
            if (CountBits(At({c, r})) >= fewest) {
                At({c, r}) |= ScratchMark2;
            }
        }
    }
    for (const Slots &slots : SetsOf(size)) {
        for (const PlainHouse &house : AllHouses()) {
            if (naked::LookInHouse(house, slots, size, mode, found)) {
                return;
            }
        }
    }
}

} // namespace kelvarine::testing::plain
