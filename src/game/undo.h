// Undo, redo and the snapshot.
#pragma once

#include "grid/cell_word.h"

#include <cstdint>

namespace kelvarine {

extern Flag SnapshotAvailable;       // enabled state of mnuUseSnapshot
extern std::uint32_t SnapshotsTaken; // since the start of the program

// Puts the state above to its defaults.
void SetUndoDefaults();

// One level back or forward, with the follow-up of a change: givens, rating, alerts, win test,
// board. At the last level in that direction they do nothing at all.
void Undo();
void Redo();

// Keeps the 81 cells as the snapshot, with its sound.
void mnuTakeSnapshot();

// Puts the snapshot on the board as a new undo level. The caller asks SnapshotAvailable first.
void mnuUseSnapshot();

} // namespace kelvarine
