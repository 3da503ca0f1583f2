#include "commands/print_run.h"
#include "grid/grid.h"
#include "input/toolbar.h"
#include "logic/driver.h"
#include "outside/window.h"
#include "support/widget_listener.h"
#include "support/widget_program.h"
#include "ui/window/board_widget.h"

#include <QAccessible>
#include <QtTest>
#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

class Teller : public ::testing::Test {
protected:
    void SetUp() override
    {
        program.Main->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(program.Main.get(), Patience));
        Board()->setFocus();
        QCoreApplication::processEvents();
    }

    void TearDown() override
    {
        SearchActive = False;
        RunUnderWay = False;
        RunIsLong = False;
        PrintRunning = False;
    }

    [[nodiscard]] BoardWidget *Board() const
    {
        return program.Main->Client->Board;
    }

    void Press(Qt::Key key) const
    {
        QTest::keyClick(Board(), key);
    }

    Program program;
};

TEST_F(Teller, LongRunIsToldOnce)
{
    Listener listener;
    listener.Heard();
    SearchActive = True;
    RunUnderWay = True;
    UpdateCaptions();
    EXPECT_EQ(listener.Heard(), Texts{}) << "it may be over in a moment";
    RunIsLong = True;
    UpdateCaptions();
    EXPECT_EQ(listener.Heard(), Texts{"ObjectShow at work; a key asks whether to stop"});
    UpdateCaptions();
    EXPECT_EQ(listener.Heard(), Texts{});
}

// A run that was told to stop, and a batch that asks about its file.
TEST_F(Teller, BoardThatIsNotThePlayersIsNotTold)
{
    Listener listener;
    Press(Qt::Key_Down);
    listener.Heard();
    for (Flag *away : {&RunUnderWay, &PrintRunning}) {
        *away = True;
        Grid[1][1] |= BitTable[5];
        UpdateCaptions();
        EXPECT_EQ(listener.Heard(), Texts{});
        Grid[1][1] &= ~BitTable[5];
        *away = False;
        UpdateCaptions();
        EXPECT_EQ(listener.Heard(), Texts{});
    }
}

TEST_F(Teller, ToolThatComesBackIsNotToldWhatHappenedMeanwhile)
{
    Listener listener;
    Press(Qt::Key_Down);
    listener.Heard();
    QAccessible::setActive(false);
    Press(Qt::Key_8);
    ProcessToolbar(EditButton);
    QAccessible::setActive(true);
    UpdateToolbar();
    EXPECT_EQ(listener.Heard(), Texts{"Focus [A1] 8"});
}

} // namespace
} // namespace kelvarine::testing
