#include "support/widget_screens.h"

#include "files/file_dialog.h"
#include "game/screens.h"
#include "game/solutions.h"
#include "game/statistics.h"
#include "outside/folders.h"
#include "outside/help.h"
#include "outside/messages.h"
#include "outside/screens.h"
#include "ui/configure/configure_screen.h"
#include "ui/screens/file_dialog_qt.h"
#include "ui/screens/help_window.h"

#include <QApplication>
#include <QDialog>
#include <QTimer>
#include <gtest/gtest.h>

#include <fstream>
#include <memory>

namespace kelvarine::testing {

namespace {

using Look = std::function<void(QWidget &window)>;

void LookAt(QWidget *window, const char *name, const Look &look)
{
    SCOPED_TRACE(name);
    ASSERT_NE(window, nullptr);
    window->show();
    QCoreApplication::processEvents();
    look(*window);
}

// Looks at the window that an action opens and waits for.
void LookAtModal(const std::function<void()> &action, const char *name, const Look &look)
{
    QTimer watch;
    bool seen = false;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
        auto *box = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (box != nullptr && box->isVisible() && !seen) {
            seen = true;
            LookAt(box, name, look);
            box->reject();
        }
    });
    watch.start(1);
    action();
    EXPECT_TRUE(seen) << name;
}

void LookAtSettings(const Look &look)
{
    for (CurrentTab = NewGamesTab; CurrentTab <= CoordinatesTab; ++CurrentTab) {
        ShowConfigureScreen();
        const std::string name = "settings, tab " + std::to_string(CurrentTab);
        LookAt(OpenConfigureScreen(), name.c_str(), look);
    }
    delete OpenConfigureScreen();
}

void LookAtFileDialog(MainWindow &main, const Look &look)
{
    DialogFolder = HomeFolder();
    std::ofstream(DialogFolder + "a game.sdk") << "game";
    DialogCaption = OpenGameCaption;
    FileDialog dialog(&main, SudokuFiles);
    LookAt(&dialog, "file dialog", look);
}

} // namespace

void LookAtEveryWindow(MainWindow &main, const Look &look)
{
    LookAt(&main, "main window", look);
    LookAtSettings(look);
    mnuStatistics();
    LookAt(main.findChild<QWidget *>("frmStatistics"), "statistics", look);
    mnuShowSolution();
    LookAt(main.findChild<QWidget *>("frmSolutions"), "solutions", look);
    LookAtFileDialog(main, look);
    ShowHelpTopic(0);
    const std::unique_ptr<HelpWindow> help(OpenHelpWindow());
    LookAt(help.get(), "help", look);
    LookAtModal([] { AskYesNoCancel("Would you like to save this game first?"); }, "question",
                look);
    LookAtModal(ShowAboutScreen, "About", look);
}

} // namespace kelvarine::testing
