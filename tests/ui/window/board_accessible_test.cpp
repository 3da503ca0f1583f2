#include "game/lifecycle.h"
#include "grid/grid.h"
#include "support/widget_heard.h"
#include "support/widget_program.h"
#include "ui/window/board_widget.h"

#include <QAccessible>
#include <QtTest>
#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

QAccessibleInterface *BoardOf(const Program &program)
{
    return QAccessible::queryAccessibleInterface(program.Main->Client->Board);
}

TEST(BoardAccessible, TableOfNamedCells)
{
    const Program program;
    const QAccessibleInterface *board = BoardOf(program);
    ASSERT_NE(board, nullptr);
    EXPECT_EQ(board->role(), QAccessible::Table);
    EXPECT_EQ(board->text(QAccessible::Name), "Sudoku board");
    ASSERT_EQ(board->childCount(), 81);
    Grid[2][1] = BitTable[4] | GivenBit;
    const QAccessibleInterface *cell = board->child(1);
    EXPECT_EQ(cell->role(), QAccessible::Cell);
    EXPECT_EQ(cell->text(QAccessible::Name), "[B1]: 4, given");
    EXPECT_TRUE(cell->state().readOnly);
    EXPECT_EQ(board->indexOfChild(cell), 1);
    EXPECT_EQ(cell->parent(), board);
    const QPoint inside = cell->rect().center();
    EXPECT_EQ(board->childAt(inside.x(), inside.y()), cell);
    EXPECT_EQ(board->child(81), nullptr);
}

TEST(BoardAccessible, CellOfTheArrowsHasTheFocus)
{
    const Program program;
    program.Main->activateWindow();
    program.Main->Client->Board->setFocus();
    QTest::keyClick(program.Main->Client->Board, Qt::Key_Down);
    QTest::keyClick(program.Main->Client->Board, Qt::Key_7);
    const QAccessibleInterface *board = BoardOf(program);
    EXPECT_EQ(board->focusChild(), board->child(0));
    EXPECT_TRUE(board->child(0)->state().selected);
    EXPECT_TRUE(board->child(0)->state().focused);
    EXPECT_FALSE(board->child(1)->state().focused);
    EXPECT_EQ(board->child(0)->text(QAccessible::Name), "[A1]: 7");
}

// What tools are told of the board while something is done: each event with the cell's number.
using Told = std::vector<std::pair<QAccessible::Event, int>>;

Told ToldWhile(const std::function<void()> &deed)
{
    Told told;
    Hear = [&told](const QAccessibleEvent &event) {
        if (qobject_cast<BoardWidget *>(event.object()) != nullptr) {
            told.emplace_back(event.type(), event.child());
        }
    };
    deed();
    Hear = nullptr;
    return told;
}

TEST(BoardAccessible, StepToAnotherCellMovesTheFocusAndADigitChangesTheName)
{
    const Program program;
    program.Main->activateWindow();
    BoardWidget *board = program.Main->Client->Board;
    board->setFocus();
    QTest::keyClick(board, Qt::Key_Down);
    EXPECT_EQ(ToldWhile([=] { QTest::keyClick(board, Qt::Key_Down); }),
              (Told{{QAccessible::Focus, 9}}));
    EXPECT_EQ(ToldWhile([=] { QTest::keyClick(board, Qt::Key_7); }),
              (Told{{QAccessible::NameChanged, 9}}));
    EXPECT_EQ(ToldWhile([=] { QTest::keyClick(board, Qt::Key_Right); }),
              (Told{{QAccessible::Focus, 10}}));
    EXPECT_EQ(ToldWhile([=] { QTest::keyClick(board, Qt::Key_Shift); }), Told())
        << "nothing of the cell has changed";
}

} // namespace
} // namespace kelvarine::testing
