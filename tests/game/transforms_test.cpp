#include "game/clock.h"
#include "game/lifecycle.h"
#include "game/transforms.h"
#include "game/undo.h"
#include "game/win_display.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"
#include "support/random_grids.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;
using Command = void (*)();

class Transforms : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }

    // Puts a chain of three cells on view.
    static void SetChain()
    {
        ChainColumns = {3, 1, 4, 6};
        ChainRows = {-7, 2, 9, 8};
    }

    static Texts Chain()
    {
        Texts cells;
        for (std::size_t k = 1; k <= 4; ++k) {
            cells.push_back(std::to_string(ChainColumns[k]) + "," + std::to_string(ChainRows[k]));
        }
        return cells;
    }
};

constexpr std::array<Command, 4> Commands{mnuRotateGrid90Left, mnuRotateGrid90Right, mnuMirrorGrid,
                                          mnuFlipGrid};

// A grid whose numbers lean to no symmetry.
constexpr std::string_view Leaning = R"(
    12.......
    3........
    .........
    .........
    ....5....
    .........
    .........
    .........
    ........9
)";

TEST_F(Transforms, LeftTakesTheTopLeftCellToTheBottomLeftCorner)
{
    SetGivens(Leaning);
    mnuRotateGrid90Left();
    EXPECT_EQ(NumbersOf(Grid), "........9"
                               "........."
                               "........."
                               "........."
                               "....5...."
                               "........."
                               "........."
                               "2........"
                               "13.......");
}

TEST_F(Transforms, RightTakesTheTopLeftCellToTheTopRightCorner)
{
    SetGivens(Leaning);
    mnuRotateGrid90Right();
    EXPECT_EQ(NumbersOf(Grid), ".......31"
                               "........2"
                               "........."
                               "........."
                               "....5...."
                               "........."
                               "........."
                               "........."
                               "9........");
}

TEST_F(Transforms, MirrorChangesLeftAndRight)
{
    SetGivens(Leaning);
    mnuMirrorGrid();
    EXPECT_EQ(NumbersOf(Grid), ".......21"
                               "........3"
                               "........."
                               "........."
                               "....5...."
                               "........."
                               "........."
                               "........."
                               "9........");
}

TEST_F(Transforms, FlipChangesTopAndBottom)
{
    SetGivens(Leaning);
    mnuFlipGrid();
    EXPECT_EQ(NumbersOf(Grid), "........9"
                               "........."
                               "........."
                               "........."
                               "....5...."
                               "........."
                               "........."
                               "3........"
                               "12.......");
}

TEST_F(Transforms, CentreCellStaysAndTheUnusedLinesAreLeftAlone)
{
    for (const Command command : Commands) {
        Grid[5][5] = 0xDEADBEEF;
        Grid[0][0] = 1;
        Grid[0][5] = 2;
        Grid[5][0] = 3;
        command();
        EXPECT_EQ(Grid[5][5], 0xDEADBEEFU);
        EXPECT_EQ(Grid[0][0], 1U);
        EXPECT_EQ(Grid[0][5], 2U);
        EXPECT_EQ(Grid[5][0], 3U);
    }
}

TEST_F(Transforms, RoundsComeBackToTheFirstGridWithAllBitsAndTheChain)
{
    std::mt19937 random(20);
    for (int round = 0; round < 200; ++round) {
        SetAbsurdPosition(random);
        SetChain();
        const GridTable first = Grid;
        const auto columns = ChainColumns;
        const auto rows = ChainRows;
        const auto isFirst = [&] {
            return Grid == first && ChainColumns == columns && ChainRows == rows;
        };
        for (const Command turn : {mnuRotateGrid90Left, mnuRotateGrid90Right}) {
            for (int quarter = 0; quarter < 4; ++quarter) {
                EXPECT_EQ(isFirst(), quarter == 0);
                turn();
            }
            EXPECT_TRUE(isFirst()) << "four turns";
        }
        mnuRotateGrid90Left();
        mnuRotateGrid90Right();
        EXPECT_TRUE(isFirst()) << "left and right";
        for (const Command reflection : {mnuMirrorGrid, mnuFlipGrid}) {
            reflection();
            EXPECT_FALSE(isFirst());
            reflection();
            EXPECT_TRUE(isFirst()) << "reflected twice";
        }
    }
}

TEST_F(Transforms, FlipAndMirrorTogetherEqualTwoRotations)
{
    std::mt19937 random(21);
    for (int round = 0; round < 200; ++round) {
        SetAbsurdPosition(random);
        SetChain();
        const GridTable first = Grid;
        mnuFlipGrid();
        mnuMirrorGrid();
        const GridTable reflected = Grid;
        const Texts chain = Chain();
        Grid = first;
        SetChain();
        mnuRotateGrid90Left();
        mnuRotateGrid90Left();
        EXPECT_EQ(Grid, reflected);
        EXPECT_EQ(Chain(), chain);
    }
}

TEST_F(Transforms, ChainGoesWithItsCells)
{
    const std::array<Texts, 4> expected{{{"2,9", "9,6", "8,4", "0,0"},
                                         {"8,1", "1,4", "2,6", "0,0"},
                                         {"9,2", "6,9", "4,8", "0,0"},
                                         {"1,8", "4,1", "6,2", "0,0"}}};
    for (std::size_t k = 0; k < Commands.size(); ++k) {
        SetChain();
        Grid = {};
        Grid[1][2] = BitTable[3];
        Commands[k]();
        EXPECT_EQ(Chain(), expected[k]) << k;
        EXPECT_EQ(ChainColumns[0], 3);
        EXPECT_EQ(ChainRows[0], -7) << "the number of the chain is no row";
        EXPECT_EQ(
            Grid[static_cast<std::size_t>(ChainColumns[1])][static_cast<std::size_t>(ChainRows[1])],
            BitTable[3]);
    }
}

TEST_F(Transforms, LeftoversOfTheTechniquesAreNoChain)
{
    SetChain();
    ChainColumns[0] = 0;
    const auto columns = ChainColumns;
    const auto rows = ChainRows;
    for (const Command command : Commands) {
        command();
        EXPECT_EQ(ChainColumns, columns);
        EXPECT_EQ(ChainRows, rows);
    }
}

TEST_F(Transforms, SolvedGridStaysSolvedWithoutANewWin)
{
    for (const Command command : Commands) {
        SetGivens(EasySolution);
        GameRating = 5;
        command();
        EXPECT_NE(IsGridSolved(), False);
        EXPECT_EQ(WinDisplayRunning, False);
        EXPECT_EQ(StatsCounted, False);
    }
}

TEST_F(Transforms, EachIsOneUndoLevelAndAsksNothing)
{
    for (const Command command : Commands) {
        StartSavedGame(EasyGame);
        History[SnapshotSlot] = Grid;
        const GridTable before = Grid;
        GivenCount = 77;
        GameRating = 6;
        command();
        EXPECT_EQ(Acts(), Texts{"board: "});
        EXPECT_EQ(HistoryCount, 2);
        EXPECT_EQ(HistoryPosition, 1);
        EXPECT_EQ(Level(1), Grid);
        EXPECT_TRUE(SameCells(Level(2), before, LastingFields));
        EXPECT_EQ(GameModified, True);
        EXPECT_EQ(GivenCount, 77) << "nothing is counted";
        EXPECT_EQ(GameRating, 6) << "nothing is rated";
        EXPECT_TRUE(SameCells(Level(StartSlot), before, LastingFields))
            << "a restart keeps its orientation";
        EXPECT_TRUE(SameCells(Level(SnapshotSlot), before));
    }
}

TEST_F(Transforms, WorkWhileTheClockStandsAndLeaveItSo)
{
    for (const Command command : Commands) {
        StartSavedGame(EasyGame);
        SolveSeconds = 75;
        mnuPauseTime();
        const std::string caption = TimeCaption;
        const GridTable before = Grid;
        command();
        EXPECT_FALSE(SameCells(Grid, before, LastingFields));
        EXPECT_TRUE(IsPaused());
        EXPECT_EQ(ClockRunning, False);
        EXPECT_EQ(SolveSeconds, 75);
        EXPECT_EQ(TimeCaption, caption);
    }
}

TEST_F(Transforms, UndoBringsTheOldOrientationBack)
{
    StartSavedGame(EasyGame);
    const GridTable before = Grid;
    mnuRotateGrid90Left();
    EXPECT_FALSE(SameCells(Grid, before, LastingFields));
    Undo();
    EXPECT_TRUE(SameCells(Grid, before, LastingFields));
}

} // namespace
} // namespace kelvarine::testing
