// The menu bar as a whole: the clock at its far end, and walks through it while the clock runs.
#include "game/clock.h"
#include "game/lifecycle.h"
#include "game/screens.h"
#include "grid/grid.h"
#include "support/widget_events.h"
#include "support/widget_front.h"
#include "support/widget_paints.h"
#include "support/widget_program.h"
#include "ui/window/board_widget.h"

#include <QAccessible>
#include <QMenu>
#include <QMenuBar>
#include <QtTest>
#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <utility>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

class BarOnView : public ::testing::Test {
protected:
    void SetUp() override
    {
        BringToFront(program);
        ClockTick();
    }

    [[nodiscard]] QMenuBar *Bar() const
    {
        return program.Main->menuBar();
    }

    [[nodiscard]] BoardWidget *Board() const
    {
        return program.Main->Client->Board;
    }

    // The menus in their order, the line between them left out.
    [[nodiscard]] QList<QAction *> Tops() const
    {
        QList<QAction *> tops = Bar()->actions();
        tops.removeIf([](const QAction *action) { return action->isSeparator(); });
        return tops;
    }

    [[nodiscard]] QAction *Clock() const
    {
        return Tops().back();
    }

    // A key where the keyboard is: in an open menu, else where the window has its focus. The boxes
    // that it opens, which are closed again.
    [[nodiscard]] Texts BoxesOf(Qt::Key key, Qt::KeyboardModifiers modifiers) const
    {
        return CloseModals([&] {
            QWidget *menu = QApplication::activePopupWidget();
            QTest::keyClick(menu != nullptr ? menu : program.Main->focusWidget(), key, modifiers);
            QCoreApplication::processEvents();
        });
    }

    // A key of the menus, which opens no box.
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        EXPECT_EQ(BoxesOf(key, modifiers), Texts()) << key;
    }

    // What is chosen in the bar at the moment, as its name.
    [[nodiscard]] std::string Chosen() const
    {
        const QAction *action = Bar()->activeAction();
        if (action == nullptr) {
            return "none";
        }
        return action->menu() != nullptr ? action->menu()->objectName().toStdString()
                                         : action->objectName().toStdString();
    }

    // The menu that is open, by its name.
    static std::string Opened()
    {
        const QWidget *menu = QApplication::activePopupWidget();
        return menu == nullptr ? "none" : menu->objectName().toStdString();
    }

    Program program;
};

TEST_F(BarOnView, HoldsSixMenusAndTheClockEndsIt)
{
    ASSERT_EQ(Tops().size(), 6);
    EXPECT_EQ(Clock()->menu()->objectName(), "mnuTime");
    EXPECT_EQ(program.Main->findChildren<QMenuBar *>().size(), 1);
    for (const int width : {760, 500, 901}) {
        program.Main->resize(width, 830);
        for (const double seconds : {5.0, 754.0, 36000.0}) {
            SolveSeconds = seconds;
            ClockTick();
            QCoreApplication::processEvents();
            const QRect clock = Bar()->actionGeometry(Clock());
            EXPECT_GE(clock.right(), width - 10) << seconds;
            EXPECT_LT(clock.right(), width) << seconds;
            EXPECT_GT(clock.left(), Bar()->actionGeometry(Tops()[4]).right()) << seconds;
        }
    }
}

TEST_F(BarOnView, MenuOfTheClockStaysWithinTheWindow)
{
    Press(Qt::Key_G, Qt::AltModifier);
    Press(Qt::Key_Left);
    ASSERT_EQ(Opened(), "mnuTime");
    const QRect menu = Clock()->menu()->frameGeometry();
    const QRect window(program.Main->mapToGlobal(QPoint(0, 0)), program.Main->size());
    EXPECT_TRUE(window.contains(menu)) << menu.right() << " beyond " << window.right();
}

TEST_F(BarOnView, ArrowsWalkRoundAllSixWhileTheClockTicks)
{
    for (const Qt::Key arrow : {Qt::Key_Right, Qt::Key_Left}) {
        Press(Qt::Key_G, Qt::AltModifier);
        Texts walked{Chosen()};
        for (int step = 0; step < 20 && walked.size() < 7; ++step) {
            ClockTick();
            QCoreApplication::processEvents();
            Press(arrow);
            if (Chosen() != walked.back()) { // else a menu within the menu has opened or closed
                walked.push_back(Chosen());
            }
        }
        Texts expected{"mnuGame", "mnuAction", "mnuView", "mnuStatistics",
                       "mnuHelp", "mnuTime",   "mnuGame"};
        if (arrow == Qt::Key_Left) {
            std::ranges::reverse(expected);
        }
        EXPECT_EQ(walked, expected);
        while (QApplication::activePopupWidget() != nullptr) {
            Press(Qt::Key_Escape);
        }
    }
}

TEST_F(BarOnView, AltAndDownOpenTheFirstMenuHoweverLateTheyCome)
{
    QTest::keyClick(Board(), Qt::Key_Alt);
    for (int tick = 0; tick < 3; ++tick) {
        ClockTick();
        QCoreApplication::processEvents();
    }
    AnchorColumn = 4;
    Press(Qt::Key_Down);
    EXPECT_EQ(Opened(), "mnuGame");
    EXPECT_EQ(AnchorColumn, 4) << "the selection has not moved";
    Press(Qt::Key_Escape);
}

TEST_F(BarOnView, TickLeavesAnOpenMenuAsItIs)
{
    Press(Qt::Key_A, Qt::AltModifier);
    Press(Qt::Key_Down);
    Press(Qt::Key_Down);
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    const QAction *chosen = menu->activeAction();
    const QRect place = menu->geometry();
    ClockTick();
    QCoreApplication::processEvents();
    EXPECT_EQ(QApplication::activePopupWidget(), menu);
    EXPECT_EQ(menu->activeAction(), chosen);
    EXPECT_EQ(menu->geometry(), place);
    Press(Qt::Key_Escape);
}

TEST_F(BarOnView, TickIsPaintedWhileTheBarIsWalked)
{
    Press(Qt::Key_A, Qt::AltModifier);
    ASSERT_EQ(Chosen(), "mnuAction");
    QCoreApplication::processEvents();
    const PaintCounter painted;
    SolveSeconds = 754;
    ClockTick();
    QCoreApplication::processEvents();
    EXPECT_GE(painted.PaintsOf(Bar()), 1);
    Press(Qt::Key_Escape);
}

TEST_F(BarOnView, TickInTheOpenMenuOfTheClockLeavesItsEntriesAlone)
{
    Press(Qt::Key_G, Qt::AltModifier);
    Press(Qt::Key_Left);
    ASSERT_EQ(Opened(), "mnuTime");
    ClockTick();
    QCoreApplication::processEvents();
    EXPECT_EQ(Opened(), "mnuTime");
    EXPECT_EQ(Clock()->text().toStdString(), TimeCaption);
    Press(Qt::Key_Return);
    EXPECT_TRUE(IsPaused()) << "an entry of the walk, without the mouse";
}

TEST_F(BarOnView, LetterOfTheClockWorksUntilItShowsATime)
{
    TimeCaption = "&Time";
    program.Main->UpdateMenuCaptions();
    Press(Qt::Key_T, Qt::AltModifier);
    EXPECT_EQ(Opened(), "mnuTime");
    Press(Qt::Key_Escape);
    ClockTick();
    [[maybe_unused]] const Texts boxes = BoxesOf(Qt::Key_T, Qt::AltModifier);
    EXPECT_EQ(Opened(), "none");
}

TEST_F(BarOnView, ClosedMenuGivesTheKeyboardToTheBoard)
{
    for (const Qt::Key key : {Qt::Key_G, Qt::Key_A, Qt::Key_V, Qt::Key_H}) {
        Press(key, Qt::AltModifier);
        ASSERT_NE(Opened(), "none");
        Press(Qt::Key_Escape);
        EXPECT_EQ(program.Main->focusWidget(), Board()) << key;
        EXPECT_EQ(Chosen(), "none") << key;
    }
    for (QAction *top : Tops()) {
        if (top->menu() == nullptr) {
            continue;
        }
        SendMouse(Bar(), QEvent::MouseButtonPress, Bar()->actionGeometry(top).center(),
                  Qt::LeftButton, Qt::LeftButton);
        ASSERT_EQ(QApplication::activePopupWidget(), top->menu());
        SendMouse(top->menu(), QEvent::MouseButtonRelease, {-5, -5}, Qt::LeftButton, Qt::NoButton);
        Press(Qt::Key_Escape);
        EXPECT_EQ(program.Main->focusWidget(), Board());
        AnchorRow = 4;
        Press(Qt::Key_Down);
        EXPECT_EQ(AnchorRow, 5) << "arrows are the board's again";
    }
}

// The toolkit would give the keyboard back to whatever had it before the walk.
TEST_F(BarOnView, ClosedMenuGivesTheKeyboardToTheBoardFromAButtonToo)
{
    const auto press = [this](Qt::Key key) {
        Press(key);
    };
    const auto clickOutside = [](Qt::Key /*key*/) {
        SendMouse(QApplication::activePopupWidget(), QEvent::MouseButtonPress, {-5, 300},
                  Qt::LeftButton, Qt::LeftButton);
    };
    using Way = std::pair<std::function<void(Qt::Key)>, Qt::Key>;
    const std::array ways{Way{press, Qt::Key_Escape}, // left
                          Way{press, Qt::Key_Return}, // an entry chosen: Pause
                          Way{clickOutside, Qt::Key_unknown}};
    for (const auto &[close, key] : ways) {
        ToolButtonOf(*program.Main, 3)->setFocus(Qt::TabFocusReason);
        Press(Qt::Key_G, Qt::AltModifier);
        Press(Qt::Key_Left);
        ASSERT_EQ(Opened(), "mnuTime");
        close(key);
        QCoreApplication::processEvents();
        EXPECT_EQ(Opened(), "none") << key;
        EXPECT_EQ(Chosen(), "none") << key;
        EXPECT_EQ(program.Main->focusWidget(), Board()) << key;
    }
}

TEST_F(BarOnView, ToolsFindTheClockAndItsEntries)
{
    ClockTick();
    QAccessibleInterface *bar = QAccessible::queryAccessibleInterface(Bar());
    ASSERT_NE(bar, nullptr);
    QAccessibleInterface *clock = bar->child(bar->childCount() - 1);
    ASSERT_NE(clock, nullptr);
    EXPECT_EQ(clock->text(QAccessible::Name).toStdString(), TimeCaption);
    QAccessibleInterface *menu = QAccessible::queryAccessibleInterface(Clock()->menu());
    ASSERT_EQ(menu->childCount(), 2);
    EXPECT_EQ(menu->child(0)->text(QAccessible::Name), "Pause");
    EXPECT_EQ(menu->child(1)->text(QAccessible::Name), "Reset");
}

} // namespace
} // namespace kelvarine::testing
