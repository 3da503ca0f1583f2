#include "support/widget_listener.h"

#include "grid/names.h"
#include "support/widget_heard.h"
#include "support/widget_program.h"
#include "ui/window/tools_listen.h"

#include <QAccessible>
#include <QTimer>
#include <QtTest>
#include <gtest/gtest.h>

#include <utility>

namespace kelvarine::testing {

namespace {

std::vector<std::string> heard;

std::string KindOf(QAccessible::Event kind)
{
    switch (kind) {
    case QAccessible::Focus:
        return "Focus";
    case QAccessible::NameChanged:
        return "NameChanged";
    case QAccessible::DescriptionChanged:
        return "DescriptionChanged";
    case QAccessible::Selection:
        return "Selection";
    case QAccessible::SelectionWithin:
        return "SelectionWithin";
    case QAccessible::ObjectShow:
        return "ObjectShow";
    default:
        return std::to_string(kind);
    }
}

// Where a cell of a table stands, in the names of the board; nothing for what heads a line.
std::string PlaceOf(QAccessibleInterface &item)
{
    const QAccessibleTableCellInterface *cell = item.tableCellInterface();
    if (cell == nullptr || cell->columnIndex() < 0 || cell->rowIndex() < 0) {
        return {};
    }
    return CellName(cell->columnIndex() + 1, cell->rowIndex() + 1) + " ";
}

void Note(const QAccessibleEvent &event)
{
    QAccessibleInterface *item = event.accessibleInterface();
    if (item == nullptr || !item->isValid()) {
        return;
    }
    const std::string words = item->text(QAccessible::Name).toStdString();
    const std::string more = item->text(QAccessible::Description).toStdString();
    const bool reads = event.type() == QAccessible::Focus && !more.empty();
    heard.push_back(KindOf(event.type()) + " " + PlaceOf(*item) + words +
                    (reads ? "; " + more : ""));
}

} // namespace

Listener::Listener()
{
    heard.clear();
    Hear = Note;
    ToolsListen(); // from here on the program learns what follows
    QAccessible::setActive(true);
}

Listener::~Listener()
{
    QAccessible::setActive(false);
    Hear = nullptr;
}

std::vector<std::string> Listener::Heard()
{
    // Two rounds: what an action puts off may put off its telling.
    for (int round = 0; round < 2; ++round) {
        bool over = false;
        QTimer::singleShot(0, [&] { over = true; });
        EXPECT_TRUE(QTest::qWaitFor([&] { return over; }, Patience));
    }
    return std::exchange(heard, {});
}

SilentListener::SilentListener()
{
    QAccessible::setActive(false);
}

} // namespace kelvarine::testing
