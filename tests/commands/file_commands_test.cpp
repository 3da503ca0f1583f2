#include "commands/file_commands.h"
#include "commands/restart.h"
#include "commands/save_question.h"
#include "files/file_dialog.h"
#include "files/game_file.h"
#include "game/lifecycle.h"
#include "game/undo.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "logic/driver.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

class FileCommands : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        DialogFolder = Folder.Path();
    }

    // The file of an easy game with a number placed, and a program that knows nothing of it.
    std::string SavedGame()
    {
        StartSavedGame(EasyGame);
        WordAt({3, 1}) = (WordAt({3, 1}) & ~CandidateMask) | BitTable[4];
        PushUndoState();
        std::string bytes = GameFileBytes();
        Folder.Write("saved.sdk", bytes);
        Restart();
        DialogFolder = Folder.Path();
        return bytes;
    }

    TemporaryFolder Folder;
};

TEST_F(FileCommands, FileNameIsWhatFollowsTheLastSlashInSmallLetters)
{
    EXPECT_EQ(FileNameOf("/home/Anna/My Game.SDK"), "my game.sdk");
    EXPECT_EQ(FileNameOf("game.sdk"), "game.sdk");
    EXPECT_EQ(FileNameOf("/tmp/  a b.sdk "), "a b.sdk");
    EXPECT_EQ(FileNameOf("/tmp/"), "");
    EXPECT_EQ(FileNameOf(""), "");
    EXPECT_EQ(FileNameOf("/tmp/C:\\Game.sdk"), "c:\\game.sdk");
    EXPECT_EQ(FileNameOf("/tmp/\xC3\x84rger.sdk"), "\xC3\xA4rger.sdk");
    EXPECT_EQ(FileNameOf("/tmp/\xFF\xC3.SDK"), "\xFF\xC3.sdk");
}

// ---- mnuOpen -------------------------------------------------------------------------------

TEST_F(FileCommands, OpenShowsTheGameAndItsName)
{
    const std::string bytes = SavedGame();
    Seen.FileNames = {"saved"};
    mnuOpen();
    EXPECT_EQ(Acts(), (Texts{"file dialog: Open Game", "banner:  Standby ",
                             "stop sound: ", "board: ", "refresh: "}));
    EXPECT_EQ(Seen.FileTypeSelected, 0U);
    EXPECT_EQ(GameFilePath, Folder.Path("saved.sdk"));
    EXPECT_EQ(ChosenFilePath, Folder.Path("saved.sdk"));
    EXPECT_EQ(Seen.WindowTitle, "Kelvarine (saved.sdk)");
    EXPECT_EQ(GameModified, False);
    EXPECT_TRUE(GameFileBytes() == bytes);
}

TEST_F(FileCommands, OpenedTextIsTheGamesFileToo)
{
    Folder.Write("Puzzle.TXT", EasyGame);
    Seen.FileNames = {"Puzzle.TXT"};
    mnuOpen();
    EXPECT_EQ(GameFilePath, Folder.Path("Puzzle.TXT"));
    EXPECT_EQ(Seen.WindowTitle, "Kelvarine (puzzle.txt)");
    EXPECT_EQ(GameModified, False);
    EXPECT_EQ(GivenCount, 30);
}

TEST_F(FileCommands, OpenAsksForTheGameInHandFirst)
{
    SavedGame();
    StartSavedGame(EasySolution);
    GameModified = True;
    const std::string before = ProgramState();
    Seen.SaveAnswers = {Answer::Cancel};
    Seen.FileNames = {"saved"};
    mnuOpen();
    EXPECT_EQ(Acts(), (Texts{"pending events: ",
                             "save question: Would you like to save this game first?"}));
    ForgetRecord();
    LastAnswer = 0;
    EXPECT_EQ(ProgramState(), before);
}

TEST_F(FileCommands, DroppedGameOpensAsANamedOneDoesAfterTheQuestion)
{
    SavedGame();
    StartSavedGame(EasyGame);
    GameModified = True;
    const GridTable before = Grid;
    Seen.SaveAnswers = {Answer::Cancel, Answer::No};
    OpenDroppedGame(Folder.Path("saved.sdk"));
    EXPECT_EQ(Acts(), (Texts{"pending events: ",
                             "save question: Would you like to save this game first?"}));
    EXPECT_EQ(Grid, before);
    OpenDroppedGame(Folder.Path("saved.sdk"));
    EXPECT_EQ(GameFilePath, Folder.Path("saved.sdk"));
    EXPECT_EQ(Seen.WindowTitle, "Kelvarine (saved.sdk)");
    EXPECT_EQ(GameModified, False);
    EXPECT_NE(Grid, before);
}

TEST_F(FileCommands, GameDroppedDuringASearchOnlyAsks)
{
    SavedGame();
    const GridTable before = Grid;
    SearchActive = True;
    SearchKind = 1;
    ForgetRecord();
    OpenDroppedGame(Folder.Path("saved.sdk"));
    SearchActive = False;
    SearchKind = 0;
    EXPECT_EQ(Acts(), (Texts{"stop sound: ", "question: Would you like to stop searching?"}));
    EXPECT_EQ(Grid, before);
}

TEST_F(FileCommands, CancelInTheDialogOpensNothing)
{
    StartSavedGame(EasyGame);
    const GridTable before = Grid;
    mnuOpen();
    EXPECT_EQ(LastAnswer, 2);
    EXPECT_EQ(Acts(), (Texts{"file dialog: Open Game", "file dialog: cancelled"}));
    EXPECT_EQ(Grid, before);
}

TEST_F(FileCommands, WhatIsNoGameIsToldAndTheGameGoesOn)
{
    StartSavedGame(EasyGame);
    GameFilePath = "/kept/name.sdk";
    const std::string before = ProgramState();
    Folder.Write("broken.sdk", "Kelvarine game file v9");
    Seen.FileNames = {"broken"};
    mnuOpen();
    EXPECT_EQ(Acts(), (Texts{"file dialog: Open Game", "banner:  Standby ", "board: ",
                             "message: Unable to open file.\r\rSelected file is either corrupted "
                             "or is not a sudoku game file."}));
    ForgetRecord();
    LastAnswer = 0;
    EXPECT_EQ(ProgramState(), before);
}

TEST_F(FileCommands, FolderChosenAsAGameIsTold)
{
    std::filesystem::create_directory(Folder.Path("folder.sdk"));
    Seen.FileNames = {"folder"};
    mnuOpen();
    EXPECT_EQ(Seen.Messages, Texts{"Unable to open file.\r\rSelected file is either corrupted or "
                                   "is not a sudoku game file."});
    EXPECT_EQ(GameFilePath, "");
}

TEST_F(FileCommands, DecliningToSaveKeepsTheLoadedHistory)
{
    SavedGame();
    StartSavedGame(EasySolution);
    GameModified = True;
    Seen.SaveAnswers = {Answer::No};
    Seen.FileNames = {"saved"};
    mnuOpen();
    EXPECT_EQ(HistoryCount, 2);
    EXPECT_EQ(GameModified, False);
    Undo();
    EXPECT_EQ(CountCandidates(3, 1), 9);
}

// ---- mnuSave and mnuSaveAs -----------------------------------------------------------------

TEST_F(FileCommands, SaveOfANamedGameAsksNothing)
{
    StartSavedGame(EasyGame);
    GameFilePath = Folder.Path("game.sdk");
    GameModified = True;
    mnuSave();
    EXPECT_EQ(Acts(), Texts{});
    EXPECT_EQ(GameModified, False);
    EXPECT_TRUE(Folder.Read("game.sdk") == GameFileBytes());
    EXPECT_EQ(Seen.WindowTitle, "Kelvarine");
}

TEST_F(FileCommands, SaveOfAGameWithoutANameAsksForOne)
{
    StartSavedGame(EasyGame);
    Seen.FileNames = {"New Game"};
    mnuSave();
    EXPECT_EQ(Acts(), Texts{"file dialog: Save Game As"});
    EXPECT_EQ(Seen.FileTypeSelected, 0U);
    EXPECT_EQ(GameFilePath, Folder.Path("New Game.sdk"));
    EXPECT_EQ(Seen.WindowTitle, "Kelvarine (new game.sdk)");
    EXPECT_TRUE(Folder.Read("New Game.sdk") == GameFileBytes());
}

TEST_F(FileCommands, SaveAsGivesANewNameAndLeavesTheOldFile)
{
    StartSavedGame(EasyGame);
    Folder.Write("old.sdk", "old");
    GameFilePath = Folder.Path("old.sdk");
    Seen.FileNames = {"new.txt"};
    mnuSaveAs();
    EXPECT_EQ(GameFilePath, Folder.Path("new.txt"));
    EXPECT_EQ(Seen.WindowTitle, "Kelvarine (new.txt)");
    EXPECT_EQ(Folder.Read("old.sdk"), "old");
    EXPECT_EQ(Folder.Read("new.txt").substr(0, 2), "+-");
}

TEST_F(FileCommands, CancelledSaveAsWritesNothing)
{
    StartSavedGame(EasyGame);
    GameModified = True;
    mnuSaveAs();
    EXPECT_EQ(GameModified, True);
    EXPECT_EQ(GameFilePath, "");
    EXPECT_EQ(Folder.Entries(), 0);
    EXPECT_EQ(Seen.WindowTitle, "Kelvarine");
}

TEST_F(FileCommands, SaveAsWritesNothingWhenItsDialogGoesWithTheProgram)
{
    SavedGame();
    OpenGameFile(Folder.Path("saved.sdk"));
    const std::string file = Folder.Read("saved.sdk");
    WordAt({5, 5}) = BitTable[5];
    PushUndoState();
    Seen.OnBox = [] {
        QuerySaveGame();
    }; // answered No
    mnuSaveAs();
    EXPECT_TRUE(Folder.Read("saved.sdk") == file);
    EXPECT_EQ(Folder.Entries(), 1);
}

TEST_F(FileCommands, FailedSaveAsKeepsNameTitleAndGame)
{
    StartSavedGame(EasyGame);
    GameFilePath = Folder.Path("old.sdk");
    GameModified = True;
    Seen.FileNames = {"/proc/new.sdk"};
    mnuSaveAs();
    EXPECT_EQ(Seen.Messages, Texts{"Unable to save file.\r\rNo such file or directory"});
    EXPECT_EQ(GameFilePath, Folder.Path("old.sdk"));
    EXPECT_EQ(Seen.WindowTitle, "Kelvarine");
    EXPECT_EQ(GameModified, True);
}

// ---- The question before a game is lost ----------------------------------------------------

TEST_F(FileCommands, YesSavesUnderTheNameAndGoesOn)
{
    StartSavedGame(EasyGame);
    GameFilePath = Folder.Path("game.sdk");
    GameModified = True;
    Seen.SaveAnswers = {Answer::Yes};
    QuerySaveGame();
    EXPECT_EQ(LastAnswer, 0);
    EXPECT_EQ(GameModified, False);
    EXPECT_TRUE(Folder.Read("game.sdk") == GameFileBytes());
}

TEST_F(FileCommands, YesAsksForANameAndGoesOn)
{
    StartSavedGame(EasyGame);
    GameModified = True;
    Seen.SaveAnswers = {Answer::Yes};
    Seen.FileNames = {"game"};
    QuerySaveGame();
    EXPECT_EQ(LastAnswer, 0);
    EXPECT_EQ(Seen.Calls.back(), "file dialog: Save Game As");
    EXPECT_TRUE(Folder.Read("game.sdk") == GameFileBytes());
    EXPECT_EQ(Seen.WindowTitle, "Kelvarine");
}

TEST_F(FileCommands, YesToATextGoesOnWithTheGameModified)
{
    StartSavedGame(EasyGame);
    GameModified = True;
    Seen.SaveAnswers = {Answer::Yes};
    Seen.FileNames = {"game.txt"};
    QuerySaveGame();
    EXPECT_EQ(LastAnswer, 0);
    EXPECT_EQ(GameModified, True);
}

TEST_F(FileCommands, YesStopsTheCallerWhenTheDialogIsCancelled)
{
    StartSavedGame(EasyGame);
    GameModified = True;
    Seen.SaveAnswers = {Answer::Yes};
    mnuGameBlankGrid();
    EXPECT_EQ(LastAnswer, 2);
    EXPECT_EQ(GivenCount, 30);
}

TEST_F(FileCommands, YesStopsTheCallerWhenTheWritingFails)
{
    StartSavedGame(EasyGame);
    GameModified = True;
    Seen.SaveAnswers = {Answer::Yes};
    Seen.FileNames = {Folder.Path("gone/game.sdk")};
    mnuGameBlankGrid();
    EXPECT_EQ(LastAnswer, 2);
    EXPECT_EQ(GivenCount, 30);
    EXPECT_EQ(GameModified, True);
    EXPECT_EQ(GameFilePath, "");
    GameFilePath = Folder.Path("gone/game.sdk");
    Seen.SaveAnswers = {Answer::Yes};
    mnuGameBlankGrid();
    EXPECT_EQ(LastAnswer, 2);
    EXPECT_EQ(GivenCount, 30);
}

// ---- A file that was no game -----------------------------------------------------------------

class ForeignFile : public FileCommands {
protected:
    // Opens a text as a game, and plays.
    void OpenText(std::string_view name)
    {
        Folder.Write(name, EasyGame);
        OpenGameFile(Folder.Path(name));
        ASSERT_EQ(GameFilePath, Folder.Path(name));
        WordAt({3, 1}) = BitTable[4];
        PushUndoState();
        ForgetRecord();
    }

    [[nodiscard]] std::string Question(std::string_view name) const
    {
        return Folder.Path(name) + "\ralready exists.\r\rDo you want to overwrite it?";
    }
};

TEST_F(ForeignFile, IsReplacedByAGameOnlyAfterAQuestionThatComesOnce)
{
    OpenText("picture.png");
    Seen.YesNoAnswers = {true};
    mnuSave();
    EXPECT_EQ(Seen.Questions, Texts{Question("picture.png")});
    EXPECT_EQ(Seen.Titles, Texts{"Overwrite?"});
    EXPECT_TRUE(Folder.Read("picture.png") == GameFileBytes());
    PushUndoState();
    mnuSave();
    EXPECT_EQ(Seen.Questions.size(), 1U);
    EXPECT_EQ(GameModified, False);
}

TEST_F(ForeignFile, NoOpensSaveGameAs)
{
    OpenText("picture.png");
    Seen.FileNames = {"other"};
    mnuSave();
    EXPECT_EQ(Acts(), (Texts{"question: " + Question("picture.png"), "file dialog: Save Game As"}));
    EXPECT_EQ(GameFilePath, Folder.Path("other.sdk"));
    EXPECT_EQ(Folder.Read("picture.png"), EasyGame);
    EXPECT_TRUE(Folder.Read("other.sdk") == GameFileBytes());
    PushUndoState();
    mnuSave();
    EXPECT_EQ(Seen.Questions.size(), 1U) << "the other file is a game";
}

TEST_F(ForeignFile, NoAndCancelSavesNothingAndAsksAgain)
{
    OpenText("picture.png");
    mnuSave();
    mnuSave();
    EXPECT_EQ(Seen.Questions.size(), 2U);
    EXPECT_EQ(GameModified, True);
    EXPECT_EQ(Folder.Read("picture.png"), EasyGame);
}

TEST_F(ForeignFile, SaveQuestionAsksAsWell)
{
    OpenText("picture.png");
    Seen.SaveAnswers = {Answer::Yes};
    QuerySaveGame();
    EXPECT_EQ(Seen.Questions.back(), Question("picture.png"));
    EXPECT_EQ(LastAnswer, AnsweredCancel) << "No and no other name stop the caller";
    EXPECT_EQ(Folder.Read("picture.png"), EasyGame);
}

TEST_F(ForeignFile, NamesOfTheProgramsOwnAreNotAskedAbout)
{
    for (const std::string_view name : {"puzzle.sdk", "puzzle.txt"}) {
        OpenText(name);
        mnuSave();
        EXPECT_TRUE(Seen.Questions.empty()) << name;
        EXPECT_NE(Folder.Read(name), EasyGame) << name;
    }
    OpenText("PUZZLE.TXT");
    mnuSave();
    EXPECT_EQ(Seen.Questions, Texts{Question("PUZZLE.TXT")}) << "which would become a game file";
}

TEST_F(ForeignFile, GameUnderAForeignNameIsNotAskedAbout)
{
    Folder.Write("evening.game", SavedGame());
    OpenGameFile(Folder.Path("evening.game"));
    PushUndoState();
    mnuSave();
    EXPECT_TRUE(Seen.Questions.empty());
    EXPECT_EQ(GameModified, False);
}

TEST_F(ForeignFile, FileThatHasGoneIsWrittenWithoutAQuestion)
{
    OpenText("picture.png");
    std::filesystem::remove(Folder.Path("picture.png"));
    mnuSave();
    EXPECT_TRUE(Seen.Questions.empty());
    EXPECT_TRUE(Folder.Read("picture.png") == GameFileBytes());
}

} // namespace
} // namespace kelvarine::testing
