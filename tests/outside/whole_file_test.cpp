#include "outside/folders.h"
#include "outside/whole_file.h"
#include "support/empty_folder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>

namespace kelvarine::testing {

namespace {

class WholeFile : public ::testing::Test {
protected:
    [[nodiscard]] std::string Path(const std::string &name) const
    {
        return (Folder / name).string();
    }

    std::string Read(const std::string &name)
    {
        std::string bytes;
        EXPECT_TRUE(ReadWholeFile(Path(name), bytes, Error)) << Error;
        return bytes;
    }

    [[nodiscard]] long EntriesIn(const std::filesystem::path &folder) const
    {
        return std::distance(std::filesystem::directory_iterator(folder), {});
    }

    const EmptyFolder Own;
    const std::filesystem::path Folder = Own.Path();
    std::string Error;
};

} // namespace

TEST_F(WholeFile, WhatIsWrittenIsRead)
{
    const std::string bytes("a\0b\r\n\xff", 6);
    ASSERT_TRUE(ReplaceWholeFile(Path("new/deep/file"), bytes, Error)) << Error;
    EXPECT_EQ(Read("new/deep/file"), bytes);
    EXPECT_EQ(EntriesIn(Folder / "new/deep"), 1);
}

TEST_F(WholeFile, ReplacesShorterAndLonger)
{
    for (const std::size_t length : {100000U, 3U, 0U, 70000U}) {
        ASSERT_TRUE(ReplaceWholeFile(Path("file"), std::string(length, 'x'), Error)) << Error;
        EXPECT_EQ(Read("file").size(), length);
    }
    EXPECT_EQ(EntriesIn(Folder), 1);
}

TEST_F(WholeFile, KeepsPermissionsAndLinks)
{
    ASSERT_TRUE(ReplaceWholeFile(Path("file"), "old", Error));
    ASSERT_EQ(::chmod(Path("file").c_str(), 0640), 0);
    std::filesystem::create_symlink(Path("file"), Path("link"));
    ASSERT_TRUE(ReplaceWholeFile(Path("link"), "new", Error)) << Error;
    EXPECT_TRUE(std::filesystem::is_symlink(Path("link")));
    EXPECT_EQ(Read("file"), "new");
    struct stat kind {};
    ASSERT_EQ(::stat(Path("file").c_str(), &kind), 0);
    EXPECT_EQ(kind.st_mode & 0777U, 0640U);
}

TEST_F(WholeFile, NameTooLongLeavesNothingBehind)
{
    EXPECT_FALSE(ReplaceWholeFile(Path(std::string(300, 'n')), "bytes", Error));
    EXPECT_EQ(Error, "File name too long");
    EXPECT_EQ(EntriesIn(Folder), 0);
}

TEST_F(WholeFile, LongestNameIsWritten)
{
    ASSERT_TRUE(ReplaceWholeFile(Path(std::string(255, 'n')), "bytes", Error)) << Error;
    EXPECT_EQ(Read(std::string(255, 'n')), "bytes");
}

TEST_F(WholeFile, FolderInTheWayIsKept)
{
    std::filesystem::create_directory(Path("file"));
    EXPECT_FALSE(ReplaceWholeFile(Path("file"), "bytes", Error));
    EXPECT_EQ(Error, "Is a directory");
    EXPECT_EQ(EntriesIn(Folder), 1);
}

TEST_F(WholeFile, ReadingWhatIsNoFileFailsAtOnce)
{
    std::string bytes = "left over";
    EXPECT_FALSE(ReadWholeFile(Path("missing"), bytes, Error));
    EXPECT_EQ(Error, "No such file or directory");
    EXPECT_EQ(bytes, "");
    EXPECT_FALSE(ReadWholeFile(Folder.string(), bytes, Error));
    EXPECT_EQ(Error, "Is a directory");
    ASSERT_EQ(::mkfifo(Path("pipe").c_str(), 0600), 0);
    EXPECT_FALSE(ReadWholeFile(Path("pipe"), bytes, Error));
    EXPECT_FALSE(ReadWholeFile("/dev/zero", bytes, Error));
}

TEST_F(WholeFile, ReadingStopsAtTheLimit)
{
    ASSERT_TRUE(ReplaceWholeFile(Path("file"), std::string(1000, 'x'), Error));
    std::string bytes;
    ASSERT_TRUE(ReadWholeFile(Path("file"), bytes, Error, 10));
    EXPECT_EQ(bytes, "xxxxxxxxxx");
}

TEST_F(WholeFile, FileExistsTellsFilesAndFolders)
{
    EXPECT_FALSE(FileExists(Path("file")));
    ASSERT_TRUE(ReplaceWholeFile(Path("file"), "", Error));
    EXPECT_TRUE(FileExists(Path("file")));
    EXPECT_TRUE(FileExists(Folder.string()));
}

TEST_F(WholeFile, FoldersFollowTheDesktopsVariables)
{
    ::setenv("XDG_CONFIG_HOME", "/some/where", 1);
    EXPECT_EQ(SettingsFolder(), "/some/where/kelvarine/");
    ::setenv("XDG_DATA_HOME", "relative/does/not/count", 1);
    ::setenv("HOME", "/home/anna", 1);
    EXPECT_EQ(DataFolder(), "/home/anna/.local/share/kelvarine/");
    ::unsetenv("XDG_CONFIG_HOME");
    ::unsetenv("XDG_DATA_HOME");
    EXPECT_EQ(SettingsFolder(), "/home/anna/.config/kelvarine/");
}

} // namespace kelvarine::testing
