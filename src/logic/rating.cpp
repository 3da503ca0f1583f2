#include "logic/rating.h"

#include "logic/alerts.h"
#include "logic/driver.h"
#include "logic/technique.h"
#include "logic/technique_masks.h"
#include "logic/technique_table.h"
#include "outside/messages.h"

#include <array>
#include <string>

namespace kelvarine {

namespace {

void CountForRating()
{
    if (FindGivenConflicts(ModeChange)) {
        SolutionCount = 0;
        return;
    }
    SolveMask = CountingMask;
    FillPencilmarks();
    ApplyLogic(CountSolutions);
}

// Solves the grid with everything and returns the highest level used. A game that needed nothing
// counts as level 5.
std::int32_t HighestLevelUsed()
{
    SolveMask = RatingMask;
    ApplyLogic(SolveForRating);
    std::int32_t rating = 5;
    for (std::int32_t level = 1; level <= 5; ++level) {
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
    const std::uint32_t solveMask = SolveMask;
    const std::array limits{MaxSinglesLinks, MaxRPLinks, MaxXYLinks};
    MaxSinglesLinks = 81;
    MaxRPLinks = 81;
    MaxXYLinks = 81;

    CountForRating();
    if (SolutionCount == 0) {
        GameRating = 7;
    } else if (SolutionCount > 1) {
        GameRating = 6;
    } else {
        GameRating = HighestLevelUsed();
        WriteSolution(words);
    }

    Grid = words;
    SolveMask = solveMask;
    MaxSinglesLinks = limits[0];
    MaxRPLinks = limits[1];
    MaxXYLinks = limits[2];
}

} // namespace kelvarine
