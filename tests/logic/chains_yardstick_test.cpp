// The chain searches and the hinge wings against their plain forms: same words, texts and lists.
#include "grid/names.h"
#include "logic/chain_positions.h"
#include "logic/hinge_wings.h"
#include "logic/plain/hinge_wings.h"
#include "logic/plain/remote_pairs.h"
#include "logic/plain/singles_chains.h"
#include "logic/plain/xy_chains.h"
#include "logic/remote_pairs.h"
#include "logic/singles_chains.h"
#include "logic/xy_chains.h"
#include "support/outside_double.h"
#include "support/positions.h"

#include <gtest/gtest.h>

#include <functional>

namespace kelvarine::testing {
namespace {

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

void Take(const State &state)
{
    Grid = state.Words;
    HintText = state.Text;
    HintTitle = state.Title;
    ChainColumns = state.Columns;
    ChainRows = state.Rows;
}

State StateAfter(const State &before, const Search &search, std::int32_t mode)
{
    Take(before);
    Flag found = before.Found;
    search(mode, found);
    return {Grid, found, HintText, HintTitle, ChainColumns, ChainRows};
}

// How many runs changed the grid, marked it, or left a text, by mode.
using Findings = std::array<int, 6>;

void CompareInMode(const State &before, std::int32_t mode, const Search &plain,
                   const Search &search, Findings &findings)
{
    const State expected = StateAfter(before, plain, mode);
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
}

// Selects some cells, half of the time among those that the search would mark.
void SelectSome(Random &random, const Search &plain)
{
    const GridTable before = Grid;
    CellWord wanted = 0;
    if (Chance(random, 50)) {
        Flag found = False;
        ClearCellBits(AlertBit);
        plain(1, found);
        wanted = AlertBit;
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

State RandomState(Random &random)
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

void TakeRandomNames(Random &random)
{
    ColumnFormat = Below(random, 5);
    RowFormat = Below(random, 5);
    CoordSeparator = Below(random, 4);
    CoordBrackets = Below(random, 5);
    CoordRowFirst = Chance(random, 50) ? True : False;
}

using MakePosition = void (*)(Random &random);

void ComparePosition(Random &random, const Search &plain, const Search &search, Findings &findings)
{
    if (Chance(random, 50)) {
        SelectSome(random, plain);
    }
    TakeRandomNames(random);
    const State before = RandomState(random);
    for (std::int32_t mode = 0; mode <= 5; ++mode) {
        CompareInMode(before, mode, plain, search, findings);
    }
}

class ChainsYardstick : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

void ExpectFindings(const Findings &findings, int least)
{
    for (std::size_t mode = 0; mode < findings.size(); ++mode) {
        EXPECT_GT(findings[mode], least) << "mode " << mode;
    }
}

TEST_F(ChainsYardstick, RemotePairs)
{
    Random random(14);
    Findings findings{};
    constexpr std::array makers{chains::MakeMidGame, chains::MakePairRich, chains::MakeAbsurd};
    for (int k = 0; k < 12000 && !HasFailure(); ++k) {
        const int kind = Below(random, 3);
        makers[static_cast<std::size_t>(kind)](random);
        chains::AddMarks(random);
        MaxRPLinks = kind == 0 && Chance(random, 70) ? 81 : Below(random, kind == 2 ? 5 : 7);
        ComparePosition(random, plain::SearchRemotePairs, SearchRemotePairs, findings);
    }
    ExpectFindings(findings, 500);
}

TEST_F(ChainsYardstick, XYChains)
{
    Random random(15);
    Findings findings{};
    constexpr std::array makers{chains::MakeMidGame, chains::MakePairRich, chains::MakeAbsurd};
    for (int k = 0; k < 20000 && !HasFailure(); ++k) {
        const int kind = Below(random, 3);
        makers[static_cast<std::size_t>(kind)](random);
        chains::AddMarks(random);
        const int least = Below(random, 5);
        const int most = kind == 0 && Chance(random, 30) ? 10 : Below(random, 5);
        ComparePosition(
            random,
            [=](std::int32_t mode, Flag &found) {
                plain::SearchXYChains(mode, least, most, found);
            },
            [=](std::int32_t mode, Flag &found) { SearchXYChains(mode, least, most, found); },
            findings);
    }
    ExpectFindings(findings, 500);
}

TEST_F(ChainsYardstick, HingeWings)
{
    Random random(16);
    Findings findings{};
    constexpr std::array makers{chains::MakeMidGame, chains::MakePairRich, chains::MakeAbsurd};
    for (int k = 0; k < 20000 && !HasFailure(); ++k) {
        makers[static_cast<std::size_t>(Below(random, 3))](random);
        chains::AddMarks(random);
        const int size = Chance(random, 60) ? 3 : 3 + Below(random, 7);
        ComparePosition(
            random,
            [=](std::int32_t mode, Flag &found) { plain::SearchHingeWings(mode, found, size); },
            [=](std::int32_t mode, Flag &found) { SearchHingeWings(mode, found, size); }, findings);
    }
    ExpectFindings(findings, 500);
}

TEST_F(ChainsYardstick, SinglesChains)
{
    Random random(18);
    Findings findings{};
    constexpr std::array makers{chains::MakeMidGame, chains::MakePairRich, chains::MakeAbsurd,
                                chains::MakeOneNumber};
    constexpr std::array limits{0, 1, 2, 3, 4, 5, 6, 81, 81, 81};
    for (int k = 0; k < 20000 && !HasFailure(); ++k) {
        makers[static_cast<std::size_t>(Below(random, 4))](random);
        chains::AddMarks(random);
        MaxSinglesLinks = limits[random() % limits.size()];
        ComparePosition(random, plain::SearchSinglesChains, SearchSinglesChains, findings);
    }
    ExpectFindings(findings, 500);
}

} // namespace
} // namespace kelvarine::testing
