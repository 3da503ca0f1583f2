#include "game/clock.h"

#include "grid/digits.h"
#include "grid/grid.h"
#include "grid/rounding.h"
#include "outside/board.h"
#include "outside/messages.h"
#include "outside/timers.h"
#include "outside/window.h"

#include <algorithm>
#include <cmath>

namespace kelvarine {

double SolveSeconds;
Flag ClockRunning;
std::string TimeCaption;
std::string PauseCaption;

namespace {

constexpr std::string_view PauseWord = "Pause";
constexpr std::string_view ResumeWord = "Resume";
constexpr std::string_view PausedPrefix = "Paused";
constexpr std::string_view SolvedPrefix = "Solved at ";

void RunClock(bool on)
{
    ClockRunning = FlagOf(on);
    SetClockTimer(on);
}

// A file may hold any number. What no game lasts is brought down to what whole numbers can count.
double Countable(double seconds)
{
    constexpr double most = 1e15;
    return std::isnan(seconds) ? 0 : std::clamp(seconds, -most, most);
}

} // namespace

void SetClockDefaults()
{
    SolveSeconds = 0;
    ClockRunning = False;
    TimeCaption = "&Time";
    PauseCaption = PauseWord;
}

bool IsPaused()
{
    return PauseCaption == ResumeWord;
}

void ResetSolveTime()
{
    SolveSeconds = 0;
    RunClock(true);
    PauseCaption = PauseWord;
    UpdateCaptions();
}

void StopClockAtWin()
{
    if (ClockRunning != False) {
        RunClock(false);
        TimeCaption.insert(0, SolvedPrefix);
        UpdateCaptions();
    }
}

void ShowTimeOfGame()
{
    TimeCaption = TimeText(SolveSeconds);
    if (ClockRunning == False) {
        TimeCaption.insert(0, SolvedPrefix);
    }
    UpdateCaptions();
}

void ClockTick()
{
    SolveSeconds += 1;
    TimeCaption = TimeText(SolveSeconds);
    UpdateCaptions();
}

std::string TimeText(double solveSeconds)
{
    const double seconds = Countable(solveSeconds);
    const auto hours = static_cast<long>(seconds / 3600);
    const double rest = seconds - static_cast<double>(hours) * 3600;
    const auto minutes = static_cast<long>(rest / 60);
    const auto left = static_cast<long>(RoundHalfEven(rest - static_cast<double>(minutes) * 60));
    if (hours < 1) {
        return std::to_string(minutes) + ":" + TwoDigits(left) + " ";
    }
    return std::to_string(hours) + ":" + TwoDigits(minutes) + ":" + TwoDigits(left) + " ";
}

void mnuPauseTime()
{
    if (ClockRunning == False && IsGridSolved() != False) {
        ShowMessage("Can't pause timer on a solved sudoku.");
        return;
    }
    RunClock(ClockRunning == False);
    if (ClockRunning != False) {
        PauseCaption = PauseWord;
    } else {
        PauseCaption = ResumeWord;
        if (!TimeCaption.starts_with(PausedPrefix)) {
            TimeCaption.insert(0, "Paused at ");
        }
    }
    UpdateCaptions();
    DrawBoard();
}

void mnuResetTime()
{
    if (IsGridSolved() != False) {
        ShowMessage("Can't reset time on a solved sudoku.");
        return;
    }
    ResetSolveTime();
}

} // namespace kelvarine
