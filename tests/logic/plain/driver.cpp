#include "logic/plain/driver.h"

#include "game/solutions.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "logic/driver.h"
#include "logic/plain/singles.h"
#include "logic/technique_table.h"
#include "outside/events.h"
#include "outside/messages.h"

#include <string>
#include <vector>

namespace kelvarine::testing::plain {

namespace {

constexpr CellWord NumberBits = 0x3FE;

// One run, with the lists that go with its steps; element 0 of the lists is not used.
struct PlainRun {
    std::int32_t Mode = 0;
    std::int32_t Result = 0;
    Flag Changed = 0;
    Flag Found = 0;
    std::size_t TrialDepth = 0;
    int TrialsSinceYield = 0;
    std::vector<std::size_t> TrialColumn = std::vector<std::size_t>(82);
    std::vector<std::size_t> TrialRow = std::vector<std::size_t>(82);
    std::vector<std::size_t> TrialNumber = std::vector<std::size_t>(82);
    std::vector<CellWord> TrialMask = std::vector<CellWord>(82);
    std::vector<std::vector<CellWord>> Passes; // since the last trial number was placed
    std::vector<std::vector<CellWord>> TrialPosition = std::vector<std::vector<CellWord>>(82);
};

std::vector<CellWord> AllCandidates()
{
    std::vector<CellWord> candidates;
    for (std::size_t column = 1; column <= 9; ++column) {
        for (std::size_t row = 1; row <= 9; ++row) {
            candidates.push_back(Grid[column][row] & NumberBits);
        }
    }
    return candidates;
}

int CountOf(CellWord word)
{
    int count = 0;
    for (int number = 1; number <= 9; ++number) {
        count += (word >> number & 1) != 0 ? 1 : 0;
    }
    return count;
}

void CopyAll(const GridTable &from, GridTable &to)
{
    for (std::size_t column = 1; column <= 9; ++column) {
        for (std::size_t row = 1; row <= 9; ++row) {
            to[column][row] = from[column][row];
        }
    }
}

void PlaceTrial(const PlainRun &run, std::size_t depth)
{
    CellWord &word = Grid[run.TrialColumn[depth]][run.TrialRow[depth]];
    word = (word & ~NumberBits) | CellWord{1} << run.TrialNumber[depth];
}

int Leave(PlainRun &run, std::int32_t result)
{
    SearchActive = 0;
    run.Result = result;
    return 0;
}

bool StoodBefore(PlainRun &run)
{
    const std::vector<CellWord> now = AllCandidates();
    for (const std::vector<CellWord> &earlier : run.Passes) {
        if (earlier == now) {
            return true;
        }
    }
    run.Passes.push_back(now);
    return false;
}

void AppendSolution()
{
    for (std::size_t row = 1; row <= 9; ++row) {
        for (std::size_t column = 1; column <= 9; ++column) {
            int number = 1;
            while ((Grid[column][row] >> number & 1) == 0) {
                ++number;
            }
            SolutionList += std::to_string(number);
        }
    }
}

// Each step returns the number of the next one, 0 at the end.

bool Yield(PlainRun &run)
{
    run.TrialsSinceYield = 0;
    YieldToEvents();
    if (SearchActive == 0) {
        run.Result = -2;
    }
    return SearchActive != 0;
}

int Step3And4(PlainRun &run)
{
    return Yield(run) ? 5 : 0;
}

int Step5And6(PlainRun &run)
{
    for (std::size_t column = 1; column <= 9; ++column) {
        for (std::size_t row = 1; row <= 9; ++row) {
            Grid[column][row] &= ~CellWord{0xF0000400};
        }
    }
    for (std::size_t column = 1; column <= 9; ++column) {
        for (std::size_t row = 1; row <= 9; ++row) {
            if (run.Mode > 0 && CountOf(Grid[column][row]) == 0) {
                return 13;
            }
        }
    }
    return 7;
}

int Step7(PlainRun &run)
{
    run.Found = 0;
    if (plain::IsGridSolved() == 0) {
        return StoodBefore(run) ? 9 : 8;
    }
    ++SolutionCount;
    if (run.Mode == 0 || run.Mode == 1) {
        if (run.Changed != 0) {
            PushUndoState();
        }
        return Leave(run, -1);
    }
    if (run.Mode == 2) {
        return Leave(run, -1);
    }
    const bool enough = SolutionCount > (run.Mode == 3 ? 1 : 25);
    if (run.Mode == 4) {
        SolutionCountText = enough               ? "More than 25 solutions"
                            : SolutionCount == 1 ? "1 solution"
                                                 : std::to_string(SolutionCount) + " solutions";
    }
    if (enough) {
        CopyAll(History[102], Grid);
        return Leave(run, 0);
    }
    if (run.Mode == 4) {
        AppendSolution();
    }
    return 13;
}

void CallOperations(PlainRun &run, const TechniqueRow &row)
{
    bool first = true;
    for (const kelvarine::Operation operation : run.Mode == 0 ? row.DriverApply : row.Driver) {
        if (operation != nullptr && (first || row.DriverRunsAll || run.Found == 0)) {
            operation(0, run.Found);
        }
        first = false;
    }
}

int Step8(PlainRun &run)
{
    for (std::size_t level = 1; level <= 5; ++level) {
        for (const TechniqueRow &row : Techniques) {
            const std::uint32_t bit = std::uint32_t{1} << row.Number;
            if ((LevelTable[level] & bit) == 0 || (SolveMask & bit) == 0) {
                continue;
            }
            CallOperations(run, row);
            if (run.Found != 0) {
                run.Changed = -1;
                UsedMask |= bit;
                return 3;
            }
        }
    }
    return 9;
}

int Step9(PlainRun &run)
{
    if ((SolveMask & 0x40000000) != 0) {
        return 10;
    }
    if (run.Mode < 2 && run.Changed != 0) {
        PushUndoState();
    }
    if (run.Mode > 2) {
        CopyAll(History[102], Grid);
    }
    return Leave(run, 0);
}

int OpenAt(PlainRun &run, std::size_t column, std::size_t row)
{
    const std::vector<CellWord> now = AllCandidates();
    for (std::size_t depth = 1; depth <= run.TrialDepth; ++depth) {
        if (run.TrialPosition[depth] == now) {
            return 13;
        }
    }
    if (run.TrialDepth == 81) {
        return 13;
    }
    ++run.TrialDepth;
    run.TrialColumn[run.TrialDepth] = column;
    run.TrialRow[run.TrialDepth] = row;
    run.TrialNumber[run.TrialDepth] = 0;
    run.TrialMask[run.TrialDepth] = Grid[column][row] & NumberBits;
    run.TrialPosition[run.TrialDepth] = now;
    return 11;
}

int Step10(PlainRun &run)
{
    UsedMask |= 0x40000000;
    for (std::size_t column = 1; column <= 9; ++column) {
        for (std::size_t row = 1; row <= 9; ++row) {
            if (CountOf(Grid[column][row]) > 1) {
                return OpenAt(run, column, row);
            }
        }
    }
    return 13;
}

int Step11(PlainRun &run)
{
    std::size_t &number = run.TrialNumber[run.TrialDepth];
    ++number;
    if (number == 10 && run.TrialDepth > 1) {
        --run.TrialDepth;
        return 13;
    }
    if (number == 10) {
        return 14;
    }
    return (run.TrialMask[run.TrialDepth] >> number & 1) == 0 ? 11 : 12;
}

int Step12(PlainRun &run)
{
    PlaceTrial(run, run.TrialDepth);
    run.Passes.clear();
    if (++run.TrialsSinceYield == 16 && !Yield(run)) {
        return 0;
    }
    return 8;
}

int Step13(PlainRun &run)
{
    CopyAll(History[102], Grid);
    if (run.TrialDepth < 1) {
        return Leave(run, 0);
    }
    for (std::size_t depth = 1; depth < run.TrialDepth; ++depth) {
        PlaceTrial(run, depth);
    }
    return 11;
}

int Step14(PlainRun &run)
{
    if (run.Mode == 0) {
        ShowMessage("This sudoku has no solution.");
    }
    CopyAll(History[102], Grid);
    return Leave(run, 0);
}

int Take(PlainRun &run, int step)
{
    switch (step) {
    case 3:
        return Step3And4(run);
    case 5:
        return Step5And6(run);
    case 7:
        return Step7(run);
    case 8:
        return Step8(run);
    case 9:
        return Step9(run);
    case 10:
        return Step10(run);
    case 11:
        return Step11(run);
    case 12:
        return Step12(run);
    case 13:
        return Step13(run);
    default:
        return Step14(run);
    }
}

} // namespace

std::int32_t ApplyLogic(std::int32_t mode)
{
    PlainRun run;
    run.Mode = mode;
    SearchActive = -1;
    UsedMask = 0;
    SolutionCount = 0;
    CopyAll(Grid, History[102]);
    for (int step = 3; step != 0;) {
        step = Take(run, step);
    }
    return run.Result;
}

} // namespace kelvarine::testing::plain
