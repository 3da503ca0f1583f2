#include "game/win_display.h"

#include "grid/colour.h"
#include "grid/grid.h"
#include "grid/rounding.h"
#include "outside/board.h"
#include "outside/events.h"
#include "outside/sound.h"
#include "outside/timers.h"

#include <algorithm>
#include <cstdlib>

namespace kelvarine {

std::int32_t WinStage;
std::array<Colour, 10> WinColours{};
Flag WinColoursSet;
Flag WinDisplayRunning;

namespace {

constexpr int FirstStageInterval = 40; // milliseconds
constexpr int OtherStageInterval = 100;
constexpr int StageSeconds = 2;
constexpr int SecondsOfDay = 24 * 60 * 60;
constexpr std::int32_t LastStage = 6;

int interval;     // of the timer; a stopped display keeps it for the next start
int stageStart;   // whole seconds since midnight, 0 when not yet taken
int stageCounter; // of the stages that change in turns

// Seconds from one time of day to a later one, with midnight between them or not.
int SecondsBetween(int start, int now)
{
    return now >= start ? now - start : now - start + SecondsOfDay;
}

Colour RandomColour()
{
    return StandardColours[static_cast<std::size_t>(RoundHalfEven(RandomFraction() * 14 + 1))];
}

// Each of the entries 2..last takes the colour of the one before; the first gets a random one.
void ShiftUp(std::size_t last)
{
    std::shift_right(WinColours.begin() + 1, WinColours.begin() + static_cast<long>(last) + 1, 1);
    WinColours[1] = RandomColour();
}

// Entries 1..4 take the colour of the next; the fifth is white three times, then random.
void ShiftDown()
{
    std::shift_left(WinColours.begin() + 1, WinColours.begin() + 6, 1);
    if (stageCounter < 3) {
        WinColours[5] = StandardColours[15];
        ++stageCounter;
    } else {
        WinColours[5] = RandomColour();
        stageCounter = 0;
    }
}

void SwapOrRenew()
{
    if (stageCounter == 0) {
        WinColours[1] = RandomColour();
        WinColours[2] = RandomColour();
        stageCounter = 3;
    } else {
        std::swap(WinColours[1], WinColours[2]);
        --stageCounter;
    }
}

void ChangeColours()
{
    switch (WinStage) {
    case 1:
        ShiftDown();
        break;
    case 2:
    case 4:
        ShiftUp(9);
        break;
    case 3:
        ShiftUp(5);
        break;
    case 5:
        SwapOrRenew();
        break;
    case LastStage:
        std::generate(WinColours.begin() + 1, WinColours.end(), RandomColour);
        break;
    default:
        return;
    }
    WinColoursSet = True;
}

} // namespace

void SetWinDisplayDefaults()
{
    WinStage = 0;
    WinColours.fill(0);
    WinColoursSet = False;
    WinDisplayRunning = False;
    interval = FirstStageInterval;
    stageStart = 0;
    stageCounter = 0;
}

void StartWinDisplay()
{
    WinStage = LastStage + 1;
    WinDisplayRunning = True;
    SetWinTimer(true, interval);
}

void StopWinDisplay()
{
    if (WinDisplayRunning == False) {
        return;
    }
    WinDisplayRunning = False;
    SetWinTimer(false, 0);
    StopSound();
    DrawBoard();
}

void WinDisplayTick()
{
    const int now = static_cast<int>(SecondsSinceMidnight());
    if (stageStart == 0) {
        stageStart = now;
    }
    if (SecondsBetween(stageStart, now) > StageSeconds) {
        ++WinStage;
        stageStart = 0;
        stageCounter = 0;
    }
    if (WinStage > LastStage) {
        WinStage = 0;
    }
    interval = WinStage == 0 ? FirstStageInterval : OtherStageInterval;
    SetWinTimer(true, interval);
    ChainColumns[0] = 0;
    DrawBoard();
    ChangeColours();
}

double RandomFraction()
{
    return std::rand() / (RAND_MAX + 1.0);
}

} // namespace kelvarine
