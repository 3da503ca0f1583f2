#include "game/clock.h"
#include "game/event_sound.h"
#include "game/lifecycle.h"
#include "game/undo.h"
#include "game/win_display.h"
#include "generator/game_number.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

class Lifecycle : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

// Leftovers of an earlier game in everything that a start may touch.
void LeaveTraces()
{
    ChainColumns[0] = 5;
    AnchorColumn = 1;
    AnchorRow = 2;
    CursorColumn = 3;
    CursorRow = 4;
    NumberFilter = BitTable[3];
    HistoryCount = 40;
    HistoryPosition = 7;
    SnapshotAvailable = True;
    GameFilePath = "games/old.sdk";
    StatsCounted = True;
    SolveSeconds = 99;
    PauseCaption = "Resume";
    TimeCaption = "1:39 ";
    GivenCount = 0;
    GameRating = 0;
    GameModified = False;
    Seen.WindowTitle = "old";
    History[StartSlot][5][5] = BitTable[8];
}

void ExpectFreshSession()
{
    EXPECT_EQ(ChainColumns[0], 0);
    EXPECT_EQ(AnchorColumn, 0);
    EXPECT_EQ(AnchorRow, 0);
    EXPECT_EQ(CursorColumn, 0);
    EXPECT_EQ(CursorRow, 0);
    EXPECT_EQ(NumberFilter, 0x3FEU);
    EXPECT_EQ(GivenCount, 30);
    EXPECT_EQ(GameRating, 1);
    EXPECT_EQ(Grid[3][1] & SolutionMask, BitTable[4] << SolutionShift);
}

// ---- StartGame -----------------------------------------------------------------------------

TEST_F(Lifecycle, NewGameResetsEverything)
{
    LeaveTraces();
    SetGame(EasyGame);
    const GridTable before = Grid;
    StartGame(0);
    ExpectFreshSession();
    EXPECT_EQ(HistoryCount, 1);
    EXPECT_EQ(HistoryPosition, 1);
    EXPECT_EQ(SnapshotAvailable, False);
    EXPECT_EQ(GameFilePath, "");
    EXPECT_EQ(Seen.WindowTitle, "Kelvarine");
    EXPECT_EQ(StatsCounted, False);
    EXPECT_EQ(SolveSeconds, 0);
    EXPECT_EQ(ClockRunning, True);
    EXPECT_TRUE(Seen.ClockTimerOn);
    EXPECT_EQ(PauseCaption, "Pause");
    EXPECT_EQ(TimeCaption, "1:39 ") << "the new time shows at the next tick";
    EXPECT_EQ(Acts(), Texts{"stop sound: "}) << "the caller paints";
    // Both are taken before the rating writes the solution.
    EXPECT_TRUE(SameCells(History[StartSlot], before));
    EXPECT_TRUE(SameCells(Level(1), before));
}

TEST_F(Lifecycle, SameGameKeepsNameStartPositionAndStatisticsFlag)
{
    LeaveTraces();
    const GridTable start = History[StartSlot];
    SetGame(EasyGame);
    StartGame(1);
    ExpectFreshSession();
    EXPECT_EQ(HistoryCount, 1);
    EXPECT_EQ(HistoryPosition, 1);
    EXPECT_EQ(SnapshotAvailable, False);
    EXPECT_EQ(SolveSeconds, 0);
    EXPECT_EQ(ClockRunning, True);
    EXPECT_EQ(PauseCaption, "Pause");
    EXPECT_EQ(GameModified, True);
    EXPECT_EQ(GameFilePath, "games/old.sdk");
    EXPECT_EQ(Seen.WindowTitle, "old");
    EXPECT_EQ(StatsCounted, True);
    EXPECT_TRUE(SameCells(History[StartSlot], start));
}

TEST_F(Lifecycle, GameFromFileTouchesNoHistoryTimeOrName)
{
    LeaveTraces();
    const auto history = History;
    SetGame(EasyGame);
    StartGame(2);
    ExpectFreshSession();
    EXPECT_EQ(HistoryCount, 40);
    EXPECT_EQ(HistoryPosition, 7);
    for (std::size_t slot = 0; slot <= SnapshotSlot; ++slot) {
        EXPECT_EQ(History[slot], history[slot]);
    }
    EXPECT_EQ(SnapshotAvailable, True);
    EXPECT_EQ(SolveSeconds, 99);
    EXPECT_EQ(ClockRunning, False);
    EXPECT_FALSE(Seen.ClockTimerOn);
    EXPECT_EQ(PauseCaption, "Resume");
    EXPECT_EQ(GameModified, False);
    EXPECT_EQ(GameFilePath, "games/old.sdk");
    EXPECT_EQ(Seen.WindowTitle, "old");
    EXPECT_EQ(StatsCounted, True);
    EXPECT_EQ(Acts(), Texts{"stop sound: "});
}

TEST_F(Lifecycle, FreshlyStartedGameCountsAsModified)
{
    SetGame(EasyGame);
    StartGame(0);
    EXPECT_EQ(GameModified, True);
}

TEST_F(Lifecycle, EveryStartScansForAlerts)
{
    for (const std::int32_t mode : {0, 1, 2}) {
        Restart();
        AlertMask = 0x6;
        SetGivens("55.......");
        Grid[9][9] |= AlertBit;
        StartGame(mode);
        EXPECT_EQ(CellsWith(AlertBit), "A1 B1");
        EXPECT_EQ(GameRating, 7);
    }
}

TEST_F(Lifecycle, FullGridReadFromAFileRunsTheDisplayAndIsRecorded)
{
    SetGivens(EasySolution);
    StartGame(2);
    EXPECT_EQ(GameRating, 5);
    EXPECT_EQ(WinDisplayRunning, True);
    EXPECT_TRUE(Seen.WinTimerOn);
    EXPECT_EQ(WinStage, 7);
    EXPECT_EQ(StatsCounted, True);
}

TEST_F(Lifecycle, SolvedNewGameStopsTheClockThatItsStartSetRunning)
{
    TimeCaption = "0:07 ";
    SetGivens(EasySolution);
    StartGame(0);
    EXPECT_EQ(ClockRunning, False);
    EXPECT_FALSE(Seen.ClockTimerOn);
    EXPECT_EQ(TimeCaption, "Solved at 0:07 ");
    EXPECT_EQ(StatsCounted, True);
}

TEST_F(Lifecycle, UnsolvedStartLeavesTheDisplayOff)
{
    SetGame(EasyGame);
    StartGame(0);
    EXPECT_EQ(WinDisplayRunning, False);
    EXPECT_EQ(StatsCounted, False);
}

// ---- UpdateStatistics ----------------------------------------------------------------------

TEST_F(Lifecycle, WinClearsMarksAndKeepsNumbersGivensAndSolutions)
{
    for (const Cell cell : Cells) {
        WordAt(cell) = 0xFFFFFFFF;
    }
    NumberFilter = BitTable[4];
    UpdateStatistics();
    for (const Cell cell : Cells) {
        EXPECT_EQ(WordAt(cell), 0x008FFBFFU);
    }
    EXPECT_EQ(NumberFilter, 0x3FEU);
    EXPECT_EQ(WinStage, 7);
    EXPECT_EQ(WinDisplayRunning, True);
    EXPECT_TRUE(Seen.WinTimerOn);
}

TEST_F(Lifecycle, WinTunePlaysOnAtTheWinVolume)
{
    WinFiles = {"", "first.win", "second.win"};
    WinSound = 2;
    SoundVolumes = {0x1000, 0x2000, 0x3000, 0x4000};
    UpdateStatistics();
    EXPECT_EQ(Acts(), Texts{"sound loop: second.win"});
    EXPECT_EQ(Seen.SoundVolume, 0x40004000U);
}

TEST_F(Lifecycle, NoTuneWithoutASelectedFile)
{
    WinFiles = {"", "first.win", ""};
    for (const std::int32_t index : {0, 2, 3, -1, 2147483647}) {
        WinSound = index;
        UpdateStatistics();
    }
    EXPECT_EQ(Acts(), Texts{});
    WinSound = 1;
    SoundDisabled = True;
    UpdateStatistics();
    EXPECT_EQ(Acts(), Texts{});
}

TEST_F(Lifecycle, GameFromAFileBringsTheCaptionsOfItsClock)
{
    Seen.Calls.clear();
    StartGame(GameFromFile);
    EXPECT_EQ(std::ranges::count(Seen.Calls, "captions: "), 1);
}

TEST_F(Lifecycle, WinStopsTheRunningClock)
{
    ResetSolveTime();
    TimeCaption = "12:34 ";
    UpdateStatistics();
    EXPECT_EQ(ClockRunning, False);
    EXPECT_FALSE(Seen.ClockTimerOn);
    EXPECT_EQ(TimeCaption, "Solved at 12:34 ");
    EXPECT_EQ(Seen.Calls.back(), "captions: ");
    UpdateStatistics();
    EXPECT_EQ(TimeCaption, "Solved at 12:34 ");
}

TEST_F(Lifecycle, PausedClockKeepsItsCaptionAtAWin)
{
    TimeCaption = "Paused at 0:05 ";
    UpdateStatistics();
    EXPECT_EQ(TimeCaption, "Paused at 0:05 ");
}

TEST_F(Lifecycle, OnlyRatedGamesCount)
{
    for (std::int32_t rating = 0; rating <= 7; ++rating) {
        StatsCounted = False;
        GameRating = rating;
        UpdateStatistics();
        EXPECT_EQ(StatsCounted, rating >= 1 && rating <= 5 ? True : False) << rating;
    }
}

TEST_F(Lifecycle, GameThatCountedBeforeItWasSavedStaysCounted)
{
    SetGivens(EasySolution);
    StatsCounted = True;
    StartGame(2);
    EXPECT_EQ(StatsCounted, True);
    EXPECT_EQ(WinDisplayRunning, True);
}

// ---- What follows a change -----------------------------------------------------------------

TEST_F(Lifecycle, ChangeIsFollowedByScanWinTestBoardAndWindow)
{
    SetGivens(EasySolution);
    WinFiles = {"", "tune.win"};
    WinSound = 1;
    FinishChange();
    EXPECT_EQ(Acts(), (Texts{"sound loop: tune.win", "board: ", "refresh: "}));

    Restart();
    SetGivens("55.......");
    AlertMask = 0x2;
    AlertFiles = {"", "clash.alr"};
    AlertSound = 1;
    FinishChange();
    EXPECT_EQ(Acts(), (Texts{"sound: clash.alr", "board: ", "refresh: "}));
    EXPECT_EQ(WinDisplayRunning, False);
}

TEST_F(Lifecycle, ScanAndTestWinPaintsNothing)
{
    SetGivens(EasySolution);
    ScanAndTestWin();
    EXPECT_EQ(WinDisplayRunning, True);
    EXPECT_EQ(Acts(), Texts{});
}

} // namespace
} // namespace kelvarine::testing
