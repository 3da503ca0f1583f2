// Hinge wings in their plain form, one cell tested after the other and the two passes written out:
// the yardstick that the fast search is compared with.
#pragma once

#include "grid/grid.h"
#include "grid/names.h"
#include "logic/plain/candidates.h"

#include <string>

namespace kelvarine::testing::plain {

class HingeWings {
public:
    HingeWings(std::int32_t mode, Flag &found, std::int32_t size)
        : Mode(mode), Found(found), Size(size)
    {
    }

    void Search()
    {
        for (int column = 1; column <= 9; ++column) {
            for (int row = 1; row <= 9; ++row) {
                if ((At(column, row) & GivenBit) != 0 || CandidateCount(column, row) != Size) {
                    continue;
                }
                HingeColumn = column;
                HingeRow = row;
                At(column, row) |= ScratchMark2;
                if (ColumnPass() || RowPass()) {
                    return;
                }
                At(column, row) &= ~ScratchMark2;
            }
        }
    }

private:
    std::int32_t Mode;
    Flag &Found;
    std::int32_t Size;
    int HingeColumn = 0;
    int HingeRow = 0;
    int Number = 0;
    int WingCount = 0;
    bool OutsideBox = false;
    bool BoxWing = false;

    static CellWord &At(int column, int row)
    {
        return Grid[static_cast<std::size_t>(column)][static_cast<std::size_t>(row)];
    }

    static int Start(int line)
    {
        return BoxStart[static_cast<std::size_t>(line)];
    }

    static CellWord Bit(int number)
    {
        return BitOf(number);
    }

    void ResetNumber()
    {
        WingCount = 0;
        OutsideBox = false;
        BoxWing = false;
    }

    void ClearWings()
    {
        for (int i = 1; i <= WingCount; ++i) {
            At(ChainColumns[static_cast<std::size_t>(i)], ChainRows[static_cast<std::size_t>(i)]) &=
                ~ScratchMark2;
        }
    }

    void EnterWing(int column, int row)
    {
        ++WingCount;
        ChainColumns[static_cast<std::size_t>(WingCount)] = column;
        ChainRows[static_cast<std::size_t>(WingCount)] = row;
        At(column, row) |= ScratchMark2;
    }

    [[nodiscard]] bool IsWing(int column, int row, CellWord pairMask) const
    {
        return (column != HingeColumn || row != HingeRow) &&
               (At(column, row) & CandidateMask) == pairMask;
    }

    bool FindBoxWing(CellWord pairMask)
    {
        for (int column = Start(HingeColumn); column <= Start(HingeColumn) + 2; ++column) {
            for (int row = Start(HingeRow); row <= Start(HingeRow) + 2; ++row) {
                if (IsWing(column, row, pairMask)) {
                    BoxWing = true;
                    EnterWing(column, row);
                    return true;
                }
            }
        }
        return false;
    }

    bool FindColumnPassWing(CellWord pairMask)
    {
        for (int row = 1; row <= 9; ++row) {
            if (IsWing(HingeColumn, row, pairMask)) {
                if (Start(row) != Start(HingeRow)) {
                    OutsideBox = true;
                }
                EnterWing(HingeColumn, row);
                return true;
            }
        }
        return FindBoxWing(pairMask);
    }

    bool FindRowPassWing(CellWord pairMask)
    {
        for (int column = 1; column <= 9; ++column) {
            if (IsWing(column, HingeRow, pairMask)) {
                if (Start(column) != Start(HingeColumn)) {
                    OutsideBox = true;
                }
                EnterWing(column, HingeRow);
                return true;
            }
        }
        return FindBoxWing(pairMask);
    }

    bool ColumnPass()
    {
        for (Number = 1; Number <= 9; ++Number) {
            ResetNumber();
            const CellWord hinge = At(HingeColumn, HingeRow);
            if ((hinge & Bit(Number)) == 0) {
                continue;
            }
            bool all = true;
            for (int other = 1; all && other <= 9; ++other) {
                if (other != Number && (hinge & Bit(other)) != 0) {
                    all = FindColumnPassWing(Bit(Number) | Bit(other));
                }
            }
            if (all && ColumnPassTargets()) {
                return true;
            }
        }
        ClearWings();
        return false;
    }

    bool RowPass()
    {
        for (Number = 1; Number <= 9; ++Number) {
            ResetNumber();
            const CellWord hinge = At(HingeColumn, HingeRow);
            if ((hinge & Bit(Number)) == 0) {
                continue;
            }
            bool all = true;
            for (int other = 1; all && other <= 9; ++other) {
                if (other != Number && (hinge & Bit(other)) != 0) {
                    all = FindRowPassWing(Bit(Number) | Bit(other));
                }
            }
            if (all && RowPassTargets()) {
                return true;
            }
        }
        ClearWings();
        return false;
    }

    bool ColumnPassTargets()
    {
        const std::string lead = "There's a conflict with ";
        if (OutsideBox) {
            const int first = BoxWing ? Start(HingeRow) : 1;
            const int last = BoxWing ? Start(HingeRow) + 2 : 9;
            for (int row = first; row <= last; ++row) {
                if (TargetAt(HingeColumn, row, lead)) {
                    return true;
                }
            }
            return false;
        }
        for (int row = 1; !BoxWing && row <= 9; ++row) {
            if (TargetAt(HingeColumn, row, lead)) {
                return true;
            }
        }
        return BoxTargets();
    }

    bool RowPassTargets()
    {
        if (OutsideBox && !BoxWing) {
            for (int column = 1; column <= 9; ++column) {
                if (TargetAt(column, HingeRow, "There's ")) {
                    return true;
                }
            }
            return false;
        }
        const std::string lead = "There's a conflict with ";
        if (OutsideBox) {
            for (int column = Start(HingeColumn); column <= Start(HingeColumn) + 2; ++column) {
                if (TargetAt(column, HingeRow, lead)) {
                    return true;
                }
            }
            return false;
        }
        for (int column = 1; !BoxWing && column <= 9; ++column) {
            if (TargetAt(column, HingeRow, lead)) {
                return true;
            }
        }
        return BoxTargets();
    }

    bool BoxTargets()
    {
        for (int column = Start(HingeColumn); column <= Start(HingeColumn) + 2; ++column) {
            for (int row = Start(HingeRow); row <= Start(HingeRow) + 2; ++row) {
                if (TargetAt(column, row, "There's a conflict with ")) {
                    return true;
                }
            }
        }
        return false;
    }

    bool TargetAt(int column, int row, const std::string &lead)
    {
        CellWord &word = At(column, row);
        if ((word & ScratchMark2) != 0 || (word & Bit(Number)) == 0) {
            return false;
        }
        if (Mode == 0) {
            word &= ~Bit(Number);
            Found = True;
            return false;
        }
        if (Mode == 1) {
            word |= AlertBit;
            return false;
        }
        if (Mode == 3 || Mode == 4) {
            HintText = lead;
            HintText += Size == 3 ? "an XYZ-Wing." : Size == 4 ? "a WXYZ-Wing." : "a Hinge-Wing.";
            if (Mode == 4) {
                HintText += "\r\rThe hinge cell is " + CellName(HingeColumn, HingeRow);
            }
            return true;
        }
        if (Mode == 5) {
            word |= SelectedBit;
        }
        if ((Mode == 2 || Mode == 5) && (word & SelectedBit) != 0) {
            Report(column, row);
            return true;
        }
        return false;
    }

    void Report(int column, int row)
    {
        HintTitle = Size == 3 ? "XYZ-Wing" : Size == 4 ? "WXYZ-Wing" : "Hinge-Wing";
        HintText = "Cell " + CellName(column, row) + " contains a " + std::to_string(Number) +
                   " which conflicts with:\r";
        HintText += "     hinge cell " + CellName(HingeColumn, HingeRow) + " and \r";
        HintText += "     wing cells ";
        for (int i = 1; i <= Size - 1; ++i) {
            const int wingColumn = ChainColumns[static_cast<std::size_t>(i)];
            const int wingRow = ChainRows[static_cast<std::size_t>(i)];
            HintText += CellName(wingColumn, wingRow) + " ";
            At(wingColumn, wingRow) |= HintDomainBit;
        }
        At(HingeColumn, HingeRow) |= HintCellBit;
    }
};

inline void SearchHingeWings(std::int32_t mode, Flag &found, std::int32_t size)
{
    HingeWings(mode, found, size).Search();
}

} // namespace kelvarine::testing::plain
