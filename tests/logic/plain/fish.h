// The fish, plainly: every selection of lines, every number, counted cell by cell.
#pragma once

#include "logic/plain/walks.h"

namespace kelvarine::testing::plain {

namespace fish {

// One form of the search: base lines are columns or rows.
struct Form {
    bool BaseIsColumn = true;
};

struct Pattern {
    std::array<int, 6> BaseLines{}; // slots 1..5, the highest line in slot 1
    std::array<int, 10> CoverCounts{};
    std::uint32_t BaseMask = 0;
    std::uint32_t CoverMask = 0;
    int CoverCount = 0;
    int Number = 0;
    int Size = 0;
};

inline Place Crossing(Form form, int base, int cover)
{
    return form.BaseIsColumn ? Place{base, cover} : Place{cover, base};
}

inline bool Holds(Form form, int base, int cover, int number)
{
    // Line 0 holds no cell.
    return base != 0 && (At(Crossing(form, base, cover)) & Bit(number)) != 0;
}

inline std::string Name(int size)
{
    return size == 2 ? "X-wing" : size == 3 ? "Swordfish" : "Jellyfish";
}

inline std::string ShortText(int size)
{
    switch (size) {
    case 2:
        return "There's a conflict with an X-wing.";
    case 3:
        return "There's a conflict with a Swordfish.";
    default:
        return "There's a conflict with a Jellyfish.";
    }
}

inline void Explain(Form form, const Pattern &pattern, Place target)
{
    const std::string size = std::to_string(pattern.Size);
    HintText += "Cell " + NameAt(target) + " contains a " + std::to_string(pattern.Number);
    HintText += " which conflicts with a " + size + "-column/" + size + "-row ";
    HintText += form.BaseIsColumn ? "intersection \r" : "exclusive intersection. \r";
    HintTitle = "Conflict with " + Name(pattern.Size);
    HintText += form.BaseIsColumn ? "Columns: " : "Rows: ";
    for (int slot = pattern.Size; slot >= 1; --slot) {
        const int line = pattern.BaseLines[static_cast<std::size_t>(slot)];
        HintText += form.BaseIsColumn ? ColumnName(line) : RowName(line);
    }
    HintText += form.BaseIsColumn ? "    Rows: " : "    Columns: ";
    for (int p = 1; p <= 9; ++p) {
        if (pattern.CoverCounts[static_cast<std::size_t>(p)] > 1) {
            HintText += form.BaseIsColumn ? RowName(p) : ColumnName(p);
        }
        for (int slot = 1; slot <= pattern.Size; ++slot) {
            const int line = pattern.BaseLines[static_cast<std::size_t>(slot)];
            At(Crossing(form, line, p)) |=
                Holds(form, line, p, pattern.Number) ? HintCellBit : HintDomainBit;
        }
    }
}

// Whether the pattern of its number stands.
inline bool Stands(Form form, Pattern &pattern)
{
    pattern.CoverMask = 0;
    pattern.CoverCount = 0;
    pattern.CoverCounts = {};
    for (int slot = 1; slot <= pattern.Size; ++slot) {
        std::uint32_t lineMask = 0;
        const int line = pattern.BaseLines[static_cast<std::size_t>(slot)];
        for (int p = 1; p <= 9; ++p) {
            if (!Holds(form, line, p, pattern.Number)) {
                continue;
            }
            ++pattern.CoverCounts[static_cast<std::size_t>(p)];
            lineMask |= Bit(p);
            if ((pattern.CoverMask | lineMask) != pattern.CoverMask) {
                ++pattern.CoverCount;
                pattern.CoverMask |= lineMask;
                if (pattern.CoverCount > pattern.Size) {
                    return false;
                }
            }
        }
        if (lineMask == 0) {
            return false;
        }
    }
    for (int p = 1; p <= 9; ++p) {
        if (pattern.CoverCounts[static_cast<std::size_t>(p)] == 1) {
            pattern.CoverCount = 0;
        }
    }
    return pattern.CoverCount == pattern.Size;
}

// True when the call is over.
inline bool Conclude(Form form, const Pattern &pattern, std::int32_t mode, Flag &found)
{
    const CellWord bit = Bit(pattern.Number);
    for (int p = 1; p <= 9; ++p) {
        for (int q = 1; q <= 9; ++q) {
            const Place target = Crossing(form, q, p);
            if ((pattern.CoverMask & Bit(p)) == 0 || (At(target) & GivenBit) != 0 ||
                (At(target) & bit) == 0 || (pattern.BaseMask & Bit(q)) != 0) {
                continue;
            }
            if (mode == 0) {
                At(target) &= ~bit;
                found = True;
            } else if (mode == 1) {
                At(target) |= AlertBit;
            } else if (mode == 3 || mode == 4) {
                HintText = ShortText(pattern.Size);
                if (mode == 4) {
                    HintText += "\rIt involves the number " + std::to_string(pattern.Number);
                }
                return true;
            } else if (mode == 5 || (mode == 2 && (At(target) & SelectedBit) != 0)) {
                At(target) |= mode == 5 ? SelectedBit : 0;
                Explain(form, pattern, target);
                return true;
            }
        }
    }
    return false;
}

inline void Search(Form form, std::int32_t mode, Flag &found, int size)
{
    for (int s4 = size >= 4 ? 1 : 0; s4 <= (size >= 4 ? 6 : 0); ++s4) {
        for (int s3 = size >= 3 ? s4 + 1 : 0; s3 <= (size >= 3 ? 7 : 0); ++s3) {
            for (int s2 = size >= 2 ? s3 + 1 : 0; s2 <= (size >= 2 ? 8 : 0); ++s2) {
                for (int s1 = s2 + 1; s1 <= 9; ++s1) {
                    Pattern pattern;
                    pattern.BaseLines = {0, s1, s2, s3, s4, 0};
                    pattern.BaseMask = Bit(s1) | Bit(s2) | Bit(s3) | Bit(s4);
                    pattern.Size = size;
                    for (int number = 1; number <= 9; ++number) {
                        pattern.Number = number;
                        if (Stands(form, pattern) && Conclude(form, pattern, mode, found)) {
                            return;
                        }
                    }
                }
            }
        }
    }
}

} // namespace fish

inline void SearchFishColumns(std::int32_t mode, Flag &found, std::int32_t size)
{
    fish::Search({.BaseIsColumn = true}, mode, found, size);
}

inline void SearchFishRows(std::int32_t mode, Flag &found, std::int32_t size)
{
    fish::Search({.BaseIsColumn = false}, mode, found, size);
}

} // namespace kelvarine::testing::plain
