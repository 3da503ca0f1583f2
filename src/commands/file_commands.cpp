#include "commands/file_commands.h"

#include "commands/save_question.h"
#include "files/file_dialog.h"
#include "files/game_file.h"
#include "files/text_case.h"
#include "game/lifecycle.h"
#include "game/search.h"
#include "grid/history.h"
#include "outside/board.h"
#include "outside/messages.h"
#include "outside/whole_file.h"
#include "outside/window.h"

namespace kelvarine {

namespace {

// A game that could not be written keeps the path that it had.
bool SaveUnderChosenName()
{
    const std::string former = GameFilePath;
    ShowFileDialog(SaveGameCaption, SudokuFiles);
    if (LastAnswer == AnsweredCancel) {
        return false;
    }
    if (!WriteGameFile()) {
        GameFilePath = former;
        return false;
    }
    return true;
}

// Whether the game's own file may be written over without another name. What was read as text is
// replaced by a game only when its name is one of the program's, or the player says so.
bool AgreeOnOwnFile()
{
    return FileWasText == False || GameFilePath.ends_with(GameExtension) ||
           GameFilePath.ends_with(TextExtension) || !FileExists(GameFilePath) ||
           AgreeToOverwrite(GameFilePath);
}

} // namespace

void ShowFileInTitle()
{
    SetWindowTitle(std::string(ProgramName) + " (" + FileNameOf(GameFilePath) + ")");
}

std::string FileNameOf(std::string_view path)
{
    return LowerCase(WithoutOuterBlanks(path.substr(path.rfind('/') + 1)));
}

void mnuOpen()
{
    QuerySaveGame();
    if (LastAnswer == AnsweredCancel) {
        return;
    }
    ShowFileDialog(OpenGameCaption, SudokuFiles);
    if (LastAnswer == AnsweredCancel) {
        return;
    }
    OpenGameFile(ChosenFilePath);
}

void OpenGameFile(const std::string &path)
{
    DrawBanner(" Standby ");
    if (!ReadGameFile(path)) {
        DrawBoard(); // takes the banner down
        ShowMessage("Unable to open file.\r\r"
                    "Selected file is either corrupted or is not a sudoku game file.");
        return;
    }
    GameFilePath = path;
    ShowFileInTitle();
    GameModified = False;
    DrawBoard();
    RefreshWindow();
}

void OpenDroppedGame(const std::string &path)
{
    if (!ReadyForCommand()) {
        return;
    }
    QuerySaveGame();
    if (LastAnswer != AnsweredCancel) {
        OpenGameFile(path);
    }
}

void mnuSave()
{
    if (GameFilePath.empty() || !AgreeOnOwnFile()) {
        mnuSaveAs();
    } else {
        WriteGameFile();
    }
}

void mnuSaveAs()
{
    if (SaveUnderChosenName()) {
        ShowFileInTitle();
    }
}

bool SaveGame()
{
    return GameFilePath.empty() || !AgreeOnOwnFile() ? SaveUnderChosenName() : WriteGameFile();
}

} // namespace kelvarine
