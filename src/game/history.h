// Undo, redo and the snapshot. Every change that the player can see is kept as a whole grid.
#pragma once

#include "grid/cell_word.h"

#include <cstdint>

namespace kelvarine {

extern Flag GameModified;      // set by every push, cleared by saving and opening
extern Flag SnapshotAvailable; // enabled state of mnuUseSnapshot

// Puts the state above to its defaults.
void SetHistoryDefaults();

// Records Grid as the newest level and sets GameModified. States that were undone are given up;
// the oldest level falls out when all hundred are in use.
void PushUndoState();

// One level back or forward, with the follow-up of a change: givens, rating, alerts, win test,
// board. At the last level in that direction they do nothing at all.
void Undo();
void Redo();

// Keeps the 81 cells as the snapshot, with its sound.
void mnuTakeSnapshot();

// Puts the snapshot on the board as a new undo level. The caller asks SnapshotAvailable first.
void mnuUseSnapshot();

} // namespace kelvarine
