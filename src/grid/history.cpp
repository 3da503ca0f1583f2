#include "grid/history.h"

#include <algorithm>
#include <cassert>

namespace kelvarine {

std::array<GridTable, HistorySlots> History{};
std::int32_t HistoryCount;
std::int32_t HistoryPosition;
Flag GameModified;
std::uint32_t UndoStatesPushed;

namespace {

GridTable &Slot(std::int32_t slot)
{
    return History[static_cast<std::size_t>(slot)];
}

} // namespace

void SetHistoryDefaults()
{
    History = {};
    HistoryCount = 0;
    HistoryPosition = 0;
    GameModified = False;
    UndoStatesPushed = 0;
}

void PushUndoState()
{
    assert(HistoryCount >= 0 && HistoryCount <= OldestSlot);
    assert(HistoryPosition >= 0 && HistoryPosition <= HistoryCount);
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
    ++UndoStatesPushed;
}

void SaveStartPosition()
{
    CopyCells(Grid, History[StartSlot]);
}

} // namespace kelvarine
