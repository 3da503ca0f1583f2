#include "game/clock.h"
#include "game/lifecycle.h"
#include "game/screens.h"
#include "game/statistics.h"
#include "grid/grid.h"
#include "outside/whole_file.h"
#include "support/solved_game.h"
#include "support/widget_program.h"

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QtTest>
#include <gtest/gtest.h>

namespace kelvarine::testing {

namespace {

class StatisticsScreens : public ::testing::Test {
protected:
    [[nodiscard]] QWidget *Screen() const
    {
        return program.Main->findChild<QWidget *>("frmStatistics");
    }

    [[nodiscard]] QLabel *Label(const char *name) const
    {
        return Screen()->findChild<QLabel *>(name);
    }

    [[nodiscard]] std::string Shown(const char *name) const
    {
        return Label(name)->text().toStdString();
    }

    Program program;
};

constexpr std::array RowNames{"lblEasy",     "lblMedium",  "lblHard",
                              "lblVeryHard", "lblExtreme", "lblTotal"};

} // namespace

TEST_F(StatisticsScreens, ShowsBothTablesUnderTheirTitles)
{
    Solve(1, 95);
    mnuStatistics();
    ASSERT_NE(Screen(), nullptr);
    EXPECT_TRUE(Screen()->isVisible());
    EXPECT_FALSE(Screen()->isModal());
    QStringList titles;
    for (const QGroupBox *box : Screen()->findChildren<QGroupBox *>()) {
        titles.push_back(box->title());
    }
    EXPECT_EQ(titles, (QStringList{"This session", "All Sessions"}));
    EXPECT_EQ(Shown("lblEasySession0"), "Easy");
    EXPECT_EQ(Shown("lblEasySession2"), "1");
    EXPECT_EQ(Shown("lblEasySession3"), "0:01:35 ");
    EXPECT_EQ(Shown("lblVeryHardTotal0"), "Very Hard");
    EXPECT_EQ(Shown("lblTotalTotal4"), "0:01:35 ");
    EXPECT_EQ(Shown("lblHardTotal3"), "0");
}

TEST_F(StatisticsScreens, PlayedAndPercentageAreNotVisible)
{
    mnuStatistics();
    for (const char *const row : RowNames) {
        for (const char *const table : {"Session", "Total"}) {
            for (int column = 0; column < 6; ++column) {
                const QString name = QString("%1%2%3").arg(row, table).arg(column);
                const auto *label = Screen()->findChild<QLabel *>(name);
                ASSERT_NE(label, nullptr) << name.toStdString();
                EXPECT_EQ(label->isVisible(), column != 1 && column != 5) << name.toStdString();
            }
        }
    }
    QStringList headings;
    for (const QLabel *label : Screen()->findChildren<QLabel *>()) {
        if (label->objectName().isEmpty()) {
            headings.push_back(label->text());
        }
    }
    EXPECT_EQ(headings, (QStringList{"Games", "Solved", "Best Time", "Avg Time", "Games", "Solved",
                                     "Best Time", "Avg Time"}));
}

TEST_F(StatisticsScreens, TablesAlign)
{
    Solve(1, 95);
    Solve(5, 36000);
    mnuStatistics();
    QCoreApplication::processEvents();
    for (const char *const table : {"Session", "Total"}) {
        for (const int column : {0, 2, 3, 4}) {
            const auto *first = Label(qPrintable(QString("lblEasy%1%2").arg(table).arg(column)));
            for (const char *const row : RowNames) {
                const auto *label =
                    Label(qPrintable(QString("%1%2%3").arg(row, table).arg(column)));
                if (column == 0) {
                    EXPECT_EQ(label->geometry().left(), first->geometry().left());
                } else {
                    EXPECT_EQ(label->geometry().right(), first->geometry().right());
                    const bool time = label->text().endsWith(' ');
                    EXPECT_EQ(label->contentsMargins().right() > 0, column > 2 && !time);
                }
                EXPECT_GE(label->width(), label->sizeHint().width()) << "cut off";
            }
        }
    }
}

TEST_F(StatisticsScreens, OpenScreenFollowsASolvedGame)
{
    mnuStatistics();
    EXPECT_EQ(Shown("lblMediumSession2"), "0");
    Solve(2, 61);
    EXPECT_EQ(Shown("lblMediumSession2"), "1");
    EXPECT_EQ(Shown("lblMediumTotal4"), "0:01:01 ");
}

TEST_F(StatisticsScreens, ClearButtonAsksAndNoKeepsEverything)
{
    Solve(2, 61);
    mnuStatistics();
    auto *clear = Screen()->findChild<QPushButton *>("cmdClearStats");
    const BoxRecord boxes =
        AnswerBoxes([&] { QTest::mouseClick(clear, Qt::LeftButton); }, {QMessageBox::No});
    EXPECT_EQ(boxes.Texts,
              std::vector<std::string>{"Are you sure you want to clear your statistics?"});
    EXPECT_EQ(Shown("lblMediumSession2"), "1");
    EXPECT_TRUE(FileExists(StatisticsFilePath()));
}

TEST_F(StatisticsScreens, ClearButtonEmptiesTheTablesOnYes)
{
    Solve(2, 61);
    mnuStatistics();
    auto *clear = Screen()->findChild<QPushButton *>("cmdClearStats");
    AnswerBoxes([&] { QTest::mouseClick(clear, Qt::LeftButton); }, {QMessageBox::Yes});
    EXPECT_EQ(Shown("lblMediumSession2"), "0");
    EXPECT_EQ(Shown("lblMediumTotal4"), "0");
    EXPECT_EQ(Shown("lblMediumTotal0"), "Medium");
    EXPECT_FALSE(FileExists(StatisticsFilePath()));
}

TEST_F(StatisticsScreens, ClearIsReachedByKeyAndEnterAloneDoesNothing)
{
    mnuStatistics();
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return QApplication::activeWindow() == Screen(); }, Patience));
    const BoxRecord none = AnswerBoxes([&] { QTest::keyClick(Screen(), Qt::Key_Return); });
    EXPECT_TRUE(none.Texts.empty());
    auto *clear = Screen()->findChild<QPushButton *>("cmdClearStats");
    QTest::keyClick(Screen(), Qt::Key_Tab);
    EXPECT_TRUE(clear->hasFocus());
    const BoxRecord boxes =
        AnswerBoxes([&] { QTest::keyClick(clear, Qt::Key_Space); }, {QMessageBox::No});
    EXPECT_EQ(boxes.Texts.size(), 1U);
}

TEST_F(StatisticsScreens, EscapeClosesAndThePlaceIsKept)
{
    mnuStatistics();
    Screen()->move(70, 80);
    QCoreApplication::processEvents();
    QTest::keyClick(Screen(), Qt::Key_Escape);
    EXPECT_FALSE(Screen()->isVisible());
    EXPECT_EQ(StatisticsOpen, False);
    EXPECT_EQ(StatisticsPlace.Left, 70);
    EXPECT_EQ(StatisticsPlace.Top, 80);
    mnuStatistics();
    EXPECT_EQ(StatisticsOpen, True);
    EXPECT_EQ(Screen()->pos(), QPoint(70, 80));
}

TEST_F(StatisticsScreens, ClosingByTheFrameDoesTheSame)
{
    mnuStatistics();
    Screen()->move(71, 82);
    QCoreApplication::processEvents();
    Screen()->close();
    EXPECT_EQ(StatisticsOpen, False);
    EXPECT_EQ(StatisticsPlace.Left, 71);
    EXPECT_EQ(StatisticsPlace.Top, 82);
}

TEST_F(StatisticsScreens, MinimisedScreenKeepsThePlaceOfBefore)
{
    mnuStatistics();
    Screen()->move(70, 80);
    QCoreApplication::processEvents();
    Screen()->showMinimized();
    Screen()->move(5, 6);
    QCoreApplication::processEvents();
    Screen()->close();
    EXPECT_EQ(StatisticsOpen, False);
    EXPECT_EQ(StatisticsPlace.Left, 70);
    EXPECT_EQ(StatisticsPlace.Top, 80);
}

TEST_F(StatisticsScreens, NeverOpensOffTheScreen)
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    for (const WindowPlace &place :
         {WindowPlace{}, WindowPlace{9000, 9000, 0, 0}, WindowPlace{-9000, -9000, 0, 0}}) {
        StatisticsPlace = place;
        mnuStatistics();
        EXPECT_TRUE(screen.contains(Screen()->pos()));
        Screen()->close();
    }
}

TEST_F(StatisticsScreens, EndOfTheProgramKeepsTheScreenNotedAsOpen)
{
    mnuStatistics();
    program.Main->close();
    QApplication::closeAllWindows();
    EXPECT_EQ(StatisticsOpen, True);
}

TEST_F(StatisticsScreens, OpeningTwiceIsOneScreen)
{
    mnuStatistics();
    mnuStatistics();
    EXPECT_EQ(program.Main->findChildren<QWidget *>("frmStatistics").size(), 1);
}

TEST(StatisticsPlacing, LeaveTheBoardInViewWhereThatIsPossible)
{
    // The screen of these tests is 800 pixels wide.
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const Program program;
    program.Main->move(0, 0);
    for (const int width : {80, 300, 420}) {
        program.Main->resize(width, 500);
        program.Main->setMinimumSize(60, 60);
        program.Main->resize(width, 500);
        StatisticsPlace = {};
        mnuStatistics();
        QCoreApplication::processEvents();
        QWidget *statistics = nullptr;
        for (QWidget *window : QApplication::topLevelWidgets()) {
            statistics = window->objectName() == "frmStatistics" ? window : statistics;
        }
        ASSERT_NE(statistics, nullptr);
        EXPECT_FALSE(statistics->frameGeometry().intersects(program.Main->frameGeometry()))
            << width << " beside " << statistics->width();
        EXPECT_TRUE(screen.contains(statistics->frameGeometry())) << width;
        statistics->close();
    }
}

} // namespace kelvarine::testing
