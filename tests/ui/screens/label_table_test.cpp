#include "game/clock.h"
#include "game/lifecycle.h"
#include "game/screens.h"
#include "game/statistics.h"
#include "grid/grid.h"
#include "support/widget_all_events.h"
#include "support/widget_listener.h"
#include "support/widget_program.h"
#include "ui/controls/label_table.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QtTest>
#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

std::string NameOf(const QAccessibleInterface *item)
{
    return item == nullptr ? "nothing" : item->text(QAccessible::Name).toStdString();
}

// The tables of the statistics, as those meet them who do not see them.
class StatisticsTables : public ::testing::Test {
protected:
    void SetUp() override
    {
        Solve(4, 95);
        mnuStatistics();
        ASSERT_NE(Screen(), nullptr);
        ASSERT_TRUE(
            QTest::qWaitFor([&] { return QApplication::activeWindow() == Screen(); }, Patience));
    }

    static void Solve(std::int32_t rating, double seconds)
    {
        GameRating = rating;
        SolveSeconds = seconds;
        StatsCounted = False;
        UpdateStatistics();
    }

    [[nodiscard]] QWidget *Screen() const
    {
        return program.Main->findChild<QWidget *>("frmStatistics");
    }

    [[nodiscard]] LabelTable *View(int index) const
    {
        return Screen()->findChildren<LabelTable *>()[index];
    }

    [[nodiscard]] QAccessibleInterface *Described(int index) const
    {
        return QAccessible::queryAccessibleInterface(View(index));
    }

    [[nodiscard]] QAccessibleInterface *CellAt(int row, int column) const
    {
        return Described(0)->tableInterface()->cellAt(row, column);
    }

    Program program;
};

TEST_F(StatisticsTables, StandInGroupsThatBearTheirTitles)
{
    for (const auto &[index, title] :
         {std::pair{0, "This session"}, std::pair{1, "All Sessions"}}) {
        EXPECT_EQ(Described(index)->role(), QAccessible::Table);
        EXPECT_EQ(NameOf(Described(index)), "Solved games by level");
        const QAccessibleInterface *group = Described(index)->parent();
        EXPECT_EQ(group->role(), QAccessible::Grouping);
        EXPECT_EQ(NameOf(group), title);
    }
}

TEST_F(StatisticsTables, HaveARowForEachLevelAndTheVisibleColumns)
{
    const QAccessibleTableInterface *table = Described(0)->tableInterface();
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->rowCount(), 6);
    EXPECT_EQ(table->columnCount(), 3);
    Texts rows;
    for (int row = 0; row < 6; ++row) {
        rows.push_back(table->rowDescription(row).toStdString());
    }
    EXPECT_EQ(rows, (Texts{"Easy", "Medium", "Hard", "Very Hard", "Extreme", "Total"}));
    EXPECT_EQ(table->columnDescription(0), "Solved");
    EXPECT_EQ(table->columnDescription(1), "Best Time");
    EXPECT_EQ(table->columnDescription(2), "Avg Time");
    EXPECT_EQ(table->columnDescription(3), "");
    EXPECT_EQ(table->cellAt(6, 0), nullptr);
    EXPECT_EQ(table->cellAt(0, -1), nullptr);
}

TEST_F(StatisticsTables, CellTellsItsTextAndItsHeadings)
{
    const QAccessibleInterface *cell = CellAt(3, 1);
    EXPECT_EQ(cell->role(), QAccessible::Cell);
    EXPECT_EQ(NameOf(cell), "0:01:35");
    auto *place = CellAt(3, 1)->tableCellInterface();
    ASSERT_NE(place, nullptr);
    EXPECT_EQ(place->rowIndex(), 3);
    EXPECT_EQ(place->columnIndex(), 1);
    EXPECT_EQ(place->table(), Described(0));
    ASSERT_EQ(place->columnHeaderCells().size(), 1);
    ASSERT_EQ(place->rowHeaderCells().size(), 1);
    EXPECT_EQ(NameOf(place->columnHeaderCells().front()), "Best Time");
    EXPECT_EQ(place->columnHeaderCells().front()->role(), QAccessible::ColumnHeader);
    EXPECT_EQ(NameOf(place->rowHeaderCells().front()), "Very Hard");
    EXPECT_EQ(place->rowHeaderCells().front()->role(), QAccessible::RowHeader);
    EXPECT_EQ(Described(0)->child(Described(0)->indexOfChild(cell)), cell);
    EXPECT_EQ(cell->parent(), Described(0));
    const QPoint inside = cell->rect().center();
    EXPECT_EQ(Described(0)->childAt(inside.x(), inside.y()), cell);
    EXPECT_TRUE(cell->state().readOnly);
}

TEST_F(StatisticsTables, AreWalkedByArrows)
{
    Listener listener;
    QTest::keyClick(Screen(), Qt::Key_Down);
    EXPECT_EQ(listener.Heard(), Texts{"Focus [A1] 0"}) << "the first of them, at its first number";
    for (int step = 0; step < 3; ++step) {
        QTest::keyClick(View(0), Qt::Key_Down);
    }
    listener.Heard();
    QTest::keyClick(View(0), Qt::Key_Right);
    EXPECT_EQ(listener.Heard(), Texts{"Focus [B4] 0:01:35"});
    EXPECT_TRUE(CellAt(3, 1)->state().focused);
    EXPECT_EQ(Described(0)->focusChild(), CellAt(3, 1));
    QTest::keyClick(View(0), Qt::Key_Home);
    EXPECT_EQ(View(0)->Place(), (TablePlace{4, 0}));
    QTest::keyClick(View(0), Qt::Key_Left);
    EXPECT_EQ(View(0)->Place(), (TablePlace{4, 0}));
    QTest::keyClick(View(0), Qt::Key_End);
    EXPECT_EQ(View(0)->Place(), (TablePlace{4, 3}));
    for (int step = 0; step < 9; ++step) {
        QTest::keyClick(View(0), Qt::Key_Down);
    }
    EXPECT_EQ(View(0)->Place(), (TablePlace{6, 3}));
}

TEST_F(StatisticsTables, CellCanBeGoneToByTools)
{
    CellAt(2, 2)->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_TRUE(View(0)->hasFocus());
    EXPECT_EQ(View(0)->Place(), (TablePlace{3, 3}));
    EXPECT_TRUE(CellAt(2, 2)->state().focused);
}

// The toolkit tells of the table itself, and a reader stays where it is led last.
TEST_F(StatisticsTables, CellIsToldAfterTheTableThatItIsIn)
{
    EXPECT_EQ(OfKind("Focus", EventsDuring([&] { View(0)->setFocus(); })),
              (Texts{"Focus table Solved games by level", "Focus cell 0"}));
    EXPECT_EQ(OfKind("Focus", EventsDuring([&] {
                         const QString focus = QAccessibleActionInterface::setFocusAction();
                         Described(1)->tableInterface()->cellAt(3, 1)->actionInterface()->doAction(
                             focus);
                     })),
              (Texts{"Focus table Solved games by level", "Focus cell 0:01:35"}));
    EXPECT_EQ(OfKind("Focus", EventsDuring([&] { QTest::keyClick(View(1), Qt::Key_Left); })),
              Texts{"Focus cell 1"});
}

TEST_F(StatisticsTables, TabLeadsToTheButtonFirstAndThenToTheTables)
{
    auto *clear = Screen()->findChild<QPushButton *>("cmdClearStats");
    std::vector<QWidget *> stops;
    for (int step = 0; step < 4; ++step) {
        QTest::keyClick(Screen()->focusWidget() != nullptr ? Screen()->focusWidget() : Screen(),
                        Qt::Key_Tab);
        stops.push_back(Screen()->focusWidget());
    }
    EXPECT_EQ(stops, (std::vector<QWidget *>{clear, View(0), View(1), clear}));
}

TEST_F(StatisticsTables, SolvedGameTellsTheCellsThatChange)
{
    Listener listener;
    listener.Heard();
    Solve(4, 85);
    Texts heard = listener.Heard();
    std::ranges::sort(heard);
    // The number and the times of the level and the total, in both tables.
    const Texts once{"NameChanged [A4] 2",       "NameChanged [A6] 2",
                     "NameChanged [B4] 0:01:25", "NameChanged [B6] 0:01:25",
                     "NameChanged [C4] 0:01:30", "NameChanged [C6] 0:01:30"};
    Texts expected;
    for (const std::string &one : once) {
        expected.insert(expected.end(), 2, one);
    }
    EXPECT_EQ(heard, expected);
    listener.Heard();
    LoadStatisticsScreen();
    EXPECT_EQ(listener.Heard(), Texts{}) << "nothing is new";
}

TEST_F(StatisticsTables, ChangeIsToldOnceAndByTheCellAlone)
{
    Texts told = EventsDuring([] { Solve(4, 85); });
    std::ranges::sort(told);
    const Texts once{"NameChanged cell 0:01:25", "NameChanged cell 0:01:30", "NameChanged cell 2"};
    Texts expected;
    for (const std::string &one : once) {
        expected.insert(expected.end(), 4, one); // level and total, in both tables
    }
    EXPECT_EQ(told, expected);
}

TEST_F(StatisticsTables, FrameStandsRoundTheCellForThoseWhoCameByKeys)
{
    const auto framed = [&] {
        const QRect place = View(0)->At(View(0)->Place())->geometry();
        const QColor mark = View(0)->palette().color(QPalette::Highlight);
        return View(0)->grab().toImage().pixelColor(place.center().x(), place.top()) == mark;
    };
    EXPECT_FALSE(framed());
    QTest::keyClick(Screen(), Qt::Key_Up);
    EXPECT_TRUE(framed());
    QTest::keyClick(View(0), Qt::Key_Right);
    EXPECT_TRUE(framed());
}

} // namespace
} // namespace kelvarine::testing
