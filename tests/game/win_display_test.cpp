#include "game/lifecycle.h"
#include "game/search.h"
#include "game/undo.h"
#include "game/win_display.h"
#include "grid/colour.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "grid/rounding.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <set>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;
using Entries = std::array<Colour, 10>;

constexpr unsigned Seed = 20250;
constexpr Colour White = 0xFFFFFF;

// Nine different colours that the display never makes.
constexpr Entries Marks{0, 1, 2, 3, 4, 5, 6, 7, 8, 9};

// The colours that the platform's random function gives from the seed on.
std::vector<Colour> RandomColours(std::size_t count)
{
    std::srand(Seed);
    std::vector<Colour> colours;
    for (std::size_t k = 0; k < count; ++k) {
        const double fraction = std::rand() / (RAND_MAX + 1.0);
        colours.push_back(StandardColours[static_cast<std::size_t>(std::lrint(fraction * 14 + 1))]);
    }
    std::srand(Seed);
    return colours;
}

class WinDisplay : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        Seen.Now = 1000;
        WinColours = Marks;
        WinDisplayRunning = True;
    }

    // Three seconds on: the next tick begins a new stage.
    static void PassStage()
    {
        Seen.Now += 3;
    }
};

// ---- Stages --------------------------------------------------------------------------------

TEST_F(WinDisplay, StartsBeforeTheFirstStage)
{
    StartWinDisplay();
    EXPECT_EQ(WinStage, 7);
    EXPECT_EQ(WinDisplayRunning, True);
    EXPECT_TRUE(Seen.WinTimerOn);
    EXPECT_EQ(Seen.WinInterval, 40);
    WinDisplayTick();
    EXPECT_EQ(WinStage, 0);
    EXPECT_EQ(Seen.WinInterval, 40);
}

TEST_F(WinDisplay, StageEndsWhenMoreThanTwoWholeSecondsHavePassed)
{
    StartWinDisplay();
    Seen.Now = 1000.9;
    WinDisplayTick();
    Seen.Now = 1002.99;
    WinDisplayTick();
    EXPECT_EQ(WinStage, 0);
    Seen.Now = 1003;
    WinDisplayTick();
    EXPECT_EQ(WinStage, 1);
}

TEST_F(WinDisplay, NextStageTakesItsStartAtItsSecondTick)
{
    StartWinDisplay();
    WinDisplayTick();
    Seen.Now = 1003;
    WinDisplayTick();
    EXPECT_EQ(WinStage, 1);
    Seen.Now = 1005;
    WinDisplayTick();
    Seen.Now = 1007.5;
    WinDisplayTick();
    EXPECT_EQ(WinStage, 1);
    Seen.Now = 1008;
    WinDisplayTick();
    EXPECT_EQ(WinStage, 2);
}

TEST_F(WinDisplay, RunsThroughSevenStagesAndBeginsAgain)
{
    StartWinDisplay();
    WinDisplayTick();
    for (const std::int32_t stage : {1, 2, 3, 4, 5, 6, 0, 1}) {
        PassStage();
        WinDisplayTick();
        EXPECT_EQ(WinStage, stage);
        EXPECT_EQ(Seen.WinInterval, stage == 0 ? 40 : 100);
        WinDisplayTick();
    }
}

TEST_F(WinDisplay, StageEndsAcrossMidnight)
{
    WinStage = 2;
    Seen.Now = 86398.2;
    WinDisplayTick();
    Seen.Now = 0.9;
    WinDisplayTick();
    EXPECT_EQ(WinStage, 2);
    Seen.Now = 1.0;
    WinDisplayTick();
    EXPECT_EQ(WinStage, 3);
}

TEST_F(WinDisplay, StageThatBeginsAtMidnightTakesTheFirstSecondAfterIt)
{
    WinStage = 2;
    Seen.Now = 0.5;
    WinDisplayTick();
    Seen.Now = 1.5;
    WinDisplayTick();
    Seen.Now = 3.5;
    WinDisplayTick();
    EXPECT_EQ(WinStage, 2);
    Seen.Now = 4;
    WinDisplayTick();
    EXPECT_EQ(WinStage, 3);
}

TEST_F(WinDisplay, EveryTickPaintsAndTakesTheChainOffTheBoard)
{
    for (std::int32_t stage = 0; stage <= 6; ++stage) {
        WinStage = stage;
        ChainColumns[0] = 4;
        ForgetRecord();
        WinDisplayTick();
        EXPECT_EQ(ChainColumns[0], 0);
        EXPECT_EQ(Seen.Calls, Texts{"board: "});
        EXPECT_TRUE(Seen.WinTimerOn);
    }
}

TEST_F(WinDisplay, StopEndsTimerAndSoundAndPaints)
{
    StartWinDisplay();
    StopWinDisplay();
    EXPECT_EQ(WinDisplayRunning, False);
    EXPECT_FALSE(Seen.WinTimerOn);
    EXPECT_EQ(Seen.Calls, (Texts{"stop sound: ", "board: "}));
    StopWinDisplay();
    EXPECT_EQ(Seen.Calls.size(), 2U) << "a display that is off is left alone";
}

TEST_F(WinDisplay, TimerTakesItsLatestIntervalUpAgain)
{
    WinStage = 3;
    WinDisplayTick();
    StopWinDisplay();
    StartWinDisplay();
    EXPECT_EQ(Seen.WinInterval, 100);
    WinDisplayTick();
    EXPECT_EQ(WinStage, 0);
    EXPECT_EQ(Seen.WinInterval, 40);
}

// ---- Colours -------------------------------------------------------------------------------

TEST_F(WinDisplay, StandardColoursAreThoseOfTheConsole)
{
    const std::array<Colour, 16> expected{
        0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080, 0x808000, 0xC0C0C0,
        0x808080, 0x0000FF, 0x00FF00, 0x00FFFF, 0xFF0000, 0xFF00FF, 0xFFFF00, 0xFFFFFF};
    EXPECT_EQ(StandardColours, expected);
}

TEST_F(WinDisplay, StageZeroChangesNoColour)
{
    WinStage = 0;
    WinDisplayTick();
    EXPECT_EQ(WinColours, Marks);
    EXPECT_EQ(WinColoursSet, False);
}

TEST_F(WinDisplay, StageOneMovesDownWithThreeWhitesAndARandomColour)
{
    WinStage = 1;
    const std::vector<Colour> random = RandomColours(2);
    WinDisplayTick();
    EXPECT_EQ(WinColours, (Entries{0, 2, 3, 4, 5, White, 6, 7, 8, 9}));
    WinDisplayTick();
    EXPECT_EQ(WinColours, (Entries{0, 3, 4, 5, White, White, 6, 7, 8, 9}));
    WinDisplayTick();
    EXPECT_EQ(WinColours, (Entries{0, 4, 5, White, White, White, 6, 7, 8, 9}));
    WinDisplayTick();
    EXPECT_EQ(WinColours, (Entries{0, 5, White, White, White, random[0], 6, 7, 8, 9}));
    WinDisplayTick();
    WinDisplayTick();
    WinDisplayTick();
    EXPECT_EQ(WinColours, (Entries{0, White, random[0], White, White, White, 6, 7, 8, 9}));
    WinDisplayTick();
    EXPECT_EQ(WinColours[5], random[1]);
    EXPECT_EQ(WinColoursSet, True);
}

TEST_F(WinDisplay, StagesTwoAndFourMoveAllNineUp)
{
    for (const std::int32_t stage : {2, 4}) {
        WinColours = Marks;
        WinStage = stage;
        const std::vector<Colour> random = RandomColours(2);
        WinDisplayTick();
        EXPECT_EQ(WinColours, (Entries{0, random[0], 1, 2, 3, 4, 5, 6, 7, 8}));
        WinDisplayTick();
        EXPECT_EQ(WinColours, (Entries{0, random[1], random[0], 1, 2, 3, 4, 5, 6, 7}));
    }
}

TEST_F(WinDisplay, StageThreeMovesTheFirstFiveUp)
{
    WinStage = 3;
    const std::vector<Colour> random = RandomColours(2);
    WinDisplayTick();
    EXPECT_EQ(WinColours, (Entries{0, random[0], 1, 2, 3, 4, 6, 7, 8, 9}));
    WinDisplayTick();
    EXPECT_EQ(WinColours, (Entries{0, random[1], random[0], 1, 2, 3, 6, 7, 8, 9}));
}

TEST_F(WinDisplay, StageFiveRenewsTwoColoursAndSwapsThemThreeTimes)
{
    WinStage = 5;
    const std::vector<Colour> random = RandomColours(4);
    WinDisplayTick();
    EXPECT_EQ(WinColours, (Entries{0, random[0], random[1], 3, 4, 5, 6, 7, 8, 9}));
    WinDisplayTick();
    EXPECT_EQ(WinColours, (Entries{0, random[1], random[0], 3, 4, 5, 6, 7, 8, 9}));
    WinDisplayTick();
    EXPECT_EQ(WinColours, (Entries{0, random[0], random[1], 3, 4, 5, 6, 7, 8, 9}));
    WinDisplayTick();
    EXPECT_EQ(WinColours, (Entries{0, random[1], random[0], 3, 4, 5, 6, 7, 8, 9}));
    WinDisplayTick();
    EXPECT_EQ(WinColours, (Entries{0, random[2], random[3], 3, 4, 5, 6, 7, 8, 9}));
}

TEST_F(WinDisplay, StageSixRenewsAllNine)
{
    WinStage = 6;
    const std::vector<Colour> random = RandomColours(9);
    WinDisplayTick();
    Entries expected{};
    std::copy(random.begin(), random.end(), expected.begin() + 1);
    EXPECT_EQ(WinColours, expected);
    EXPECT_EQ(WinColoursSet, True);
}

TEST_F(WinDisplay, NewStageBeginsItsTurnsAnew)
{
    WinStage = 1;
    WinDisplayTick();
    WinDisplayTick();
    PassStage();
    WinDisplayTick();
    EXPECT_EQ(WinStage, 2);
    WinStage = 1;
    WinColours = Marks;
    for (int turn = 0; turn < 3; ++turn) {
        WinDisplayTick();
        EXPECT_EQ(WinColours[5], White);
    }
    const std::vector<Colour> random = RandomColours(1);
    WinDisplayTick();
    EXPECT_EQ(WinColours[5], random[0]);
}

TEST_F(WinDisplay, RandomColoursAreTheFifteenThatAreNotBlack)
{
    std::srand(Seed);
    std::set<Colour> colours;
    WinStage = 6;
    for (int turn = 0; turn < 500; ++turn) {
        WinDisplayTick();
        colours.insert(WinColours.begin() + 1, WinColours.end());
    }
    EXPECT_EQ(colours, std::set<Colour>(StandardColours.begin() + 1, StandardColours.end()));
}

TEST_F(WinDisplay, RandomFractionStaysBelowOne)
{
    std::srand(Seed);
    for (int turn = 0; turn < 10000; ++turn) {
        const double fraction = RandomFraction();
        ASSERT_GE(fraction, 0.0);
        ASSERT_LT(fraction, 1.0);
    }
}

// ---- With a game ---------------------------------------------------------------------------

TEST_F(WinDisplay, UndoAfterAWinLeavesTheDisplayOn)
{
    StopWinDisplay();
    StartSavedGame(EasyGame);
    SetGivens(EasySolution);
    PushUndoState();
    FinishChange();
    Undo();
    EXPECT_EQ(IsGridSolved(), False);
    EXPECT_EQ(WinDisplayRunning, True);
    EXPECT_TRUE(ReadyForCommand());
    EXPECT_EQ(WinDisplayRunning, False);
}

TEST_F(WinDisplay, NewGameLeavesTheDisplayToTheNextKeyOrClick)
{
    SetGame(EasyGame);
    StartGame(0);
    EXPECT_EQ(WinDisplayRunning, True);
}

} // namespace
} // namespace kelvarine::testing
