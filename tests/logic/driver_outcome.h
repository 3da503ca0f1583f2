// Everything that a run of the driver leaves and does, for comparing one form of it with another.
#pragma once

#include "game/solutions.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "support/outside_double.h"

#include <string>
#include <vector>

namespace kelvarine::testing {

struct RunOutcome {
    std::int32_t Result = 0;
    GridTable Words{};
    GridTable SafeCopy{};
    GridTable Newest{};
    std::int32_t Pushed = 0;
    std::uint32_t Used = 0;
    std::int32_t Count = 0;
    std::string List;
    std::string CountText;
    std::vector<std::string> Messages;
    int Yields = 0;
    Flag Active = False;

    friend bool operator==(const RunOutcome &, const RunOutcome &) = default;
};

// Runs a driver on a grid. After mostYields passes the run is stopped from outside, which bounds
// it and compares that way of leaving as well.
template <typename Driver>
RunOutcome OutcomeOf(const Driver &driver, std::int32_t mode, const GridTable &start,
                     int mostYields)
{
    Grid = start;
    HistoryCount = 0;
    HistoryPosition = 0;
    SolutionList.clear();
    SolutionCountText.clear();
    Seen = {};
    Seen.OnYield = [=] {
        if (Seen.Yields == mostYields) {
            SearchActive = False;
        }
    };
    RunOutcome outcome;
    outcome.Result = driver(mode);
    outcome.Words = Grid;
    outcome.SafeCopy = History[SafeCopySlot];
    outcome.Newest = History[NewestSlot];
    outcome.Pushed = HistoryCount;
    outcome.Used = UsedMask;
    outcome.Count = SolutionCount;
    outcome.List = SolutionList;
    outcome.CountText = SolutionCountText;
    outcome.Messages = Seen.Messages;
    outcome.Yields = Seen.Yields;
    outcome.Active = SearchActive;
    return outcome;
}

} // namespace kelvarine::testing
