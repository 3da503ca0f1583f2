#include "game/lifecycle.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "input/keys.h"
#include "input/selection.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <random>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

constexpr CellWord Marks = ScratchMark0 | ScratchMark1 | ScratchMark2 | ScratchMark3;

class Selection : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

void Select(std::initializer_list<std::pair<int, int>> cells)
{
    ClearCellBits(SelectedBit);
    for (const auto &[column, row] : cells) {
        WordAt(MakeCell(column, row)) |= SelectedBit;
    }
}

std::string Selected()
{
    return CellsWith(SelectedBit);
}

// The cells that a condition chooses, as CellsWith names them.
std::string Chosen(const std::function<bool(Cell)> &condition)
{
    const GridTable keep = Grid;
    Grid = {};
    for (const Cell cell : Cells) {
        WordAt(cell) = condition(cell) ? SelectedBit : 0;
    }
    std::string names = CellsWith(SelectedBit);
    Grid = keep;
    return names;
}

bool Sees(Cell a, Cell b)
{
    return a == b || ArePeers(a, b);
}

struct SelectCommand {
    std::int32_t Key;
    void (*Run)();
    std::string Message;
};

std::vector<SelectCommand> CommandsOfHouses()
{
    return {
        {'C', mnuSelectColumn,
         "Please select one or more cells to indicate which column(s) you'd like to select."},
        {'R', mnuSelectRow,
         "Please select one or more cells to indicate which row(s) you'd like to select."},
        {'B', mnuSelectBox,
         "Please select one or more cells to indicate which box(es) you'd like to select."},
        {'D', mnuSelectDomain,
         "Please select one or more cells to indicate which domain(s) you'd like to select."},
        {'P', mnuSelectPeers,
         "Please select one or more cells to indicate which peers (or mutual peers) you'd like to "
         "select."},
        {'I', mnuSelectIntersection,
         "Please select two or more cells to indicate which domain intersections you'd like to "
         "select."},
    };
}

// ---- All of them ---------------------------------------------------------------------------

TEST_F(Selection, CommandsOfHousesAskForASelection)
{
    for (const SelectCommand &command : CommandsOfHouses()) {
        for (const Cell cell : Cells) {
            WordAt(cell) = ~SelectedBit;
        }
        const GridTable before = Grid;
        ForgetRecord();
        command.Run();
        EXPECT_EQ(Seen.Calls, Texts{"message: " + command.Message});
        EXPECT_EQ(Seen.Titles, Texts{"Kelvarine"});
        EXPECT_EQ(Grid, before) << "nothing changes, not even marks";
    }
}

TEST_F(Selection, CommandsPaintOnceAndAreNoStepOfTheGame)
{
    std::vector<SelectCommand> commands = CommandsOfHouses();
    commands.push_back({'W', mnuSelectWholeGrid, ""});
    for (const SelectCommand &command : commands) {
        StartSavedGame(EasyGame);
        Select({{4, 5}, {6, 5}});
        AnchorColumn = 4;
        command.Run();
        EXPECT_EQ(Seen.Calls, Texts{"board: "});
        EXPECT_EQ(HistoryCount, 1);
        EXPECT_EQ(GameModified, False);
        EXPECT_EQ(AnchorColumn, 4);
    }
}

TEST_F(Selection, CommandsTouchNothingButTheSelection)
{
    std::vector<SelectCommand> commands = CommandsOfHouses();
    commands.push_back({'W', mnuSelectWholeGrid, ""});
    for (const SelectCommand &command : commands) {
        for (const Cell cell : Cells) {
            WordAt(cell) = ~(Marks | SelectedBit);
        }
        Select({{4, 5}, {6, 5}});
        ChainColumns[0] = 3;
        command.Run();
        for (const Cell cell : Cells) {
            EXPECT_EQ(WordAt(cell) | SelectedBit, ~Marks) << "hint marks stay, no mark is left";
        }
        EXPECT_EQ(ChainColumns[0], 3);
    }
}

TEST_F(Selection, MarksThatTechniquesLeftDoNotLeakIn)
{
    for (const SelectCommand &command : CommandsOfHouses()) {
        for (const int column : {4, 6}) { // one cell, then two
            Grid = {};
            Select({{4, 5}, {column, 5}});
            command.Run();
            const std::string clean = Selected();
            for (const Cell cell : Cells) {
                WordAt(cell) = Marks;
            }
            Select({{4, 5}, {column, 5}});
            command.Run();
            EXPECT_EQ(Selected(), clean) << static_cast<char>(command.Key);
        }
    }
}

TEST_F(Selection, KeysChooseTheCommands)
{
    std::vector<SelectCommand> commands = CommandsOfHouses();
    commands.push_back({'W', mnuSelectWholeGrid, ""});
    for (const SelectCommand &command : commands) {
        Select({{4, 5}, {6, 5}});
        command.Run();
        const std::string byCommand = Selected();
        Select({{4, 5}, {6, 5}});
        KeyDown(command.Key, 0);
        EXPECT_EQ(Selected(), byCommand) << static_cast<char>(command.Key);
    }
}

// ---- Houses --------------------------------------------------------------------------------

TEST_F(Selection, ColumnsOfSelectedCellsBecomeSelected)
{
    Select({{2, 3}, {2, 9}, {7, 1}});
    mnuSelectColumn();
    EXPECT_EQ(Selected(), "B1 B2 B3 B4 B5 B6 B7 B8 B9 G1 G2 G3 G4 G5 G6 G7 G8 G9");
}

TEST_F(Selection, RowsOfSelectedCellsBecomeSelected)
{
    Select({{2, 3}, {9, 3}, {1, 8}});
    mnuSelectRow();
    EXPECT_EQ(Selected(), "A3 A8 B3 B8 C3 C8 D3 D8 E3 E8 F3 F8 G3 G8 H3 H8 J3 J8");
}

TEST_F(Selection, BoxesOfSelectedCellsBecomeSelected)
{
    Select({{3, 4}, {7, 9}, {9, 7}});
    mnuSelectBox();
    EXPECT_EQ(Selected(), "A4 A5 A6 B4 B5 B6 C4 C5 C6 G7 G8 G9 H7 H8 H9 J7 J8 J9");
}

TEST_F(Selection, DomainIsColumnRowAndBox)
{
    Select({{5, 5}});
    mnuSelectDomain();
    EXPECT_EQ(Selected(), "A5 B5 C5 D4 D5 D6 E1 E2 E3 E4 E5 E6 E7 E8 E9 F4 F5 F6 G5 H5 J5");
}

TEST_F(Selection, DomainsDoNotSpreadFromCellsTakenIn)
{
    const auto inDomain = [](Cell cell) {
        return Sees(cell, {1, 1}) || Sees(cell, {5, 8});
    };
    Select({{1, 1}, {5, 8}});
    mnuSelectDomain();
    EXPECT_EQ(Selected(), Chosen(inDomain));
}

TEST_F(Selection, WholeGridNeedsNoSelection)
{
    mnuSelectWholeGrid();
    EXPECT_EQ(Selected(), Chosen([](Cell) { return true; }));
}

// ---- Peers and intersections ---------------------------------------------------------------

TEST_F(Selection, OneCellHasTwentyPeers)
{
    Select({{1, 1}});
    mnuSelectPeers();
    EXPECT_EQ(Selected(), "A2 A3 A4 A5 A6 A7 A8 A9 B1 B2 B3 C1 C2 C3 D1 E1 F1 G1 H1 J1");
}

TEST_F(Selection, ThreeCellsInARowHaveTheRestOfItForPeers)
{
    Select({{1, 4}, {5, 4}, {9, 4}});
    mnuSelectPeers();
    EXPECT_EQ(Selected(), "B4 C4 D4 F4 G4 H4");
}

TEST_F(Selection, ThreeCellsOfABoxInARowHaveTheRestOfTheBoxToo)
{
    Select({{1, 4}, {2, 4}, {3, 4}});
    mnuSelectPeers();
    EXPECT_EQ(Selected(), "A5 A6 B5 B6 C5 C6 D4 E4 F4 G4 H4 J4");
}

TEST_F(Selection, CellsWithoutCommonPeersLeaveNothingSelected)
{
    Select({{1, 1}, {2, 4}, {9, 9}});
    mnuSelectPeers();
    EXPECT_EQ(Selected(), "");
    EXPECT_EQ(Seen.Messages, Texts{});
}

TEST_F(Selection, IntersectionOfOneCellIsItsDomain)
{
    Select({{5, 5}});
    mnuSelectIntersection();
    EXPECT_EQ(Selected(), "A5 B5 C5 D4 D5 D6 E1 E2 E3 E4 E5 E6 E7 E8 E9 F4 F5 F6 G5 H5 J5");
    EXPECT_EQ(Seen.Messages, Texts{}) << "whatever the message says about two";
}

TEST_F(Selection, IntersectionOfTwoCellsInARowHoldsTheCellsThemselves)
{
    Select({{1, 4}, {5, 4}});
    mnuSelectIntersection();
    EXPECT_EQ(Selected(), "A4 B4 C4 D4 E4 F4 G4 H4 J4");
}

TEST_F(Selection, IntersectionOfTwoStrangersIsWhereTheyCross)
{
    Select({{1, 1}, {5, 5}});
    mnuSelectIntersection();
    EXPECT_EQ(Selected(), "A5 E1");
}

TEST_F(Selection, AnySelectionLeadsToWhatAllItsCellsSee)
{
    std::mt19937 random(7);
    for (int round = 0; round < 3000; ++round) {
        Grid = {};
        std::vector<Cell> chosen;
        for (std::uint32_t k = 0; k <= random() % 5; ++k) {
            const Cell cell = Cells[random() % 81];
            chosen.push_back(cell);
            WordAt(cell) |= SelectedBit;
        }
        const GridTable before = Grid;
        const auto seenByAll = [&](Cell cell) {
            return std::ranges::all_of(chosen, [&](Cell other) { return Sees(cell, other); });
        };
        const auto isChosen = [&](Cell cell) {
            return std::ranges::find(chosen, cell) != chosen.end();
        };
        mnuSelectIntersection();
        ASSERT_EQ(Selected(), Chosen(seenByAll));
        Grid = before;
        mnuSelectPeers();
        ASSERT_EQ(Selected(),
                  Chosen([&](Cell cell) { return seenByAll(cell) && !isChosen(cell); }));
        Grid = before;
        mnuSelectDomain();
        ASSERT_EQ(Selected(), Chosen([&](Cell cell) {
                      return std::ranges::any_of(chosen,
                                                 [&](Cell other) { return Sees(cell, other); });
                  }));
    }
}

} // namespace
} // namespace kelvarine::testing
