// What a file has beside its bytes outlasts its replacement, and what a killed program leaves does
// not.
#include "outside/system_calls.h"
#include "outside/whole_file.h"
#include "support/child_process.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/xattr.h>

namespace kelvarine::testing {
namespace {

constexpr unsigned int Nobody = 65534;
constexpr unsigned int Somebody = 12345;

class FileMarks : public ::testing::Test {
protected:
    FileMarks()
    {
        Folder.Write("game", "old");
    }

    [[nodiscard]] struct stat State(const std::string &name = "game") const
    {
        struct stat state {};
        EXPECT_EQ(::stat(Folder.Path(name).c_str(), &state), 0);
        return state;
    }

    void Replace(const std::string &name = "game")
    {
        EXPECT_TRUE(ReplaceWholeFile(Folder.Path(name), "new", Error)) << Error;
    }

    [[nodiscard]] bool NeedsInPlace(const std::string &name) const
    {
        std::string error;
        const bool needed = NeedsWritingInPlace(Folder.Path(name), error);
        EXPECT_EQ(error, "");
        return needed;
    }

    void Set(const char *attribute, const std::string &value, const std::string &name = "game")
    {
        Possible = Possible && ::setxattr(Folder.Path(name).c_str(), attribute, value.data(),
                                          value.size(), 0) == 0;
    }

    [[nodiscard]] std::string Attribute(const char *attribute) const
    {
        std::array<char, 256> value{};
        const ssize_t size =
            ::getxattr(Folder.Path("game").c_str(), attribute, value.data(), value.size());
        return size < 0 ? "none" : std::string(value.data(), static_cast<std::size_t>(size));
    }

    TemporaryFolder Folder;
    std::string Error;
    bool Possible = true; // the disk knows such attributes
};

// An access list in the system's own form: read for one more user, in a mask that lets it through.
std::string ListFor(unsigned int user)
{
    struct Entry {
        std::uint16_t Tag;
        std::uint16_t Rights;
        std::uint32_t Who;
    };
    constexpr std::uint32_t nobody = 0xFFFFFFFF;
    const std::array<Entry, 5> entries{
        {{1, 6, nobody}, {2, 4, user}, {4, 4, nobody}, {0x10, 4, nobody}, {0x20, 0, nobody}}};
    const std::uint32_t version = 2;
    std::string bytes(reinterpret_cast<const char *>(&version), sizeof version);
    return bytes.append(reinterpret_cast<const char *>(entries.data()), sizeof entries);
}

TEST_F(FileMarks, NewFileTakesWhatTheMaskLeaves)
{
    const mode_t mask = ::umask(027);
    Replace("fresh");
    ::umask(mask);
    EXPECT_EQ(State("fresh").st_mode & 07777U, 0640U);
}

TEST_F(FileMarks, PermissionsAreKeptWhateverTheMask)
{
    for (const mode_t permissions : {0600U, 0644U, 0666U, 0775U}) {
        ASSERT_EQ(::chmod(Folder.Path("game").c_str(), permissions), 0);
        Replace();
        EXPECT_EQ(State().st_mode & 07777U, permissions);
    }
}

TEST_F(FileMarks, OwnerAndGroupAreKeptWhereTheSystemLetsThem)
{
    if (::chown(Folder.Path("game").c_str(), Somebody, Nobody) != 0) {
        GTEST_SKIP() << "this user cannot give a file away";
    }
    Replace();
    EXPECT_EQ(State().st_uid, Somebody);
    EXPECT_EQ(State().st_gid, Nobody);
}

// Saved by somebody who may write to it as anybody may, and can give it to nobody.
TEST_F(FileMarks, GroupThatCannotBeKeptGivesNobodyMoreRights)
{
    ASSERT_EQ(::chmod(Folder.Path().c_str(), 0777), 0);
    if (::chown(Folder.Path("game").c_str(), Somebody, Somebody) != 0) {
        GTEST_SKIP() << "this user cannot give a file away";
    }
    ASSERT_EQ(::chmod(Folder.Path("game").c_str(), 02676), 0);
    const int result = RunInChild([&] {
        if (::setgid(Nobody) != 0 || ::setuid(Nobody) != 0) {
            return 1;
        }
        Replace();
        return HasFailure() ? 1 : 0;
    });
    ASSERT_EQ(result, 0);
    EXPECT_EQ(State().st_uid, Nobody);
    EXPECT_EQ(State().st_mode & 07777U, 0666U);
}

TEST_F(FileMarks, AttributesAndAccessListAreKept)
{
    Set("user.colour", "green");
    Set("system.posix_acl_access", ListFor(Somebody));
    if (!Possible) {
        GTEST_SKIP() << "this disk knows no attributes";
    }
    Replace();
    EXPECT_EQ(Attribute("user.colour"), "green");
    EXPECT_EQ(Attribute("system.posix_acl_access"), ListFor(Somebody));
    EXPECT_EQ(State().st_mode & 0777U, 0640U) << "of which the middle is the mask of the list";
}

TEST_F(FileMarks, ListThatAFolderGivesToNewFilesIsNotTakenOver)
{
    Set("system.posix_acl_default", ListFor(Somebody), "");
    if (!Possible) {
        GTEST_SKIP() << "this disk knows no access lists";
    }
    Replace();
    EXPECT_EQ(Attribute("system.posix_acl_access"), "none");
}

// ---- Writing in place ------------------------------------------------------------------------

TEST_F(FileMarks, FileWithASecondNameNeedsWritingInPlace)
{
    EXPECT_FALSE(NeedsInPlace("game"));
    EXPECT_FALSE(NeedsInPlace("missing"));
    std::filesystem::create_hard_link(Folder.Path("game"), Folder.Path("other"));
    EXPECT_TRUE(NeedsInPlace("game"));
    for (const std::string bytes : {"longer than before", "short", ""}) {
        ASSERT_TRUE(WriteInPlace(Folder.Path("game"), bytes, Error)) << Error;
        EXPECT_EQ(Folder.Read("other"), bytes);
    }
}

TEST_F(FileMarks, FileInAFolderThatTakesNoneNeedsWritingInPlace)
{
    ASSERT_EQ(::chmod(Folder.Path("game").c_str(), 0666), 0);
    ASSERT_EQ(::chmod(Folder.Path().c_str(), 0555), 0);
    const int result = RunInChild([&] {
        if (::getuid() == 0 && (::setgid(Nobody) != 0 || ::setuid(Nobody) != 0)) {
            return 1;
        }
        EXPECT_TRUE(NeedsInPlace("game"));
        EXPECT_FALSE(NeedsInPlace("missing"));
        EXPECT_TRUE(WriteInPlace(Folder.Path("game"), "new", Error)) << Error;
        return HasFailure() ? 1 : 0;
    });
    ::chmod(Folder.Path().c_str(), 0755);
    EXPECT_EQ(result, 0);
    EXPECT_EQ(Folder.Read("game"), "new");
}

TEST_F(FileMarks, FileOfAnothersInASharedFolderNeedsWritingInPlace)
{
    if (::getuid() != 0) {
        GTEST_SKIP() << "this user cannot become another";
    }
    ASSERT_EQ(::chmod(Folder.Path("game").c_str(), 0666), 0);
    ASSERT_EQ(::chmod(Folder.Path().c_str(), 01777), 0);
    const int result = RunInChild([&] {
        if (::setgid(Nobody) != 0 || ::setuid(Nobody) != 0) {
            return 1;
        }
        EXPECT_TRUE(NeedsInPlace("game"));
        return HasFailure() ? 1 : 0;
    });
    EXPECT_EQ(result, 0);
    EXPECT_FALSE(NeedsInPlace("game"));
}

// ---- Leftovers -------------------------------------------------------------------------------

class Leftovers : public FileMarks {
protected:
    // Leaves a file of some age, in seconds.
    void Leave(const std::string &name, std::time_t age) const
    {
        std::ofstream(Folder.Path(name)) << "half";
        const std::array<timeval, 2> times{
            {{std::time(nullptr) - age, 0}, {std::time(nullptr) - age, 0}}};
        ASSERT_EQ(::utimes(Folder.Path(name).c_str(), times.data()), 0);
    }

    [[nodiscard]] bool IsThere(const std::string &name) const
    {
        return FileExists(Folder.Path(name));
    }

    static constexpr std::time_t DayAndMore = std::time_t{25} * 60 * 60;
};

TEST_F(Leftovers, AreRemovedWhenTheFolderIsSavedToAgain)
{
    Leave(".kelvarine-abcDE1", DayAndMore);
    Leave(".kelvarine-abcDE2", 0);
    Replace();
    EXPECT_EQ(Folder.Entries(), 1);
}

TEST_F(Leftovers, FileThatSomebodyStillWritesStaysForADay)
{
    Leave(".kelvarine-abcDE1", DayAndMore);
    Leave(".kelvarine-abcDE2", 0);
    const int old = ::open(Folder.Path(".kelvarine-abcDE1").c_str(), O_RDONLY | O_CLOEXEC);
    const int fresh = ::open(Folder.Path(".kelvarine-abcDE2").c_str(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(::flock(old, LOCK_EX | LOCK_NB), 0);
    ASSERT_EQ(::flock(fresh, LOCK_EX | LOCK_NB), 0);
    Replace();
    EXPECT_FALSE(IsThere(".kelvarine-abcDE1"));
    EXPECT_TRUE(IsThere(".kelvarine-abcDE2"));
    ::close(fresh);
    ::close(old);
    Replace();
    EXPECT_EQ(Folder.Entries(), 1);
}

TEST_F(Leftovers, AreKnownOnADiskThatGivesLocksForWritingAlone)
{
    SystemCalls calls;
    calls.LocksNeedWriting = true;
    Leave(".kelvarine-abcDE1", 0);
    Leave(".kelvarine-abcDE2", 0);
    const int written = ::open(Folder.Path(".kelvarine-abcDE2").c_str(), O_WRONLY | O_CLOEXEC);
    ASSERT_EQ(::flock(written, LOCK_EX | LOCK_NB), 0);
    Replace();
    EXPECT_FALSE(IsThere(".kelvarine-abcDE1"));
    EXPECT_TRUE(IsThere(".kelvarine-abcDE2"));
    ::close(written);
}

TEST_F(Leftovers, FilesOfOthersAndOfOtherNamesStay)
{
    for (const std::string name :
         {".kelvarine-abcDE", ".kelvarine-abcDE12", ".kelvarine-abc.12", "kelvarine-abcDE1"}) {
        Leave(name, DayAndMore);
    }
    std::filesystem::create_directory(Folder.Path(".kelvarine-folder"));
    std::filesystem::create_symlink("game", Folder.Path(".kelvarine-linked"));
    Replace();
    EXPECT_EQ(Folder.Entries(), 7);
    Leave(".kelvarine-abcDE1", DayAndMore);
    if (::chown(Folder.Path(".kelvarine-abcDE1").c_str(), Nobody, Nobody) == 0) {
        Replace();
        EXPECT_TRUE(IsThere(".kelvarine-abcDE1"));
    }
}

} // namespace
} // namespace kelvarine::testing
