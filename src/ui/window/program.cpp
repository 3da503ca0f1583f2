#include "ui/window/program.h"

#include "outside/window.h"
#include "program/program.h"
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
    theWindow = std::make_unique<MainWindow>();
    WatchForTheEnd();
    WatchForHelpKey();
    WatchOpeningWindows();
}

int RunProgram(const std::string &gameFile)
{
    StartProgram(gameFile);
    const int result = QApplication::exec();
    theWindow.reset();
    return result;
}

} // namespace kelvarine
