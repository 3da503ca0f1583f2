#include "board/look.h"
#include "commands/screen_commands.h"
#include "game/clock.h"
#include "game/lifecycle.h"
#include "game/solutions.h"
#include "game/statistics.h"
#include "game/win_display.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "input/toolbar.h"
#include "support/play.h"
#include "support/positions.h"
#include "support/widget_events.h"
#include "support/widget_menus.h"
#include "ui/window/board_widget.h"

#include <QMenuBar>
#include <QtTest>
#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

std::string NameOf(const QAction &action)
{
    const QObject *named = action.menu() != nullptr ? static_cast<QObject *>(action.menu())
                                                    : const_cast<QAction *>(&action);
    return named->objectName().toStdString();
}

TEST_F(MenuBar, ShowsTheTableInItsOrder)
{
    for (const Entry &entry : EntriesOf(Main())) {
        EXPECT_EQ(entry.Level, entry.Row->Level) << entry.Name();
        if (entry.Row->Caption == "-") {
            EXPECT_TRUE(entry.Action->isSeparator()) << entry.Name();
            continue;
        }
        EXPECT_EQ(NameOf(*entry.Action), entry.Row->Name);
        if (entry.Row->Name != "mnuTime") { // its caption is the clock
            EXPECT_EQ(entry.Action->text().toStdString(), entry.Text());
        }
        EXPECT_EQ(entry.Action->menu() == nullptr, entry.Row->Run != nullptr) << entry.Name();
        EXPECT_EQ(entry.Action->isCheckable(), entry.Row->Checked != nullptr) << entry.Name();
    }
}

TEST_F(MenuBar, PauseAloneHasATrueAccelerator)
{
    int accelerators = 0;
    for (const Entry &entry : EntriesOf(Main())) {
        const bool pause = entry.Row->Name == "mnuPauseTime";
        EXPECT_EQ(entry.Action->shortcut(), pause ? QKeySequence(Qt::Key_F12) : QKeySequence())
            << entry.Name();
        accelerators += pause ? 1 : 0;
    }
    EXPECT_EQ(accelerators, 1);
}

// ---- States when a menu opens --------------------------------------------------------------

void ExpectStatesAsTold(const MainWindow &main)
{
    for (const Entry &entry : EntriesOf(main)) {
        if (entry.Menu == nullptr || entry.Action->menu() != nullptr) {
            continue;
        }
        Open(entry.Top);
        const bool enabled = entry.Row->Enabled == nullptr || entry.Row->Enabled(entry.Number);
        EXPECT_TRUE(entry.Action->isSeparator() || entry.Action->isEnabled() == enabled)
            << entry.Name();
        EXPECT_EQ(entry.Action->isChecked(),
                  entry.Row->Checked != nullptr && entry.Row->Checked(entry.Number))
            << entry.Name();
        CloseMenus();
    }
}

TEST_F(MenuBar, EntriesAreUpToDateWhenTheirMenuOpens)
{
    ExpectStatesAsTold(Main());
    SetScene();
    ExpectStatesAsTold(Main());
    NumberFilter = BitTable[3];
    StrongLinkMode = 2;
    ToolbarVisible = False;
    ToolTipsVisible = False;
    CoordinatesVisible = False;
    ExpectStatesAsTold(Main());
}

TEST_F(MenuBar, EntriesHaveTheirStateBeforeTheirMenuWasEverOpened)
{
    for (const char *name : {"mnuViewToolBar", "mnuViewToolTips", "mnuViewCoordinates"}) {
        EXPECT_TRUE(EntryNamed(Main(), name).Action->isChecked()) << name;
    }
    EXPECT_FALSE(EntryNamed(Main(), "mnuUseSnapshot").Action->isEnabled());
    EXPECT_FALSE(EntryNamed(Main(), "mnuUndo").Action->isEnabled());
    EXPECT_TRUE(EntryNamed(Main(), "mnuStrongLinks", 1).Action->isChecked());
}

TEST_F(MenuBar, UndoAndRedoFollowTheHistory)
{
    const auto states = [&] {
        Open(EntryNamed(Main(), "mnuUndo").Top);
        const std::pair enabled(EntryNamed(Main(), "mnuUndo").Action->isEnabled(),
                                EntryNamed(Main(), "mnuReDo").Action->isEnabled());
        CloseMenus();
        return enabled;
    };
    EXPECT_EQ(states(), std::pair(false, false));
    PushUndoState();
    EXPECT_EQ(states(), std::pair(true, false));
    Choose(EntryNamed(Main(), "mnuUndo"));
    EXPECT_EQ(states(), std::pair(false, true));
    Choose(EntryNamed(Main(), "mnuReDo"));
    EXPECT_EQ(states(), std::pair(true, false));
}

TEST_F(MenuBar, NumbersInViewAndLinksAreChecked)
{
    const auto checks = [&](std::string_view name, std::int32_t last) {
        Open(EntryNamed(Main(), "mnuIsolatedNumbers").Top);
        std::string line;
        for (std::int32_t number = 0; number <= last; ++number) {
            line += EntryNamed(Main(), name, number).Action->isChecked() ? 'x' : '.';
        }
        CloseMenus();
        return line;
    };
    EXPECT_EQ(checks("mnuGridView", 9), ".xxxxxxxxx") << "All never is";
    EXPECT_EQ(checks("mnuStrongLinks", 2), ".x.");
    Choose(EntryNamed(Main(), "mnuGridView", 7));
    EXPECT_EQ(checks("mnuGridView", 9), ".......x..");
    Choose(EntryNamed(Main(), "mnuGridView", 7)); // again, which leaves it checked
    EXPECT_EQ(checks("mnuGridView", 9), ".......x..");
    Choose(EntryNamed(Main(), "mnuStrongLinks", 2));
    EXPECT_EQ(checks("mnuStrongLinks", 2), "..x");
}

TEST_F(MenuBar, TipsCannotBeChosenWithoutAToolbar)
{
    const Entry tips = EntryNamed(Main(), "mnuViewToolTips");
    Choose(EntryNamed(Main(), "mnuViewToolBar"));
    Choose(tips);
    EXPECT_NE(ToolTipsVisible, False);
    Choose(EntryNamed(Main(), "mnuViewToolBar"));
    Choose(tips);
    EXPECT_EQ(ToolTipsVisible, False);
    EXPECT_EQ(ToolButtonOf(Main(), 0)->toolTip(), "");
}

// ---- Opening -------------------------------------------------------------------------------

TEST_F(MenuBar, ClickOpensAMenu)
{
    QMenuBar *bar = Main().menuBar();
    QAction *view = EntryNamed(Main(), "mnuView").Action;
    SendMouse(bar, QEvent::MouseButtonPress, bar->actionGeometry(view).center(), Qt::LeftButton,
              Qt::LeftButton);
    EXPECT_EQ(QApplication::activePopupWidget(), view->menu());
    CloseMenus();
}

TEST_F(MenuBar, OpeningAMenuEndsTheWinDisplay)
{
    for (const Entry &entry : EntriesOf(Main())) {
        if (entry.Level == 1 && entry.Action->menu() != nullptr) {
            StartWinDisplay();
            Open(entry.Action->menu());
            EXPECT_EQ(WinDisplayRunning, False) << entry.Name();
            EXPECT_TRUE(entry.Action->menu()->isVisible());
            CloseMenus();
        }
    }
}

// ---- The clock's menu ----------------------------------------------------------------------

TEST_F(MenuBar, PauseKeyWorksFromTheBoardAndFromAButton)
{
    const QAction *pause = EntryNamed(Main(), "mnuPauseTime").Action;
    ResetSolveTime();
    QTest::keyClick(Main().Client->Board, Qt::Key_F12);
    EXPECT_TRUE(IsPaused());
    EXPECT_EQ(pause->text(), "Resume");
    EXPECT_TRUE(Main().menuBar()->actions().back()->text().startsWith("Paused at "));
    QWidget *button = ToolButtonOf(Main(), 14);
    button->setFocus(Qt::TabFocusReason);
    QTest::keyClick(button, Qt::Key_F12);
    EXPECT_FALSE(IsPaused());
    EXPECT_EQ(pause->text(), "Pause");
    EXPECT_EQ(ToolMode, 0) << "the button has not seen the key";
}

TEST_F(MenuBar, PauseKeyWorksFromEveryOtherScreen)
{
    ResetSolveTime();
    mnuStatistics();
    mnuShowSolution();
    mnuConfigure();
    bool paused = false;
    for (const char *name : {"frmStatistics", "frmSolutions", "frmConfigure"}) {
        auto *screen = Main().findChild<QWidget *>(name);
        ASSERT_NE(screen, nullptr) << name;
        screen->activateWindow();
        QTest::keyClick(screen, Qt::Key_F12);
        paused = !paused;
        EXPECT_EQ(IsPaused(), paused) << name;
    }
}

TEST_F(MenuBar, PausedBoardHidesItsNumbers)
{
    SetGame(EasyGame);
    StartGame(NewGame);
    const auto picture = [&] {
        return Main()
            .Client->Board->grab(QRect(CentreOf(1, 1) - QPoint(15, 15), QSize(30, 30)))
            .toImage();
    };
    QTest::keyClick(Main().Client->Board, Qt::Key_F12);
    QTest::keyClick(Main().Client->Board, Qt::Key_F12);
    const QImage shown = picture();
    QTest::keyClick(Main().Client->Board, Qt::Key_F12);
    const QImage hidden = picture();
    EXPECT_NE(shown, hidden);
    EXPECT_EQ(hidden.pixel(15, 15), hidden.pixel(2, 2)) << "one plain colour";
}

} // namespace
} // namespace kelvarine::testing
