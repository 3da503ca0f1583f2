#include "program/program.h"

#include "commands/file_commands.h"
#include "commands/print_run.h"
#include "commands/recover.h"
#include "commands/save_question.h"
#include "configure/configuration.h"
#include "files/recovery.h"
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
#include "outside/timers.h"
#include "outside/window.h"

#include <cassert>

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

// A game that was not closed goes before the file that the program was started with.
void BeginGame(const std::string &gameFile)
{
    if (RecoveryHasEnded()) {
        return; // told to go while it started
    }
    OfferLostGames();
    if (gameFile.empty() || RecoveryHasEnded()) {
        return;
    }
    QuerySaveGame();
    if (LastAnswer != AnsweredCancel) {
        OpenGameFile(gameFile);
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
    SetRecoveryTimer(true, RecoveryInterval);
    // Within the event loop, for only there does the end of the program take a message away.
    CallFromEventLoop([gameFile] { BeginGame(gameFile); });
}

void KeepBeforeAsking()
{
    if (RecoveryHasEnded()) {
        return; // the answer has come, and the screens that went since count as open
    }
    WriteRecovery();
    KeepMainPlace();
    std::string untold; // nobody may be there to be told
    KeepConfiguration(untold);
}

bool EndMustWait()
{
    return RunUnderWay != False || BatchUnderWay != False;
}

bool MayEndRun()
{
    const bool isStopped = SearchKind == SearchingGame && StopRequested != False;
    if (!isStopped && SearchActive != False && (SearchKind != NotStoppable || RunIsLong != False)) {
        QueryStopSearch();
        return SearchActive == False;
    }
    return true;
}

bool AskBeforeTheEnd()
{
    assert(!EndMustWait());
    QuerySaveGame();
    return LastAnswer != AnsweredCancel;
}

void KeepSettings()
{
    KeepMainPlace();
    // Before the other screens go, so that those open now count as open.
    WriteConfiguration();
}

void EndProgramUnasked()
{
    SetRecoveryTimer(false, RecoveryInterval);
    EndRecovery(false);
    StopSound();
    KeepMainPlace();
    std::string untold; // nobody may be there to be told
    KeepConfiguration(untold);
}

void EndProgramAnswered()
{
    SetRecoveryTimer(false, RecoveryInterval);
    EndRecovery(true);
    StopSound();
    KeepSettings();
}

bool EndProgram()
{
    if (EndMustWait()) {
        // The closing goes on when the run has ended.
        AfterRun = MayEndRun() ? CloseMainWindow : nullptr;
        return false;
    }
    if (!AskBeforeTheEnd()) {
        return false;
    }
    EndProgramAnswered();
    return true;
}

} // namespace kelvarine
