// XY-chains in their plain form, one cell tested after the other: the yardstick that the fast
// search is compared with.
#pragma once

#include "grid/grid.h"
#include "grid/names.h"
#include "logic/plain/candidates.h"
#include "logic/plain/steps.h"

#include <array>
#include <string>

namespace kelvarine::testing::plain {

class XYChains {
public:
    XYChains(std::int32_t mode, std::int32_t minCells, std::int32_t maxCells, Flag &found)
        : Mode(mode), MinCells(minCells), MaxCells(maxCells), Found(found)
    {
    }

    void Search()
    {
        if (MaxCells < 2) {
            return;
        }
        for (int column = 1; column <= 9; ++column) {
            for (int row = 1; row <= 9; ++row) {
                At(column, row) &= ~ScratchMarks;
                if (CandidateCount(column, row) == 2) {
                    At(column, row) |= ScratchMark1;
                }
            }
        }
        for (int column = 1; column <= 9; ++column) {
            for (int row = 1; row <= 9; ++row) {
                if ((At(column, row) & ScratchMark1) == 0) {
                    continue;
                }
                At(column, row) |= ScratchMark2;
                for (StartNumber = 1; StartNumber <= 9; ++StartNumber) {
                    StartBit = BitOf(StartNumber);
                    if ((At(column, row) & StartBit) == 0) {
                        continue;
                    }
                    Depth = 1;
                    ChainCol[Place(1)] = column;
                    ChainRow[Place(1)] = row;
                    NextPeer[Place(1)] = 0;
                    CarryMask[Place(1)] = At(column, row) & CandidateMask & ~StartBit;
                    if (Walk()) {
                        return;
                    }
                }
                At(column, row) &= ~ScratchMark2;
            }
        }
    }

private:
    std::int32_t Mode;
    std::int32_t MinCells;
    std::int32_t MaxCells;
    Flag &Found;
    int StartNumber = 0;
    CellWord StartBit = 0;
    int Depth = 0;
    std::array<int, 83> ChainCol{};
    std::array<int, 83> ChainRow{};
    std::array<int, 83> NextPeer{};
    std::array<CellWord, 83> CarryMask{};

    static std::size_t Place(int depth)
    {
        return static_cast<std::size_t>(depth);
    }

    static CellWord &At(int column, int row)
    {
        return Grid[static_cast<std::size_t>(column)][static_cast<std::size_t>(row)];
    }

    static int Start(int line)
    {
        return BoxStart[static_cast<std::size_t>(line)];
    }

    bool Walk()
    {
        while (true) {
            TakeStep();
            if (Depth != MaxCells && StepOn()) {
                if ((CarryMask[Place(Depth)] & StartBit) != 0 && Depth >= MinCells && Evaluate()) {
                    return true;
                }
                continue;
            }
            if (Depth < 2) {
                return false;
            }
            At(ChainCol[Place(Depth)], ChainRow[Place(Depth)]) &= ~ScratchMark2;
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
                column = Start(topColumn) + (k - 19) / 3;
                row = Start(topRow) + (k - 19) % 3;
                if (column == topColumn || row == topRow) {
                    continue;
                }
            }
            const CellWord word = At(column, row);
            if ((word & ScratchMark2) != 0 || (word & ScratchMark1) == 0 ||
                (word & CarryMask[Place(Depth)]) == 0) {
                continue;
            }
            At(column, row) |= ScratchMark2;
            ++Depth;
            ChainCol[Place(Depth)] = column;
            ChainRow[Place(Depth)] = row;
            NextPeer[Place(Depth)] = 0;
            CarryMask[Place(Depth)] = word & CandidateMask & ~CarryMask[Place(Depth - 1)];
            return true;
        }
        return false;
    }

    bool Evaluate()
    {
        const int cS = ChainCol[Place(1)];
        const int rS = ChainRow[Place(1)];
        const int cE = ChainCol[Place(Depth)];
        const int rE = ChainRow[Place(Depth)];
        const bool sameStack = Start(cS) == Start(cE);
        const bool sameBand = Start(rS) == Start(rE);
        if (rS == rE) {
            for (int column = 1; column <= 9; ++column) {
                if (TargetAt(column, rS)) {
                    return true;
                }
            }
            return sameStack && BoxOf(cE, rE);
        }
        if (cS == cE) {
            for (int row = 1; row <= 9; ++row) {
                if (TargetAt(cS, row)) {
                    return true;
                }
            }
            return sameBand && BoxOf(cE, rE);
        }
        if (!sameBand && !sameStack) {
            return TargetAt(cS, rE);
        }
        if (!sameBand) {
            for (int row = Start(rE); row <= Start(rE) + 2; ++row) {
                if (TargetAt(cS, row)) {
                    return true;
                }
            }
            for (int row = Start(rS); row <= Start(rS) + 2; ++row) {
                if (TargetAt(cE, row)) {
                    return true;
                }
            }
            return false;
        }
        if (!sameStack) {
            for (int column = Start(cE); column <= Start(cE) + 2; ++column) {
                if (TargetAt(column, rS)) {
                    return true;
                }
            }
            for (int column = Start(cS); column <= Start(cS) + 2; ++column) {
                if (TargetAt(column, rE)) {
                    return true;
                }
            }
            return false;
        }
        return BoxOf(cE, rE);
    }

    bool BoxOf(int atColumn, int atRow)
    {
        for (int column = Start(atColumn); column <= Start(atColumn) + 2; ++column) {
            for (int row = Start(atRow); row <= Start(atRow) + 2; ++row) {
                if (TargetAt(column, row)) {
                    return true;
                }
            }
        }
        return false;
    }

    bool TargetAt(int column, int row)
    {
        CellWord &word = At(column, row);
        if ((word & ScratchMark2) != 0 || (word & StartBit) == 0) {
            return false;
        }
        if (Mode == 0) {
            word &= ~StartBit;
            word &= ~ScratchMark1;
            Found = True;
            return false;
        }
        if (Mode == 1) {
            word |= AlertBit;
            return false;
        }
        if (Mode == 3 || Mode == 4) {
            HintText = "There's a conflict with an XY-chain.";
            if (Mode == 4) {
                HintText += "\rIt involves the number " + std::to_string(StartNumber);
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
        HintTitle = Depth == 3 ? "Conflict with XY-wing (XY-chain)" : "Conflict with XY-chain";
        HintText += "Cell " + CellName(column, row) + " contains a " + std::to_string(StartNumber);
        HintText += " which conflicts with the ends of the following chained cells:\r";
        for (int i = 1; i <= Depth; ++i) {
            HintText += "  " + CellName(ChainCol[Place(i)], ChainRow[Place(i)]);
            ChainColumns[static_cast<std::size_t>(i)] = ChainCol[Place(i)];
            ChainRows[static_cast<std::size_t>(i)] = ChainRow[Place(i)];
            At(ChainCol[Place(i)], ChainRow[Place(i)]) |= i % 2 == 0 ? HintCellBit : HintDomainBit;
        }
        ChainColumns[0] = Depth;
        ChainRows[0] = -StartNumber;
    }
};

inline void SearchXYChains(std::int32_t mode, std::int32_t minCells, std::int32_t maxCells,
                           Flag &found)
{
    XYChains(mode, minCells, maxCells, found).Search();
}

} // namespace kelvarine::testing::plain
