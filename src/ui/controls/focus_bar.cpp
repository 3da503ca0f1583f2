#include "ui/controls/focus_bar.h"

#include <QKeyEvent>
#include <QPainter>

namespace kelvarine {

namespace {

// The toolkit turns the keys of its scroll bars round, so they are told here.
QAbstractSlider::SliderAction ActionOf(int key)
{
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        return QAbstractSlider::SliderSingleStepSub;
    case Qt::Key_Right:
    case Qt::Key_Down:
        return QAbstractSlider::SliderSingleStepAdd;
    case Qt::Key_PageUp:
        return QAbstractSlider::SliderPageStepSub;
    case Qt::Key_PageDown:
        return QAbstractSlider::SliderPageStepAdd;
    case Qt::Key_Home:
        return QAbstractSlider::SliderToMinimum;
    case Qt::Key_End:
        return QAbstractSlider::SliderToMaximum;
    default:
        return QAbstractSlider::SliderNoAction;
    }
}

} // namespace

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

void FocusBar::keyPressEvent(QKeyEvent *event)
{
    const SliderAction action = ActionOf(event->key());
    if (action == SliderNoAction) {
        event->ignore();
    } else {
        triggerAction(action);
    }
}

} // namespace kelvarine
