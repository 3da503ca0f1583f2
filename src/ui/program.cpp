#include "ui/program.h"

#include "game/history.h"
#include "game/lifecycle.h"
#include "generator/random_source.h"
#include "ui/help_key.h"
#include "ui/main_window.h"
#include "ui/presentation.h"
#include "ui/session.h"

#include <QApplication>
#include <QDate>

namespace kelvarine {

int RunProgram()
{
    const QDate today = QDate::currentDate();
    init_genrand(StartSeed(today.year(), today.month(), today.day(), SecondsSinceMidnight()));

    MainWindow window;
    WatchForTheEnd();
    WatchForHelpKey();
    StartGame(NewGame);
    GameModified = False;
    window.show();
    return QApplication::exec();
}

} // namespace kelvarine
