// What is kept while the board holds something else than the game in hand.
#include "commands/new_games.h"
#include "files/game_file.h"
#include "files/recovery.h"
#include "files/recovery_fixture.h"
#include "game/assistance.h"
#include "game/clock.h"
#include "game/game_in_hand.h"
#include "game/lifecycle.h"
#include "game/solutions.h"
#include "generator/game_number.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "logic/driver.h"
#include "logic/technique_masks.h"
#include "outside/folders.h"
#include "outside/whole_file.h"
#include "support/outside_double.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>

namespace kelvarine::testing {
namespace {

TEST_F(Recovery, GameThatWasPutAsideIsTheOneThatIsKept)
{
    Play();
    const std::string game = GameFileBytes();
    const auto aside = std::make_unique<GameInHand>();
    Grid = {};
    PushUndoState();
    HistoryCount = 50;
    GameModified = False;
    TickAndWrite();
    EXPECT_TRUE(Kept() == game + "GR");
    BringBack(*aside);
}

TEST_F(Recovery, GameThatIsToBecomeAnotherKeepsItsNumberAndItsName)
{
    Play();
    GameNumber = 5;
    GameFilePath = "/home/anna/evening.sdk";
    StatsCounted = True;
    SolveSeconds = 754;
    const std::string game = GameFileBytes() + "GR" + GameFilePath;
    int looks = 0;
    Seen.TextAnswers = {"77"};
    Seen.OnYield = [&] {
        TickAndWrite();
        if (FileExists(DataFolder() + "recovery-1.sdk")) {
            ++looks;
            ASSERT_TRUE(Kept() == game);
        }
    };
    UserSelectedGame();
    EXPECT_GT(looks, 0);
    EXPECT_EQ(GameNumber, 77);
}

TEST_F(Recovery, GameWhoseSolutionsAreListedIsTheOneThatIsKept)
{
    WordAt({3, 1}) = BitTable[4];
    PushUndoState();
    const std::string game = GameFileBytes();
    int listed = 0;
    Seen.OnYield = [&] {
        listed += SearchKind == ListingSolutions ? 1 : 0;
        TickAndWrite();
    };
    ListSolutions();
    EXPECT_GT(listed, 0);
    EXPECT_TRUE(Kept() == game + "GR");
}

TEST_F(Recovery, WhatTheLogicTriesOnTheBoardIsNotWritten)
{
    Play();
    TickAndWrite();
    const std::string game = Kept();
    RunUnderWay = True;
    Grid = {};
    TickAndWrite();
    EXPECT_TRUE(Kept() == game);
    EXPECT_FALSE(WriteRecovery());
    EXPECT_TRUE(Kept() == game);
}

TEST_F(Recovery, LookThatARunWasInTheWayOfIsTakenWhenItHasEnded)
{
    Play();
    RunUnderWay = True;
    Seen.LaterDeeds.clear();
    Seen.RecoveryTimerOn = false;
    TickAndWrite();
    ASSERT_EQ(Seen.LaterDeeds.size(), 1U);
    Seen.LaterDeeds.back()();
    ASSERT_EQ(Seen.LaterDeeds.size(), 2U) << "it is still there";
    EXPECT_EQ(Files(), Texts{});
    RunUnderWay = False;
    Seen.LaterDeeds.back()();
    while (IsWriting()) {
    }
    EXPECT_TRUE(Kept() == GameFileBytes() + "GR");
    EXPECT_EQ(Seen.LaterDeeds.size(), 2U);
    EXPECT_TRUE(Seen.RecoveryTimerOn) << "the next look comes an interval later";
    EXPECT_EQ(Seen.RecoveryMilliseconds, RecoveryInterval);
}

TEST_F(Recovery, LookThatIsLeftOverComesNoMoreAfterTheEnd)
{
    Play();
    RunUnderWay = True;
    Seen.LaterDeeds.clear();
    RecoveryTick();
    RunUnderWay = False;
    EndRecovery(false);
    Seen.RecoveryTimerOn = false;
    Seen.LaterDeeds.back()();
    EXPECT_FALSE(Seen.RecoveryTimerOn);
    EXPECT_EQ(Files(), Texts{});
}

TEST_F(Recovery, GameToWhichLogicIsAppliedIsWrittenAsItWas)
{
    Play();
    const std::string game = GameFileBytes();
    SolveMask = MaskOf({XWing}) | TrialBit;
    Seen.OnYield = [&] {
        Grid = {};
        TickAndWrite();
        EXPECT_EQ(Kept().substr(0, game.size()), game);
        SearchActive = False;
    };
    mnuApplyLogic();
    EXPECT_GT(Seen.Yields, 0);
}

TEST_F(Recovery, FileBeforeAFailureGoesAtAnOrderlyEndToo)
{
    Play();
    TickAndWrite();
    const std::string folder = DataFolder();
    std::filesystem::rename(folder, folder.substr(0, folder.size() - 1) + ".away");
    std::ofstream(folder.substr(0, folder.size() - 1)) << "no folder";
    Play();
    EXPECT_FALSE(WriteRecovery());
    std::filesystem::remove(folder.substr(0, folder.size() - 1));
    std::filesystem::rename(folder.substr(0, folder.size() - 1) + ".away", folder);
    EndRecovery(true);
    EXPECT_FALSE(FileExists(folder + "recovery-1.sdk"));
}

} // namespace
} // namespace kelvarine::testing
