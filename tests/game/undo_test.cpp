#include "commands/restart.h"
#include "game/event_sound.h"
#include "game/lifecycle.h"
#include "game/undo.h"
#include "game/win_display.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"

#include <gtest/gtest.h>

#include <random>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

constexpr CellWord EachWord = 0xFFFFFFFF;

class HistoryOfMoves : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        StartSavedGame(EasyGame);
    }
};

// A position that carries a number in a colour and in the unused corner, so that it can be told
// from all others.
void ShowPosition(CellWord number)
{
    Grid[3][1] = number << SolutionShift | CandidateMask;
    Grid[0][0] = number;
}

CellWord PositionOnView()
{
    return Grid[0][0];
}

void Play(CellWord first, CellWord last)
{
    for (CellWord number = first; number <= last; ++number) {
        ShowPosition(number);
        PushUndoState();
    }
}

// ---- Pushing -------------------------------------------------------------------------------

TEST_F(HistoryOfMoves, PushKeepsAllHundredWordsAsTheNewestLevel)
{
    for (std::size_t column = 0; column < 10; ++column) {
        for (std::size_t row = 0; row < 10; ++row) {
            Grid[column][row] = EachWord - static_cast<CellWord>(column * 10 + row);
        }
    }
    PushUndoState();
    EXPECT_EQ(Level(1), Grid);
    EXPECT_EQ(HistoryPosition, 1);
    EXPECT_EQ(HistoryCount, 2);
    EXPECT_EQ(GameModified, True);
    EXPECT_EQ(Seen.Calls, Texts{});
}

TEST_F(HistoryOfMoves, StartIsOutOfReachOfUndoAfter150Moves)
{
    Play(1, 150);
    EXPECT_EQ(HistoryCount, 100);
    EXPECT_EQ(HistoryPosition, 1);
    for (CellWord level = 1; level <= 100; ++level) {
        EXPECT_EQ(Level(static_cast<std::int32_t>(level))[0][0], 151 - level);
    }
    for (int step = 0; step < 200; ++step) {
        Undo();
    }
    EXPECT_EQ(HistoryPosition, 100);
    EXPECT_EQ(PositionOnView(), 51U);
    Seen.YesNoAnswers = {true};
    mnuRestartSameGame();
    EXPECT_EQ(Grid[3][1] & LastingFields, CandidateMask);
}

TEST_F(HistoryOfMoves, PushesLeaveTheOtherSlotsAlone)
{
    const GridTable start = History[StartSlot];
    History[SnapshotSlot][1][1] = 77;
    const GridTable snapshot = History[SnapshotSlot];
    Play(1, 150);
    EXPECT_EQ(History[StartSlot], start);
    EXPECT_EQ(History[SnapshotSlot], snapshot);
}

TEST_F(HistoryOfMoves, NewMoveAtPosition50Of100GivesUpTheNewerStates)
{
    Play(1, 150);
    for (int step = 1; step < 50; ++step) {
        Undo();
    }
    ASSERT_EQ(HistoryPosition, 50);
    const CellWord onView = PositionOnView();
    EXPECT_EQ(onView, 101U);
    Play(999, 999);
    EXPECT_EQ(HistoryCount, 52);
    EXPECT_EQ(HistoryPosition, 1);
    EXPECT_EQ(Level(1)[0][0], 999U);
    EXPECT_EQ(Level(2)[0][0], onView);
    EXPECT_EQ(Level(52)[0][0], 51U);
}

TEST_F(HistoryOfMoves, NewMoveAtPosition2DropsTheOneNewerState)
{
    Play(1, 5);
    ASSERT_EQ(HistoryCount, 6);
    Undo();
    ASSERT_EQ(HistoryPosition, 2);
    Play(9, 9);
    EXPECT_EQ(HistoryCount, 6);
    EXPECT_EQ(HistoryPosition, 1);
    EXPECT_EQ(Level(1)[0][0], 9U);
    EXPECT_EQ(Level(2)[0][0], 4U);
    EXPECT_EQ(Level(3)[0][0], 3U);
}

TEST_F(HistoryOfMoves, NewMoveAtTheOldestLevelLeavesTwo)
{
    Play(1, 150);
    for (int step = 0; step < 99; ++step) {
        Undo();
    }
    Play(999, 999);
    EXPECT_EQ(HistoryCount, 2);
    EXPECT_EQ(Level(2)[0][0], 51U);
}

// ---- Undo and redo -------------------------------------------------------------------------

TEST_F(HistoryOfMoves, NothingHappensAtTheEnds)
{
    Play(1, 1);
    Undo();
    ForgetRecord();
    const std::string oldest = ProgramState();
    Undo();
    EXPECT_EQ(ProgramState(), oldest) << "no redraw either";
    Redo();
    ForgetRecord();
    const std::string newest = ProgramState();
    Redo();
    EXPECT_EQ(ProgramState(), newest);
}

TEST_F(HistoryOfMoves, NothingHappensBeforeTheFirstPush)
{
    Restart();
    Undo();
    Redo();
    EXPECT_EQ(HistoryPosition, 0);
    EXPECT_EQ(Seen.Calls, Texts{});
}

TEST_F(HistoryOfMoves, UndoCountsRatesScansAndPaints)
{
    Grid[3][1] = BitTable[5] | GivenBit; // clashes with another given
    PushUndoState();
    AlertMask = 0x6;
    GameModified = False;
    GivenCount = 0;
    GameRating = 0;
    ForgetRecord();
    Undo();
    EXPECT_EQ(GivenCount, 30);
    EXPECT_EQ(GameRating, 1);
    EXPECT_EQ(Grid[1][1] & AlertBit, 0U);
    EXPECT_EQ(Seen.Calls, (Texts{"board: ", "refresh: "}));
    ForgetRecord();
    Redo();
    EXPECT_EQ(GivenCount, 31);
    EXPECT_EQ(GameRating, 7);
    EXPECT_NE(Grid[3][1] & AlertBit, 0U);
    EXPECT_EQ(Seen.Calls, (Texts{"board: ", "refresh: "}));
    EXPECT_EQ(GameModified, False) << "looking at levels is no change";
}

TEST_F(HistoryOfMoves, UndoBringsBackAllHundredWords)
{
    Grid[0][7] = 123;
    Grid[7][0] = 456;
    PushUndoState();
    Play(1, 1);
    Grid[0][7] = 0;
    Grid[7][0] = 0;
    Undo();
    EXPECT_EQ(Grid[0][7], 123U);
    EXPECT_EQ(Grid[7][0], 456U);
}

TEST_F(HistoryOfMoves, RedoOntoASolvedGridStartsTheDisplayAgainAndCountsNothingTwice)
{
    SetGivens(EasySolution);
    PushUndoState();
    FinishChange();
    EXPECT_EQ(StatsCounted, True);
    StopWinDisplay();
    Undo();
    EXPECT_EQ(WinDisplayRunning, False);
    StatsCounted = 1; // no value that the program writes, so that a second writing would show
    ForgetRecord();
    Redo();
    EXPECT_EQ(WinDisplayRunning, True);
    EXPECT_EQ(WinStage, 7);
    EXPECT_EQ(StatsCounted, 1);
    EXPECT_EQ(Seen.Calls, (Texts{"board: ", "refresh: "}));
}

// ---- Snapshot ------------------------------------------------------------------------------

TEST_F(HistoryOfMoves, SnapshotKeepsThe81CellsWithASound)
{
    Play(7, 7);
    ForgetRecord();
    History[SnapshotSlot][0][0] = 55;
    mnuTakeSnapshot();
    EXPECT_TRUE(SameCells(History[SnapshotSlot], Grid));
    EXPECT_EQ(History[SnapshotSlot][0][0], 55U);
    EXPECT_EQ(SnapshotAvailable, True);
    EXPECT_EQ(Seen.Calls, (Texts{"sound: snapshot.wav", "captions: "}));
    EXPECT_EQ(Seen.SoundVolume, 0U) << "no volume of its own";
}

TEST_F(HistoryOfMoves, SnapshotIsSilentWithoutSound)
{
    SoundDisabled = True;
    mnuTakeSnapshot();
    EXPECT_EQ(Acts(), Texts{});
    EXPECT_EQ(SnapshotAvailable, True);
}

TEST_F(HistoryOfMoves, UsedSnapshotIsANewLevelThatCanBeUndone)
{
    mnuTakeSnapshot();
    const GridTable snapshot = Grid;
    Play(1, 3);
    const GridTable before = Grid;
    GivenCount = 0;
    GameRating = 0;
    GameModified = False;
    ForgetRecord();
    mnuUseSnapshot();
    EXPECT_TRUE(SameCells(Grid, snapshot));
    EXPECT_EQ(GivenCount, 30);
    EXPECT_EQ(GameRating, 1);
    EXPECT_EQ(HistoryCount, 5);
    EXPECT_EQ(HistoryPosition, 1);
    EXPECT_EQ(GameModified, True);
    EXPECT_EQ(Acts(), (Texts{"board: ", "refresh: "}));
    Undo();
    EXPECT_TRUE(SameCells(Grid, before, LastingFields));
}

TEST_F(HistoryOfMoves, RatingOfASnapshotIsInTheLevelThatItMakes)
{
    mnuTakeSnapshot();
    for (const Cell cell : Cells) {
        History[SnapshotSlot][cell.Column][cell.Row] &= ~SolutionMask;
    }
    mnuUseSnapshot();
    EXPECT_EQ(Level(1)[3][1] & SolutionMask, BitTable[4] << SolutionShift);
}

TEST_F(HistoryOfMoves, SnapshotSurvivesUndoRedoAndUse)
{
    mnuTakeSnapshot();
    const GridTable snapshot = History[SnapshotSlot];
    Play(1, 3);
    Undo();
    Redo();
    mnuUseSnapshot();
    mnuUseSnapshot();
    EXPECT_EQ(SnapshotAvailable, True);
    EXPECT_EQ(History[SnapshotSlot], snapshot);
}

TEST_F(HistoryOfMoves, SolvedSnapshotIsAWin)
{
    SetGivens(EasySolution);
    mnuTakeSnapshot();
    SetGame(EasyGame);
    mnuUseSnapshot();
    EXPECT_EQ(WinDisplayRunning, True);
}

TEST_F(HistoryOfMoves, SnapshotEndsWithTheGameAndTheSlotKeepsItsWords)
{
    mnuTakeSnapshot();
    const GridTable snapshot = History[SnapshotSlot];
    Seen.YesNoAnswers = {true};
    mnuRestartSameGame();
    EXPECT_EQ(SnapshotAvailable, False);
    EXPECT_EQ(History[SnapshotSlot], snapshot);
    mnuTakeSnapshot();
    StartGame(0);
    EXPECT_EQ(SnapshotAvailable, False);
    mnuTakeSnapshot();
    StartGame(2);
    EXPECT_EQ(SnapshotAvailable, True);
}

// ---- Against a list ------------------------------------------------------------------------

TEST_F(HistoryOfMoves, BehavesAsAListOverThousandsOfRandomSteps)
{
    std::mt19937 random(4711);
    // The states in use, newest first, and which of them is on view.
    std::vector<CellWord> states{0};
    std::size_t onView = 0;
    HistoryCount = 0;
    HistoryPosition = 0;
    PushUndoState();
    // Runs of undo, redo and pushes, so that both ends are reached.
    for (int step = 0; step < 6000; ++step) {
        const auto phase = static_cast<unsigned>(step / 150 % 3);
        const unsigned draw = random() % 10;
        if (draw < 8 ? phase == 0 : draw == 8) {
            const auto number = static_cast<CellWord>(step + 1);
            Play(number, number);
            states.erase(states.begin(), states.begin() + static_cast<long>(onView));
            states.insert(states.begin(), number);
            states.resize(std::min<std::size_t>(states.size(), 100));
            onView = 0;
        } else if (phase == 1 || draw == 9) {
            Undo();
            onView = std::min(onView + 1, states.size() - 1);
        } else {
            Redo();
            onView -= onView > 0 ? 1 : 0;
        }
        ASSERT_EQ(HistoryCount, static_cast<std::int32_t>(states.size())) << step;
        ASSERT_EQ(HistoryPosition, static_cast<std::int32_t>(onView) + 1) << step;
        ASSERT_EQ(PositionOnView(), states[onView]) << step;
        ASSERT_EQ(Level(HistoryCount)[0][0], states.back()) << step;
    }
}

} // namespace
} // namespace kelvarine::testing
