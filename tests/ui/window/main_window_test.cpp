#include "game/win_display.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "logic/driver.h"
#include "support/widget_program.h"
#include "ui/window/board_widget.h"

#include <QtTest>
#include <gtest/gtest.h>

namespace kelvarine::testing {

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

TEST(MainWindow, ClosingDuringASearchOnlyAsksAboutAGameSearch)
{
    const Program program;
    SearchActive = True;
    for (const std::int32_t kind : {0, 1, 4}) {
        SearchKind = kind;
        const BoxRecord boxes = AnswerBoxes([&] { program.Main->close(); });
        EXPECT_EQ(boxes.Texts, kind == 1
                                   ? std::vector<std::string>{"Would you like to stop searching?"}
                                   : std::vector<std::string>{});
        EXPECT_TRUE(program.Main->isVisible());
    }
    SearchActive = False;
    SearchKind = 0;
}

} // namespace kelvarine::testing
