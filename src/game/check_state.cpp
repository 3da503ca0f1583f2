#include "game/check_state.h"

#include "game/clock.h"
#include "game/lifecycle.h"
#include "game/screens.h"
#include "game/win_display.h"
#include "grid/history.h"
#include "logic/driver.h"
#include "logic/technique_masks.h"
#include "logic/technique_table.h"

#include <algorithm>
#include <array>
#include <span>

namespace kelvarine {

namespace {

bool IsWithin(std::int32_t number, std::int32_t least, std::int32_t most)
{
    return number >= least && number <= most;
}

// ---- State of every game -------------------------------------------------------------------

bool CountersAreInRange()
{
    return IsWithin(HistoryCount, 0, OldestSlot) && IsWithin(HistoryPosition, 0, HistoryCount) &&
           IsWithin(GameRating, 0, 7) && IsWithin(SolutionCount, 0, MostSolutionsListed + 1) &&
           IsWithin(CurrentTab, 0, 9) && IsWithin(WinStage, 0, 7);
}

bool GivensAreCounted()
{
    return GivenCount ==
           std::ranges::count_if(Cells, [](Cell cell) { return (WordAt(cell) & GivenBit) != 0; });
}

bool ChainIsInRange()
{
    const std::int32_t length = ChainColumns[0];
    if (!IsWithin(length, 0, 81) || !IsWithin(ChainRows[0], -9, 9)) {
        return false;
    }
    for (std::size_t k = 1; k <= static_cast<std::size_t>(length); ++k) {
        if (!IsLine(ChainColumns[k]) || !IsLine(ChainRows[k])) {
            return false;
        }
    }
    return true;
}

bool PointerIsInRange()
{
    return IsWithin(AnchorColumn, 0, 9) && IsWithin(AnchorRow, 0, 9) &&
           IsWithin(CursorColumn, 0, 9) && IsWithin(CursorRow, 0, 9) &&
           (AnchorColumn == 0) == (AnchorRow == 0) && (CursorColumn == 0) == (CursorRow == 0);
}

// Of the numbers in view, and of the techniques that a run has used.
bool MasksHoldNothingElse()
{
    std::uint32_t known = TrialBit;
    for (const TechniqueRow &row : Techniques) {
        known |= BitTable[static_cast<std::size_t>(row.Number)];
    }
    return (NumberFilter & ~CandidateMask) == 0 && (UsedMask & ~known) == 0;
}

// A run of the driver ends before the command that asked for it.
bool NothingRuns()
{
    return SearchActive == False || SearchKind != NotStoppable || RunUnderWay != False;
}

bool ClockIsTold()
{
    return PauseCaption == "Pause" || PauseCaption == "Resume";
}

// ---- State of games that were made here ----------------------------------------------------

bool CellsHoldNothingElse()
{
    constexpr CellWord withoutUse = 0x800000;
    return std::ranges::none_of(Cells, [](Cell cell) { return (WordAt(cell) & withoutUse) != 0; });
}

bool GivensAreNumbers()
{
    return std::ranges::none_of(Cells, [](Cell cell) {
        return (WordAt(cell) & GivenBit) != 0 && CandidatesIn(WordAt(cell)) != 1;
    });
}

struct Promise {
    bool (*IsKept)();
    std::string_view WhenBroken;
};

constexpr std::array OfEveryGame{
    Promise{CountersAreInRange, "a counter is out of range"},
    Promise{GivensAreCounted, "GivenCount is not the number of givens"},
    Promise{ChainIsInRange, "the chain leaves its lists or the grid"},
    Promise{PointerIsInRange, "the pointer is neither on a cell nor on none"},
    Promise{MasksHoldNothingElse, "a mask holds bits that mean nothing"},
    Promise{NothingRuns, "a run of the driver goes on"},
    Promise{ClockIsTold, "the clock is neither running nor paused"},
};

constexpr std::array OfGamesMadeHere{
    Promise{CellsHoldNothingElse, "a cell holds bits that mean nothing"},
    Promise{GivensAreNumbers, "a given is no number"},
};

std::string_view FirstBroken(std::span<const Promise> promises)
{
    for (const Promise &promise : promises) {
        if (!promise.IsKept()) {
            return promise.WhenBroken;
        }
    }
    return {};
}

} // namespace

std::string_view CheckState()
{
    const std::string_view broken = FirstBroken(OfEveryGame);
    return broken.empty() && GameFilePath.empty() ? FirstBroken(OfGamesMadeHere) : broken;
}

} // namespace kelvarine
