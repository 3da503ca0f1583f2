// Singles chains in their plain form, one cell tested after the other: the yardstick that the fast
// search is compared with.
#pragma once

#include "grid/grid.h"
#include "grid/names.h"
#include "logic/plain/steps.h"

#include <array>
#include <string>

namespace kelvarine::testing::plain {

class SinglesChains {
public:
    SinglesChains(std::int32_t mode, Flag &found) : Mode(mode), Found(found)
    {
    }

    void Search()
    {
        if (MaxSinglesLinks == 0) {
            return;
        }
        ClearCellBits(ScratchMark0);
        for (Number = 1; Number <= 9; ++Number) {
            NumberBit = BitOf(Number);
            for (int column = 1; column <= 9; ++column) {
                for (int row = 1; row <= 9; ++row) {
                    const CellWord word = At(column, row);
                    if ((word & GivenBit) != 0 || (word & NumberBit) == 0) {
                        continue;
                    }
                    Depth = 0;
                    Push(column, row);
                    if (Walk()) {
                        return;
                    }
                    ClearCellBits(ScratchMark0);
                }
            }
        }
    }

private:
    std::int32_t Mode;
    Flag &Found;
    int Number = 0;
    CellWord NumberBit = 0;
    int Depth = 0;
    std::array<int, 83> ChainCol{};
    std::array<int, 83> ChainRow{};
    std::array<int, 83> NextHouse{};
    int LinkCount = 0;
    int NotedColumn = 0;
    int NotedRow = 0;
    bool GivenMet = false;

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

    void Push(int column, int row)
    {
        ++Depth;
        ChainCol[Place(Depth)] = column;
        ChainRow[Place(Depth)] = row;
        NextHouse[Place(Depth)] = 0;
        At(column, row) |= ScratchMark0;
    }

    bool Walk()
    {
        while (true) {
            TakeStep();
            if (Depth != MaxSinglesLinks && StepOn()) {
                if (Depth % 2 == 0 ? WithChain() : WithinChain()) {
                    return true;
                }
                continue;
            }
            if (Depth < 2) {
                return false;
            }
            At(ChainCol[Place(Depth)], ChainRow[Place(Depth)]) &= ~ScratchMark0;
            --Depth;
        }
    }

    void StartStage()
    {
        LinkCount = 0;
        NotedColumn = 0;
        NotedRow = 0;
        GivenMet = false;
    }

    void Count(int column, int row)
    {
        const CellWord word = At(column, row);
        if (GivenMet || (word & NumberBit) == 0) {
            return;
        }
        if ((word & GivenBit) != 0) {
            GivenMet = true;
            return;
        }
        ++LinkCount;
        if (column != ChainCol[Place(Depth)] || row != ChainRow[Place(Depth)]) {
            NotedColumn = column;
            NotedRow = row;
        }
    }

    bool TakeNoted()
    {
        if (GivenMet || LinkCount != 2 || (At(NotedColumn, NotedRow) & ScratchMark0) != 0) {
            return false;
        }
        Push(NotedColumn, NotedRow);
        return true;
    }

    // Advances to the next strong link and pushes its cell; false when none is left. At depth 0
    // the top cell is column 0, row 0.
    bool StepOn()
    {
        const int column = ChainCol[Place(Depth)];
        const int row = ChainRow[Place(Depth)];
        if (NextHouse[Place(Depth)] == 0) {
            NextHouse[Place(Depth)] = 1;
            StartStage();
            for (int k = 1; k <= 9; ++k) {
                Count(column, k);
            }
            if (TakeNoted()) {
                return true;
            }
        }
        if (NextHouse[Place(Depth)] == 1) {
            NextHouse[Place(Depth)] = 2;
            StartStage();
            for (int k = 1; k <= 9; ++k) {
                Count(k, row);
            }
            if (TakeNoted()) {
                return true;
            }
        }
        if (NextHouse[Place(Depth)] == 2) {
            NextHouse[Place(Depth)] = 3;
            StartStage();
            for (int c = Start(column); c <= Start(column) + 2; ++c) {
                for (int r = Start(row); r <= Start(row) + 2; ++r) {
                    Count(c, r);
                }
            }
            if (TakeNoted()) {
                return true;
            }
        }
        return false;
    }

    bool WithChain()
    {
        const int cS = ChainCol[Place(1)];
        const int rS = ChainRow[Place(1)];
        const int cE = ChainCol[Place(Depth)];
        const int rE = ChainRow[Place(Depth)];
        const bool sameStack = Start(cS) == Start(cE);
        const bool sameBand = Start(rS) == Start(rE);
        if (rS == rE) {
            for (int column = 1; column <= 9; ++column) {
                if (column != cS && column != cE && TargetAt(column, rS)) {
                    return true;
                }
            }
            return sameStack && BoxOf(cE, rE);
        }
        if (cS == cE) {
            for (int row = 1; row <= 9; ++row) {
                if (row != rS && row != rE && TargetAt(cS, row)) {
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
                if (column != cE && TargetAt(column, rS)) {
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
        if ((word & NumberBit) == 0 || (word & ScratchMark0) != 0) {
            return false;
        }
        if (Mode == 0) {
            word &= ~NumberBit;
            Found = True;
            return false;
        }
        if (Mode == 1) {
            word |= AlertBit;
            return false;
        }
        if (Mode == 3 || Mode == 4) {
            HintText = "There's a conflict with a singles chain.";
            AddNumberLine();
            return true;
        }
        if (Mode == 5) {
            word |= SelectedBit;
        }
        if ((Mode == 2 || Mode == 5) && (word & SelectedBit) != 0) {
            HintTitle = "Conflict with singles chain";
            HintText += "Cell " + CellName(column, row) + " contains a " + std::to_string(Number) +
                        " which conflicts with the ends of the following chained cells:\r";
            WriteChain();
            return true;
        }
        return false;
    }

    bool WithinChain()
    {
        const int cS = ChainCol[Place(1)];
        const int rS = ChainRow[Place(1)];
        const int cE = ChainCol[Place(Depth)];
        const int rE = ChainRow[Place(Depth)];
        if (cS != cE && rS != rE && (Start(cS) != Start(cE) || Start(rS) != Start(rE))) {
            return false;
        }
        const int length = Depth;
        for (int i = 1; i <= length; i += 2) {
            CellWord &word = At(ChainCol[Place(i)], ChainRow[Place(i)]);
            if (Mode == 0) {
                word &= ~NumberBit;
                Found = True;
                Depth = 0;
            }
            if (Mode == 1) {
                word |= AlertBit;
            }
            if (Mode == 3 || Mode == 4) {
                HintText = "There's a conflict in a singles chain.";
                AddNumberLine();
                return true;
            }
            if (Mode == 5) {
                word |= SelectedBit;
            }
            if ((Mode == 2 || Mode == 5) && (word & SelectedBit) != 0) {
                ReportWithin(i);
                return true;
            }
        }
        return false;
    }

    void AddNumberLine()
    {
        if (Mode == 4) {
            HintText += "\rIt involves the number " + std::to_string(Number);
        }
    }

    void ReportWithin(int i)
    {
        HintTitle = "Conflict in singles chain";
        HintText += "Cell " + CellName(ChainCol[Place(i)], ChainRow[Place(i)]) +
                    " is a link in the following chain of " + std::to_string(Number) +
                    "'s which conflict with each other:\r";
        WriteChain();
        HintText += "\r\r";
        if (Depth >= 3) {
            HintText += "The " + std::to_string(Number) + "'s in these links can be removed:\r";
        } else {
            HintText += "The " + std::to_string(Number) + " in this link can be removed:\r";
        }
        for (int j = 1; j <= Depth; j += 2) {
            HintText += "  " + CellName(ChainCol[Place(j)], ChainRow[Place(j)]);
        }
    }

    void WriteChain()
    {
        for (int i = 1; i <= Depth; ++i) {
            HintText += "  " + CellName(ChainCol[Place(i)], ChainRow[Place(i)]);
            ChainColumns[static_cast<std::size_t>(i)] = ChainCol[Place(i)];
            ChainRows[static_cast<std::size_t>(i)] = ChainRow[Place(i)];
            At(ChainCol[Place(i)], ChainRow[Place(i)]) |= i % 2 == 0 ? HintDomainBit : HintCellBit;
        }
        ChainColumns[0] = Depth;
        ChainRows[0] = Number;
    }
};

inline void SearchSinglesChains(std::int32_t mode, Flag &found)
{
    SinglesChains(mode, found).Search();
}

} // namespace kelvarine::testing::plain
