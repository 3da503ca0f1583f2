#include "board/geometry.h"
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

TEST(MainWindow, ShrinksIntoARoomWithTheBoardInItsForm)
{
    const Program program;
    const MainWindow &window = *program.Main;
    const QSize start(760, 830);
    const auto form = [&](const QSize &size) {
        program.Main->resize(size);
        QCoreApplication::processEvents();
        return static_cast<double>(CellWidth) / CellHeight;
    };
    const double wanted = form(start);
    EXPECT_EQ(window.SizeWithin(start, {1920, 1080}), start) << "never grown";
    for (const QSize &room : {QSize(1024, 575), QSize(1366, 740), QSize(500, 2000)}) {
        const QSize fitting = window.SizeWithin(start, room);
        EXPECT_TRUE(QRect({}, room).contains(QRect({}, fitting)));
        EXPECT_TRUE(fitting.width() >= room.width() - 1 || fitting.height() >= room.height() - 1)
            << "as large as can be";
        EXPECT_NEAR(form(fitting), wanted, 0.03);
    }
    const QSize wide = window.SizeWithin({1500, 900}, {1024, 575});
    EXPECT_NEAR(form(wide), form({1500, 900}), 0.06);
    EXPECT_EQ(window.SizeWithin(start, {100, 90}), QSize(100, 90));
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
