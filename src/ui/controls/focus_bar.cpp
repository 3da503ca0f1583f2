#include "ui/controls/focus_bar.h"

#include "ui/controls/focus_frame.h"

#include <QFocusEvent>
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
    QPainter painter(this);
    PaintFocus(*this, painter, rect());
}

void FocusBar::keyPressEvent(QKeyEvent *event)
{
    NoteKey(*this);
    const SliderAction action = ActionOf(event->key());
    if (action == SliderNoAction) {
        event->ignore();
    } else {
        triggerAction(action);
    }
}

void FocusBar::focusInEvent(QFocusEvent *event)
{
    QScrollBar::focusInEvent(event);
    NoteFocus(*this, *event);
}

void FocusBar::focusOutEvent(QFocusEvent *event)
{
    QScrollBar::focusOutEvent(event);
    NoteFocus(*this, *event);
}

} // namespace kelvarine
