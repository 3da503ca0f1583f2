#include "ui/window/cell_accessible.h"

#include "board/geometry.h"
#include "grid/grid.h"
#include "grid/names.h"
#include "input/mouse.h"
#include "input/pattern.h"
#include "input/spoken.h"
#include "outside/events.h"
#include "outside/window.h"
#include "paint/text.h"
#include "ui/window/board_accessible.h"
#include "ui/window/board_widget.h"
#include "ui/window/main_window.h"
#include "ui/window/notices.h"
#include "ui/window/part_accessible.h"
#include "ui/window/teller.h"

#include <QAccessible>

namespace kelvarine {

namespace {

// An action that says where a cell is. As a description it would be said at every step.
constexpr std::string_view WhereAction = "Tell where this is";

BoardWidget *Board()
{
    return Window()->Client->Board;
}

QRect OnScreen(const QRect &inBoard)
{
    return inBoard.translated(Board()->mapToGlobal(QPoint(0, 0)));
}

QRect PlaceOfCell(Cell cell)
{
    return {CellX(cell.Column), CellY(cell.Row), CellWidth, CellHeight};
}

void PressCell(Cell cell, std::int32_t modifiers)
{
    DragOverCells(cell, cell, modifiers);
}

QAccessibleInterface *HeaderOf(HouseKind kind, int line)
{
    return BoardInterface()->child(ChildOfHeader(kind, line));
}

// ---- Headers -------------------------------------------------------------------------------

class HeaderAccessible : public TablePartAccessible {
public:
    HeaderAccessible(HouseKind houseKind, int lineNumber) : kind(houseKind), line(lineNumber)
    {
    }

    [[nodiscard]] bool isValid() const override
    {
        return Window() != nullptr;
    }
    [[nodiscard]] QAccessibleInterface *parent() const override
    {
        return BoardInterface();
    }
    [[nodiscard]] QAccessible::Role role() const override
    {
        return IsColumn() ? QAccessible::ColumnHeader : QAccessible::RowHeader;
    }
    [[nodiscard]] QString text(QAccessible::Text wanted) const override
    {
        return wanted == QAccessible::Name ? Text(IsColumn() ? ColumnName(line) : RowName(line))
                                           : QString();
    }
    [[nodiscard]] QRect rect() const override
    {
        const QRect first = PlaceOfCell(IsColumn() ? MakeCell(line, 1) : MakeCell(1, line));
        return OnScreen(IsColumn() ? QRect(first.x(), 0, first.width(), first.y())
                                   : QRect(0, first.y(), first.x(), first.height()));
    }
    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state;
        state.readOnly = true;
        return state;
    }

    [[nodiscard]] bool isSelected() const override
    {
        return false;
    }
    [[nodiscard]] QList<QAccessibleInterface *> columnHeaderCells() const override
    {
        return {};
    }
    [[nodiscard]] QList<QAccessibleInterface *> rowHeaderCells() const override
    {
        return {};
    }
    // A header stands before the first line of the other direction.
    [[nodiscard]] int columnIndex() const override
    {
        return IsColumn() ? line - 1 : -1;
    }
    [[nodiscard]] int rowIndex() const override
    {
        return IsColumn() ? -1 : line - 1;
    }

private:
    [[nodiscard]] bool IsColumn() const
    {
        return kind == HouseKind::Column;
    }

    HouseKind kind;
    int line;
};

// ---- Cells ---------------------------------------------------------------------------------

class CellAccessible : public TablePartAccessible, public QAccessibleActionInterface {
public:
    explicit CellAccessible(Cell cell) : place(cell)
    {
    }

    [[nodiscard]] bool isValid() const override
    {
        return Window() != nullptr;
    }
    [[nodiscard]] QAccessibleInterface *parent() const override
    {
        return BoardInterface();
    }
    [[nodiscard]] QAccessible::Role role() const override
    {
        return QAccessible::Cell;
    }
    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        switch (kind) {
        case QAccessible::Name:
            return Text(SpokenCell(place));
        case QAccessible::Description:
            return Description();
        default:
            return {};
        }
    }
    [[nodiscard]] QRect rect() const override
    {
        return OnScreen(PlaceOfCell(place));
    }
    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state;
        state.selectable = true;
        state.multiSelectable = true;
        state.focusable = true;
        state.readOnly = (WordAt(place) & GivenBit) != 0;
        state.selected = isSelected();
        state.focused = Board()->hasFocus() && SpokenPlace() == place;
        return state;
    }
    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface
                   ? static_cast<QAccessibleActionInterface *>(this)
                   : TablePartAccessible::interface_cast(type);
    }

    [[nodiscard]] bool isSelected() const override
    {
        return (WordAt(place) & SelectedBit) != 0;
    }
    [[nodiscard]] QList<QAccessibleInterface *> columnHeaderCells() const override
    {
        return {HeaderOf(HouseKind::Column, place.Column)};
    }
    [[nodiscard]] QList<QAccessibleInterface *> rowHeaderCells() const override
    {
        return {HeaderOf(HouseKind::Row, place.Row)};
    }
    [[nodiscard]] int columnIndex() const override
    {
        return place.Column - 1;
    }
    [[nodiscard]] int rowIndex() const override
    {
        return place.Row - 1;
    }

    [[nodiscard]] QStringList actionNames() const override
    {
        return {pressAction(), toggleAction(), setFocusAction(), Text(WhereAction)};
    }
    void doAction(const QString &name) override
    {
        if (name == toggleAction()) {
            PressCell(place, isSelected() ? ShiftKey : CtrlKey);
        } else if (name == pressAction() || name == setFocusAction()) {
            PressCell(place, 0);
        } else if (name == Text(WhereAction)) {
            CallFromEventLoop([cell = place] { Tell(Text(SpokenWhere(cell))); });
        }
    }
    [[nodiscard]] QStringList keyBindingsForAction(const QString & /*name*/) const override
    {
        return {};
    }

private:
    // Its place in the pattern, and what came of the step that led here.
    [[nodiscard]] QString Description() const
    {
        QStringList words{Text(SpokenInPattern(place))};
        if (SpokenPlace() == place) {
            words.append(WordsOfStep());
        }
        words.removeAll(QString());
        return words.join(QStringLiteral("; "));
    }

    Cell place;
};

} // namespace

QAccessibleInterface *BoardInterface()
{
    return Window() == nullptr ? nullptr : QAccessible::queryAccessibleInterface(Board());
}

void DragOverCells(Cell first, Cell last, std::int32_t modifiers)
{
    CallFromEventLoop([=] {
        const QPoint from = PlaceOfCell(first).center();
        const QPoint to = PlaceOfCell(last).center();
        Board()->setFocus(Qt::OtherFocusReason);
        if (!Window()->isActiveWindow()) {
            ActivateMainWindow();
        }
        BoardPressed(LeftButton, modifiers, from.x(), from.y());
        if (first != last) {
            BoardMoved(LeftButton, modifiers, to.x(), to.y());
        }
    });
}

QAccessibleInterface *DescribeCell(Cell cell)
{
    return new CellAccessible(cell);
}

QAccessibleInterface *DescribeHeader(HouseKind kind, int line)
{
    return new HeaderAccessible(kind, line);
}

} // namespace kelvarine
