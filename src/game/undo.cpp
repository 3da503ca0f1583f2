#include "game/undo.h"

#include "game/event_sound.h"
#include "game/lifecycle.h"
#include "game/solutions.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "logic/rating.h"
#include "outside/board.h"
#include "outside/sound.h"
#include "outside/window.h"

#include <cassert>

namespace kelvarine {

Flag SnapshotAvailable;
std::uint32_t SnapshotsTaken;

namespace {

// Takes a level of the history back to the board.
void ShowLevel(std::int32_t level)
{
    assert(level >= 1 && level <= HistoryCount);
    HistoryPosition = level;
    Grid = History[static_cast<std::size_t>(level)];
    CountGivens();
    RateGame();
    RefreshSolutions();
    FinishChange();
}

} // namespace

void SetUndoDefaults()
{
    SnapshotAvailable = False;
    SnapshotsTaken = 0;
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
    ++SnapshotsTaken;
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
