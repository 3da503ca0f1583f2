#include "ui/program.h"

#include "commands/file_commands.h"
#include "configure/configuration.h"
#include "files/sound_files.h"
#include "game/lifecycle.h"
#include "game/screens.h"
#include "game/statistics.h"
#include "generator/random_source.h"
#include "grid/history.h"
#include "input/toolbar.h"
#include "outside/events.h"
#include "outside/screens.h"
#include "ui/help_key.h"
#include "ui/main_window.h"
#include "ui/session.h"

#include <QApplication>
#include <QDate>
#include <QTimer>

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

int RunProgram(const std::string &gameFile)
{
    const QDate today = QDate::currentDate();
    init_genrand(StartSeed(today.year(), today.month(), today.day(), SecondsSinceMidnight()));

    FindSoundFiles();
    ReadConfiguration();
    SolutionsOpen = False;
    UpdateToolTips();

    MainWindow window;
    WatchForTheEnd();
    WatchForHelpKey();
    StartGame(NewGame);
    GameModified = False;
    window.ShowAtItsPlace();
    OpenFormerScreens();
    window.activateWindow(); // the first keys are for the board, not for a screen that came back
    // Within the event loop, for only there does the end of the program take a message away.
    QTimer firstTurn;
    firstTurn.setSingleShot(true);
    QObject::connect(&firstTurn, &QTimer::timeout, &window, [&] { OpenGameFile(gameFile); });
    if (!gameFile.empty()) {
        firstTurn.start(0);
    }
    return QApplication::exec();
}

} // namespace kelvarine
