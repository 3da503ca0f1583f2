// The grids that are kept: every change that the player can see as an undo level of its own, and
// the slots that commands put a grid aside in.
#pragma once

#include "grid/grid.h"

#include <array>
#include <cstdint>

namespace kelvarine {

// Slots of History.
inline constexpr int StartSlot = 0;
inline constexpr int NewestSlot = 1;
inline constexpr int OldestSlot = 100;
inline constexpr int SnapshotSlot = 101;
inline constexpr int SafeCopySlot = 102;      // the driver's and the text readers'
inline constexpr int SolutionsCopySlot = 103; // the solutions command's
inline constexpr int HistorySlots = 105;

extern std::array<GridTable, HistorySlots> History;
extern std::int32_t HistoryCount;      // undo levels in use, 0..100
extern std::int32_t HistoryPosition;   // level on view, 1 the newest, 0 before the first push
extern Flag GameModified;              // set by every push, cleared by saving and opening
extern std::uint32_t UndoStatesPushed; // states recorded since the start of the program

// Puts the state above to its defaults.
void SetHistoryDefaults();

// Records Grid as the newest level and sets GameModified. States that were undone are given up;
// the oldest level falls out when all hundred are in use.
void PushUndoState();

// Copies the 81 cells of Grid to History slot 0.
void SaveStartPosition();

} // namespace kelvarine
