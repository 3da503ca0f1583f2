#include "game/history.h"

#include "game/lifecycle.h"
#include "game/solutions.h"
#include "grid/grid.h"
#include "logic/event_sound.h"
#include "logic/rating.h"
#include "outside/board.h"
#include "outside/sound.h"
#include "outside/window.h"

#include <algorithm>

namespace kelvarine {

Flag GameModified;
Flag SnapshotAvailable;

namespace {

GridTable &Slot(std::int32_t slot)
{
    return History[static_cast<std::size_t>(slot)];
}

// Takes a level of the history back to the board.
void ShowLevel(std::int32_t level)
{
    HistoryPosition = level;
    Grid = Slot(level);
    CountGivens();
    RateGame();
    RefreshSolutions();
    FinishChange();
}

} // namespace

void SetHistoryDefaults()
{
    GameModified = False;
    SnapshotAvailable = False;
}

void PushUndoState()
{
    if (HistoryPosition < 2) {
        std::move_backward(History.begin() + NewestSlot, History.begin() + OldestSlot,
                           History.begin() + OldestSlot + 1);
        HistoryCount = std::min(HistoryCount + 1, OldestSlot);
    } else {
        // The states that were undone are given up: the one on view goes to slot 2.
        const std::int32_t shift = HistoryPosition - 2;
        const std::int32_t last = HistoryCount - shift;
        for (std::int32_t slot = 2; slot <= last; ++slot) {
            Slot(slot) = Slot(slot + shift);
        }
        HistoryCount = last;
    }
    Slot(NewestSlot) = Grid;
    HistoryPosition = 1;
    GameModified = True;
}

void Undo()
{
    if (HistoryPosition < HistoryCount) {
        ShowLevel(HistoryPosition + 1);
    }
}

void Redo()
{
    if (HistoryPosition >= 2) {
        ShowLevel(HistoryPosition - 1);
    }
}

void mnuTakeSnapshot()
{
    CopyCells(Grid, History[SnapshotSlot]);
    if (SoundDisabled == False) {
        PlaySound(SnapshotSound, false);
    }
    SnapshotAvailable = True;
    UpdateCaptions();
}

void mnuUseSnapshot()
{
    CopyCells(History[SnapshotSlot], Grid);
    CountGivens();
    RateGame();
    PushUndoState();
    FinishChange();
}

} // namespace kelvarine
