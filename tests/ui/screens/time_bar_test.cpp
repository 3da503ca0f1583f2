#include "game/clock.h"
#include "game/lifecycle.h"
#include "game/solutions.h"
#include "game/statistics.h"
#include "grid/grid.h"
#include "outside/clipboard.h"
#include "outside/messages.h"
#include "outside/screens.h"
#include "support/solved_game.h"
#include "support/widget_modal.h"
#include "support/widget_program.h"
#include "ui/screens/time_bar.h"

#include <QInputDialog>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QtTest>
#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

TEST(TimeBar, ReadsTimesOfTheTables)
{
    EXPECT_EQ(SecondsOf("0:01:35 "), 95);
    EXPECT_EQ(SecondsOf("2:00:00 "), 7200);
    EXPECT_EQ(SecondsOf("0"), 0);
    EXPECT_EQ(SecondsOf(""), 0);
}

TEST(TimeBar, IsAsLongAsTheTimesBesideIt)
{
    const Program program;
    Solve(1, 60);
    Solve(1, 100);
    Solve(3, 160);
    mnuStatistics();
    const auto *screen = program.Main->findChild<QWidget *>("frmStatistics");
    const QList<TimeBar *> bars = screen->findChildren<TimeBar *>();
    ASSERT_EQ(bars.size(), 10) << "five levels in two tables, none for the totals";
    EXPECT_DOUBLE_EQ(bars[0]->AveragePart(), 80.0 / 160);
    EXPECT_DOUBLE_EQ(bars[0]->BestPart(), 60.0 / 160);
    EXPECT_EQ(bars[1]->AveragePart(), 0) << "nothing was solved there";
    EXPECT_DOUBLE_EQ(bars[2]->AveragePart(), 1);
    EXPECT_EQ(bars[1]->grab().toImage(), bars[3]->grab().toImage());
    EXPECT_NE(bars[1]->grab().toImage(), bars[2]->grab().toImage());
}

TEST(CopiedScreens, StatisticsGoToTheClipboardAsTables)
{
    const Program program;
    Solve(1, 95);
    mnuStatistics();
    auto *screen = program.Main->findChild<QWidget *>("frmStatistics");
    QTest::keyClick(screen, Qt::Key_C, Qt::ControlModifier);
    const std::string text = ClipboardText();
    EXPECT_TRUE(text.starts_with("This session\nGames\tSolved\tBest Time\tAvg Time\n"
                                 "Easy\t1\t0:01:35\t0:01:35\nMedium\t0\t0\t0\n"))
        << text;
    EXPECT_NE(text.find("\n\nAll Sessions\nGames\t"), std::string::npos);
    EXPECT_TRUE(text.ends_with("Total\t1\t0:01:35\t0:01:35\n")) << text;
}

TEST(CopiedScreens, SolutionsGoToTheClipboardWholeOrAsSelected)
{
    const Program program;
    mnuShowSolution();
    auto *text = program.Main->findChild<QPlainTextEdit *>("txtSolutions");
    ASSERT_FALSE(text->toPlainText().isEmpty());
    QTest::keyClick(text, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(ClipboardText(), text->toPlainText().toStdString());
    QTextCursor cursor = text->textCursor();
    cursor.setPosition(0);
    cursor.setPosition(5, QTextCursor::KeepAnchor);
    text->setTextCursor(cursor);
    QTest::keyClick(text, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(ClipboardText(), text->toPlainText().left(5).toStdString());
}

// Looks at a box while it stands, and closes it.
template <typename Box>
void WithBox(const std::function<void()> &open, const std::function<void(Box &)> &look)
{
    const int looks = WhileModal<Box>(open, [&](Box &box) {
        look(box);
        box.close();
    });
    EXPECT_EQ(looks, 1);
}

TEST(Boxes, TextOfAMessageStandsAtTheEdgeAsThereIsNoIcon)
{
    const Program program;
    WithBox<QMessageBox>([] { ShowMessage("A word."); },
                         [](QMessageBox &box) {
                             const auto *label = box.findChild<QWidget *>("qt_msgbox_label");
                             ASSERT_NE(label, nullptr);
                             EXPECT_EQ(label->mapTo(&box, QPoint()).x(),
                                       box.layout()->contentsMargins().left());
                         });
}

TEST(Boxes, LineForATextShowsAWholeGame)
{
    const Program program;
    WithBox<QInputDialog>(
        [] { AskText("A game:"); },
        [](QInputDialog &box) {
            const auto *line = box.findChild<QLineEdit *>();
            const int screen = box.screen()->availableGeometry().width();
            EXPECT_GE(
                line->width(),
                std::min(line->fontMetrics().horizontalAdvance(QString(81, u'0')), screen - 100));
            EXPECT_LE(box.width(), screen);
        });
}

TEST(AboutBox, TellsWhatTheProgramIsAndShowsTheLicenceAtAPress)
{
    const Program program;
    WithBox<QDialog>([] { ShowAboutScreen(); },
                     [](QDialog &box) {
                         EXPECT_EQ(box.findChild<QLabel *>("lblAbout")->text().toStdString(),
                                   "A sudoku player, solver and game maker");
                         EXPECT_EQ(box.findChild<QLabel *>("lblToolkit")->text().toStdString(),
                                   std::string("Qt ") + qVersion());
                         EXPECT_FALSE(box.findChild<QLabel *>("lblIcon")->pixmap().isNull());
                         const auto *licence = box.findChild<QWidget *>("txtLicence");
                         EXPECT_FALSE(licence->isVisible());
                         QTest::mouseClick(box.findChild<QPushButton *>("cmdLicence"),
                                           Qt::LeftButton);
                         EXPECT_TRUE(licence->isVisible());
                     });
}

} // namespace
} // namespace kelvarine::testing
