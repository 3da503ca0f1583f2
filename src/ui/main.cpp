#include "board/board_painter.h"
#include "configure/defaults.h"
#include "game/history.h"
#include "game/lifecycle.h"
#include "ui/main_window.h"
#include "ui/session.h"

#include <QApplication>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("kelvarine"));
    QApplication::setApplicationVersion(QStringLiteral(KELVARINE_VERSION));

    kelvarine::SetDefaults();
    kelvarine::MainWindow window;
    kelvarine::WatchForTheEnd();
    kelvarine::StartGame(kelvarine::NewGame);
    kelvarine::GameModified = kelvarine::False;
    window.show();
    return QApplication::exec();
}
