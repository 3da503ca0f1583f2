#include "logic/filling_runs.h"

#include "grid/history.h"
#include "logic/counter.h"
#include "logic/driver.h"
#include "logic/ordered_fillings.h"
#include "logic/technique_masks.h"
#include "outside/events.h"
#include "outside/screens.h"

#include <algorithm>
#include <cassert>

namespace kelvarine {

namespace {

// Whether the walk would come to all fillings and to nothing else. Without a single it would miss
// some; with fewer pencilmarks it finds numbers in a house that their cells do not have, and with
// more in a given it writes others over it.
bool WalkFindsFillings()
{
    std::uint32_t techniques = 0;
    for (std::size_t level = 1; level <= Levels; ++level) {
        techniques |= LevelTable[level];
    }
    return (techniques & SolveMask & SinglesMask) != 0 && (SolveMask & TrialBit) != 0 &&
           std::ranges::all_of(Cells, [](Cell cell) {
               const CellWord word = WordAt(cell);
               return (word & GivenBit) != 0 ? CandidatesIn(word) == 1
                                             : (word & CandidateMask) == CandidateMask;
           });
}

void WriteFilling(const Field &filling)
{
    for (std::size_t k = 0; k < filling.size(); ++k) {
        CellWord &word = WordAt(Cells[k]);
        word = (word & ~CandidateMask) | filling[k];
    }
}

// True when the event loop has let the player stop the search.
bool IsStopped()
{
    YieldToEvents();
    return SearchActive == False;
}

std::int32_t EndWith(std::int32_t result)
{
    SearchActive = False;
    return result;
}

std::int32_t FillForPlayer()
{
    const bool solvedBefore = IsGridSolved() != False;
    if (!FillGrid()) {
        return EndWith(NotSolved);
    }
    ++SolutionCount;
    ClearCellBits(PassMarks);
    if (!solvedBefore) {
        PushUndoState();
    }
    return EndWith(Solved);
}

std::int32_t CountUpToTwo()
{
    SolutionCount = CountFillings(FieldOf(Grid), 2);
    return EndWith(NotSolved);
}

std::int32_t ListFillings()
{
    OrderedFillings fillings(FieldOf(Grid));
    while (fillings.Next()) {
        ++SolutionCount;
        ShowSolutionCount();
        if (SolutionCount > MostSolutionsListed) {
            break;
        }
        WriteFilling(fillings.Filling());
        RecordSolution();
        if (IsStopped()) {
            return Stopped;
        }
    }
    RestoreSafeCopy();
    return EndWith(NotSolved);
}

std::int32_t Fill(std::int32_t mode)
{
    switch (mode) {
    case SolveForPlayer:
        return FillForPlayer();
    case CountSolutions:
        return CountUpToTwo();
    default:
        return ListFillings();
    }
}

} // namespace

bool FillGrid()
{
    OrderedFillings fillings(FieldOf(Grid));
    const bool any = fillings.Next();
    if (any) {
        WriteFilling(fillings.Filling());
    }
    return any;
}

std::int32_t RunByFillings(std::int32_t mode)
{
    assert(mode == SolveForPlayer || mode == CountSolutions || mode == ListSolutions25);
    if (!WalkFindsFillings()) {
        return ApplyLogic(mode);
    }
    StartRun();
    const std::int32_t result = IsStopped() ? Stopped : Fill(mode);
    EndRun();
    return result;
}

} // namespace kelvarine
