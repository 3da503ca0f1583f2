// The game that is kept where a kill does not reach it before the disk has it.
#include "commands/recover.h"
#include "files/game_file.h"
#include "files/recovery.h"
#include "files/recovery_fixture.h"
#include "game/clock.h"
#include "outside/machine_start.h"
#include "outside/system_calls.h"
#include "support/outside_double.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <latch>
#include <mutex>

namespace kelvarine::testing {
namespace {

const char *const AnotherStart = "01234567-89ab-cdef-0123-456789abcdef";

class FreshGame : public Recovery {
protected:
    static std::string FreshPath()
    {
        return DataFolder() + "recovery-1.fresh";
    }

    static std::string Fresh()
    {
        return Contents(FreshPath());
    }

    static void Put(const std::string &path, const std::string &bytes)
    {
        std::string error;
        ASSERT_TRUE(ReplaceWholeFile(path, bytes, error)) << error;
    }

    // What the next program makes of it when the player wants the game.
    static std::string GameThatComesBack()
    {
        StartAnew();
        Seen.YesNoAnswers = {true};
        OfferLostGames();
        return GameModified != False ? GameFileBytes() : std::string();
    }

    // A program that was killed in the middle of its second turn's flush.
    static void KilledWhileTheDiskWasAtWork()
    {
        Killed([] {
            Play();
            TickAndWrite();
            SystemCalls calls;
            calls.BeforeFlush = [] {
                ::raise(SIGKILL);
            };
            Play();
            TickAndWrite();
        });
    }

    // The game as such a program had it.
    static std::string GameOf(int turns)
    {
        for (int turn = 0; turn < turns; ++turn) {
            Play();
        }
        return GameFileBytes();
    }
};

TEST_F(FreshGame, StandsThereUntilTheMachineIsStartedAnew)
{
    ASSERT_EQ(MachineStart().size(), MachineStartSize);
    Play();
    TickAndWrite();
    EXPECT_TRUE(Fresh() == GameFileBytes() + "GR" + MachineStart());
    EXPECT_TRUE(Kept() == GameFileBytes() + "GR");
}

TEST_F(FreshGame, ComesBackWhenTheKillCameBeforeTheDiskHadIt)
{
    KilledWhileTheDiskWasAtWork();
    const std::string game = GameOf(2);
    EXPECT_FALSE(Kept() == game + "GR");
    EXPECT_TRUE(GameThatComesBack() == game);
    TickAndWrite();
    EXPECT_TRUE(Kept() == game + "GR") << "the disk has it at the next look";
}

TEST_F(FreshGame, ComesBackWithoutAnEarlierOne)
{
    Killed([] {
        SystemCalls calls;
        calls.BeforeFlush = [] {
            ::raise(SIGKILL);
        };
        Play();
        TickAndWrite();
    });
    EXPECT_FALSE(FileExists(DataFolder() + "recovery-1.sdk"));
    const std::string game = GameOf(1);
    EXPECT_TRUE(GameThatComesBack() == game);
    EXPECT_EQ(Seen.Questions.size(), 1U);
}

TEST_F(FreshGame, OfAnotherStartOfTheMachineCountsForNothing)
{
    KilledWhileTheDiskWasAtWork();
    const std::string onDisk = Kept();
    Put(FreshPath(), GameOf(2) + "GR" + AnotherStart);
    EXPECT_TRUE(GameThatComesBack() + "GR" == onDisk);
    EndRecovery(true);
    EXPECT_EQ(Files(), Texts{}) << "and goes with the other";
}

TEST_F(FreshGame, OfAnotherStartOfTheMachineAloneIsNotOffered)
{
    for (const std::string &bytes :
         {GameOf(1) + "GR" + AnotherStart, std::string(), std::string(MachineStartSize, '\0')}) {
        Put(FreshPath(), bytes);
        StartAnew();
        OfferLostGames();
        EXPECT_EQ(Seen.Questions, Texts{});
        StartSavedGame(EasyGame);
        Play();
        TickAndWrite();
        EXPECT_TRUE(Kept() == GameFileBytes() + "GR") << "the place is free";
        EndRecovery(true);
    }
}

TEST_F(FreshGame, ThatIsNotWantedIsKeptUnderItsDate)
{
    ::setenv("TZ", "UTC", 1);
    KilledWhileTheDiskWasAtWork();
    std::filesystem::last_write_time(FreshPath(), std::filesystem::file_time_type());
    const std::string game = GameOf(2);
    StartAnew();
    OfferLostGames();
    EXPECT_EQ(Files(), Texts{"recovered"});
    EXPECT_EQ(RecoveredGames(), Texts{"2174-01-01 00.00.00.sdk"});
    EXPECT_TRUE(Contents(RecoveredFolder() + RecoveredGames()[0]) == game + "GR");
}

TEST_F(FreshGame, ThatIsNotWantedStaysWhereTheDiskDoesNotTakeIt)
{
    KilledWhileTheDiskWasAtWork();
    const std::string game = GameOf(2);
    StartAnew();
    {
        SystemCalls calls;
        calls.FailAlways("fsync", EIO);
        OfferLostGames();
    }
    EXPECT_EQ(Seen.Questions.size(), 1U) << "not offered for ever";
    EXPECT_TRUE(GameThatComesBack() == game);
}

TEST_F(FreshGame, FollowsTheBoardWhileTheDiskIsStillAtWork)
{
    Play();
    TickAndWrite();
    const std::string onDisk = Kept();
    SystemCalls calls;
    std::latch flushing{1};
    std::latch mayFlush{1};
    std::once_flag isFirst;
    calls.BeforeFlush = [&] {
        std::call_once(isFirst, [&] {
            flushing.count_down();
            mayFlush.wait();
        });
    };
    Play();
    RecoveryTick();
    flushing.wait();
    for (int turn = 0; turn < 3; ++turn) {
        turn < 2 ? Play() : ClockTick();
        RecoveryTick();
        while (IsWriting(Reach::System)) {
        }
        EXPECT_TRUE(Fresh() == GameFileBytes() + "GR" + MachineStart()) << turn;
        EXPECT_TRUE(Kept() == onDisk) << turn;
    }
    mayFlush.count_down();
    while (IsWriting()) {
    }
    TickAndWrite();
    EXPECT_TRUE(Kept() == GameFileBytes() + "GR");
    EXPECT_EQ(Seen.Messages, Texts{});
}

TEST_F(FreshGame, GoesWhereItCannotBeMade)
{
    Play();
    TickAndWrite();
    Play();
    SystemCalls calls;
    calls.Fail(1, ENOSPC, "write");
    TickAndWrite();
    EXPECT_FALSE(FileExists(FreshPath())) << "an older one would be taken for the newest";
    EXPECT_TRUE(Kept() == GameFileBytes() + "GR");
    Play();
    TickAndWrite();
    EXPECT_TRUE(Fresh() == GameFileBytes() + "GR" + MachineStart());
    EXPECT_EQ(Seen.Messages, Texts{});
}

TEST_F(FreshGame, IsNoOlderThanTheOneThatAnEndWrites)
{
    Play();
    TickAndWrite();
    Play();
    EXPECT_TRUE(WriteRecovery());
    EXPECT_TRUE(Fresh() == Kept() + MachineStart());
    EndRecovery(true);
    EXPECT_EQ(Files(), Texts{});
}

} // namespace
} // namespace kelvarine::testing
