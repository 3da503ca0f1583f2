#include "ui/controls/level_label.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOption>

#include <utility>

namespace kelvarine {

LevelLabel::LevelLabel(QWidget *parent, std::function<void()> openMenu)
    : QLabel(parent), openLevels(std::move(openMenu))
{
    setFocusPolicy(Qt::StrongFocus);
    // The press and the keys below are all that opens the menu.
    setContextMenuPolicy(Qt::PreventContextMenu);
    setContentsMargins(3, 0, 3, 0);
}

void LevelLabel::ShowOpen(bool open)
{
    QPalette colours;
    if (open) {
        colours.setColor(QPalette::WindowText, QColor(255, 0, 0));
    }
    setPalette(colours);
}

void LevelLabel::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::RightButton) {
        openLevels();
    }
}

void LevelLabel::keyPressEvent(QKeyEvent *event)
{
    const bool shiftF10 = event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier;
    if (event->key() == Qt::Key_Menu || shiftF10) {
        openLevels();
    } else {
        QLabel::keyPressEvent(event);
    }
}

void LevelLabel::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event);
    if (hasFocus()) {
        QPainter painter(this);
        QStyleOptionFocusRect option;
        option.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

} // namespace kelvarine
