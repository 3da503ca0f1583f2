#include "outside/file_lock.h"
#include "outside/system_calls.h"
#include "support/child_process.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <thread>

namespace kelvarine::testing {
namespace {

constexpr unsigned int Nobody = 65534;

class FileLockTest : public ::testing::Test {
protected:
    TemporaryFolder Folder;
    std::string Path = Folder.Path("deep/lock");
};

TEST_F(FileLockTest, IsHeldByOneAtATimeAndLeavesNothingWhenTold)
{
    {
        const FileLock first(Path, 0, LockFile::Goes);
        EXPECT_EQ(first.State(), LockState::Held);
        const FileLock second(Path);
        EXPECT_EQ(second.State(), LockState::Busy);
    }
    EXPECT_FALSE(FileExists(Path));
    EXPECT_EQ(FileLock(Path).State(), LockState::Held);
    EXPECT_TRUE(FileExists(Path)) << "others may wait for this one";
}

TEST_F(FileLockTest, OneThatComesTooLateIsLetGo)
{
    {
        const FileLock first(Path);
        EXPECT_EQ(FileLock(Path, 1).State(), LockState::Busy);
    }
    constexpr int aMinute = 60'000;
    EXPECT_EQ(FileLock(Path, aMinute).State(), LockState::Held);
}

TEST_F(FileLockTest, WaitsUntilTheOtherLetsGo)
{
    std::optional<FileLock> first(Path);
    constexpr int aMinute = 60'000; // nobody waits so long
    std::thread later([&] { first.reset(); });
    EXPECT_EQ(FileLock(Path, aMinute).State(), LockState::Held);
    later.join();
}

TEST_F(FileLockTest, EndsWithTheProgramThatHeldIt)
{
    const int result = RunInChild(
        [&] { return FileLock(Path).State() == LockState::Held ? ::raise(SIGKILL) : 1; });
    EXPECT_EQ(result, -1);
    EXPECT_TRUE(FileExists(Path)) << "a killed program removes nothing";
    EXPECT_EQ(FileLock(Path).State(), LockState::Held);
}

TEST_F(FileLockTest, TellsWhyNobodyCanHaveIt)
{
    Folder.Write("deep", "no folder");
    const FileLock lock(Path);
    EXPECT_EQ(lock.State(), LockState::Failed);
    EXPECT_EQ(lock.Error(), "Not a directory");
}

TEST_F(FileLockTest, IsGivenByADiskThatAsksForWritingToo)
{
    SystemCalls calls;
    calls.LocksNeedWriting = true;
    const FileLock first(Path);
    EXPECT_EQ(first.State(), LockState::Held);
    EXPECT_EQ(FileLock(Path).State(), LockState::Busy);
}

TEST_F(FileLockTest, FileThatMayOnlyBeReadWillDo)
{
    Folder.Write("lock", "");
    std::filesystem::permissions(Folder.Path("lock"), std::filesystem::perms(0444));
    std::filesystem::permissions(Folder.Path(""), std::filesystem::perms(0755));
    const std::string path = Folder.Path("lock");
    const int result = RunInChild([&] {
        if (::getuid() == 0 && (::setgid(Nobody) != 0 || ::setuid(Nobody) != 0)) {
            return 1;
        }
        const FileLock first(path);
        EXPECT_EQ(first.State(), LockState::Held);
        EXPECT_EQ(FileLock(path).State(), LockState::Busy);
        SystemCalls calls;
        calls.LocksNeedWriting = true;
        EXPECT_EQ(FileLock(path).State(), LockState::Held) << "where nobody can have it";
        return HasFailure() ? 1 : 0;
    });
    EXPECT_EQ(result, 0);
}

// For whoever waits a thread has to be made.
TEST_F(FileLockTest, CannotBeWaitedForWhereTheSystemHasNoThreadLeft)
{
    const int result = RunInChild([&] {
        if (!ForbidThreads()) {
            return 1;
        }
        constexpr int aMinute = 60'000;
        const FileLock first(Path, aMinute);
        EXPECT_EQ(first.State(), LockState::Held) << "for the one that need not wait, none";
        const FileLock second(Path, aMinute);
        EXPECT_EQ(second.State(), LockState::Failed);
        EXPECT_EQ(second.Error(), "Resource temporarily unavailable");
        return HasFailure() ? 1 : 0;
    });
    EXPECT_EQ(result, 0);
}

TEST_F(FileLockTest, DoesNotFollowALink)
{
    std::filesystem::create_symlink(Folder.Path("target"), Folder.Path("link"));
    EXPECT_EQ(FileLock(Folder.Path("link")).State(), LockState::Failed);
    EXPECT_FALSE(FileExists(Folder.Path("target")));
}

} // namespace
} // namespace kelvarine::testing
