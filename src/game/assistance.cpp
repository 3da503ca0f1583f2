#include "game/assistance.h"

#include "board/board.h"
#include "game/lifecycle.h"
#include "grid/grid.h"
#include "logic/alerts.h"
#include "logic/driver.h"
#include "logic/technique.h"
#include "ui/presentation.h"

#include <algorithm>

namespace kelvarine {

namespace {

bool AskForMore(std::string_view question)
{
    return AskYesNo(HintText + "\r\r" + std::string(question), "Hint");
}

} // namespace

void MendArticles()
{
    constexpr std::string_view wrong = "a 8";
    for (std::size_t place = HintText.find(wrong); place != std::string::npos;
         place = HintText.find(wrong)) {
        HintText.replace(place, wrong.size(), "an 8");
    }
}

void mnuHint()
{
    ScanAlerts(ModeTeaser);
    if (HintText.empty()) {
        ShowMessage("There are no hints available now.");
        return;
    }
    if (!AskForMore("Would you like to know more?")) {
        return;
    }
    ScanAlerts(ModeTeaserPlace);
    if (!AskForMore("Want to know where it is?")) {
        return;
    }
    ClearCellBits(PassMarks);
    ScanAlerts(ModeFull);
    DrawBoard();
    MendArticles();
    ShowMessage(HintText, HintTitle);
}

void mnuShowAlertReason()
{
    const auto isSelected = [](Cell cell) {
        return (WordAt(cell) & SelectedBit) != 0;
    };
    const auto selected = std::ranges::count_if(Cells, isSelected);
    if (selected != 1) {
        ShowMessage(selected == 0 ? "Please select a cell."
                                  : "Please select just one cell at a time.");
        return;
    }
    if ((WordAt(*std::ranges::find_if(Cells, isSelected)) & AlertBit) == 0) {
        ShowMessage("This cell has no alerts.");
        return;
    }
    HintText.clear();
    HintTitle.clear();
    ScanAlerts(ModeExplain);
    DrawBoard();
    MendArticles();
    ShowMessage(HintText, HintTitle);
}

void mnuApplyLogic()
{
    if (SolveMask == 0) {
        ShowMessage("There are no solve techniques selected on the \"Logic tab\" of the "
                    "configuration screen.");
        return;
    }
    if (IsGridSolved() != False) {
        return;
    }
    // A search that the player stopped counts as a result too; intended.
    if (ApplyLogic(SolveAsPlayer) != NotSolved) {
        UpdateStatistics();
    } else {
        ScanAlerts(ModeAlert);
    }
    DrawBoard();
}

void mnuSolveGame()
{
    if (GameRating == 7) {
        ShowMessage("This sudoku is rated impossible because it has no solution.");
        return;
    }
    if (IsGridSolved() != False) {
        return;
    }
    const std::uint32_t solveMask = SolveMask;
    SolveMask = CountingMask;
    FillPencilmarks();
    if (ApplyLogic(SolveForPlayer) != NotSolved) {
        StatsCounted = True;
        UpdateStatistics();
    }
    SolveMask = solveMask;
}

} // namespace kelvarine
