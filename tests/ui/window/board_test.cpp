#include "board/look.h"
#include "game/lifecycle.h"
#include "game/screens.h"
#include "game/undo.h"
#include "game/win_display.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "input/mouse.h"
#include "logic/driver.h"
#include "paint/board_painter.h"
#include "support/play.h"
#include "support/positions.h"
#include "support/widget_events.h"
#include "support/widget_front.h"
#include "support/widget_program.h"
#include "ui/window/board_widget.h"

#include <QMenu>
#include <QtTest>
#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

class BoardOnView : public ::testing::Test {
protected:
    void SetUp() override
    {
        BringToFront(program);
        SetGame(EasyGame);
        StartGame(NewGame);
        GameModified = False;
    }

    [[nodiscard]] BoardWidget *Board() const
    {
        return program.Main->Client->Board;
    }

    // A click on a cell, and the second click that makes it a double click.
    void DoubleClick(QPoint place, Qt::MouseButton button = Qt::LeftButton) const
    {
        Click(Board(), place, button);
        SendMouse(Board(), QEvent::MouseButtonDblClick, place, button, button);
        SendMouse(Board(), QEvent::MouseButtonRelease, place, button, Qt::NoButton);
    }

    void MoveTo(QPoint place, Qt::MouseButtons held, Qt::KeyboardModifiers modifiers = {}) const
    {
        SendMouse(Board(), QEvent::MouseMove, place, Qt::NoButton, held, modifiers);
    }

    Program program;
};

CellWord CandidatesAt(int column, int row)
{
    return WordAt(MakeCell(column, row)) & CandidateMask;
}

// ---- Mouse ---------------------------------------------------------------------------------

TEST_F(BoardOnView, ClicksSelectByTheirModifiers)
{
    Click(Board(), CentreOf(4, 7));
    EXPECT_EQ(CellsWith(SelectedBit), "D7");
    Click(Board(), CentreOf(5, 7), Qt::LeftButton, Qt::ControlModifier);
    EXPECT_EQ(CellsWith(SelectedBit), "D7 E7");
    Click(Board(), CentreOf(4, 7), Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_EQ(CellsWith(SelectedBit), "E7");
    Click(Board(), CentreOf(6, 7), Qt::MiddleButton);
    EXPECT_EQ(CellsWith(SelectedBit), "F7");
}

TEST_F(BoardOnView, RightClickStrikesOut)
{
    WordAt({3, 1}) |= SelectedBit;
    WordAt({4, 1}) |= SelectedBit;
    Click(Board(), PlaceOf(7, 3, 8), Qt::RightButton);
    EXPECT_EQ(CandidatesAt(3, 1), CandidateMask & ~BitTable[8]);
    EXPECT_EQ(CandidatesAt(4, 1), CandidateMask & ~BitTable[8]);
    EXPECT_EQ(CandidatesAt(7, 3), CandidateMask);
    EXPECT_EQ(CellsWith(SelectedBit), "C1 D1");
}

TEST_F(BoardOnView, QuickRightClicksAreClicks)
{
    WordAt({3, 1}) |= SelectedBit;
    Click(Board(), PlaceOf(3, 1, 8), Qt::RightButton);
    DoubleClick(PlaceOf(3, 1, 2), Qt::RightButton);
    EXPECT_EQ(CandidatesAt(3, 1), CandidateMask & ~(BitTable[8] | BitTable[2]));
    SendMouse(Board(), QEvent::MouseButtonDblClick, PlaceOf(3, 1, 5), Qt::RightButton,
              Qt::RightButton);
    EXPECT_EQ(CandidatesAt(3, 1), CandidateMask & ~(BitTable[8] | BitTable[5] | BitTable[2]));
}

TEST_F(BoardOnView, DoubleClickKeepsTheNumberAlone)
{
    DoubleClick(PlaceOf(3, 1, 4));
    EXPECT_EQ(CandidatesAt(3, 1), BitTable[4]);
    EXPECT_EQ(CellsWith(SelectedBit), "C1");
}

TEST_F(BoardOnView, DragNeedsTheLeftButtonAlone)
{
    SendMouse(Board(), QEvent::MouseButtonPress, CentreOf(2, 2), Qt::LeftButton, Qt::LeftButton);
    MoveTo(CentreOf(3, 3), Qt::LeftButton);
    EXPECT_EQ(CellsWith(SelectedBit), "B2 B3 C2 C3");
    MoveTo(CentreOf(5, 5), Qt::LeftButton | Qt::RightButton);
    MoveTo(CentreOf(5, 5), Qt::RightButton);
    MoveTo(CentreOf(5, 5), Qt::NoButton);
    EXPECT_EQ(CellsWith(SelectedBit), "B2 B3 C2 C3");
    MoveTo(CentreOf(1, 1), Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_EQ(CellsWith(SelectedBit), "B3 C2 C3");
}

TEST_F(BoardOnView, PressOnTheMarginDropsTheSelectionAndTakesTheFocus)
{
    WordAt({3, 1}) |= SelectedBit | HintCellBit;
    QWidget *client = program.Main->Client;
    Click(client, {5, client->height() - 5}, Qt::LeftButton, Qt::ControlModifier);
    EXPECT_EQ(CellsWith(SelectedBit), "C1");
    ToolButtonOf(*program.Main, 3)->setFocus();
    ASSERT_FALSE(Board()->hasFocus());
    Click(client, {5, client->height() - 5}, Qt::RightButton);
    EXPECT_EQ(CellsWith(SelectedBit), "");
    EXPECT_EQ(CellsWith(HintCellBit), "C1");
    EXPECT_EQ(QApplication::focusWidget(), Board());
    EXPECT_EQ(ClickX, -1);
}

// ---- Keys ----------------------------------------------------------------------------------

TEST_F(BoardOnView, KeysOfTheTableReachTheirCommands)
{
    QTest::keyClick(Board(), Qt::Key_W);
    EXPECT_EQ(CellsWith(SelectedBit).size(), 81 * 3U - 1);
    QTest::keyClick(Board(), Qt::Key_Down);
    EXPECT_EQ(CellsWith(SelectedBit), "A1");
    QTest::keyClick(Board(), Qt::Key_C);
    EXPECT_EQ(CellsWith(SelectedBit), "A1 A2 A3 A4 A5 A6 A7 A8 A9");
    QTest::keyClick(Board(), Qt::Key_Delete);
    EXPECT_EQ(CandidatesAt(1, 3), 0U);
    QTest::keyClick(Board(), Qt::Key_PageUp);
    EXPECT_EQ(CandidatesAt(1, 3), CandidateMask);
    QTest::keyClick(Board(), Qt::Key_5, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(NumberFilter, BitTable[5]);
    QTest::keyClick(Board(), Qt::Key_Escape);
    EXPECT_EQ(NumberFilter, CandidateMask);
}

TEST_F(BoardOnView, KeypadDigitsAreDigits)
{
    WordAt({3, 1}) |= SelectedBit;
    QTest::keyClick(Board(), Qt::Key_4, Qt::KeypadModifier);
    EXPECT_EQ(CandidatesAt(3, 1), BitTable[4]);
}

TEST_F(BoardOnView, EveryKeyEndsTheWinDisplay)
{
    for (const Qt::Key key : {Qt::Key_F5, Qt::Key_Q, Qt::Key_Return, Qt::Key_Home,
                              Qt::Key_Udiaeresis, Qt::Key_Space, Qt::Key_Tab, Qt::Key_Backtab}) {
        Board()->setFocus();
        StartWinDisplay();
        QTest::keyClick(Board(), key);
        EXPECT_EQ(WinDisplayRunning, False) << std::hex << key;
    }
}

TEST_F(BoardOnView, EveryKeyAsksOnceDuringAGameSearch)
{
    for (const Qt::Key key : {Qt::Key_F5, Qt::Key_5, Qt::Key_Q, Qt::Key_Return, Qt::Key_Home,
                              Qt::Key_Tab, Qt::Key_Backtab}) {
        Board()->setFocus();
        SearchActive = True;
        SearchKind = 1;
        const Texts boxes = CloseModals([&] { QTest::keyPress(Board(), key); });
        SearchActive = False;
        EXPECT_EQ(boxes, Texts{"Kelvarine: Would you like to stop searching?"}) << std::hex << key;
        EXPECT_EQ(program.Main->focusWidget(), Board()) << "the key does nothing else";
    }
}

TEST_F(BoardOnView, TabEndsTheWinDisplayAndThenGoesOnToTheToolbar)
{
    Board()->setFocus();
    StartWinDisplay();
    QTest::keyClick(Board(), Qt::Key_Tab);
    EXPECT_EQ(WinDisplayRunning, False);
    EXPECT_NE(program.Main->focusWidget(), Board());
}

TEST_F(BoardOnView, AltAloneLeavesTheLettersOfMenusToTheMenus)
{
    const Texts tells{"Kelvarine: Please select a cell."};
    for (const Qt::KeyboardModifiers held :
         {Qt::ControlModifier | Qt::ShiftModifier, Qt::AltModifier | Qt::ShiftModifier,
          Qt::AltModifier | Qt::ControlModifier,
          Qt::AltModifier | Qt::ControlModifier | Qt::ShiftModifier}) {
        EXPECT_EQ(CloseModals([&] { QTest::keyClick(Board(), Qt::Key_A, held); }), tells);
        SnapshotAvailable = False;
        EXPECT_EQ(CloseModals([&] { QTest::keyClick(Board(), Qt::Key_S, held); }), Texts{});
        const bool nothing = held == (Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_EQ(SnapshotAvailable, nothing ? False : True) << held.toInt();
    }
    SnapshotAvailable = False;
    BringToFront(program);
    EXPECT_EQ(CloseModals([&] { QTest::keyClick(Board(), Qt::Key_A, Qt::AltModifier); }), Texts{});
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->title(), "&Action");
    menu->close();
    QTest::keyClick(Board(), Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(SnapshotAvailable, False);
    EXPECT_EQ(StatisticsOpen, True);
}

TEST_F(BoardOnView, KeysOfTheDesktopAloneMeanNothing)
{
    for (const Qt::Key key : {Qt::Key_Alt, Qt::Key_AltGr, Qt::Key_Meta, Qt::Key_Super_L}) {
        StartWinDisplay();
        SendKey(Board(), QEvent::KeyPress, key);
        EXPECT_EQ(WinDisplayRunning, True) << std::hex << key;
    }
}

TEST_F(BoardOnView, PressDuringAGameSearchAsksOnce)
{
    SearchActive = True;
    SearchKind = 1;
    const Texts boxes = CloseModals([&] { Click(Board(), CentreOf(4, 7)); });
    SearchActive = False;
    EXPECT_EQ(boxes, Texts{"Kelvarine: Would you like to stop searching?"});
    EXPECT_EQ(CellsWith(SelectedBit), "");
}

TEST_F(BoardOnView, KeysThatReachTheWindowAreTheBoards)
{
    WordAt({3, 1}) |= SelectedBit;
    QTest::keyClick(program.Main.get(), Qt::Key_4);
    EXPECT_EQ(CandidatesAt(3, 1), BitTable[4]);
}

} // namespace
} // namespace kelvarine::testing
