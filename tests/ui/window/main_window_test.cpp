#include "game/win_display.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "logic/driver.h"
#include "support/widget_program.h"
#include "ui/window/board_widget.h"

#include <QMenuBar>
#include <QtTest>
#include <gtest/gtest.h>

namespace kelvarine::testing {

TEST(MainWindow, ClockStandsAtTheFarRightOfTheMenuBar)
{
    const Program program;
    const QWidget *corner = program.Main->menuBar()->cornerWidget(Qt::TopRightCorner);
    ASSERT_NE(corner, nullptr);
    const auto *bar = qobject_cast<const QMenuBar *>(corner);
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(bar->actions().front()->menu()->objectName(), "mnuTime");
}

TEST(MainWindow, TypedDigitGoesToTheSelectedCell)
{
    const Program program;
    WordAt({4, 7}) |= SelectedBit;
    QTest::keyClick(program.Main->Client->Board, Qt::Key_6);
    EXPECT_EQ(WordAt({4, 7}) & CandidateMask, BitTable[6]);
}

TEST(MainWindow, UnsavedGameHoldsTheClosing)
{
    const Program program;
    WordAt({4, 7}) |= SelectedBit;
    QTest::keyClick(program.Main->Client->Board, Qt::Key_6);
    const BoxRecord boxes = AnswerBoxes([&] { program.Main->close(); }, {QMessageBox::Cancel});
    EXPECT_EQ(boxes.Texts.size(), 1U);
    EXPECT_TRUE(program.Main->isVisible());
}

TEST(MainWindow, IsNoneBeforeItStandsAndAfterItHasGone)
{
    EXPECT_EQ(Window(), nullptr);
    {
        const Program program;
        EXPECT_EQ(Window(), program.Main.get());
    }
    EXPECT_EQ(Window(), nullptr);
}

TEST(MainWindow, CancelledClosingLeavesTheWinDisplayOn)
{
    const Program program;
    StartWinDisplay();
    GameModified = True;
    AnswerBoxes([&] { program.Main->close(); }, {QMessageBox::Cancel});
    EXPECT_EQ(WinDisplayRunning, True);
    EXPECT_TRUE(program.Main->tmrGameWon.isActive());
    StopWinDisplay();
}

TEST(MainWindow, ClosingDuringASearchAsksAndIsTakenBackByNo)
{
    const Program program;
    for (const std::int32_t kind : {SearchingGame, ListingSolutions}) {
        StartRun();
        SearchKind = kind;
        const BoxRecord boxes = AnswerBoxes([&] { program.Main->close(); });
        EXPECT_EQ(boxes.Texts, std::vector<std::string>{"Would you like to stop searching?"});
        EndRun();
        QApplication::processEvents();
        EXPECT_TRUE(program.Main->isVisible());
    }
    SearchActive = False;
    SearchKind = NotStoppable;
}

TEST(MainWindow, ClosesWhenTheSearchHasEnded)
{
    for (const std::int32_t kind : {NotStoppable, SearchingGame, ListingSolutions}) {
        const Program program;
        StartRun();
        SearchKind = kind;
        AnswerBoxes([&] { program.Main->close(); }, kind == NotStoppable
                                                        ? std::vector<QMessageBox::StandardButton>{}
                                                        : std::vector{QMessageBox::Yes});
        QApplication::processEvents();
        EXPECT_TRUE(program.Main->isVisible());
        SearchActive = False;
        SearchKind = NotStoppable;
        EndRun();
        EXPECT_TRUE(QTest::qWaitFor([&] { return !program.Main->isVisible(); }, Patience));
    }
}

} // namespace kelvarine::testing
