// A search against its plain form on a position, in all modes: same words, texts and lists.
#pragma once

#include "grid/grid.h"
#include "grid/names.h"
#include "logic/chain_positions.h"
#include "logic/plain/steps.h"
#include "support/positions.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <optional>

namespace kelvarine::testing {

using chains::Below;
using chains::Chance;
using chains::Random;

// All that a search may read or change.
struct State {
    GridTable Words{};
    Flag Found = False;
    std::string Text;
    std::string Title;
    std::array<std::int32_t, 82> Columns{};
    std::array<std::int32_t, 82> Rows{};

    bool operator==(const State &) const = default;
};

using Search = std::function<void(std::int32_t mode, Flag &found)>;

inline void Take(const State &state)
{
    Grid = state.Words;
    HintText = state.Text;
    HintTitle = state.Title;
    ChainColumns = state.Columns;
    ChainRows = state.Rows;
}

inline State StateAfter(const State &before, const Search &search, std::int32_t mode)
{
    Take(before);
    Flag found = before.Found;
    search(mode, found);
    return {Grid, found, HintText, HintTitle, ChainColumns, ChainRows};
}

// How many runs changed the grid, marked it, or left a text, by mode.
using Findings = std::array<int, 6>;

// What a plain search leaves; nothing when it takes more steps than its share.
inline std::optional<State> PlainStateAfter(const State &before, const Search &plain,
                                            std::int32_t mode, std::int64_t steps)
{
    plain::StepsLeft = steps;
    try {
        return StateAfter(before, plain, mode);
    } catch (const plain::OutOfSteps &) {
        return {};
    }
}

inline constexpr std::int64_t AnySteps = std::numeric_limits<std::int64_t>::max();

// False when the plain search took too many steps.
inline bool CompareInMode(const State &before, std::int32_t mode, const Search &plain,
                          const Search &search, Findings &findings, std::int64_t steps)
{
    const std::optional<State> ended = PlainStateAfter(before, plain, mode, steps);
    if (!ended) {
        return false;
    }
    const State &expected = *ended;
    const State actual = StateAfter(before, search, mode);
    if (expected.Text != before.Text || expected.Found != before.Found ||
        (mode == 1 && (expected.Words != before.Words))) {
        ++findings[static_cast<std::size_t>(mode)];
    }
    if (!(actual == expected)) {
        ADD_FAILURE() << "mode " << mode << ", limits " << MaxRPLinks << " " << MaxXYLinks << " "
                      << MaxSinglesLinks << "\n"
                      << PencilmarksOf(before.Words) << "expected: " << expected.Text << "\n"
                      << PencilmarksOf(expected.Words) << "actual: " << actual.Text << "\n"
                      << PencilmarksOf(actual.Words);
    }
    return true;
}

// Selects some cells, half of the time among those that the search would mark.
inline void SelectSome(Random &random, const Search &plain, std::int64_t steps)
{
    const GridTable before = Grid;
    CellWord wanted = 0;
    if (Chance(random, 50)) {
        ClearCellBits(AlertBit);
        State state;
        state.Words = Grid;
        wanted = PlainStateAfter(state, plain, 1, steps) ? AlertBit : 0;
    }
    const GridTable marked = Grid;
    Grid = before;
    const int percent = Below(random, 40);
    for (const Cell cell : Cells) {
        if ((marked[cell.Column][cell.Row] & wanted) == wanted && Chance(random, percent)) {
            WordAt(cell) |= SelectedBit;
        }
    }
}

inline State RandomState(Random &random)
{
    State state;
    state.Words = Grid;
    state.Text = Chance(random, 20) ? "Before." : "";
    state.Title = "Title before";
    for (std::size_t k = 0; k < state.Columns.size(); ++k) {
        state.Columns[k] = 1 + Below(random, 9);
        state.Rows[k] = 1 + Below(random, 9);
    }
    return state;
}

inline void TakeRandomNames(Random &random)
{
    ColumnFormat = Below(random, 5);
    RowFormat = Below(random, 5);
    CoordSeparator = Below(random, 4);
    CoordBrackets = Below(random, 5);
    CoordRowFirst = Chance(random, 50) ? True : False;
}

// Compares in all modes in which the plain search takes no more than some steps; returns in how
// many.
inline int ComparePosition(Random &random, const Search &plain, const Search &search,
                           Findings &findings, std::int64_t steps = AnySteps)
{
    if (Chance(random, 50)) {
        SelectSome(random, plain, steps);
    }
    TakeRandomNames(random);
    const State before = RandomState(random);
    int compared = 0;
    for (std::int32_t mode = 0; mode <= 5; ++mode) {
        compared += CompareInMode(before, mode, plain, search, findings, steps) ? 1 : 0;
    }
    return compared;
}

inline void ExpectFindings(const Findings &findings, int least)
{
    for (std::size_t mode = 0; mode < findings.size(); ++mode) {
        EXPECT_GT(findings[mode], least) << "mode " << mode;
    }
}

} // namespace kelvarine::testing
