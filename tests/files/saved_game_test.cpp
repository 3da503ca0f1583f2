#include "commands/restart.h"
#include "files/game_file.h"
#include "files/game_file_fixture.h"
#include "game/clock.h"
#include "game/lifecycle.h"
#include "game/undo.h"
#include "game/win_display.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace kelvarine::testing {
namespace {

// ---- What a game keeps ---------------------------------------------------------------------

void Play(Cell cell, int number)
{
    WordAt(cell) = BitOf(number);
    PushUndoState();
    ScanAndTestWin();
}

TEST_F(GameFile, ReloadedGameGoesOnWhereItWasLeft)
{
    StartSavedGame(EasyGame);
    Play({3, 1}, 4);
    Play({4, 1}, 6);
    mnuTakeSnapshot();
    Play({6, 1}, 8);
    Undo();
    Undo();
    SolveSeconds = 754;
    const GridTable grid = Grid;
    const std::string file = Written();
    EXPECT_EQ(GameModified, False);
    Redo();
    const GridTable redone = Grid;

    Restart();
    ASSERT_TRUE(Open(file));
    EXPECT_EQ(Grid, grid);
    EXPECT_EQ(HistoryPosition, 3);
    EXPECT_EQ(HistoryCount, 4);
    EXPECT_EQ(SolveSeconds, 754);
    EXPECT_NE(SnapshotAvailable, False);
    Redo();
    EXPECT_EQ(Grid, redone);
    Undo();
    Undo();
    EXPECT_EQ(HistoryPosition, 4);
    mnuUseSnapshot();
    EXPECT_EQ(CountCandidates(4, 1), 1);
    Seen.YesNoAnswers = {true};
    mnuRestartSameGame();
    EXPECT_EQ(CountCandidates(3, 1), 9);
}

TEST_F(GameFile, LoadedHistoryReplacesThatOfAModifiedGame)
{
    StartSavedGame(EasyGame);
    Play({3, 1}, 4);
    const std::string file = Written();
    Play({4, 1}, 6);
    Play({6, 1}, 8);
    ASSERT_EQ(GameModified, True);
    ASSERT_TRUE(Open(file));
    EXPECT_EQ(HistoryCount, 2);
    EXPECT_EQ(HistoryPosition, 1);
}

TEST_F(GameFile, RunningStateOfTheClockIsNotTouched)
{
    StartSavedGame(EasyGame);
    const std::string file = Written();
    mnuPauseTime();
    ASSERT_TRUE(Open(file));
    EXPECT_TRUE(IsPaused());
    EXPECT_EQ(ClockRunning, False);
}

TEST_F(GameFile, SolvedGameStartsTheWinDisplay)
{
    SetGivens(EasySolution);
    std::string file = BareFile();
    for (const Cell cell : Cells) {
        PutWord(file, 4U + cell.Column, cell.Row, WordAt(cell));
    }
    Restart();
    ASSERT_TRUE(Open(file));
    EXPECT_NE(WinDisplayRunning, False);
    EXPECT_EQ(GameRating, 5);
    EXPECT_EQ(StatsCounted, True);
}

TEST_F(GameFile, CountedGameIsNotCountedAgain)
{
    StartSavedGame(EasyGame);
    StatsCounted = True;
    const std::string file = Written();
    Restart();
    ASSERT_TRUE(Open(file));
    EXPECT_EQ(StatsCounted, True);
}

// ---- The name decides what is written ------------------------------------------------------

TEST_F(GameFile, WithoutAPathNothingIsWritten)
{
    GameModified = True;
    EXPECT_FALSE(WriteGameFile());
    EXPECT_EQ(GameModified, True);
    EXPECT_TRUE(Seen.Messages.empty());
}

TEST_F(GameFile, EndingDecidesAndRespectsCapitals)
{
    StartSavedGame(EasyGame);
    for (const std::string_view name : {"game.TXT", "game.Txt", "gametxt", "txt", "game.txt.sdk"}) {
        EXPECT_EQ(Written(std::string(name)).size(), 41360U) << name;
    }
    for (const std::string_view name : {"game.txt", ".txt", "game.sdk.txt"}) {
        EXPECT_EQ(Written(std::string(name)).substr(0, 2), "+-") << name;
    }
}

TEST_F(GameFile, SavingAsTextLeavesTheGameModified)
{
    StartSavedGame(EasyGame);
    GameModified = True;
    Written("game.txt");
    EXPECT_EQ(GameModified, True);
    Written("game.sdk");
    EXPECT_EQ(GameModified, False);
}

TEST_F(GameFile, ContentsDecideWhatIsRead)
{
    StartSavedGame(EasyGame);
    const std::string game = Written("game.sdk");
    const std::string text = Written("game.txt");
    HistoryCount = 0;
    ASSERT_TRUE(Open(game, "any.txt"));
    EXPECT_EQ(HistoryCount, 1);
    SolveSeconds = 5;
    ASSERT_TRUE(Open(text, "any.sdk"));
    EXPECT_EQ(SolveSeconds, 5);
}

TEST_F(GameFile, WhatIsNoFileIsNoGame)
{
    StartSavedGame(EasyGame);
    const std::string before = ProgramState();
    ASSERT_EQ(::mkfifo(Folder.Path("pipe").c_str(), 0600), 0);
    for (const std::string &path :
         {std::string(), Folder.Path("missing"), Folder.Path(), Folder.Path("pipe"),
          std::string("/dev/zero"), std::string("/dev/tty")}) {
        EXPECT_FALSE(ReadGameFile(path)) << path;
    }
    EXPECT_EQ(ProgramState(), before);
}

} // namespace
} // namespace kelvarine::testing
