#include "input/givens.h"

#include "game/lifecycle.h"
#include "game/solutions.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "logic/rating.h"
#include "outside/messages.h"

namespace kelvarine {

namespace {

bool IsSelected(CellWord word)
{
    return (word & SelectedBit) != 0;
}

bool HoldsOneNumber(Cell cell)
{
    return CountCandidates(cell.Column, cell.Row) == 1;
}

// Takes a given out when the game can do without it. True when it did.
bool HideConditionally(CellWord &word)
{
    word &= ~GivenBit;
    RateGame();
    if (GameRating > RatedExtreme) {
        word |= GivenBit;
        return false;
    }
    word &= ~CandidateMask;
    return true;
}

bool HideAbsolutely(CellWord &word)
{
    word &= ~(GivenBit | CandidateMask);
    return true;
}

template <typename Hide>
void HideSelected(const Hide &hide)
{
    bool anySelected = false;
    bool changed = false;
    for (const Cell cell : Cells) {
        CellWord &word = WordAt(cell);
        if (!IsSelected(word)) {
            continue;
        }
        anySelected = true;
        if ((word & GivenBit) != 0 && hide(word)) {
            changed = true;
        }
    }
    if (!anySelected) {
        ShowMessage("There are no cells selected.");
        return;
    }
    RateGame();
    CountGivens();
    if (changed) {
        PushUndoState();
        RefreshSolutions();
        FinishChange();
    }
}

struct SelectionCount {
    int Selected = 0;
    int WithOneNumber = 0;
};

SelectionCount CountSelection()
{
    SelectionCount count;
    for (const Cell cell : Cells) {
        if (IsSelected(WordAt(cell))) {
            ++count.Selected;
            count.WithOneNumber += HoldsOneNumber(cell) ? 1 : 0;
        }
    }
    return count;
}

// True when the selection has numbers to make givens of and the player agrees.
bool AgreedToMakeGiven()
{
    const auto [selected, withOneNumber] = CountSelection();
    if (selected == 0) {
        ShowMessage("There are no cells selected.");
        return false;
    }
    if (withOneNumber == 0) {
        ShowMessage(selected == 1 ? "The selected cell can't be made into a given because it "
                                    "doesn't contain a single number."
                                  : "None of the the selected cells can be made into givens "
                                    "because they don't contain single numbers.");
        return false;
    }
    return AskYesNo(selected == 1
                        ? "Are you sure you want to make the selected cell into a given?"
                        : "Are you sure you want to make the selected cells (containing single "
                          "numbers) into givens?");
}

} // namespace

void mnuHideSelectedCellsForce()
{
    HideSelected(HideAbsolutely);
}

void mnuHideSelectedCellsConditional()
{
    HideSelected(HideConditionally);
}

void mnuMakeGiven()
{
    if (!AgreedToMakeGiven()) {
        return;
    }
    bool changed = false;
    for (const Cell cell : Cells) {
        CellWord &word = WordAt(cell);
        if (IsSelected(word) && (word & GivenBit) == 0 && HoldsOneNumber(cell)) {
            word |= GivenBit;
            changed = true;
        }
    }
    if (changed) {
        PushUndoState();
        RateGame();
        CountGivens();
        RefreshSolutions();
        FinishChange();
    }
}

} // namespace kelvarine
