// The intersections, plainly: three phases for each number.
#pragma once

#include "logic/plain/walks.h"

namespace kelvarine::testing::plain {

namespace crossing {

enum class Pairing { ColumnRow, ColumnBox, RowColumn, RowBox, BoxColumn, BoxRow };

inline std::string Name(Pairing pairing)
{
    switch (pairing) {
    case Pairing::ColumnRow:
        return "column/row";
    case Pairing::ColumnBox:
        return "column/box";
    case Pairing::RowColumn:
        return "row/column";
    case Pairing::RowBox:
        return "row/box";
    case Pairing::BoxColumn:
        return "box/column";
    default:
        return "box/row";
    }
}

inline std::string Reason(Pairing pairing)
{
    switch (pairing) {
    case Pairing::ColumnRow:
    case Pairing::ColumnBox:
        return " must appear due to column requirements.";
    case Pairing::RowColumn:
    case Pairing::RowBox:
        return " must appear due to row requirements.";
    default:
        return " must appear due to box requirements.";
    }
}

inline void MarkColumn(int column)
{
    for (int r = 1; r <= 9; ++r) {
        At({column, r}) |= HintDomainBit;
    }
}

inline void MarkRow(int row)
{
    for (int c = 1; c <= 9; ++c) {
        At({c, row}) |= HintDomainBit;
    }
}

inline void MarkBox(Place inside)
{
    const int left = (inside.Column - 1) / 3 * 3 + 1;
    const int top = (inside.Row - 1) / 3 * 3 + 1;
    for (int c = left; c < left + 3; ++c) {
        for (int r = top; r < top + 3; ++r) {
            At({c, r}) |= HintDomainBit;
        }
    }
}

struct Look {
    std::int32_t Mode = 0;
    int Number = 0;
    int Count = 0;     // cells in the list
    int Column = 0;    // fixed column, or the column walked
    int Row = 0;       // fixed row, or the row walked
    bool Lone = false; // step for a list of one cell
};

inline void MarkDomains(const Look &look, Pairing pairing)
{
    switch (pairing) {
    case Pairing::ColumnRow:
        MarkColumn(look.Column);
        MarkRow(FromList(1).Row);
        return;
    case Pairing::ColumnBox:
        MarkColumn(look.Column);
        MarkBox(FromList(1));
        return;
    case Pairing::RowColumn:
        MarkRow(look.Row);
        MarkColumn(FromList(1).Column);
        return;
    case Pairing::RowBox:
        MarkRow(look.Row);
        MarkBox(FromList(1));
        return;
    case Pairing::BoxColumn:
        MarkBox(FromList(1));
        MarkColumn(look.Column);
        return;
    case Pairing::BoxRow:
        MarkBox(FromList(1));
        MarkRow(look.Row);
        return;
    }
}

inline void Explain(const Look &look, Pairing pairing, Place target)
{
    const std::string number = std::to_string(look.Number);
    HintTitle = "Conflict with " + Name(pairing) + " intersection";
    HintText = "Cell " + NameAt(target) + " contains a " + number;
    if (look.Lone) {
        HintText += " which conflicts with cell " + NameAt(FromList(1)) + "\r where the " + number +
                    Reason(pairing) + "\r";
    } else {
        HintText += pairing == Pairing::BoxRow && look.Count == 1 ? " which conflicts with cell "
                                                                  : " which conflicts with cells ";
        for (int k = 1; k <= look.Count; ++k) {
            HintText += NameAt(FromList(k)) + " ";
        }
        HintText += "\rwhere the " + number + Reason(pairing) + "\r";
    }
    for (int k = 1; k <= look.Count; ++k) {
        At(FromList(k)) |= HintCellBit;
    }
    MarkDomains(look, pairing);
}

// Acts on a cell when it is eligible. True when the call is over.
inline bool Act(const Look &look, Flag &found, Pairing pairing, Place target)
{
    const CellWord bit = Bit(look.Number);
    if ((At(target) & GivenBit) != 0 || (At(target) & bit) == 0) {
        return false;
    }
    switch (look.Mode) {
    case 0:
        At(target) &= ~bit;
        found = True;
        return false;
    case 1:
        At(target) |= AlertBit;
        return false;
    case 3:
    case 4:
        HintText = "There's a conflict with a " + Name(pairing) + " intersection.";
        if (look.Mode == 4) {
            HintText += "\rIt involves the number " + std::to_string(look.Number);
        }
        return true;
    case 2:
        if ((At(target) & SelectedBit) == 0) {
            return false;
        }
        Explain(look, pairing, target);
        return true;
    case 5:
        At(target) |= SelectedBit;
        Explain(look, pairing, target);
        return true;
    default:
        return false;
    }
}

inline int Band(int line)
{
    return (line - 1) / 3 * 3 + 1;
}

inline bool LookInColumn(Look look, Flag &found, int c)
{
    int first = 0;
    int last = 0;
    for (int r = 1; r <= 9; ++r) {
        if ((At({c, r}) & Bit(look.Number)) == 0) {
            if ((At({c, r}) & CandidateMask) == 0) {
                return false;
            }
            continue;
        }
        first = first == 0 ? r : first;
        last = r;
        PutInList(++look.Count, {c, r});
        if (look.Count == 4) {
            return false;
        }
    }
    look.Column = c;
    if (look.Count == 1) {
        look.Lone = true;
        for (int other = 1; other <= 9; ++other) {
            if (other != c && Act(look, found, Pairing::ColumnRow, {other, first})) {
                return true;
            }
        }
    }
    look.Lone = false;
    if (look.Count > 0 && Band(first) == Band(last)) {
        for (int column = Band(c); column < Band(c) + 3; ++column) {
            for (int row = Band(first); row < Band(first) + 3; ++row) {
                if (column != c && Act(look, found, Pairing::ColumnBox, {column, row})) {
                    return true;
                }
            }
        }
    }
    return false;
}

inline bool LookInRow(Look look, Flag &found, int r)
{
    int first = 0;
    int last = 0;
    for (int c = 1; c <= 9; ++c) {
        if ((At({c, r}) & Bit(look.Number)) == 0) {
            if ((At({c, r}) & CandidateMask) == 0) {
                return false;
            }
            continue;
        }
        first = first == 0 ? c : first;
        last = c;
        PutInList(++look.Count, {c, r});
        if (look.Count == 4) {
            return false;
        }
    }
    look.Row = r;
    if (look.Count == 1) {
        look.Lone = true;
        for (int other = 1; other <= 9; ++other) {
            if (other != r && Act(look, found, Pairing::RowColumn, {first, other})) {
                return true;
            }
        }
    }
    look.Lone = false;
    if (look.Count > 0 && Band(first) == Band(last)) {
        for (int row = Band(r); row < Band(r) + 3; ++row) {
            for (int column = Band(first); column < Band(first) + 3; ++column) {
                if (row != r && Act(look, found, Pairing::RowBox, {column, row})) {
                    return true;
                }
            }
        }
    }
    return false;
}

// Collects the cells of a box; false when its phase ends early.
inline bool WalkBox(Look &look, int left, int top)
{
    for (int c = left; c < left + 3; ++c) {
        for (int r = top; r < top + 3; ++r) {
            if ((At({c, r}) & Bit(look.Number)) == 0) {
                if ((At({c, r}) & CandidateMask) == 0) {
                    return false;
                }
                continue;
            }
            PutInList(++look.Count, {c, r});
            if (look.Count == 1) {
                look.Column = c;
                look.Row = r;
            } else if (c != look.Column && r != look.Row) {
                return false;
            } else if (c != look.Column) {
                look.Column = 0;
            } else {
                look.Row = 0;
            }
        }
    }
    return true;
}

inline bool LookInBox(Look look, Flag &found, int left, int top)
{
    if (!WalkBox(look, left, top)) {
        return false;
    }
    if (look.Count == 1) {
        look.Lone = true;
        for (int i = 1; i <= 9; ++i) {
            if (i != look.Row && Act(look, found, Pairing::BoxColumn, {look.Column, i})) {
                return true;
            }
            if (i != look.Column && Act(look, found, Pairing::BoxRow, {i, look.Row})) {
                return true;
            }
        }
    }
    look.Lone = false;
    if (look.Count > 0) {
        for (int i = 1; i <= 9; ++i) {
            if (look.Column != 0) {
                if (Band(i) != top && Act(look, found, Pairing::BoxColumn, {look.Column, i})) {
                    return true;
                }
            } else if (Band(i) != left && Act(look, found, Pairing::BoxRow, {i, look.Row})) {
                return true;
            }
        }
    }
    return false;
}

} // namespace crossing

inline void FindIntersections(std::int32_t mode, Flag &found)
{
    for (int number = 1; number <= 9; ++number) {
        crossing::Look look;
        look.Mode = mode;
        look.Number = number;
        for (int c = 1; c <= 9; ++c) {
            if (crossing::LookInColumn(look, found, c)) {
                return;
            }
        }
        for (int r = 1; r <= 9; ++r) {
            if (crossing::LookInRow(look, found, r)) {
                return;
            }
        }
        for (int left = 1; left <= 7; left += 3) {
            for (int top = 1; top <= 7; top += 3) {
                if (crossing::LookInBox(look, found, left, top)) {
                    return;
                }
            }
        }
    }
}

} // namespace kelvarine::testing::plain
