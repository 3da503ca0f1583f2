// What may go wrong while a game is saved, and that it never costs the player one.
#include "commands/file_commands.h"
#include "files/game_file.h"
#include "files/recovered_folder.h"
#include "game/lifecycle.h"
#include "generator/game_number.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "outside/folders.h"
#include "outside/system_calls.h"
#include "outside/whole_file.h"
#include "support/child_process.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>

namespace kelvarine::testing {
namespace {

constexpr int Nobody = 65534;
constexpr int NotPossible = 77; // a child that this machine does not allow to do its part

class Saving : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        StartSavedGame(EasyGame);
        GameFilePath = Folder.Path("game.sdk");
        ASSERT_TRUE(WriteGameFile());
        OldFile = Folder.Read("game.sdk");
        WordAt({3, 1}) = BitTable[4];
        PushUndoState();
        ForgetRecord();
    }

    // Saves and expects the message, the old file and a modified game. 0 when all is so.
    int SavingFails(const std::string &words)
    {
        mnuSave();
        EXPECT_EQ(Seen.Messages, std::vector<std::string>{"Unable to save file.\r\r" + words});
        EXPECT_EQ(GameModified, True);
        return HasFailure() ? 1 : 0;
    }

    void ExpectOldFileAlone() const
    {
        EXPECT_TRUE(Folder.Read("game.sdk") == OldFile);
        EXPECT_EQ(Folder.Entries(), 1);
    }

    TemporaryFolder Folder;
    std::string OldFile;
};

// The games of the numbers 0 and 1, as bytes.
std::array<std::string, 2> TwoGames()
{
    std::array<std::string, 2> games;
    for (const std::int32_t number : {0, 1}) {
        GameNumber = number;
        games[static_cast<std::size_t>(number)] = GameFileBytes();
    }
    return games;
}

TEST_F(Saving, KilledAtAnySystemCallLeavesTheOldOrTheNewFile)
{
    const auto [oldGame, newGame] = TwoGames();
    int old = 0;
    int call = 1;
    Kill kill = Kill::Struck;
    for (; kill == Kill::Struck; ++call) {
        Folder.Write("game.sdk", oldGame);
        GameNumber = 1;
        kill = KillAtSystemCall(call, [] { WriteGameFile(); });
        const std::string bytes = Folder.Read("game.sdk");
        ASSERT_TRUE(bytes == oldGame || bytes == newGame) << "killed at call " << call;
        old += bytes == oldGame ? 1 : 0;
        Folder.Write("game.sdk", oldGame);
        ASSERT_EQ(Folder.Entries(), 1) << "a leftover after the next save, of call " << call;
    }
    if (kill == Kill::NotPossible) {
        GTEST_SKIP() << "this machine lets nobody trace a process";
    }
    // Making the file beside, writing, flushing, closing and renaming it are calls at least.
    EXPECT_GE(old, 5);
    EXPECT_GT(call, old + 1);
}

TEST_F(Saving, FileSizeLimitLeavesTheOldFileWhole)
{
    const int result = RunInChild([&] {
        ::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{4096, 4096};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        return SavingFails("File too large");
    });
    EXPECT_EQ(result, 0);
    ExpectOldFileAlone();
}

// In a child with mounts of its own: a disk on which the old file fits, but no second one.
int SaveOnAFullDisk(const std::string &folder, const std::function<int()> &save)
{
    if (::unshare(CLONE_NEWNS) != 0 ||
        ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        ::mount("tmpfs", folder.c_str(), "tmpfs", 0, "size=64k") != 0) {
        return NotPossible;
    }
    return save();
}

TEST_F(Saving, FullDiskLeavesTheOldFileWhole)
{
    const int result = RunInChild([&] {
        return SaveOnAFullDisk(Folder.Path(), [&] {
            Folder.Write("game.sdk", OldFile);
            const int failure = SavingFails("No space left on device");
            ExpectOldFileAlone();
            return HasFailure() ? 1 : failure;
        });
    });
    if (result == NotPossible) {
        GTEST_SKIP() << "this machine lets nobody mount a disk";
    }
    EXPECT_EQ(result, 0);
}

// Becomes a user without rights of any kind.
bool GiveUpRights()
{
    return ::getuid() != 0 || (::setgid(Nobody) == 0 && ::setuid(Nobody) == 0);
}

// ---- Where only writing in place will do -----------------------------------------------------

class SavingInPlace : public Saving {
protected:
    SavingInPlace()
    {
        for (std::filesystem::path above = DataFolder();
             above != std::filesystem::temp_directory_path(); above = above.parent_path()) {
            std::error_code missing;
            std::filesystem::permissions(above, std::filesystem::perms::all, missing);
        }
    }

    ~SavingInPlace() override
    {
        ::chmod(Folder.Path().c_str(), 0755);
    }

    // Saves as a user who may write to the file and put no other into its folder.
    int SaveWithoutRights(bool answer, const std::function<void()> &expect)
    {
        ::chmod(Folder.Path().c_str(), 0555);
        ::chmod(Folder.Path("game.sdk").c_str(), 0666);
        return RunInChild([&] {
            if (!GiveUpRights()) {
                return NotPossible;
            }
            Seen.YesNoAnswers = {answer};
            mnuSave();
            EXPECT_EQ(Seen.Questions, std::vector<std::string>{Question()});
            EXPECT_EQ(Seen.Titles.front(), "Overwrite?");
            expect();
            return HasFailure() ? 1 : 0;
        });
    }

    [[nodiscard]] std::string Question() const
    {
        return Folder.Path("game.sdk") +
               "\rcannot be replaced by a new file.\r\rDo you want to write it in place?";
    }

    static long Recovered()
    {
        std::error_code missing;
        const std::filesystem::directory_iterator first(RecoveredFolder(), missing);
        return missing ? 0 : std::distance(first, {});
    }
};

TEST_F(SavingInPlace, NoLeavesTheOldFileAndTheGameModified)
{
    const int result = SaveWithoutRights(false, [] {
        EXPECT_TRUE(Seen.Messages.empty());
        EXPECT_EQ(GameModified, True);
    });
    EXPECT_EQ(result, 0);
    ExpectOldFileAlone();
}

TEST_F(SavingInPlace, YesWritesTheFileAndLeavesNoCopy)
{
    const int result = SaveWithoutRights(true, [] {
        EXPECT_TRUE(Seen.Messages.empty());
        EXPECT_EQ(GameModified, False);
        EXPECT_EQ(Recovered(), 0);
    });
    EXPECT_EQ(result, 0);
    EXPECT_TRUE(Folder.Read("game.sdk") == GameFileBytes());
}

TEST_F(SavingInPlace, FileWithASecondNameKeepsIt)
{
    std::filesystem::create_hard_link(Folder.Path("game.sdk"), Folder.Path("other.sdk"));
    Seen.YesNoAnswers = {true};
    mnuSave();
    EXPECT_EQ(Seen.Questions, std::vector<std::string>{Question()});
    EXPECT_EQ(GameModified, False);
    EXPECT_TRUE(Folder.Read("other.sdk") == GameFileBytes());
    EXPECT_EQ(Recovered(), 0);
}

// Each call may fail while the file is half written; then the copy stays, and is told.
TEST_F(SavingInPlace, AnyCallFailingLeavesTheOldGameInTheFileOrInItsCopy)
{
    std::filesystem::create_hard_link(Folder.Path("game.sdk"), Folder.Path("other.sdk"));
    int failing = 1;
    int copies = 0;
    for (bool failed = true; failed; ++failing) {
        std::string error;
        ASSERT_TRUE(WriteInPlace(Folder.Path("game.sdk"), OldFile, error));
        std::filesystem::remove_all(RecoveredFolder());
        GameModified = True;
        ForgetRecord();
        Seen.YesNoAnswers = {true};
        SystemCalls calls;
        calls.Fail(failing, EIO);
        mnuSave();
        failed = std::ranges::find(calls.Calls, true, &SystemCall::Failed) != calls.Calls.end();
        const bool old = Folder.Read("game.sdk") == OldFile;
        ASSERT_EQ(GameModified == False, Seen.Messages.empty()) << "call " << failing;
        ASSERT_TRUE(old || GameModified == False || Recovered() == 1) << "call " << failing;
        copies += Recovered() > 0 ? 1 : 0;
    }
    EXPECT_EQ(GameModified, False);
    EXPECT_GE(copies, 3) << "writing, cutting and flushing leave the file half";
}

// ---- What is told ----------------------------------------------------------------------------

TEST_F(Saving, WriteProtectedFileIsNotReplaced)
{
    ::chmod(Folder.Path().c_str(), 0777);
    ::chmod(Folder.Path("game.sdk").c_str(), 0444);
    const int result =
        RunInChild([&] { return GiveUpRights() ? SavingFails("Permission denied") : NotPossible; });
    EXPECT_EQ(result, 0);
    ExpectOldFileAlone();
}

TEST_F(Saving, NameTooLongIsTold)
{
    GameFilePath = Folder.Path(std::string(300, 'n'));
    SavingFails("File name too long");
    ExpectOldFileAlone();
}

TEST_F(Saving, FolderGoneIsToldAndNotMadeAnew)
{
    GameFilePath = Folder.Path("gone/game.sdk");
    SavingFails("No such file or directory");
    ExpectOldFileAlone();
}

TEST_F(Saving, PathBelowAFileIsTold)
{
    GameFilePath = Folder.Path("game.sdk/game.sdk");
    SavingFails("Not a directory");
    ExpectOldFileAlone();
}

TEST_F(Saving, FolderPipeAndDeviceAreNotReplaced)
{
    ASSERT_EQ(::mkdir(Folder.Path("folder").c_str(), 0700), 0);
    ASSERT_EQ(::mkfifo(Folder.Path("pipe").c_str(), 0600), 0);
    GameFilePath = Folder.Path("folder");
    SavingFails("Is a directory");
    for (const std::string &path : {Folder.Path("pipe"), std::string("/dev/full")}) {
        ForgetRecord();
        GameFilePath = path;
        SavingFails("Invalid argument");
    }
    struct stat kind {};
    ASSERT_EQ(::stat(Folder.Path("pipe").c_str(), &kind), 0);
    EXPECT_TRUE(S_ISFIFO(kind.st_mode));
    EXPECT_EQ(Folder.Entries(), 3);
}

TEST_F(Saving, FailureIsOverAtTheNextGoodSave)
{
    GameFilePath = Folder.Path("gone/game.sdk");
    mnuSave();
    ASSERT_EQ(GameModified, True);
    GameFilePath = Folder.Path("game.sdk");
    mnuSave();
    EXPECT_EQ(GameModified, False);
    EXPECT_TRUE(Folder.Read("game.sdk") == GameFileBytes());
}

} // namespace
} // namespace kelvarine::testing
