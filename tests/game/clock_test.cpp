#include "game/clock.h"
#include "game/lifecycle.h"
#include "game/undo.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

class Clock : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

TEST_F(Clock, TimeReadsAsMinutesAndSecondsBelowAnHour)
{
    EXPECT_EQ(TimeText(0), "0:00 ");
    EXPECT_EQ(TimeText(5), "0:05 ");
    EXPECT_EQ(TimeText(10), "0:10 ");
    EXPECT_EQ(TimeText(59), "0:59 ");
    EXPECT_EQ(TimeText(60), "1:00 ");
    EXPECT_EQ(TimeText(754), "12:34 ");
    EXPECT_EQ(TimeText(3599), "59:59 ");
}

TEST_F(Clock, TimeReadsWithHoursPastTheHour)
{
    EXPECT_EQ(TimeText(3600), "1:00:00 ");
    EXPECT_EQ(TimeText(3723), "1:02:03 ");
    EXPECT_EQ(TimeText(7199), "1:59:59 ");
    EXPECT_EQ(TimeText(36610), "10:10:10 ");
    EXPECT_EQ(TimeText(360001), "100:00:01 ");
}

TEST_F(Clock, SecondsAreRoundedAndNotCarried)
{
    EXPECT_EQ(TimeText(4.4), "0:04 ");
    EXPECT_EQ(TimeText(4.5), "0:04 ");
    EXPECT_EQ(TimeText(5.5), "0:06 ");
    EXPECT_EQ(TimeText(59.6), "0:60 ");
}

TEST_F(Clock, TimesThatNoGameLastsAreHarmless)
{
    constexpr double endless = std::numeric_limits<double>::infinity();
    EXPECT_EQ(TimeText(std::nan("")), "0:00 ");
    EXPECT_EQ(TimeText(endless), "277777777777:46:40 ");
    EXPECT_EQ(TimeText(1e300), "277777777777:46:40 ");
    EXPECT_FALSE(TimeText(-endless).empty());
    EXPECT_FALSE(TimeText(-1e300).empty());
    EXPECT_FALSE(TimeText(-0.6).empty());
}

TEST_F(Clock, TickAddsASecondAndRenewsTheCaption)
{
    SolveSeconds = 58;
    ClockTick();
    EXPECT_EQ(SolveSeconds, 59);
    EXPECT_EQ(TimeCaption, "0:59 ");
    EXPECT_EQ(Seen.Calls, Texts{"captions: "});
    ClockTick();
    EXPECT_EQ(TimeCaption, "1:00 ");
}

TEST_F(Clock, TicksCountAcrossMidnightAndThroughASearch)
{
    SearchActive = True;
    Seen.Now = 86399.9;
    ClockTick();
    Seen.Now = 0.9;
    ClockTick();
    EXPECT_EQ(SolveSeconds, 2);
    EXPECT_EQ(TimeCaption, "0:02 ");
}

TEST_F(Clock, ResetStartsTheClockAndLeavesTheCaptionToTheNextTick)
{
    SolveSeconds = 83;
    TimeCaption = "Paused at 1:23 ";
    PauseCaption = "Resume";
    ResetSolveTime();
    EXPECT_EQ(SolveSeconds, 0);
    EXPECT_EQ(ClockRunning, True);
    EXPECT_TRUE(Seen.ClockTimerOn);
    EXPECT_EQ(PauseCaption, "Pause");
    EXPECT_FALSE(IsPaused());
    EXPECT_EQ(TimeCaption, "Paused at 1:23 ");
    EXPECT_EQ(Seen.Calls, Texts{"captions: "});
    ClockTick();
    EXPECT_EQ(TimeCaption, "0:01 ");
}

TEST_F(Clock, CaptionsOfTheStart)
{
    EXPECT_EQ(TimeCaption, "&Time");
    EXPECT_EQ(PauseCaption, "Pause");
    EXPECT_EQ(ClockRunning, False);
}

TEST_F(Clock, PauseStopsTheClockAndHidesTheNumbers)
{
    ResetSolveTime();
    TimeCaption = "0:05 ";
    Seen.Calls.clear();
    mnuPauseTime();
    EXPECT_EQ(ClockRunning, False);
    EXPECT_FALSE(Seen.ClockTimerOn);
    EXPECT_EQ(PauseCaption, "Resume");
    EXPECT_TRUE(IsPaused());
    EXPECT_EQ(TimeCaption, "Paused at 0:05 ");
    EXPECT_EQ(Seen.Calls, (Texts{"captions: ", "board: "}));
}

TEST_F(Clock, ResumeRunsOnAndTheNextTickRenewsTheCaption)
{
    ResetSolveTime();
    SolveSeconds = 5;
    TimeCaption = "0:05 ";
    mnuPauseTime();
    Seen.Calls.clear();
    mnuPauseTime();
    EXPECT_EQ(ClockRunning, True);
    EXPECT_TRUE(Seen.ClockTimerOn);
    EXPECT_EQ(PauseCaption, "Pause");
    EXPECT_EQ(TimeCaption, "Paused at 0:05 ");
    EXPECT_EQ(Seen.Calls, (Texts{"captions: ", "board: "}));
    ClockTick();
    EXPECT_EQ(TimeCaption, "0:06 ");
}

TEST_F(Clock, PausedIsWrittenOnceInFrontOfTheTime)
{
    ResetSolveTime();
    TimeCaption = "0:05 ";
    mnuPauseTime();
    mnuPauseTime();
    mnuPauseTime();
    EXPECT_EQ(TimeCaption, "Paused at 0:05 ");
}

TEST_F(Clock, SolvedSudokuCannotBePaused)
{
    SetGivens(EasySolution);
    StartGame(0);
    ForgetRecord();
    const std::string before = ProgramState();
    mnuPauseTime();
    EXPECT_EQ(Seen.Calls, Texts{"message: Can't pause timer on a solved sudoku."});
    EXPECT_EQ(Seen.Titles, Texts{"Kelvarine"});
    ForgetRecord();
    EXPECT_EQ(ProgramState(), before);
}

TEST_F(Clock, RunningClockOfASolvedSudokuCanBePaused)
{
    SetGivens(EasySolution);
    ResetSolveTime();
    mnuPauseTime();
    EXPECT_EQ(Seen.Messages, Texts{});
    EXPECT_EQ(ClockRunning, False);
    EXPECT_EQ(PauseCaption, "Resume");
}

TEST_F(Clock, ResetOfASolvedSudokuIsRefused)
{
    SetGivens(EasySolution);
    SolveSeconds = 9;
    const std::string before = ProgramState();
    mnuResetTime();
    EXPECT_EQ(Seen.Calls, Texts{"message: Can't reset time on a solved sudoku."});
    ForgetRecord();
    EXPECT_EQ(ProgramState(), before);
}

TEST_F(Clock, ResetCommandResetsAnUnsolvedGame)
{
    StartSavedGame(EasyGame);
    SolveSeconds = 9;
    mnuPauseTime();
    mnuResetTime();
    EXPECT_EQ(SolveSeconds, 0);
    EXPECT_EQ(ClockRunning, True);
    EXPECT_EQ(PauseCaption, "Pause");
}

TEST_F(Clock, ClockStaysStoppedAfterUndoFromASolvedGrid)
{
    StartSavedGame(EasyGame);
    SetGivens(EasySolution);
    PushUndoState();
    FinishChange();
    EXPECT_EQ(ClockRunning, False);
    Undo();
    EXPECT_EQ(IsGridSolved(), False);
    EXPECT_EQ(ClockRunning, False);
    mnuPauseTime();
    EXPECT_EQ(ClockRunning, True) << "resuming starts it again";
}

} // namespace
} // namespace kelvarine::testing
