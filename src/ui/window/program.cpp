#include "ui/window/program.h"

#include "files/recovery.h"
#include "outside/window.h"
#include "program/program.h"
#include "ui/controls/finger_room.h"
#include "ui/screens/help_window.h"
#include "ui/window/help_key.h"
#include "ui/window/main_window.h"
#include "ui/window/opening.h"
#include "ui/window/session.h"

#include <QApplication>

#include <memory>

namespace kelvarine {

namespace {

std::unique_ptr<MainWindow> theWindow;

} // namespace

void MakeMainWindow()
{
    MakeRoomForFingers();
    theWindow = std::make_unique<MainWindow>();
    WatchForTheEnd();
    WatchForHelpKey();
    WatchOpeningWindows();
}

int RunProgram(const std::string &gameFile)
{
    StartProgram(gameFile);
    // A box of the start may have stood when it was told to go.
    const int result = RecoveryHasEnded() ? 0 : QApplication::exec();
    // What the application takes down when it quits, it leaves where it never began.
    delete OpenHelpWindow();
    theWindow.reset();
    return result;
}

} // namespace kelvarine
