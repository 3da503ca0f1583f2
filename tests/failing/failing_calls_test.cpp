// The disk says no in the middle: each call of each kind of saving fails once with each error that
// a disk has. The old file or the new one is whole every time, the player is told, and what was not
// saved still counts as such.
#include "commands/file_commands.h"
#include "commands/solutions_file.h"
#include "configure/configuration.h"
#include "failing/failing_calls.h"
#include "files/game_file.h"
#include "files/recovered_folder.h"
#include "files/recovery.h"
#include "game/clock.h"
#include "game/lifecycle.h"
#include "game/solutions.h"
#include "game/statistics.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "outside/folders.h"
#include "outside/later_write.h"
#include "outside/machine_start.h"
#include "outside/whole_file.h"
#include "print/print_settings.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <functional>

namespace kelvarine::testing {
namespace {

class FailingCalls : public ::testing::TestWithParam<int> {
protected:
    void SetUp() override
    {
        Restart();
        StartSavedGame(EasyGame);
    }

    void TearDown() override
    {
        LetCallFail(0, 0);
    }

    // Does a deed again and again, each time with another of its calls failing, until there is none
    // left to fail; prepare is called before each, judge after it.
    static void FailEach(const std::function<void()> &prepare, const std::function<void()> &deed,
                         const std::function<void(int call)> &judge)
    {
        int call = 0;
        for (int made = 0; made >= call;) {
            ++call;
            prepare();
            Seen.Messages.clear();
            LetCallFail(call, GetParam());
            deed();
            made = CallsMade();
            LetCallFail(0, 0);
            judge(call);
            ASSERT_FALSE(HasFatalFailure());
        }
        EXPECT_GT(call, 10) << "there are calls to fail";
    }

    static std::string Contents(const std::string &path)
    {
        std::string bytes;
        std::string error;
        EXPECT_TRUE(ReadWholeFile(path, bytes, error)) << error;
        return bytes;
    }

    static void Put(const std::string &path, const std::string &bytes)
    {
        std::string error;
        ASSERT_TRUE(ReplaceWholeFile(path, bytes, error)) << error;
    }
};

TEST_P(FailingCalls, SavingAGame)
{
    const TemporaryFolder folder;
    GameFilePath = folder.Path("game.sdk");
    const std::string old = GameFileBytes();
    WordAt({3, 1}) = BitTable[4];
    PushUndoState();
    const std::string fresh = GameFileBytes();
    FailEach(
        [&] {
            folder.Write("game.sdk", old);
            GameModified = True;
        },
        mnuSave,
        [&](int call) {
            const std::string now = folder.Read("game.sdk");
            ASSERT_TRUE(now == fresh || (now == old && GameModified == True)) << "call " << call;
            ASSERT_EQ(GameModified == True, Seen.Messages.size() == 1) << "call " << call;
            folder.Write("other", "the next save in this folder");
            ASSERT_EQ(folder.Entries(), 2) << "call " << call;
        });
    EXPECT_EQ(GameModified, False) << "the last round is one without a failure";
}

TEST_P(FailingCalls, CountingAWin)
{
    GameRating = 1;
    SolveSeconds = 60;
    const StatisticsRecord old{{{0, 3, 50, 55}}};
    FailEach([&] { Put(StatisticsFilePath(), StatisticsBytes(old)); }, RecordSolvedGame,
             [&](int call) {
                 const auto now = StatisticsFrom(Contents(StatisticsFilePath()));
                 ASSERT_TRUE(now[0].Solved == 4 || now == old) << "call " << call;
                 ASSERT_TRUE(now[0].Solved == 4 || !Seen.Messages.empty()) << "call " << call;
                 SetStatisticsDefaults(); // told once until it works again
             });
    EXPECT_TRUE(Seen.Messages.empty());
}

TEST_P(FailingCalls, KeepingTheSettings)
{
    const std::string path = SettingsFolder() + "config.sdu";
    const std::string old = ConfigurationBytes();
    PrintLeft = 2;
    const std::string fresh = ConfigurationBytes();
    const auto start = [&] {
        Put(path, old);
        SetConfigurationDefaults(); // as if nothing had been written before
    };
    FailEach(start, WriteConfiguration, [&](int call) {
        const std::string now = Contents(path);
        ASSERT_TRUE(now == fresh || (now == old && Seen.Messages.size() == 1)) << "call " << call;
    });
    EXPECT_TRUE(Seen.Messages.empty());
}

TEST_P(FailingCalls, KeepingTheGameThroughACrash)
{
    const std::string path = DataFolder() + "recovery-1.sdk";
    PushUndoState();
    ASSERT_TRUE(WriteRecovery());
    std::string old;
    bool safe = false;
    FailEach(
        [&] {
            ASSERT_TRUE(WriteRecovery());
            old = Contents(path);
            PushUndoState();
        },
        [&] { safe = WriteRecovery(); },
        [&](int call) {
            const std::string now = Contents(path);
            ASSERT_TRUE(now == GameFileBytes() + "GR" || (now == old && !safe)) << "call " << call;
        });
    EXPECT_TRUE(safe);
}

TEST_P(FailingCalls, LookingAtTheGameFromTimeToTime)
{
    const std::string path = DataFolder() + "recovery-1.sdk";
    const std::string freshPath = DataFolder() + "recovery-1.fresh";
    PushUndoState();
    std::string old;
    const auto look = [] {
        RecoveryTick();
        while (IsWriting()) {
        }
    };
    FailEach(
        [&] {
            ASSERT_TRUE(WriteRecovery());
            look(); // all is well again
            old = Contents(path);
            PushUndoState();
        },
        [&] {
            look();
            RecoveryTick(); // tells what came of it
        },
        [&](int call) {
            const std::string now = Contents(path);
            const std::string fresh = GameFileBytes() + "GR";
            ASSERT_TRUE(now == fresh || (now == old && Seen.Messages.size() == 1))
                << "call " << call;
            ASSERT_TRUE(now == old || !FileExists(freshPath) ||
                        Contents(freshPath) == fresh + MachineStart())
                << "nothing older is taken for the newest, call " << call;
            ASSERT_EQ(GameModified, True) << "call " << call;
            look();
            ASSERT_TRUE(Contents(path) == fresh) << "the next look, call " << call;
        });
    EXPECT_TRUE(Seen.Messages.empty());
}

// What a failed write has left is not known, so nothing may be written over a part of it.
TEST_P(FailingCalls, KeepingTheGameThatIsTheFormerOneAgain)
{
    const std::string path = DataFolder() + "recovery-1.sdk";
    GameModified = True;
    FailEach(
        [&] {
            ASSERT_TRUE(WriteRecovery());
            WordAt({1, 1}) ^= SelectedBit;
        },
        [] { WriteRecovery(); },
        [&](int call) {
            WordAt({1, 1}) ^= SelectedBit;
            ClockTick();
            RecoveryTick();
            while (IsWriting()) {
            }
            ASSERT_TRUE(Contents(path) == GameFileBytes() + "GR") << "call " << call;
        });
}

TEST_P(FailingCalls, TimeThatPassesBetweenTwoChanges)
{
    const std::string path = DataFolder() + "recovery-1.sdk";
    FailEach(
        [&] {
            PushUndoState();
            ASSERT_TRUE(WriteRecovery());
        },
        [&] {
            for (int second = 0; second < 4; ++second) {
                ClockTick();
                RecoveryTick();
                while (IsWriting()) {
                }
            }
        },
        [&](int call) {
            ASSERT_TRUE(Contents(path) == GameFileBytes() + "GR") << "call " << call;
            ASSERT_TRUE(Seen.Messages.empty()) << "call " << call;
        });
}

TEST_P(FailingCalls, WritingAGameInPlace)
{
    const TemporaryFolder folder;
    GameFilePath = folder.Path("game.sdk");
    const std::string old = GameFileBytes();
    WordAt({3, 1}) = BitTable[4];
    PushUndoState();
    const std::string fresh = GameFileBytes();
    const std::string copy = RecoveredFolder() + "before game.sdk";
    FailEach(
        [&] {
            std::filesystem::remove(folder.Path("other name"));
            folder.Write("game.sdk", old);
            std::filesystem::create_hard_link(folder.Path("game.sdk"), folder.Path("other name"));
            std::filesystem::remove_all(RecoveredFolder());
            GameModified = True;
            Seen.YesNoAnswers = {true};
        },
        mnuSave,
        [&](int call) {
            const std::string now = folder.Read("game.sdk");
            ASSERT_TRUE(now == fresh || (now == old && GameModified == True) ||
                        (Contents(copy) == old && GameModified == True))
                << "call " << call;
            ASSERT_EQ(GameModified == True, Seen.Messages.size() == 1) << "call " << call;
            const bool toldWhere =
                !Seen.Messages.empty() && Seen.Messages[0].ends_with("kept in\r" + copy);
            ASSERT_EQ(FileExists(copy), toldWhere) << "call " << call;
            ASSERT_TRUE(now == folder.Read("other name")) << "call " << call;
        });
    EXPECT_EQ(GameModified, False);
}

TEST_P(FailingCalls, SavingSolutions)
{
    const TemporaryFolder folder;
    SolutionList = std::string(81, '1');
    optSolutionsFormat(0);
    FailEach(
        [&] {
            folder.Write("solutions.txt", "former");
            Seen.FileNames = {folder.Path("solutions.txt")};
            Seen.YesNoAnswers = {true};
        },
        cmdSaveAsTextFile,
        [&](int call) {
            const std::string now = folder.Read("solutions.txt");
            ASSERT_TRUE(now == SolutionsOnView + "\r\n" ||
                        (now == "former" && Seen.Messages.size() == 1))
                << "call " << call;
        });
    EXPECT_TRUE(Seen.Messages.empty());
}

INSTANTIATE_TEST_SUITE_P(EveryError, FailingCalls,
                         ::testing::Values(ENOSPC, EIO, EDQUOT, EROFS, EINTR),
                         [](const auto &error) {
                             switch (error.param) {
                             case ENOSPC:
                                 return "NoSpace";
                             case EIO:
                                 return "Damage";
                             case EDQUOT:
                                 return "Quota";
                             case EROFS:
                                 return "ReadOnly";
                             default:
                                 return "Interrupted";
                             }
                         });

} // namespace
} // namespace kelvarine::testing
