#include "ui/focus_bar.h"

#include <QFocusEvent>
#include <QPainter>

namespace kelvarine {

FocusBar::FocusBar(QWidget *parent) : QScrollBar(Qt::Horizontal, parent)
{
    setFocusPolicy(Qt::StrongFocus);
}

void FocusBar::paintEvent(QPaintEvent *event)
{
    QScrollBar::paintEvent(event);
    if (hasFocus()) {
        QPainter painter(this);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
}

void FocusBar::focusInEvent(QFocusEvent *event)
{
    QScrollBar::focusInEvent(event);
    update();
}

void FocusBar::focusOutEvent(QFocusEvent *event)
{
    QScrollBar::focusOutEvent(event);
    update();
}

} // namespace kelvarine
