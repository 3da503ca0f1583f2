#include "game/logic_report.h"

#include "grid/grid.h"
#include "logic/rating.h"
#include "logic/technique.h"
#include "logic/technique_masks.h"
#include "logic/technique_table.h"
#include "outside/messages.h"

#include <string>

namespace kelvarine {

namespace {

void AddReportLine(std::string &report, std::string_view name)
{
    report += "    ";
    report += name;
    report += MessageLineEnd;
}

} // namespace

void mnuShowLogicNeeded()
{
    RateGame();
    if (GameRating == RatedMultiple) {
        FindLogicOfCount();
    }
    // RateGame never yields 0; the branch waits for a value that does not come up.
    if (GameRating == NotRated) {
        ShowMessage("This sudoku has no rating because it has no unknown cells to solve.");
        return;
    }
    std::string report;
    if (GameRating == RatedImpossible) {
        report = "This sudoku has no solution.";
        report += MessageLineEnd;
    } else {
        report = "Logic needed to solve:  ";
        report += MessageLineEnd;
        report += MessageLineEnd;
        for (const TechniqueRow &row : Techniques) {
            if ((UsedMask & BitOf(row.Number)) != 0) {
                AddReportLine(report, row.ReportName);
            }
        }
        if ((UsedMask & TrialBit) != 0) {
            AddReportLine(report, "Trial & error");
        }
    }
    report += MessageLineEnd;
    report += "Rating: ";
    report += WordsOfRating(GameRating).Lower;
    ShowMessage(report);
}

} // namespace kelvarine
