#include "ui/controls/label_table_access.h"

#include "ui/controls/label_table.h"
#include "ui/window/described_kind.h"
#include "ui/window/part_accessible.h"

#include <QAccessibleWidget>
#include <QLabel>

#include <map>

namespace kelvarine {

namespace {

class LabelAccess : public TablePartAccessible, public QAccessibleActionInterface {
public:
    LabelAccess(LabelTable *owner, TablePlace where) : labels(owner), place(where)
    {
    }

    [[nodiscard]] bool isValid() const override
    {
        return true; // goes with the table
    }
    [[nodiscard]] QAccessibleInterface *parent() const override
    {
        return QAccessible::queryAccessibleInterface(labels);
    }
    [[nodiscard]] QAccessible::Role role() const override
    {
        if (place.Row == 0) {
            return QAccessible::ColumnHeader;
        }
        return place.Column == 0 ? QAccessible::RowHeader : QAccessible::Cell;
    }
    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? labels->At(place)->text().trimmed() : QString();
    }
    [[nodiscard]] QRect rect() const override
    {
        const QRect inTable = labels->At(place)->geometry();
        return {labels->mapToGlobal(inTable.topLeft()), inTable.size()};
    }
    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state;
        state.readOnly = true;
        state.focusable = true;
        state.focused = labels->hasFocus() && labels->Place() == place;
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
        return false;
    }
    [[nodiscard]] QList<QAccessibleInterface *> columnHeaderCells() const override
    {
        return place.Row > 0 ? QList{HeadingAt({0, place.Column})}
                             : QList<QAccessibleInterface *>();
    }
    [[nodiscard]] QList<QAccessibleInterface *> rowHeaderCells() const override
    {
        return place.Column > 0 && place.Row > 0 ? QList{HeadingAt({place.Row, 0})}
                                                 : QList<QAccessibleInterface *>();
    }
    // The headings stand before the first line.
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
        return {setFocusAction()};
    }
    void doAction(const QString &name) override
    {
        if (name == setFocusAction()) {
            labels->GoTo(place);
        }
    }
    [[nodiscard]] QStringList keyBindingsForAction(const QString & /*name*/) const override
    {
        return {};
    }

private:
    [[nodiscard]] QAccessibleInterface *HeadingAt(TablePlace heading) const
    {
        return parent()->child(heading.Row * labels->Columns() + heading.Column);
    }

    LabelTable *labels;
    TablePlace place;
};

class LabelTableAccess : public QAccessibleWidget, public QAccessibleTableInterface {
public:
    explicit LabelTableAccess(LabelTable *table)
        : QAccessibleWidget(table, QAccessible::Table), labels(table)
    {
    }
    LabelTableAccess(const LabelTableAccess &) = delete;
    LabelTableAccess &operator=(const LabelTableAccess &) = delete;
    ~LabelTableAccess() override
    {
        for (const auto &[child, part] : parts) {
            QAccessible::deleteAccessibleInterface(part);
        }
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface *>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

    // ---- Parts, row by row ---------------------------------------------------------------------

    [[nodiscard]] int childCount() const override
    {
        return labels->Rows() * labels->Columns();
    }
    [[nodiscard]] QAccessibleInterface *child(int index) const override
    {
        if (index < 0 || index >= childCount()) {
            return nullptr;
        }
        if (!parts.contains(index)) {
            const TablePlace place{index / labels->Columns(), index % labels->Columns()};
            // What is registered belongs to the toolkit until it is deleted by its number.
            // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks)
            parts[index] = QAccessible::registerAccessibleInterface(new LabelAccess(labels, place));
        }
        return QAccessible::accessibleInterface(parts[index]);
    }
    int indexOfChild(const QAccessibleInterface *wanted) const override
    {
        for (const auto &[child, part] : parts) {
            if (QAccessible::accessibleInterface(part) == wanted) {
                return child;
            }
        }
        return -1;
    }
    [[nodiscard]] QAccessibleInterface *childAt(int x, int y) const override
    {
        for (int index = 0; index < childCount(); ++index) {
            if (child(index)->rect().contains(x, y)) {
                return child(index);
            }
        }
        return nullptr;
    }
    [[nodiscard]] QAccessibleInterface *focusChild() const override
    {
        const TablePlace place = labels->Place();
        return labels->hasFocus() ? child(place.Row * labels->Columns() + place.Column) : nullptr;
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
        const bool inside = row >= 0 && row < rowCount() && column >= 0 && column < columnCount();
        return inside ? child((row + 1) * labels->Columns() + column + 1) : nullptr;
    }
    [[nodiscard]] int rowCount() const override
    {
        return labels->Rows() - 1;
    }
    [[nodiscard]] int columnCount() const override
    {
        return labels->Columns() - 1;
    }
    [[nodiscard]] QString rowDescription(int row) const override
    {
        return row >= 0 && row < rowCount() ? labels->At({row + 1, 0})->text() : QString();
    }
    [[nodiscard]] QString columnDescription(int column) const override
    {
        return column >= 0 && column < columnCount() ? labels->At({0, column + 1})->text()
                                                     : QString();
    }

    // Nothing of it can be selected.
    [[nodiscard]] int selectedCellCount() const override
    {
        return 0;
    }
    [[nodiscard]] QList<QAccessibleInterface *> selectedCells() const override
    {
        return {};
    }
    [[nodiscard]] int selectedColumnCount() const override
    {
        return 0;
    }
    [[nodiscard]] int selectedRowCount() const override
    {
        return 0;
    }
    [[nodiscard]] QList<int> selectedColumns() const override
    {
        return {};
    }
    [[nodiscard]] QList<int> selectedRows() const override
    {
        return {};
    }
    [[nodiscard]] bool isColumnSelected(int /*column*/) const override
    {
        return false;
    }
    [[nodiscard]] bool isRowSelected(int /*row*/) const override
    {
        return false;
    }
    bool selectRow(int /*row*/) override
    {
        return false;
    }
    bool selectColumn(int /*column*/) override
    {
        return false;
    }
    bool unselectRow(int /*row*/) override
    {
        return false;
    }
    bool unselectColumn(int /*column*/) override
    {
        return false;
    }
    void modelChange(QAccessibleTableModelChangeEvent * /*event*/) override
    {
        // The table has always the same cells.
    }

private:
    LabelTable *labels;
    mutable std::map<int, QAccessible::Id> parts; // those that were asked for
};

} // namespace

void DescribeLabelTablesToTools()
{
    DescribeKindToTools<LabelTable, LabelTableAccess>();
}

} // namespace kelvarine
