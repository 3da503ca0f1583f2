#include "logic/rating.h"

#include "logic/alerts.h"
#include "logic/counter.h"
#include "logic/driver.h"
#include "logic/filling_runs.h"
#include "logic/kept_settings.h"
#include "logic/technique.h"
#include "logic/technique_masks.h"
#include "logic/technique_table.h"
#include "outside/messages.h"

namespace kelvarine {

namespace {

// The link limit that no chain comes up against.
constexpr auto WholeGrid = static_cast<std::int32_t>(Cells.size());

void CountForRating()
{
    if (FindGivenConflicts(ModeChange)) {
        SolutionCount = 0;
        return;
    }
    SolveMask = CountingMask;
    FillPencilmarks();
    if (RunByFillings(CountSolutions) == Stopped) {
        FillPencilmarks();
        SolutionCount = CountFillings(FieldOf(Grid), 2); // no need to walk for it
    }
}

// Solves the grid with everything and returns the highest level used, or up to where it was
// stopped. A game that needed nothing counts as extreme.
std::int32_t HighestLevelUsed()
{
    SolveMask = RatingMask;
    if (ApplyLogic(SolveForRating) == Stopped) {
        FillPencilmarks();
        FillGrid(); // the solution can be had all the same
    }
    std::int32_t rating = RatedExtreme;
    for (std::int32_t level = RatedEasy; level <= Levels; ++level) {
        if ((LevelTable[static_cast<std::size_t>(level)] & UsedMask) != 0) {
            rating = level;
        }
    }
    return rating;
}

// Writes the solved Grid into the solution fields of a grid that has none yet.
void WriteSolution(GridTable &words)
{
    for (const Cell cell : Cells) {
        const CellWord solved = WordAt(cell);
        if ((solved & SolutionMask) == 0) {
            words[cell.Column][cell.Row] |= (solved & CandidateMask) << SolutionShift;
        }
    }
}

} // namespace

void RateGame()
{
    GridTable words = Grid;
    const KeptSettings kept;
    MaxSinglesLinks = WholeGrid;
    MaxRPLinks = WholeGrid;
    MaxXYLinks = WholeGrid;

    CountForRating();
    if (SolutionCount == 0) {
        GameRating = RatedImpossible;
    } else if (SolutionCount > 1) {
        GameRating = RatedMultiple;
    } else {
        GameRating = HighestLevelUsed();
        WriteSolution(words);
    }

    Grid = words;
    TakeBannerAway();
}

void FindLogicOfCount()
{
    constexpr std::int64_t mostPasses = 20'000; // a tenth of a second
    const GridTable words = Grid;
    const std::int32_t count = SolutionCount;
    const KeptSettings kept;
    SolveMask = CountingMask;
    FillPencilmarks();
    ApplyLogicWithin(mostPasses, CountSolutions);
    SolutionCount = count;
    Grid = words;
    TakeBannerAway();
}

} // namespace kelvarine
