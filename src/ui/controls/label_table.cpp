#include "ui/controls/label_table.h"

#include "ui/controls/focus_frame.h"
#include "ui/controls/label_table_access.h"
#include "ui/window/later.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>

#include <algorithm>
#include <cassert>
#include <utility>

namespace kelvarine {

namespace {

constexpr int FrameRoom = 3; // between a text and its frame

} // namespace

LabelTable::LabelTable(QWidget *parent, const QString &spoken) : QWidget(parent)
{
    DescribeLabelTablesToTools(); // before anything asks for the description, because that is kept
    setAccessibleName(spoken);
    setFocusPolicy(Qt::TabFocus);
}

void LabelTable::AddRow(const std::vector<QLabel *> &labels)
{
    assert(rows.empty() || labels.size() == rows.front().size());
    rows.push_back(labels);
    for (const QLabel *label : labels) {
        told.append(label->text());
    }
}

int LabelTable::Rows() const
{
    return static_cast<int>(rows.size());
}

int LabelTable::Columns() const
{
    return rows.empty() ? 0 : static_cast<int>(rows.front().size());
}

QLabel *LabelTable::At(TablePlace place) const
{
    return rows[static_cast<std::size_t>(place.Row)][static_cast<std::size_t>(place.Column)];
}

TablePlace LabelTable::Place() const
{
    return current;
}

void LabelTable::GoTo(TablePlace place)
{
    const bool moved = current != place;
    current = place;
    update();
    if (!hasFocus()) {
        setFocus(Qt::OtherFocusReason);
    } else if (moved) {
        TellPlaceLater();
    }
}

void LabelTable::TellTexts()
{
    int child = 0;
    for (int row = 0; row < Rows(); ++row) {
        for (int column = 0; column < Columns() && child < told.size(); ++column, ++child) {
            const QString text = At({row, column})->text();
            if (told[child] != text) {
                told[child] = text;
                QAccessibleEvent event(this, QAccessible::NameChanged);
                event.setChild(child);
                QAccessible::updateAccessibility(&event);
            }
        }
    }
}

// The toolkit tells of the table as soon as it has given it the focus; the place in it must come
// afterwards.
void LabelTable::TellPlaceLater()
{
    if (!std::exchange(placeIsToTell, true)) {
        Later(this, &LabelTable::TellPlace);
    }
}

void LabelTable::TellPlace()
{
    placeIsToTell = false;
    if (!hasFocus()) {
        return;
    }
    QAccessibleEvent event(this, QAccessible::Focus);
    event.setChild(current.Row * Columns() + current.Column);
    QAccessible::updateAccessibility(&event);
}

// Where a key leads to; the same place for one that does not walk, or that ends there.
TablePlace LabelTable::PlaceAfter(int key) const
{
    TablePlace next = current;
    switch (key) {
    case Qt::Key_Left:
        --next.Column;
        break;
    case Qt::Key_Right:
        ++next.Column;
        break;
    case Qt::Key_Up:
        --next.Row;
        break;
    case Qt::Key_Down:
        ++next.Row;
        break;
    case Qt::Key_Home:
        next.Column = 0;
        break;
    case Qt::Key_End:
        next.Column = Columns() - 1;
        break;
    default:
        break;
    }
    return {std::clamp(next.Row, 0, Rows() - 1), std::clamp(next.Column, 0, Columns() - 1)};
}

void LabelTable::keyPressEvent(QKeyEvent *event)
{
    NoteKey(*this);
    if (const TablePlace next = PlaceAfter(event->key()); next != current) {
        GoTo(next);
    } else {
        QWidget::keyPressEvent(event);
    }
}

void LabelTable::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    NoteFocus(*this, *event);
    TellPlaceLater();
}

void LabelTable::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    NoteFocus(*this, *event);
}

void LabelTable::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    PaintFocus(*this, painter,
               At(current)->geometry().adjusted(-FrameRoom, 0, FrameRoom, 0).intersected(rect()));
}

} // namespace kelvarine
