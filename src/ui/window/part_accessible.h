// What all parts of a widget that are no widgets themselves have in common when they are described
// to assistive tools: no object and no parts of their own.
#pragma once

#include <QAccessibleInterface>

namespace kelvarine {

// The toolkit wants an object of this kind for each thing that it tells tools about.
class PartAccessible : public QAccessibleInterface {
public:
    [[nodiscard]] QObject *object() const override
    {
        return nullptr;
    }
    [[nodiscard]] QAccessibleInterface *child(int /*index*/) const override
    {
        return nullptr;
    }
    [[nodiscard]] QAccessibleInterface *childAt(int /*x*/, int /*y*/) const override
    {
        return nullptr;
    }
    [[nodiscard]] int childCount() const override
    {
        return 0;
    }
    int indexOfChild(const QAccessibleInterface * /*child*/) const override
    {
        return -1;
    }
    void setText(QAccessible::Text /*kind*/, const QString & /*text*/) override
    {
    }
};

// A cell of a table, or what heads a line of it: one line high and one wide, in the table whose
// part it is.
class TablePartAccessible : public PartAccessible, public QAccessibleTableCellInterface {
public:
    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TableCellInterface
                   ? static_cast<QAccessibleTableCellInterface *>(this)
                   : nullptr;
    }
    [[nodiscard]] int columnExtent() const override
    {
        return 1;
    }
    [[nodiscard]] int rowExtent() const override
    {
        return 1;
    }
    [[nodiscard]] QAccessibleInterface *table() const override
    {
        return parent();
    }
};

} // namespace kelvarine
