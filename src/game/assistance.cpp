#include "game/assistance.h"

#include "game/alert_scan.h"
#include "game/game_in_hand.h"
#include "game/lifecycle.h"
#include "game/solutions.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "logic/driver.h"
#include "logic/filling_runs.h"
#include "logic/kept_settings.h"
#include "logic/rating.h"
#include "logic/technique.h"
#include "logic/technique_masks.h"
#include "outside/board.h"
#include "outside/messages.h"

#include <algorithm>
#include <cstdint>
#include <memory>

namespace kelvarine {

namespace {

bool AskForMore(std::string_view question)
{
    return AskYesNo(HintText + "\r\r" + std::string(question), "Hint");
}

// Whether the player wants the selected cells exposed and their solution is known. The last cell
// alone speaks for all of them; intended.
bool AgreeToExpose(std::int64_t selected, CellWord lastSolution)
{
    if (selected == 0) {
        ShowMessage("There are no cells selected.");
        return false;
    }
    if (lastSolution == 0) {
        ShowMessage(selected == 1 ? "This cell is unknown." : "These cells are unknown.");
        return false;
    }
    return AskYesNo(selected == 1 ? "Are you sure you want to expose this cell?"
                                  : "Are you sure you want to expose these cells?");
}

void Expose(CellWord &word)
{
    ShowDigit(word);
    ++GivenCount;
}

enum class End : std::uint8_t { NoResult, Result, GivenUp };

// Runs the logic on the game in hand. When the player stops a run that takes too long the game goes
// back to what it was; any other stop counts as a result, and the grid stays as far as the run had
// come; intended.
template <typename Run>
End RunOnGame(const Run &run)
{
    // The history is too large for the stack.
    const auto before = std::make_unique<GameInHand>();
    const std::int32_t result = run();
    if (result == Stopped && RunIsLong != False) {
        GiveBack(*before);
        return End::GivenUp;
    }
    return result == NotSolved ? End::NoResult : End::Result;
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
    switch (RunOnGame([] { return ApplyLogic(SolveAsPlayer); })) {
    case End::GivenUp:
        break;
    case End::Result:
        UpdateStatistics();
        break;
    case End::NoResult:
        ScanAlerts(ModeAlert);
        break;
    }
    if (!TakeBannerAway()) {
        DrawBoard();
    }
}

void mnuSolveGame()
{
    if (GameRating == RatedImpossible) {
        ShowMessage("This sudoku is rated impossible because it has no solution.");
        return;
    }
    if (IsGridSolved() != False) {
        return;
    }
    const KeptSettings kept;
    SolveMask = CountingMask;
    const End end = RunOnGame([] {
        FillPencilmarks();
        return RunByFillings(SolveForPlayer);
    });
    if (end == End::Result) {
        StatsCounted = True;
        UpdateStatistics();
    }
    TakeBannerAway();
}

void mnuExposeSelectedCells()
{
    std::int64_t selected = 0;
    CellWord lastSolution = 0;
    for (const Cell cell : Cells) {
        if ((WordAt(cell) & SelectedBit) != 0) {
            ++selected;
            lastSolution = WordAt(cell) & SolutionMask;
        }
    }
    if (!AgreeToExpose(selected, lastSolution)) {
        return;
    }
    for (const Cell cell : Cells) {
        CellWord &word = WordAt(cell);
        if ((word & (SelectedBit | GivenBit)) == SelectedBit) {
            Expose(word);
        }
    }
    ClearCellBits(SelectedBit);
    ChainColumns[0] = 0;
    ClearPointerState();
    PushUndoState();
    RateGame();
    RefreshSolutions();
    FinishChange();
}

} // namespace kelvarine
