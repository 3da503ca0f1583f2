#include "commands/file_commands.h"
#include "files/game_file.h"
#include "files/recovery.h"
#include "files/recovery_fixture.h"
#include "game/clock.h"
#include "game/lifecycle.h"
#include "game/undo.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "outside/folders.h"
#include "outside/system_calls.h"
#include "support/outside_double.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <vector>

namespace kelvarine::testing {
namespace {

TEST_F(Recovery, ModifiedGameStandsInTheFileAfterATick)
{
    GameFilePath = "/home/anna/lat\xe4in.sdk";
    TickAndWrite();
    EXPECT_EQ(Files(), Texts{}) << "a saved game needs none";
    Play();
    TickAndWrite();
    EXPECT_EQ(Files(), FilesOf(1));
    EXPECT_TRUE(Kept() == GameFileBytes() + "GR/home/anna/lat\xe4in.sdk");
}

TEST_F(Recovery, EveryKindOfChangeIsWritten)
{
    Play();
    Play();
    const std::vector<std::function<void()>> changes{Undo, Redo, mnuTakeSnapshot, [] {
                                                         WordAt({5, 5}) |= SelectedBit;
                                                     }};
    for (const auto &change : changes) {
        TickAndWrite();
        change();
        EXPECT_FALSE(Kept() == GameFileBytes() + "GR");
        TickAndWrite();
        EXPECT_TRUE(Kept() == GameFileBytes() + "GR");
    }
}

TEST_F(Recovery, NothingIsWrittenWithoutAChange)
{
    Play();
    TickAndWrite();
    SystemCalls calls;
    TickAndWrite();
    EXPECT_EQ(calls.Names(), Texts{});
}

TEST_F(Recovery, TimeAloneIsWrittenOverInItsPlace)
{
    Play();
    TickAndWrite();
    SystemCalls calls;
    ClockTick();
    TickAndWrite();
    EXPECT_EQ(calls.Names(), (Texts{"close", "close"})) << "no new file, no flush";
    EXPECT_TRUE(Kept() == GameFileBytes() + "GR");
    EXPECT_TRUE(Contents(DataFolder() + "recovery-1.fresh").starts_with(Kept()));
    std::filesystem::remove(DataFolder() + "recovery-1.sdk");
    ClockTick();
    TickAndWrite();
    EXPECT_TRUE(Kept() == GameFileBytes() + "GR") << "a file that has gone is written anew";
}

TEST_F(Recovery, SavedGameNeedsNoFile)
{
    Play();
    TickAndWrite();
    GameModified = False;
    TickAndWrite();
    EXPECT_EQ(Files(), Texts{"recovery-1.lock"});
    EndRecovery(true);
    EXPECT_EQ(Files(), Texts{});
}

TEST_F(Recovery, SaveLeavesNoOlderGameToBeOffered)
{
    const TemporaryFolder folder;
    GameFilePath = folder.Path("game.sdk");
    Play();
    RecoveryTick();
    mnuSave();
    EXPECT_EQ(Files(), Texts{"recovery-1.lock"});
    Play();
    TickAndWrite();
    EXPECT_TRUE(Kept() == GameFileBytes() + "GR" + GameFilePath);
    GameFilePath = folder.Path("game.txt");
    mnuSave();
    EXPECT_EQ(Files(), FilesOf(1)) << "a text keeps but a part";
}

TEST_F(Recovery, OrderlyEndLeavesNothingEvenInTheMiddleOfAWrite)
{
    Play();
    RecoveryTick();
    EndRecovery(true);
    EXPECT_EQ(Files(), Texts{});
}

TEST_F(Recovery, EndThatMayNotAskWritesAtOnce)
{
    EXPECT_TRUE(WriteRecovery());
    EXPECT_EQ(Files(), Texts{});
    Play();
    EXPECT_TRUE(WriteRecovery());
    EXPECT_TRUE(Kept() == GameFileBytes() + "GR");
    GameModified = False;
    EXPECT_TRUE(WriteRecovery());
    EXPECT_EQ(Files(), Texts{"recovery-1.lock"});
}

TEST_F(Recovery, FailureIsToldOnceUntilItWorksAgain)
{
    const std::filesystem::path folder = std::filesystem::path(DataFolder()).parent_path();
    std::filesystem::create_directories(folder.parent_path());
    std::ofstream(folder) << "in the way";
    for (int round = 0; round < 3; ++round) {
        Play();
        TickAndWrite();
    }
    EXPECT_EQ(Seen.Messages, Texts{"Unable to keep a copy of this game.\r\rNot a directory"});
    EXPECT_FALSE(WriteRecovery());
    std::filesystem::remove(folder);
    TickAndWrite();
    EXPECT_TRUE(Kept() == GameFileBytes() + "GR") << "tried again without a change";
}

TEST_F(Recovery, SystemWithoutAThreadToSpareStillKeepsTheGame)
{
    const int kept = RunInChild([] {
        const bool forbidden = ForbidThreads();
        Play();
        TickAndWrite();
        return forbidden && Kept() == GameFileBytes() + "GR" ? 0 : 1;
    });
    EXPECT_EQ(kept, 0);
}

TEST_F(Recovery, FailureOnTheDiskIsToldAtTheNextTickAndTriedAgain)
{
    Play();
    {
        SystemCalls calls;
        calls.FailAlways("fsync", EIO);
        TickAndWrite();
    }
    TickAndWrite();
    EXPECT_EQ(Seen.Messages, Texts{"Unable to keep a copy of this game.\r\rInput/output error"});
    TickAndWrite();
    EXPECT_TRUE(Kept() == GameFileBytes() + "GR");
}

} // namespace
} // namespace kelvarine::testing
