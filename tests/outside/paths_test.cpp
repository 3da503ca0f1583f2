#include "outside/paths.h"
#include "outside/whole_file.h"
#include "support/child_process.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <sys/stat.h>

namespace kelvarine::testing {
namespace {

constexpr int Nobody = 65534;

class Paths : public ::testing::Test {
protected:
    void Link(const std::string &to, const std::string &name) const
    {
        std::filesystem::create_symlink(to, Folder.Path(name));
    }

    [[nodiscard]] bool IsLink(const std::string &name) const
    {
        return std::filesystem::is_symlink(Folder.Path(name));
    }

    bool Replace(const std::string &name)
    {
        return ReplaceWholeFile(Folder.Path(name), "new", Error, MissingFolders::Refused);
    }

    TemporaryFolder Folder;
    std::string Error;
};

TEST_F(Paths, FolderAndNameAreWhatTheLastSlashParts)
{
    EXPECT_EQ(FolderOf("/home/anna/game.sdk"), "/home/anna");
    EXPECT_EQ(FolderOf("/game.sdk"), "/");
    EXPECT_EQ(FolderOf("game.sdk"), ".");
    EXPECT_EQ(NameIn("/home/anna/game.sdk"), "game.sdk");
    EXPECT_EQ(NameIn("game.sdk"), "game.sdk");
}

TEST_F(Paths, LinkKeepsPointingWhereNothingStandsYet)
{
    Link(Folder.Path("target"), "link");
    ASSERT_TRUE(Replace("link")) << Error;
    EXPECT_TRUE(IsLink("link"));
    EXPECT_EQ(Folder.Read("target"), "new");
    EXPECT_EQ(Folder.Entries(), 2);
}

TEST_F(Paths, ChainOfRelativeLinksIsFollowedToItsEnd)
{
    std::filesystem::create_directory(Folder.Path("deep"));
    Link("deep/second", "first");
    Link("../target", "deep/second");
    ASSERT_TRUE(Replace("first")) << Error;
    EXPECT_TRUE(IsLink("first"));
    EXPECT_TRUE(IsLink("deep/second"));
    EXPECT_EQ(Folder.Read("target"), "new");
}

TEST_F(Paths, LoopOfLinksIsTold)
{
    Link("second", "first");
    Link("first", "second");
    EXPECT_FALSE(Replace("first"));
    EXPECT_EQ(Error, "Too many levels of symbolic links");
    EXPECT_TRUE(IsLink("first"));
    EXPECT_EQ(Folder.Entries(), 2);
}

TEST_F(Paths, LinkIntoAMissingFolderIsTold)
{
    Link("gone/target", "link");
    EXPECT_FALSE(Replace("link"));
    EXPECT_EQ(Error, "No such file or directory");
    EXPECT_TRUE(IsLink("link"));
}

TEST_F(Paths, NamesAreBytes)
{
    const std::string name = "lat\xe4in.sdk";
    ASSERT_TRUE(Replace(name)) << Error;
    EXPECT_EQ(Folder.Read(name), "new");
    Link(name, "l\xefnk");
    ASSERT_TRUE(ReplaceWholeFile(Folder.Path("l\xefnk"), "newer", Error)) << Error;
    EXPECT_EQ(Folder.Read(name), "newer");
}

// A link of somebody else's in a folder that all may write to, and one of one's own.
TEST_F(Paths, LinkThatSomebodyElsePlantedIsNotFollowed)
{
    Folder.Write("target", "old");
    Link("target", "planted");
    Link("target", "own");
    if (::lchown(Folder.Path("planted").c_str(), Nobody, Nobody) != 0) {
        GTEST_SKIP() << "this user cannot give a link away";
    }
    EXPECT_TRUE(Replace("planted")) << "in a folder of one's own every link is as good: " << Error;
    ASSERT_EQ(::chmod(Folder.Path().c_str(), 01777), 0);
    Folder.Write("target", "old");
    EXPECT_FALSE(Replace("planted"));
    EXPECT_EQ(Error, "Permission denied");
    EXPECT_EQ(Folder.Read("target"), "old");
    EXPECT_TRUE(Replace("own")) << Error;
    EXPECT_TRUE(IsLink("own"));
}

} // namespace
} // namespace kelvarine::testing
