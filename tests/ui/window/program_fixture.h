// The whole program from its start to its end, in folders that a second start finds again.
#pragma once

#include "program/defaults.h"
#include "support/settings_folder.h"
#include "support/widget_events.h"
#include "support/widget_program.h"
#include "ui/window/main_window.h"
#include "ui/window/program.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QThread>
#include <QTimer>
#include <gtest/gtest.h>

#include <csignal>
#include <functional>
#include <string>

namespace kelvarine::testing {

inline constexpr const char *FileName = "config.sdu";

class ProgramTest : public ::testing::Test {
protected:
    // Starts the program, lets the player play, closes the window and waits for the end.
    void Run(const std::function<void()> &play)
    {
        SetDefaults();
        QTimer watchdog;
        QObject::connect(&watchdog, &QTimer::timeout, [] {
            ADD_FAILURE() << "the program does not end";
            QApplication::exit(1);
        });
        watchdog.start(Patience);
        // The start yields to events as well; the player waits for the program's own loop.
        QTimer player;
        QObject::connect(&player, &QTimer::timeout, [&] {
            if (QThread::currentThread()->loopLevel() > 0) {
                player.stop();
                QCoreApplication::processEvents();
                play();
                Window()->close();
            }
        });
        player.start(1);
        EXPECT_EQ(RunProgram(), 0);
        for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
            std::signal(number, SIG_DFL);
        }
    }

    // The bytes of the file of settings.
    [[nodiscard]] std::string File() const
    {
        return Folders.ReadSetting(FileName);
    }

    SettingsFolders Folders;
};

// Chooses an entry of a menu as a player does; the name is that of its command.
inline void Choose(const char *name)
{
    auto *action = Window()->findChild<QAction *>(name);
    ASSERT_NE(action, nullptr) << name;
    auto *menu = qobject_cast<QMenu *>(action->parent());
    if (menu == nullptr) {
        action->trigger(); // an entry of the bar itself
        return;
    }
    menu->popup(QPoint(50, 50));
    QCoreApplication::processEvents();
    Click(menu, menu->actionGeometry(action).center());
    menu->close();
    QCoreApplication::processEvents();
}

} // namespace kelvarine::testing
