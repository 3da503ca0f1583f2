#include "logic/rating.h"

#include "logic/alerts.h"
#include "logic/driver.h"
#include "logic/technique.h"
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

void AddReportLine(std::string &report, std::string_view name)
{
    report += "    ";
    report += name;
    report += LineEnd;
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

std::string_view RatingWord(std::int32_t rating)
{
    constexpr std::array<std::string_view, 8> words{
        "none",      "easy", "medium", "hard", "very hard", "extreme", "multiple solutions",
        "impossible"};
    const auto place = static_cast<std::size_t>(rating);
    return place < words.size() ? words[place] : std::string_view();
}

void mnuShowLogicNeeded()
{
    RateGame();
    // RateGame never yields 0; the branch waits for a value that does not come up.
    if (GameRating == 0) {
        ShowMessage("This sudoku has no rating because it has no unknown cells to solve.");
        return;
    }
    std::string report;
    if (GameRating == 7) {
        report = "This sudoku has no solution.";
        report += LineEnd;
    } else {
        report = "Logic needed to solve:  ";
        report += LineEnd;
        report += LineEnd;
        for (const TechniqueRow &row : Techniques) {
            if ((UsedMask & BitTable[static_cast<std::size_t>(row.Number)]) != 0) {
                AddReportLine(report, row.ReportName);
            }
        }
        if ((UsedMask & TrialBit) != 0) {
            AddReportLine(report, "Trial & error");
        }
    }
    report += LineEnd;
    report += "Rating: ";
    report += RatingWord(GameRating);
    ShowMessage(report);
}

} // namespace kelvarine
