// The place of the recovery file: whose it is, and when nothing is written there any more.
#include "files/game_file.h"
#include "files/recovery.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "outside/folders.h"
#include "outside/later_write.h"
#include "outside/whole_file.h"
#include "support/outside_double.h"
#include "support/play.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

class RecoveryPlace : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        StartSavedGame(EasyGame);
    }

    static void Play()
    {
        WordAt({3, 1}) ^= BitTable[4];
        PushUndoState();
    }

    static std::string Kept(int number)
    {
        std::string bytes;
        std::string error;
        EXPECT_TRUE(ReadWholeFile(PathOf(number), bytes, error)) << error;
        return bytes;
    }

    static std::string PathOf(int number)
    {
        return DataFolder() + "recovery-" + std::to_string(number) + ".sdk";
    }
};

// On a disk without locks two programs can come to hold the same number.
TEST_F(RecoveryPlace, WhatAnotherProgramWroteThereStays)
{
    Play();
    EXPECT_TRUE(WriteRecovery());
    DropRecovery();
    std::string error;
    ASSERT_TRUE(ReplaceWholeFile(PathOf(1), "another program's", error)) << error;
    GameModified = False;
    RecoveryTick();
    EXPECT_EQ(Kept(1), "another program's");
    Play();
    EXPECT_TRUE(WriteRecovery());
    EXPECT_EQ(Kept(1), "another program's");
    EXPECT_TRUE(Kept(2) == GameFileBytes() + "GR");
    EndRecovery(true);
    EXPECT_EQ(Kept(1), "another program's");
    EXPECT_FALSE(FileExists(PathOf(2)));
}

TEST_F(RecoveryPlace, NothingIsOnItsWayThereAfterTheEnd)
{
    for (int round = 0; round < 50; ++round) {
        SetRecoveryDefaults();
        Play();
        RecoveryTick();
        EndRecovery(false);
        ASSERT_FALSE(IsWriting());
        const std::string bytes = Kept(round + 1);
        ASSERT_TRUE(bytes == GameFileBytes() + "GR");
    }
}

} // namespace
} // namespace kelvarine::testing
