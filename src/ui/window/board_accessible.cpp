#include "ui/window/board_accessible.h"

#include "board/geometry.h"
#include "game/search.h"
#include "grid/grid.h"
#include "input/mouse.h"
#include "input/pattern.h"
#include "input/spoken.h"
#include "outside/events.h"
#include "paint/text.h"
#include "ui/window/board_widget.h"
#include "ui/window/cell_accessible.h"
#include "ui/window/described_kind.h"
#include "ui/window/main_window.h"
#include "ui/window/teller.h"

#include <QAccessibleWidget>

#include <algorithm>
#include <array>

namespace kelvarine {

namespace {

constexpr int Lines = 9;
constexpr int CellCount = Lines * Lines;
constexpr int PartCount = CellCount + 2 * Lines; // the cells, then the headers

constexpr std::string_view NextAction = "Next cell of the pattern";
constexpr std::string_view PreviousAction = "Previous cell of the pattern";

// Tools read row by row.
Cell CellOfChild(int child)
{
    return MakeCell(child % Lines + 1, child / Lines + 1);
}

bool IsSelected(Cell cell)
{
    return (WordAt(cell) & SelectedBit) != 0;
}

bool IsLineSelected(HouseKind kind, int index)
{
    if (index < 0 || index >= Lines) {
        return false;
    }
    const int house = kind == HouseKind::Column ? index : Lines + index;
    return std::ranges::all_of(Houses[static_cast<std::size_t>(house)].Cells, IsSelected);
}

QList<int> SelectedLines(HouseKind kind)
{
    QList<int> lines;
    for (int index = 0; index < Lines; ++index) {
        if (IsLineSelected(kind, index)) {
            lines.append(index);
        }
    }
    return lines;
}

// Takes a line into the selection or out of it, as a drag along it would.
bool SelectLine(HouseKind kind, int index, bool on)
{
    if (index < 0 || index >= Lines) {
        return false;
    }
    const int house = kind == HouseKind::Column ? index : Lines + index;
    const std::array<Cell, 9> &cells = Houses[static_cast<std::size_t>(house)].Cells;
    DragOverCells(cells.front(), cells.back(), on ? CtrlKey : ShiftKey);
    return true;
}

// Goes along the chain or pattern that is on the board, as soon as the tool that asks for it has
// its answer.
void WalkPattern(bool onward)
{
    CallFromEventLoop([onward] {
        if (ReadyForCommand()) {
            Window()->Client->Board->setFocus(Qt::OtherFocusReason);
            StepInPattern(onward);
            TellChanges();
        }
    });
}

QAccessible::Id RegisterPart(int child)
{
    if (child < CellCount) {
        return QAccessible::registerAccessibleInterface(DescribeCell(CellOfChild(child)));
    }
    const int header = child - CellCount;
    return QAccessible::registerAccessibleInterface(
        header < Lines ? DescribeHeader(HouseKind::Column, header + 1)
                       : DescribeHeader(HouseKind::Row, header - Lines + 1));
}

class BoardAccessible : public QAccessibleWidget, public QAccessibleTableInterface {
public:
    explicit BoardAccessible(QWidget *board) : QAccessibleWidget(board, QAccessible::Table)
    {
        for (int child = 0; child < PartCount; ++child) {
            parts[static_cast<std::size_t>(child)] = RegisterPart(child);
        }
    }

    BoardAccessible(const BoardAccessible &) = delete;
    BoardAccessible &operator=(const BoardAccessible &) = delete;

    ~BoardAccessible() override
    {
        for (const QAccessible::Id part : parts) {
            QAccessible::deleteAccessibleInterface(part);
        }
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface *>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

    // ---- Parts ---------------------------------------------------------------------------------

    [[nodiscard]] int childCount() const override
    {
        return PartCount;
    }

    [[nodiscard]] QAccessibleInterface *child(int index) const override
    {
        return index >= 0 && index < PartCount
                   ? QAccessible::accessibleInterface(parts[static_cast<std::size_t>(index)])
                   : nullptr;
    }

    int indexOfChild(const QAccessibleInterface *child) const override
    {
        for (int index = 0; index < PartCount; ++index) {
            if (this->child(index) == child) {
                return index;
            }
        }
        return -1;
    }

    [[nodiscard]] QAccessibleInterface *childAt(int x, int y) const override
    {
        const QPoint point = widget()->mapFromGlobal(QPoint(x, y));
        const std::optional<Cell> cell = CellAt(point.x(), point.y());
        return cell ? child(ChildOf(*cell)) : nullptr;
    }

    [[nodiscard]] QAccessibleInterface *focusChild() const override
    {
        const std::optional<Cell> place = SpokenPlace();
        return widget()->hasFocus() && place ? child(ChildOf(*place)) : nullptr;
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Description && !SpokenPlace() ? WordsOfStep()
                                                                  : QAccessibleWidget::text(kind);
    }

    // ---- The pattern on view -----------------------------------------------------------------

    [[nodiscard]] QStringList actionNames() const override
    {
        return QAccessibleWidget::actionNames() +
               QStringList{Text(NextAction), Text(PreviousAction)};
    }

    void doAction(const QString &name) override
    {
        if (name == Text(NextAction) || name == Text(PreviousAction)) {
            WalkPattern(name == Text(NextAction));
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

    // ---- The table -----------------------------------------------------------------------------

    [[nodiscard]] QAccessibleInterface *caption() const override
    {
        return nullptr;
    }
    [[nodiscard]] QAccessibleInterface *summary() const override
    {
        return nullptr;
    }
    [[nodiscard]] QAccessibleInterface *cellAt(int row, int column) const override
    {
        return IsLine(row + 1) && IsLine(column + 1) ? child(row * Lines + column) : nullptr;
    }
    [[nodiscard]] int rowCount() const override
    {
        return Lines;
    }
    [[nodiscard]] int columnCount() const override
    {
        return Lines;
    }
    [[nodiscard]] QString rowDescription(int row) const override
    {
        return IsLine(row + 1)
                   ? child(ChildOfHeader(HouseKind::Row, row + 1))->text(QAccessible::Name)
                   : QString();
    }
    [[nodiscard]] QString columnDescription(int column) const override
    {
        return IsLine(column + 1)
                   ? child(ChildOfHeader(HouseKind::Column, column + 1))->text(QAccessible::Name)
                   : QString();
    }

    [[nodiscard]] int selectedCellCount() const override
    {
        return static_cast<int>(std::ranges::count_if(Cells, IsSelected));
    }
    [[nodiscard]] QList<QAccessibleInterface *> selectedCells() const override
    {
        QList<QAccessibleInterface *> selected;
        for (int index = 0; index < CellCount; ++index) {
            if (IsSelected(CellOfChild(index))) {
                selected.append(child(index));
            }
        }
        return selected;
    }
    [[nodiscard]] int selectedColumnCount() const override
    {
        return static_cast<int>(selectedColumns().size());
    }
    [[nodiscard]] int selectedRowCount() const override
    {
        return static_cast<int>(selectedRows().size());
    }
    [[nodiscard]] QList<int> selectedColumns() const override
    {
        return SelectedLines(HouseKind::Column);
    }
    [[nodiscard]] QList<int> selectedRows() const override
    {
        return SelectedLines(HouseKind::Row);
    }
    [[nodiscard]] bool isColumnSelected(int column) const override
    {
        return IsLineSelected(HouseKind::Column, column);
    }
    [[nodiscard]] bool isRowSelected(int row) const override
    {
        return IsLineSelected(HouseKind::Row, row);
    }
    bool selectRow(int row) override
    {
        return SelectLine(HouseKind::Row, row, true);
    }
    bool selectColumn(int column) override
    {
        return SelectLine(HouseKind::Column, column, true);
    }
    bool unselectRow(int row) override
    {
        return SelectLine(HouseKind::Row, row, false);
    }
    bool unselectColumn(int column) override
    {
        return SelectLine(HouseKind::Column, column, false);
    }
    void modelChange(QAccessibleTableModelChangeEvent * /*event*/) override
    {
        // The board has always the same cells.
    }

private:
    std::array<QAccessible::Id, PartCount> parts{};
};

} // namespace

int ChildOf(Cell cell)
{
    return (cell.Row - 1) * Lines + cell.Column - 1;
}

int ChildOfHeader(HouseKind kind, int line)
{
    return CellCount + (kind == HouseKind::Column ? 0 : Lines) + line - 1;
}

void DescribeBoardToTools()
{
    DescribeKindToTools<BoardWidget, BoardAccessible>();
}

} // namespace kelvarine
