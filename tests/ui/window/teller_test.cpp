#include "commands/print_run.h"
#include "grid/grid.h"
#include "input/toolbar.h"
#include "logic/driver.h"
#include "outside/window.h"
#include "support/widget_events.h"
#include "support/widget_listener.h"
#include "support/widget_program.h"
#include "ui/window/board_widget.h"

#include <QAccessible>
#include <QtTest>
#include <gtest/gtest.h>

#include <algorithm>

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

    [[nodiscard]] std::string DescriptionOf(int column, int row) const
    {
        return QAccessible::queryAccessibleInterface(Board())
            ->tableInterface()
            ->cellAt(row - 1, column - 1)
            ->text(QAccessible::Description)
            .toStdString();
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

TEST_F(Teller, ComingToTheBoardAtNoCellIsToldByTheBoard)
{
    Listener listener;
    UpdateCaptions();
    listener.Heard();
    ToolButtonOf(*program.Main, 1)->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(listener.Heard(), Texts{});
    Board()->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(listener.Heard(), Texts{"Focus Sudoku board"});
}

TEST_F(Teller, WordsThatComeWithAStepAreToldByTheCellReached)
{
    Listener listener;
    Press(Qt::Key_Down);
    listener.Heard();
    SendKey(Board(), QEvent::KeyPress, Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(listener.Heard(),
              (Texts{"Focus [B1] empty; 2 cells selected", "SelectionWithin Sudoku board"}));
    UpdateCaptions();
    EXPECT_EQ(listener.Heard(), Texts{});
    EXPECT_EQ(DescriptionOf(2, 1), "2 cells selected") << "until something else is told";
    EXPECT_EQ(DescriptionOf(1, 1), "");
    Press(Qt::Key_R);
    EXPECT_EQ(listener.Heard(),
              (Texts{"SelectionWithin Sudoku board", "ObjectShow 9 cells selected, row 1"}));
    EXPECT_EQ(DescriptionOf(2, 1), "");
}

TEST_F(Teller, WordsThatComeWithTheReturnToNoCellAreToldByTheBoard)
{
    Listener listener;
    UpdateCaptions();
    ToolButtonOf(*program.Main, EscapeButton)->setFocus(Qt::TabFocusReason);
    listener.Heard();
    QTest::keyClick(ToolButtonOf(*program.Main, EscapeButton), Qt::Key_Space);
    EXPECT_EQ(listener.Heard(),
              (Texts{"Focus Sudoku board; 81 cells selected", "SelectionWithin Sudoku board"}));
}

TEST_F(Teller, NumberOfAButtonIsToldByTheCellThatGetsIt)
{
    Listener listener;
    Press(Qt::Key_Down);
    listener.Heard();
    ToolButtonOf(*program.Main, 6)->setFocus(Qt::TabFocusReason);
    QTest::keyClick(ToolButtonOf(*program.Main, 6), Qt::Key_Space);
    EXPECT_EQ(listener.Heard(), Texts{"Focus [A1] 6"});
}

// Who comes to a button reads it.
TEST_F(Teller, UseOfAButtonIsToldApartOnlyWhileThePlayerIsThere)
{
    Listener listener;
    ShowSignOfCtrl();
    ToolButtonOf(*program.Main, 1)->setFocus(Qt::TabFocusReason);
    listener.Heard();
    LetSignGo();
    const Texts stays = listener.Heard();
    EXPECT_EQ(std::ranges::count(stays, "DescriptionChanged 1"), 1)
        << ::testing::PrintToString(stays);
    ToolButtonWidget *select = ToolButtonOf(*program.Main, SelectButton);
    select->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(listener.Heard(), Texts{});
    QTest::keyClick(select, Qt::Key_Space);
    const Texts goes = listener.Heard();
    EXPECT_EQ(std::ranges::count(goes, "DescriptionChanged Select singles"), 0)
        << "he is at the board by then: " << ::testing::PrintToString(goes);
}

} // namespace
} // namespace kelvarine::testing
