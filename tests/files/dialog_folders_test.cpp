#include "files/dialog_folders.h"
#include "files/file_dialog.h"
#include "grid/history.h"
#include "outside/folders.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

class DialogFolders : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        std::filesystem::create_directory(Folder.Path("inner"));
        Folder.Write("game.sdk", "");
    }

    TemporaryFolder Folder;
};

TEST_F(DialogFolders, TildeStandsForTheHomeBeforeASlash)
{
    EXPECT_EQ(WithHomeWrittenOut("~/games/a.sdk"), HomeFolder() + "games/a.sdk");
    EXPECT_EQ(WithHomeWrittenOut("~a/b"), "~a/b");
    EXPECT_EQ(WithHomeWrittenOut("a~/b"), "a~/b");
    EXPECT_EQ(TypedFolder("~", "/"), HomeFolder());
}

TEST_F(DialogFolders, PathToAFolderIsOneAndABareNameIsNot)
{
    EXPECT_EQ(TypedFolder(Folder.Path("inner"), "/"), Folder.Path("inner/"));
    EXPECT_EQ(TypedFolder(" " + Folder.Path("inner/../inner//") + " ", "/"), Folder.Path("inner/"));
    EXPECT_EQ(TypedFolder("inner/", Folder.Path()), Folder.Path("inner/"));
    EXPECT_EQ(TypedFolder("..", Folder.Path("inner/")), Folder.Path());
    EXPECT_EQ(TypedFolder(".", Folder.Path()), Folder.Path());
    for (const std::string &typed : {std::string("inner"), std::string("gone/"), std::string(),
                                     Folder.Path("game.sdk"), Folder.Path("gone")}) {
        EXPECT_EQ(TypedFolder(typed, Folder.Path()), "") << typed;
    }
}

TEST_F(DialogFolders, PathThatNamesAFileIsNoFolder)
{
    DialogFolder = Folder.Path();
    DialogCaption = OpenGameCaption;
    EXPECT_EQ(FolderMeant(Folder.Path("inner")), Folder.Path("inner/"));
    DialogCaption = SaveGameCaption;
    EXPECT_EQ(FolderMeant(Folder.Path("inner")), "") << "the game is saved as inner.sdk";
    EXPECT_EQ(FolderMeant(Folder.Path("inner/")), Folder.Path("inner/"));
    EXPECT_EQ(FolderMeant(".."),
              std::filesystem::path(Folder.Path()).parent_path().parent_path().string() + "/");
    Folder.Write("inner.sdk", "");
    DialogCaption = OpenGameCaption;
    EXPECT_EQ(FolderMeant(Folder.Path("inner")), "") << "inner.sdk is opened";
    EXPECT_EQ(FolderMeant("inner"), "");
}

TEST_F(DialogFolders, FolderAboveTheRootIsTheRoot)
{
    EXPECT_EQ(FolderAbove("/a/b/"), "/a/");
    EXPECT_EQ(FolderAbove("/a/"), "/");
    EXPECT_EQ(FolderAbove("/"), "/");
}

TEST_F(DialogFolders, ChosenFilesLeaveTheirFoldersTheLatestFirst)
{
    for (const char *path : {"/1/a", "/2/a", "/3/a", "/4/a", "/5/a", "/6/a", "/3/b", "./here"}) {
        RememberFolderOf(path);
    }
    EXPECT_EQ(RecentFolders, (Texts{"/3/", "/6/", "/5/", "/4/", "/2/"}));
    DialogFolder = Folder.Path();
    Seen.FileNames = {"game"};
    ShowFileDialog(OpenGameCaption, SudokuFiles);
    EXPECT_EQ(RecentFolders.front(), Folder.Path());
}

TEST_F(DialogFolders, FolderThatCannotBeReadIsTold)
{
    EXPECT_TRUE(AgreeToEnter(Folder.Path("inner/")));
    EXPECT_EQ(Seen.Messages, Texts{});
    EXPECT_FALSE(AgreeToEnter(Folder.Path("gone/")));
    EXPECT_EQ(Seen.Messages, Texts{"Unable to open folder.\r\rNo such file or directory"});
}

TEST_F(DialogFolders, NewFolderIsMadeAndAFailureTold)
{
    EXPECT_EQ(MakeFolder(Folder.Path(), " new "), Folder.Path("new/"));
    EXPECT_TRUE(std::filesystem::is_directory(Folder.Path("new")));
    EXPECT_EQ(MakeFolder(Folder.Path(), "  "), "");
    EXPECT_EQ(Seen.Messages, Texts{});
    EXPECT_EQ(MakeFolder(Folder.Path(), "new"), "");
    EXPECT_EQ(Seen.Messages, Texts{"Unable to make folder.\r\rFile exists"});
}

TEST_F(DialogFolders, OpenDialogTakesATildeForTheHome)
{
    Seen.FileNames = {"~/no such game"};
    DialogFolder = Folder.Path();
    ShowFileDialog(SaveSolutionsCaption, SudokuFiles);
    EXPECT_EQ(ChosenFilePath, HomeFolder() + "no such game.sdk");
}

TEST_F(DialogFolders, RecentFolderStandsOnceHoweverItWasTyped)
{
    for (const char *path : {"/b/game.sdk", "/a/../b//other.sdk", "/b/./game.sdk"}) {
        RememberFolderOf(path);
    }
    EXPECT_EQ(RecentFolders, Texts{"/b/"});
}

} // namespace
} // namespace kelvarine::testing
