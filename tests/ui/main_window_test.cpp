#include "grid/grid.h"
#include "input/keys.h"
#include "support/widget_program.h"
#include "ui/board_widget.h"

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

} // namespace kelvarine::testing
