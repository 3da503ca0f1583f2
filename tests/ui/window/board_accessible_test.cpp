#include "game/clock.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "grid/names.h"
#include "input/selection.h"
#include "support/widget_events.h"
#include "support/widget_front.h"
#include "support/widget_listener.h"
#include "support/widget_program.h"
#include "ui/window/board_widget.h"

#include <QAccessible>
#include <QMenuBar>
#include <QtTest>
#include <gtest/gtest.h>

#include <algorithm>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

std::string NameOf(const QAccessibleInterface *item)
{
    return item == nullptr ? "nothing" : item->text(QAccessible::Name).toStdString();
}

class BoardAccessible : public ::testing::Test {
protected:
    void SetUp() override
    {
        BringToFront(program);
        Widget()->setFocus();
        QCoreApplication::processEvents();
    }

    [[nodiscard]] BoardWidget *Widget() const
    {
        return program.Main->Client->Board;
    }

    [[nodiscard]] QAccessibleInterface *Board() const
    {
        return QAccessible::queryAccessibleInterface(Widget());
    }

    [[nodiscard]] QAccessibleInterface *CellAt(int column, int row) const
    {
        return Board()->tableInterface()->cellAt(row - 1, column - 1);
    }

    void Do(int column, int row, const QString &action) const
    {
        CellAt(column, row)->actionInterface()->doAction(action);
    }

    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(Widget(), key, modifiers);
    }

    [[nodiscard]] static int SelectedCells()
    {
        return static_cast<int>(std::ranges::count_if(
            Cells, [](Cell cell) { return (WordAt(cell) & SelectedBit) != 0; }));
    }

    Program program;
};

TEST_F(BoardAccessible, TableOfNamedCells)
{
    EXPECT_EQ(Board()->role(), QAccessible::Table);
    EXPECT_EQ(NameOf(Board()), "Sudoku board");
    Grid[2][1] = BitTable[4] | GivenBit;
    const QAccessibleInterface *cell = Board()->child(1);
    EXPECT_EQ(cell->role(), QAccessible::Cell);
    EXPECT_EQ(NameOf(cell), "4, given");
    EXPECT_TRUE(cell->state().readOnly);
    EXPECT_EQ(Board()->indexOfChild(cell), 1);
    EXPECT_EQ(cell->parent(), Board());
    const QPoint inside = cell->rect().center();
    EXPECT_EQ(Board()->childAt(inside.x(), inside.y()), cell);
}

TEST_F(BoardAccessible, HasNineRowsAndColumns)
{
    const QAccessibleTableInterface *table = Board()->tableInterface();
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->rowCount(), 9);
    EXPECT_EQ(table->columnCount(), 9);
    EXPECT_EQ(table->cellAt(2, 7), Board()->child(2 * 9 + 7));
    EXPECT_EQ(table->cellAt(9, 0), nullptr);
    EXPECT_EQ(table->cellAt(0, -1), nullptr);
    QAccessibleTableCellInterface *cell = CellAt(8, 3)->tableCellInterface();
    ASSERT_NE(cell, nullptr);
    EXPECT_EQ(cell->rowIndex(), 2);
    EXPECT_EQ(cell->columnIndex(), 7);
    EXPECT_EQ(cell->rowExtent(), 1);
    EXPECT_EQ(cell->columnExtent(), 1);
    EXPECT_EQ(cell->table(), Board());
}

TEST_F(BoardAccessible, HeadersBearThePlayersNames)
{
    ColumnFormat = 3;
    RowFormat = 1;
    const QAccessibleTableInterface *table = Board()->tableInterface();
    EXPECT_EQ(table->columnDescription(7), "C8");
    EXPECT_EQ(table->rowDescription(8), "J");
    EXPECT_EQ(table->rowDescription(9), "");
    const QAccessibleTableCellInterface *cell = CellAt(8, 9)->tableCellInterface();
    const QList<QAccessibleInterface *> above = cell->columnHeaderCells();
    const QList<QAccessibleInterface *> left = cell->rowHeaderCells();
    ASSERT_EQ(above.size(), 1);
    ASSERT_EQ(left.size(), 1);
    EXPECT_EQ(NameOf(above.front()), "C8");
    EXPECT_EQ(above.front()->role(), QAccessible::ColumnHeader);
    EXPECT_EQ(NameOf(left.front()), "J");
    EXPECT_EQ(left.front()->role(), QAccessible::RowHeader);
    ASSERT_EQ(Board()->childCount(), 81 + 18);
    EXPECT_EQ(Board()->child(81 + 7), above.front());
    EXPECT_EQ(Board()->child(81 + 9 + 8), left.front());
    EXPECT_EQ(Board()->child(81 + 18), nullptr);
    EXPECT_EQ(above.front()->tableCellInterface()->rowIndex(), -1);
    EXPECT_EQ(left.front()->tableCellInterface()->columnIndex(), -1);
}

TEST_F(BoardAccessible, SelectionOfTheTableIsThatOfTheBoard)
{
    QAccessibleTableInterface *table = Board()->tableInterface();
    WordAt({4, 4}) |= SelectedBit;
    mnuSelectColumn();
    EXPECT_EQ(table->selectedCellCount(), 9);
    EXPECT_EQ(table->selectedCells().size(), 9);
    EXPECT_TRUE(table->selectedCells().contains(CellAt(4, 9)));
    EXPECT_EQ(table->selectedColumns(), QList<int>{3});
    EXPECT_EQ(table->selectedColumnCount(), 1);
    EXPECT_TRUE(table->isColumnSelected(3));
    EXPECT_EQ(table->selectedRowCount(), 0);
    EXPECT_FALSE(table->isRowSelected(3));
    EXPECT_FALSE(table->isColumnSelected(9));
    EXPECT_TRUE(CellAt(4, 1)->tableCellInterface()->isSelected());
    EXPECT_TRUE(CellAt(4, 1)->state().selected);
    EXPECT_FALSE(CellAt(5, 1)->state().selected);
}

TEST_F(BoardAccessible, RowsAndColumnsCanBeSelected)
{
    QAccessibleTableInterface *table = Board()->tableInterface();
    Listener listener;
    EXPECT_TRUE(table->selectRow(2));
    listener.Heard();
    EXPECT_EQ(table->selectedRows(), QList<int>{2});
    EXPECT_TRUE(table->selectColumn(8));
    listener.Heard();
    EXPECT_EQ(SelectedCells(), 17);
    EXPECT_TRUE(table->unselectRow(2));
    listener.Heard();
    EXPECT_EQ(SelectedCells(), 8);
    EXPECT_TRUE(table->unselectColumn(8));
    listener.Heard();
    EXPECT_EQ(SelectedCells(), 0);
    EXPECT_TRUE(table->selectRow(0));
    listener.Heard();
    EXPECT_EQ(table->selectedRows(), QList<int>{0});
    EXPECT_FALSE(table->selectRow(9));
    EXPECT_FALSE(table->selectRow(-1));
}

TEST_F(BoardAccessible, ActionsOfACellGoThereAndSelect)
{
    program.Main->menuBar()->setFocus();
    Listener listener;
    Do(5, 6, QAccessibleActionInterface::setFocusAction());
    EXPECT_EQ(listener.Heard(), Texts{"Focus [E6] empty"});
    EXPECT_TRUE(CellAt(5, 6)->state().focused);
    EXPECT_EQ(Board()->focusChild(), CellAt(5, 6));
    Do(6, 6, QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(listener.Heard(),
              (Texts{"Focus [F6] empty; 2 cells selected", "SelectionWithin Sudoku board"}));
    Do(6, 6, QAccessibleActionInterface::toggleAction());
    listener.Heard();
    EXPECT_EQ(SelectedCells(), 1);
    Do(1, 1, QAccessibleActionInterface::pressAction());
    listener.Heard();
    EXPECT_EQ(SelectedCells(), 1);
    EXPECT_TRUE(CellAt(1, 1)->state().selected);
}

TEST_F(BoardAccessible, CellTellsWhereItIsOnDemand)
{
    Listener listener;
    Do(1, 3, "Tell where this is");
    EXPECT_EQ(listener.Heard(),
              Texts{"ObjectShow [A3], row 3 of 9, column 1 of 9, upper-left box"});
    EXPECT_EQ(SelectedCells(), 0);
}

TEST_F(BoardAccessible, PatternIsWalkedByActions)
{
    WordAt({2, 2}) |= HintCellBit;
    WordAt({7, 2}) |= HintCellBit;
    Listener listener;
    const auto walk = [&](const char *action) {
        Board()->actionInterface()->doAction(action);
        return listener.Heard();
    };
    EXPECT_EQ(walk("Next cell of the pattern"),
              Texts{"Focus [B2] empty, hint; cell 1 of 2 of the pattern"});
    EXPECT_EQ(walk("Next cell of the pattern"),
              Texts{"Focus [G2] empty, hint; cell 2 of 2 of the pattern"});
    EXPECT_EQ(walk("Previous cell of the pattern"),
              Texts{"Focus [B2] empty, hint; cell 1 of 2 of the pattern"});
    EXPECT_EQ(CellAt(3, 2)->text(QAccessible::Description), "");
}

TEST_F(BoardAccessible, StepIsToldByTheCellReached)
{
    Listener listener;
    listener.Heard();
    Press(Qt::Key_Down);
    EXPECT_EQ(listener.Heard(), Texts{"Focus [A1] empty"});
    EXPECT_TRUE(CellAt(1, 1)->state().focused);
    EXPECT_FALSE(CellAt(2, 1)->state().focused);
    Press(Qt::Key_Left);
    EXPECT_EQ(listener.Heard(), Texts{"Focus [J1] empty"});
}

TEST_F(BoardAccessible, EntryUndoAndRedoAreToldOnce)
{
    Listener listener;
    Press(Qt::Key_Down);
    listener.Heard();
    Press(Qt::Key_7);
    EXPECT_EQ(listener.Heard(), (Texts{"NameChanged [A1] 7", "ObjectShow 7"}));
    Press(Qt::Key_8);
    listener.Heard();
    Press(Qt::Key_PageUp);
    EXPECT_EQ(listener.Heard(), (Texts{"NameChanged [A1] 7", "ObjectShow undone: [A1] was 8"}));
    Press(Qt::Key_PageDown);
    EXPECT_EQ(listener.Heard(), (Texts{"NameChanged [A1] 8", "ObjectShow redone: 8"}));
}

TEST_F(BoardAccessible, SelectionOfManyIsToldWithItsCount)
{
    Listener listener;
    Press(Qt::Key_Down);
    listener.Heard();
    Press(Qt::Key_C);
    EXPECT_EQ(listener.Heard(),
              (Texts{"SelectionWithin Sudoku board", "ObjectShow 9 cells selected, column A"}));
    Press(Qt::Key_W);
    EXPECT_EQ(listener.Heard(),
              (Texts{"SelectionWithin Sudoku board", "ObjectShow 81 cells selected"}));
}

TEST_F(BoardAccessible, SelectionOfTheCellOfThePlayerIsToldByIt)
{
    Listener listener;
    Press(Qt::Key_Down);
    Press(Qt::Key_C);
    listener.Heard();
    Click(Widget(), CentreOf(1, 1));
    EXPECT_EQ(listener.Heard(), Texts{"Selection [A1] empty"});
}

TEST_F(BoardAccessible, FocusThatReturnsNamesTheCell)
{
    Press(Qt::Key_Down);
    Listener listener;
    program.Main->menuBar()->setFocus();
    listener.Heard();
    Widget()->setFocus();
    EXPECT_EQ(listener.Heard(), Texts{"Focus [A1] empty"});
}

TEST_F(BoardAccessible, ModifierTellsItsSignAlone)
{
    Listener listener;
    listener.Heard();
    for (const auto &[key, name] :
         {std::pair{Qt::Key_Shift, "take away"}, std::pair{Qt::Key_Control, "add"}}) {
        QTest::keyPress(Widget(), key);
        EXPECT_EQ(listener.Heard(), Texts{std::string("NameChanged +/- ") + name});
        QTest::keyRelease(Widget(), key);
        EXPECT_EQ(listener.Heard(), Texts{"NameChanged +/- replace"});
    }
}

TEST_F(BoardAccessible, NothingIsMadeForToolsThatDoNotListen)
{
    SilentListener listener;
    listener.Heard();
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_7, Qt::Key_C, Qt::Key_PageUp, Qt::Key_Shift}) {
        Press(key);
    }
    EXPECT_EQ(listener.Heard(), Texts{});
    EXPECT_EQ(SelectedCells(), 0) << "the keys have come";
}

TEST_F(BoardAccessible, ToolThatComesLateHearsNothingOfBefore)
{
    Press(Qt::Key_Down);
    Press(Qt::Key_7);
    Listener listener;
    Press(Qt::Key_Right);
    EXPECT_EQ(listener.Heard(), Texts{"Focus [B1] empty"});
}

TEST_F(BoardAccessible, MenuEntriesAreReadyForToolsThatOpenNoMenu)
{
    const auto *undo = program.Main->findChild<QAction *>("mnuUndo");
    ASSERT_NE(undo, nullptr);
    Listener listener;
    Press(Qt::Key_Down);
    listener.Heard();
    EXPECT_FALSE(undo->isEnabled());
    Press(Qt::Key_7);
    listener.Heard();
    EXPECT_TRUE(undo->isEnabled());
}

TEST_F(BoardAccessible, PauseIsTold)
{
    ResetSolveTime();
    Listener listener;
    Press(Qt::Key_Down);
    listener.Heard();
    mnuPauseTime();
    EXPECT_EQ(listener.Heard(),
              (Texts{"NameChanged [A1] hidden while the clock is paused", "ObjectShow paused"}));
    mnuPauseTime();
    EXPECT_EQ(listener.Heard(), (Texts{"NameChanged [A1] empty", "ObjectShow resumed"}));
}

} // namespace
} // namespace kelvarine::testing
