// Remote pairs in their plain form, one cell tested after the other: the yardstick that the fast
// search is compared with.
#pragma once

#include "grid/grid.h"
#include "grid/names.h"
#include "logic/plain/candidates.h"
#include "logic/plain/steps.h"

#include <array>
#include <string>

namespace kelvarine::testing::plain {

class RemotePairs {
public:
    RemotePairs(std::int32_t mode, Flag &found) : Mode(mode), Found(found)
    {
    }

    void Search()
    {
        if (MaxRPLinks == 0) {
            return;
        }
        for (int column = 1; column <= 9; ++column) {
            for (int row = 1; row <= 9; ++row) {
                At(column, row) &= ~ScratchMarks;
                if (CandidateCount(column, row) == 2) {
                    At(column, row) |= ScratchMark0;
                }
            }
        }
        for (int column = 1; column <= 9; ++column) {
            for (int row = 1; row <= 9; ++row) {
                if ((At(column, row) & ScratchMark0) == 0) {
                    continue;
                }
                PairMask = At(column, row) & CandidateMask;
                Depth = 0;
                Push(column, row);
                if (Walk()) {
                    return;
                }
                At(column, row) &= ~ScratchMark1;
            }
        }
    }

private:
    std::int32_t Mode;
    Flag &Found;
    CellWord PairMask = 0;
    int Depth = 0;
    std::array<int, 83> ChainCol{};
    std::array<int, 83> ChainRow{};
    std::array<int, 83> NextPeer{};

    static std::size_t Place(int depth)
    {
        return static_cast<std::size_t>(depth);
    }

    static CellWord &At(int column, int row)
    {
        return Grid[static_cast<std::size_t>(column)][static_cast<std::size_t>(row)];
    }

    void Push(int column, int row)
    {
        ++Depth;
        ChainCol[Place(Depth)] = column;
        ChainRow[Place(Depth)] = row;
        NextPeer[Place(Depth)] = 0;
        At(column, row) |= ScratchMark1;
    }

    bool Walk()
    {
        while (true) {
            TakeStep();
            if (Depth != MaxRPLinks && StepOn()) {
                if (Depth % 2 == 0 && Evaluate()) {
                    return true;
                }
                continue;
            }
            if (Depth < 2) {
                return false;
            }
            At(ChainCol[Place(Depth)], ChainRow[Place(Depth)]) &= ~ScratchMark1;
            --Depth;
        }
    }

    // Advances to the next peer and pushes it; false when none is left.
    bool StepOn()
    {
        const int topColumn = ChainCol[Place(Depth)];
        const int topRow = ChainRow[Place(Depth)];
        while (NextPeer[Place(Depth)] < 27) {
            const int k = ++NextPeer[Place(Depth)];
            int column = 0;
            int row = 0;
            if (k <= 9) {
                column = topColumn;
                row = k;
            } else if (k <= 18) {
                column = k - 9;
                row = topRow;
            } else {
                column = BoxStart[static_cast<std::size_t>(topColumn)] + (k - 19) / 3;
                row = BoxStart[static_cast<std::size_t>(topRow)] + (k - 19) % 3;
            }
            const CellWord word = At(column, row);
            if ((word & CandidateMask) == PairMask && (word & ScratchMark1) == 0) {
                Push(column, row);
                return true;
            }
        }
        return false;
    }

    bool Evaluate()
    {
        const int startColumn = ChainCol[Place(1)];
        const int startRow = ChainRow[Place(1)];
        for (int k = 1; k <= 9; ++k) {
            At(startColumn, k) |= ScratchMark2;
            At(k, startRow) |= ScratchMark2;
        }
        const int left = BoxStart[static_cast<std::size_t>(startColumn)];
        const int top = BoxStart[static_cast<std::size_t>(startRow)];
        for (int column = left; column <= left + 2; ++column) {
            for (int row = top; row <= top + 2; ++row) {
                At(column, row) |= ScratchMark2;
            }
        }
        At(startColumn, startRow) &= ~ScratchMark2;
        if (ScanTargets()) {
            return true;
        }
        ClearCellBits(ScratchMark2);
        return false;
    }

    bool ScanTargets()
    {
        const int endColumn = ChainCol[Place(Depth)];
        const int endRow = ChainRow[Place(Depth)];
        for (int row = 1; row <= 9; ++row) {
            if (row != endRow && TargetAt(endColumn, row, "It involves the number ")) {
                return true;
            }
        }
        for (int column = 1; column <= 9; ++column) {
            if (column != endColumn && TargetAt(column, endRow, "It involves the numbers ")) {
                return true;
            }
        }
        const int left = BoxStart[static_cast<std::size_t>(endColumn)];
        const int top = BoxStart[static_cast<std::size_t>(endRow)];
        for (int column = left; column <= left + 2; ++column) {
            for (int row = top; row <= top + 2; ++row) {
                if (column != endColumn && row != endRow &&
                    TargetAt(column, row, "It involves the numbers ")) {
                    return true;
                }
            }
        }
        return false;
    }

    bool TargetAt(int column, int row, const char *leadIn)
    {
        CellWord &word = At(column, row);
        if ((word & ScratchMark2) == 0 || (word & PairMask) == 0) {
            return false;
        }
        if (Mode == 0) {
            word &= ~PairMask;
            Found = True;
            return false;
        }
        if (Mode == 1) {
            word |= AlertBit;
            return false;
        }
        if (Mode == 3 || Mode == 4) {
            HintText = "There's a conflict with a Remote Pair.";
            if (Mode == 4) {
                int number = 1;
                while ((word & PairMask & BitOf(number)) == 0) {
                    ++number;
                }
                HintText += "\r";
                HintText += leadIn;
                HintText += std::to_string(number);
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
        HintTitle = "Conflict with remote pair";
        HintText += "Cell " + CellName(column, row) + " contains a ";
        const CellWord held = At(column, row) & PairMask;
        bool first = true;
        for (int number = 1; number <= 9; ++number) {
            if ((held & BitOf(number)) == 0) {
                continue;
            }
            HintText += std::to_string(number);
            if (first && held != BitOf(number)) {
                HintText += " and a ";
            }
            first = false;
        }
        HintText += " which conflicts with the following chain of remote pairs:\r";
        for (int i = 1; i <= Depth; ++i) {
            HintText += "  " + CellName(ChainCol[Place(i)], ChainRow[Place(i)]);
            ChainColumns[static_cast<std::size_t>(i)] = ChainCol[Place(i)];
            ChainRows[static_cast<std::size_t>(i)] = ChainRow[Place(i)];
            At(ChainCol[Place(i)], ChainRow[Place(i)]) |= i % 2 == 0 ? HintCellBit : HintDomainBit;
        }
        ChainColumns[0] = Depth;
        ChainRows[0] = 0;
    }
};

inline void SearchRemotePairs(std::int32_t mode, Flag &found)
{
    RemotePairs(mode, found).Search();
}

} // namespace kelvarine::testing::plain
