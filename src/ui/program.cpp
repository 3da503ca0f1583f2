#include "ui/program.h"

#include "outside/events.h"
#include "outside/window.h"
#include "program/program.h"
#include "ui/help_key.h"
#include "ui/main_window.h"
#include "ui/session.h"

#include <QApplication>
#include <QDate>
#include <QTimer>

#include <memory>
#include <utility>

namespace kelvarine {

namespace {

std::unique_ptr<MainWindow> theWindow;

} // namespace

void MakeMainWindow()
{
    theWindow = std::make_unique<MainWindow>();
    WatchForTheEnd();
    WatchForHelpKey();
}

void ShowMainWindow()
{
    Window()->ShowAtItsPlace();
}

void ActivateMainWindow()
{
    Window()->activateWindow();
}

void KeepMainPlace()
{
    Window()->KeepPlace();
}

Day Today()
{
    const QDate today = QDate::currentDate();
    return {today.year(), today.month(), today.day()};
}

void CallFromEventLoop(std::function<void()> deed)
{
    QTimer::singleShot(0, Window(), std::move(deed));
}

int RunProgram(const std::string &gameFile)
{
    StartProgram(gameFile);
    const int result = QApplication::exec();
    theWindow.reset();
    return result;
}

} // namespace kelvarine
