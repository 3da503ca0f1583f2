#include "program/program.h"

#include "commands/file_commands.h"
#include "commands/save_question.h"
#include "configure/configuration.h"
#include "files/sound_files.h"
#include "game/lifecycle.h"
#include "game/screens.h"
#include "game/search.h"
#include "game/statistics.h"
#include "generator/random_source.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "input/toolbar.h"
#include "outside/events.h"
#include "outside/screens.h"
#include "outside/sound.h"
#include "outside/window.h"

namespace kelvarine {

namespace {

// The screens that were open when the program ended last. The solutions screen is none of them:
// there is no search to show.
void OpenFormerScreens()
{
    if (ConfigureOpen != False) {
        ShowConfigureScreen();
    }
    if (StatisticsOpen != False) {
        mnuStatistics();
    }
}

} // namespace

void StartProgram(const std::string &gameFile)
{
    const Day today = Today();
    init_genrand(StartSeed(today.Year, today.Month, today.Number, SecondsSinceMidnight()));

    FindSoundFiles();
    ReadConfiguration();
    SolutionsOpen = False;
    UpdateToolTips();

    MakeMainWindow();
    StartGame(NewGame);
    GameModified = False;
    ShowMainWindow();
    OpenFormerScreens();
    ActivateMainWindow(); // the first keys are for the board, not for a screen that came back
    if (!gameFile.empty()) {
        // Within the event loop, for only there does the end of the program take a message away.
        CallFromEventLoop([gameFile] { OpenGameFile(gameFile); });
    }
}

bool AskBeforeTheEnd()
{
    if (SearchActive != False) {
        ReadyForCommand(); // asks whether to stop it
        return false;
    }
    QuerySaveGame();
    return LastAnswer != AnsweredCancel;
}

void KeepSettings()
{
    KeepMainPlace();
    // Before the other screens go, so that those open now count as open.
    WriteConfiguration();
}

void KeepUnasked()
{
    // Whatever else is to outlast an end about which nobody can be asked belongs here.
    KeepSettings();
}

void EndProgramUnasked()
{
    StopSound();
    KeepSettings();
}

bool EndProgram()
{
    if (!AskBeforeTheEnd()) {
        return false;
    }
    EndProgramUnasked();
    return true;
}

} // namespace kelvarine
