#include "commands/save_question.h"
#include "files/file_dialog.h"
#include "game/lifecycle.h"
#include "grid/history.h"
#include "outside/folders.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sys/stat.h>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

class FileDialogRules : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        DialogFolder = Folder.Path();
    }

    // Shows the dialog, types the name and presses OK. True when that closes it.
    bool Choose(std::string_view caption, const std::string &name,
                std::size_t fileType = SudokuFiles)
    {
        ForgetRecord();
        Seen.FileNames = {name};
        ShowFileDialog(caption, fileType);
        return LastAnswer == AnsweredOk;
    }

    TemporaryFolder Folder;
};

// ---- Types ---------------------------------------------------------------------------------

TEST_F(FileDialogRules, TypesNameTheirPatterns)
{
    EXPECT_EQ(FileTypes[0], "Sudoku files (*.sdk)");
    EXPECT_EQ(FileTypes[1], "Text files (*.txt)");
    EXPECT_EQ(FileTypes[2], "All files (*.*)");
}

TEST_F(FileDialogRules, SelectedTypeSetsPatternAndExtension)
{
    SelectFileType(SudokuFiles);
    EXPECT_EQ(FilePattern + " " + DefaultExtension, "*.sdk .sdk");
    SelectFileType(TextFiles);
    EXPECT_EQ(FilePattern + " " + DefaultExtension, "*.txt .txt");
    SelectFileType(AllFiles);
    EXPECT_EQ(FilePattern + " " + DefaultExtension, "*.* .sdk");
}

TEST_F(FileDialogRules, PresetTypeTakesWhatFollowsTheStar)
{
    Choose(SaveSolutionsCaption, "", TextFiles);
    EXPECT_EQ(FilePattern + " " + DefaultExtension, "*.txt .txt");
    Choose(SaveSolutionsCaption, "", AllFiles);
    EXPECT_EQ(FilePattern + " " + DefaultExtension, "*.* .*");
    Choose(OpenGameCaption, "");
    EXPECT_EQ(FilePattern + " " + DefaultExtension, "*.sdk .sdk");
}

TEST_F(FileDialogRules, ListHoldsWhatThePatternTells)
{
    SelectFileType(SudokuFiles);
    EXPECT_TRUE(IsListed("game.sdk"));
    EXPECT_TRUE(IsListed("GAME.SDK"));
    EXPECT_FALSE(IsListed("game.txt"));
    EXPECT_FALSE(IsListed("sdk"));
    SelectFileType(AllFiles);
    EXPECT_TRUE(IsListed("game.txt"));
    EXPECT_TRUE(IsListed("no point"));
}

// ---- From a name to a path -----------------------------------------------------------------

TEST_F(FileDialogRules, BareNameGetsFolderAndExtension)
{
    EXPECT_TRUE(Choose(SaveSolutionsCaption, "game"));
    EXPECT_EQ(ChosenFilePath, Folder.Path("game.sdk"));
    EXPECT_TRUE(Choose(SaveSolutionsCaption, "game", TextFiles));
    EXPECT_EQ(ChosenFilePath, Folder.Path("game.txt"));
    EXPECT_TRUE(Choose(SaveSolutionsCaption, "  my game  "));
    EXPECT_EQ(ChosenFilePath, Folder.Path("my game.sdk"));
}

TEST_F(FileDialogRules, NameWithAPointKeepsItsExtension)
{
    for (const std::string name : {"game.text", ".hidden", "game.", "a.b.c", "GAME.SDK"}) {
        EXPECT_TRUE(Choose(SaveSolutionsCaption, name));
        EXPECT_EQ(ChosenFilePath, Folder.Path(name));
    }
}

TEST_F(FileDialogRules, NameWithAFolderStaysAsItIs)
{
    for (const char *folder : {"some", "some.folder"}) {
        std::filesystem::create_directory(Folder.Path(folder));
        const std::string path = Folder.Path(folder) + "/game";
        DialogFolder = "/";
        EXPECT_TRUE(Choose(SaveSolutionsCaption, path));
        EXPECT_EQ(ChosenFilePath, path + ".sdk");
    }
    EXPECT_TRUE(Choose(SaveSolutionsCaption, "./game of the working folder"));
    EXPECT_EQ(ChosenFilePath, "./game of the working folder.sdk");
    EXPECT_TRUE(Choose(SaveSolutionsCaption, "/game of the root"));
    EXPECT_EQ(ChosenFilePath, "/game of the root.sdk");
}

TEST_F(FileDialogRules, ColonAndBackslashAreOrdinaryCharacters)
{
    EXPECT_TRUE(Choose(SaveSolutionsCaption, "C:\\game"));
    EXPECT_EQ(ChosenFilePath, Folder.Path("C:\\game.sdk"));
}

TEST_F(FileDialogRules, EmptyNameIsToldAndTheDialogStays)
{
    for (const std::string name : {"", "   "}) {
        EXPECT_FALSE(Choose(SaveGameCaption, name));
        EXPECT_EQ(Seen.Messages, Texts{"Please enter a file name."});
        EXPECT_EQ(LastAnswer, 2);
    }
}

// ---- Opening -------------------------------------------------------------------------------

TEST_F(FileDialogRules, OpensWhatIsThere)
{
    Folder.Write("game.sdk", "");
    GameFilePath = "/kept.sdk";
    EXPECT_TRUE(Choose(OpenGameCaption, "game"));
    EXPECT_EQ(ChosenFilePath, Folder.Path("game.sdk"));
    EXPECT_EQ(GameFilePath, "/kept.sdk");
    EXPECT_EQ(Seen.Calls, Texts{"file dialog: Open Game"});
}

TEST_F(FileDialogRules, MissingFileIsToldAndTheDialogStays)
{
    Folder.Write("game.sdk", "");
    Seen.FileNames = {"other", "game"};
    ShowFileDialog(OpenGameCaption, SudokuFiles);
    EXPECT_EQ(Seen.Calls, (Texts{"file dialog: Open Game",
                                 "message: File not found\r\rCheck path and file name"}));
    EXPECT_EQ(LastAnswer, 1);
    EXPECT_EQ(ChosenFilePath, Folder.Path("game.sdk"));
}

TEST_F(FileDialogRules, UnreachablePathsAreToldInEveryUse)
{
    Folder.Write("file", "");
    for (const std::string_view caption :
         {OpenGameCaption, SaveGameCaption, SaveSolutionsCaption}) {
        for (const std::string &name :
             {Folder.Path("file/game.sdk"), Folder.Path(std::string(300, 'n')),
              Folder.Path(std::string(5000, 'n'))}) {
            EXPECT_FALSE(Choose(caption, name));
            EXPECT_EQ(Seen.Messages,
                      Texts{"Path, file, or device error.\r\rCheck path and file name"});
            EXPECT_EQ(LastAnswer, 2);
        }
    }
    EXPECT_EQ(GameFilePath, "");
}

TEST_F(FileDialogRules, FileBelowNoFolderIsOutOfReachInEveryUse)
{
    Folder.Write("file", "");
    for (const std::string_view caption :
         {OpenGameCaption, SaveGameCaption, SaveSolutionsCaption}) {
        for (const std::string &name : {Folder.Path("gone/game"), Folder.Path("gone/too/game"),
                                        std::string("gone/game"), Folder.Path("gone/")}) {
            EXPECT_FALSE(Choose(caption, name)) << name;
            EXPECT_EQ(Seen.Messages,
                      Texts{"Path, file, or device error.\r\rCheck path and file name"});
        }
    }
    EXPECT_EQ(GameFilePath, "");
}

TEST_F(FileDialogRules, LastErrorIsKeptWithItsNumberAndNotShown)
{
    EXPECT_EQ(LastFileError, "");
    Folder.Write("game.sdk", "");
    Choose(OpenGameCaption, "gone");
    EXPECT_EQ(LastFileError,
              "No such file or directory, Error #2 occurred, at: Form File Command OK");
    EXPECT_EQ(Seen.Messages, Texts{"File not found\r\rCheck path and file name"});
    Choose(SaveGameCaption, Folder.Path("game.sdk/game"));
    EXPECT_EQ(LastFileError, "Not a directory, Error #20 occurred, at: Form File Command OK");
    EXPECT_TRUE(Choose(OpenGameCaption, "game"));
    EXPECT_EQ(LastFileError, "Not a directory, Error #20 occurred, at: Form File Command OK");
    EXPECT_TRUE(Choose(SaveSolutionsCaption, "new"));
    EXPECT_EQ(LastFileError,
              "No such file or directory, Error #2 occurred, at: Form File Command OK");
    SetFileDialogDefaults();
    EXPECT_EQ(LastFileError, "");
}

// ---- Saving --------------------------------------------------------------------------------

TEST_F(FileDialogRules, SavingAGameSetsItsPath)
{
    EXPECT_TRUE(Choose(SaveGameCaption, "game"));
    EXPECT_EQ(GameFilePath, Folder.Path("game.sdk"));
    EXPECT_EQ(ChosenFilePath, Folder.Path("game.sdk"));
    GameFilePath = "/kept.sdk";
    EXPECT_TRUE(Choose(SaveSolutionsCaption, "solutions"));
    EXPECT_EQ(GameFilePath, "/kept.sdk");
}

TEST_F(FileDialogRules, OverwritingIsAskedAndNoKeepsTheDialog)
{
    Folder.Write("a & b.sdk", "");
    for (const std::string_view caption : {SaveGameCaption, SaveSolutionsCaption}) {
        Seen.YesNoAnswers = {false};
        EXPECT_FALSE(Choose(caption, "a & b"));
        EXPECT_EQ(Seen.Questions, Texts{Folder.Path("a && b.sdk") +
                                        "\ralready exists.\r\rDo you want to overwrite it?"});
        EXPECT_EQ(Seen.Titles, Texts{"Overwrite?"});
        EXPECT_EQ(LastAnswer, 2);
        EXPECT_EQ(GameFilePath, "");
    }
    Seen.YesNoAnswers = {true};
    EXPECT_TRUE(Choose(SaveGameCaption, "a & b"));
    EXPECT_EQ(GameFilePath, Folder.Path("a & b.sdk"));
}

// ---- The list ------------------------------------------------------------------------------

TEST_F(FileDialogRules, TypingGoesToTheFirstEntryThatBeginsSo)
{
    const Texts entries{"Alpha.sdk", "beta.sdk", "Beta two.sdk", "\xC3\x84rger.sdk", " gap.sdk"};
    EXPECT_EQ(EntryBeginning(entries, "b"), 1U);
    EXPECT_EQ(EntryBeginning(entries, "BETA T"), 2U);
    EXPECT_EQ(EntryBeginning(entries, "  alpha "), 0U);
    EXPECT_EQ(EntryBeginning(entries, "\xC3\xA4r"), 3U);
    EXPECT_EQ(EntryBeginning(entries, "gap"), 4U);
    EXPECT_EQ(EntryBeginning(entries, "lpha"), std::nullopt);
    EXPECT_EQ(EntryBeginning(entries, "alpha.sdk.old"), std::nullopt);
    EXPECT_EQ(EntryBeginning(entries, " "), 0U) << "all entries begin so";
    EXPECT_EQ(EntryBeginning({}, "a"), std::nullopt);
    EXPECT_EQ(EntryBeginning({}, " "), std::nullopt);
}

TEST_F(FileDialogRules, DeletingAsksWithNoAsDefault)
{
    Folder.Write("a & b.sdk", "");
    Seen.YesNoAnswers = {false};
    EXPECT_FALSE(DeleteListedFile("a & b.sdk"));
    EXPECT_EQ(Seen.Questions, Texts{"Are you sure you want to delete:\ra && b.sdk"});
    EXPECT_EQ(Folder.Entries(), 1);
    Seen.YesNoAnswers = {true};
    EXPECT_TRUE(DeleteListedFile("a & b.sdk"));
    EXPECT_EQ(Folder.Entries(), 0);
    EXPECT_EQ(GameModified, False);
}

TEST_F(FileDialogRules, DeletingTheFileOfTheGameInHandMarksTheGame)
{
    Folder.Write("game.sdk", "");
    Folder.Write("other.sdk", "");
    GameFilePath =
        Folder.Path("../" + std::filesystem::path(Folder.Path()).parent_path().filename().string() +
                    "/game.sdk");
    Seen.YesNoAnswers = {true, true};
    EXPECT_TRUE(DeleteListedFile("other.sdk"));
    EXPECT_EQ(GameModified, False);
    EXPECT_TRUE(DeleteListedFile("game.sdk"));
    EXPECT_EQ(GameModified, True);
}

TEST_F(FileDialogRules, FailedDeletionIsTold)
{
    std::filesystem::create_directory(Folder.Path("folder"));
    GameFilePath = Folder.Path("folder");
    Seen.YesNoAnswers = {true, true};
    EXPECT_FALSE(DeleteListedFile("folder"));
    EXPECT_FALSE(DeleteListedFile("gone.sdk"));
    EXPECT_EQ(Seen.Messages, (Texts{"Unable to delete file.\r\rIs a directory",
                                    "Unable to delete file.\r\rNo such file or directory"}));
    EXPECT_EQ(GameModified, False);
}

// ---- From one showing to the next ----------------------------------------------------------

TEST_F(FileDialogRules, OpensInTheHomeFolderAtFirst)
{
    SetFileDialogDefaults();
    EXPECT_EQ(DialogFolder, HomeFolder());
    EXPECT_TRUE(DialogFolder.ends_with('/'));
}

TEST_F(FileDialogRules, FolderThatIsGoneGivesWayToTheOneAbove)
{
    DialogFolder = Folder.Path("gone/too/");
    Choose(OpenGameCaption, "");
    EXPECT_EQ(DialogFolder, Folder.Path());
    DialogFolder = "/no/such/place/";
    Choose(OpenGameCaption, "");
    EXPECT_EQ(DialogFolder, "/");
}

TEST_F(FileDialogRules, EachShowingBeginsAsCancelled)
{
    LastAnswer = 1;
    Seen.OnBox = [] {
        EXPECT_EQ(LastAnswer, 2);
    };
    ShowFileDialog(OpenGameCaption, SudokuFiles);
    EXPECT_EQ(LastAnswer, 2);
}

// ---- A showing with something else over it -------------------------------------------------

TEST_F(FileDialogRules, AnswerIsTheDialogsOwnWhateverIsAskedOverIt)
{
    for (const std::string_view caption :
         {OpenGameCaption, SaveGameCaption, SaveSolutionsCaption}) {
        Seen.OnBox = [] {
            QuerySaveGame(); // as the closing of the window does
            EXPECT_EQ(LastAnswer, 0);
        };
        ShowFileDialog(caption, SudokuFiles);
        EXPECT_EQ(LastAnswer, 2) << caption;
    }
    Folder.Write("game.sdk", "");
    Seen.FileNames = {"game"};
    Seen.OnBox = [] {
        GameModified = True;
        Seen.SaveAnswers = {Answer::Cancel};
        QuerySaveGame();
        EXPECT_EQ(LastAnswer, 2);
    };
    ShowFileDialog(OpenGameCaption, SudokuFiles);
    EXPECT_EQ(LastAnswer, 1);
}

TEST_F(FileDialogRules, SavingOverAnOpenDialogLeavesItsCaptionTypeAndFolder)
{
    Folder.Write("inner/game.sdk", "");
    Folder.Write("game.txt", "");
    Seen.OnBox = [this] {
        Seen.OnBox = [this] {
            DialogFolder = Folder.Path("inner/");
        }; // chosen in the second one
        ShowFileDialog(SaveGameCaption, SudokuFiles);
        Seen.FileNames = {"game"};
    };
    ShowFileDialog(OpenGameCaption, TextFiles);
    EXPECT_EQ(ChosenFilePath, Folder.Path("game.txt"));
    EXPECT_EQ(GameFilePath, "");
    EXPECT_EQ(LastAnswer, 1);
    EXPECT_TRUE(Seen.Questions.empty()) << "opening overwrites nothing";
}

TEST_F(FileDialogRules, OverwriteQuestionIsAboutTheNameItStandsFor)
{
    Folder.Write("mine.sdk", "");
    Seen.FileNames = {"mine"};
    Seen.YesNoAnswers = {true};
    Seen.OnBox = [] {
        Seen.OnBox = [] { // over the question itself
            Seen.FileNames = {"other"};
            ShowFileDialog(SaveSolutionsCaption, SudokuFiles);
        };
    };
    ShowFileDialog(SaveGameCaption, SudokuFiles);
    EXPECT_EQ(LastAnswer, 1);
    EXPECT_EQ(ChosenFilePath, Folder.Path("mine.sdk"));
    EXPECT_EQ(GameFilePath, Folder.Path("mine.sdk"));
}

TEST_F(FileDialogRules, DeleteQuestionIsAboutTheFileItStandsFor)
{
    Folder.Write("mine.sdk", "");
    Folder.Write("inner/mine.sdk", "");
    Seen.YesNoAnswers = {true};
    Seen.OnBox = [this] {
        DialogFolder = Folder.Path("inner/");
    };
    EXPECT_TRUE(DeleteListedFile("mine.sdk"));
    EXPECT_FALSE(std::filesystem::exists(Folder.Path("mine.sdk")));
    EXPECT_TRUE(std::filesystem::exists(Folder.Path("inner/mine.sdk")));
}

} // namespace
} // namespace kelvarine::testing
