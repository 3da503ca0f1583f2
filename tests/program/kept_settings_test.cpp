// What works with masks and limits of its own leaves the player's behind, stopped half way or not.
#include "commands/new_games.h"
#include "commands/print_run.h"
#include "game/assistance.h"
#include "game/logic_report.h"
#include "game/solutions.h"
#include "generator/generator.h"
#include "grid/grid.h"
#include "logic/driver.h"
#include "logic/kept_settings.h"
#include "logic/rating.h"
#include "logic/technique_masks.h"
#include "print/print_settings.h"
#include "support/driver_games.h"
#include "support/outside_double.h"
#include "support/play.h"

#include <gtest/gtest.h>

#include <tuple>

namespace kelvarine::testing {
namespace {

auto MasksAndLimits()
{
    return std::tuple(SolveMask, AlertMask, LevelTable, MaxSinglesLinks, MaxRPLinks, MaxXYLinks,
                      IncludeSingles);
}

struct Command {
    const char *Name;
    void (*Run)();
};

void PrintBatch()
{
    PrintMode = PrintNewGames;
    cmdPrint();
}

constexpr std::array Commands{
    Command{"RateGame", RateGame},
    Command{"GenerateGame",
            [] {
                GenerateGame();
            }},
    Command{"mnuShowLogicNeeded", mnuShowLogicNeeded},
    Command{"mnuSolveGame", mnuSolveGame},
    Command{"mnuShowSolution", mnuShowSolution},
    Command{"mnuApplyLogic", mnuApplyLogic},
    Command{"mnuHint", mnuHint},
    Command{"mnuGameRandom", mnuGameRandom},
    Command{"cmdPrint", PrintBatch},
};

class KeptSettingsTest : public ::testing::TestWithParam<Command> {
protected:
    // A game that needs trial and error, and settings that no operation would choose.
    void SetUp() override
    {
        Restart();
        StartSavedGame(HardGame);
        SolveMask = SinglesMask;
        AlertMask = MaskOf({XWing});
        MaxSinglesLinks = 5;
        MaxRPLinks = 6;
        MaxXYLinks = 7;
        Seen = {};
    }
};

TEST_P(KeptSettingsTest, ComeBackWhenTheRunEnds)
{
    const auto before = MasksAndLimits();
    GetParam().Run();
    EXPECT_EQ(MasksAndLimits(), before);
}

TEST_P(KeptSettingsTest, ComeBackWhenTheRunIsStopped)
{
    const auto before = MasksAndLimits();
    for (const int passes : {1, 2, 7}) {
        Seen = {};
        StartSavedGame(HardGame);
        Seen = {};
        int stops = 0;
        Seen.OnYield = [&] {
            if (Seen.Yields >= passes) {
                SearchActive = False;
                StopRequested = True;
                ++stops;
            }
        };
        GetParam().Run();
        EXPECT_EQ(MasksAndLimits(), before) << "stopped in pass " << passes;
        // A hint is no run of the driver, and the player's two techniques soon come to a halt.
        // Fillings are found without a walk: a pass to start with, and one for each that is listed.
        const bool isQuick = GetParam().Run == mnuSolveGame || GetParam().Run == mnuShowSolution;
        const bool isShort =
            GetParam().Run == mnuHint || GetParam().Run == mnuApplyLogic || (isQuick && passes > 1);
        EXPECT_TRUE(stops > 0 || isShort) << "never stopped in pass " << passes;
    }
}

INSTANTIATE_TEST_SUITE_P(Commands, KeptSettingsTest, ::testing::ValuesIn(Commands),
                         [](const auto &tested) { return std::string(tested.param.Name); });

TEST(KeptSettings, ComeBackAtTheEndOfTheScope)
{
    Restart();
    SolveMask = 0x15;
    MaxSinglesLinks = 1;
    MaxRPLinks = 2;
    MaxXYLinks = 3;
    {
        const KeptSettings kept;
        EXPECT_EQ(SolveMask, 0x15U) << "nothing changes by itself";
        SolveMask = RatingMask;
        MaxSinglesLinks = MaxRPLinks = MaxXYLinks = 81;
    }
    EXPECT_EQ(std::tuple(SolveMask, MaxSinglesLinks, MaxRPLinks, MaxXYLinks),
              std::tuple(0x15U, 1, 2, 3));
}

} // namespace
} // namespace kelvarine::testing
