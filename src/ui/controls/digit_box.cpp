#include "ui/controls/digit_box.h"

#include <QKeyEvent>

namespace kelvarine {

namespace {

constexpr int MostDigits = 2;

// Keys that would write something else than a digit. Keys with Ctrl are commands.
bool WritesNoDigit(const QKeyEvent &event)
{
    const QString text = event.text();
    if (text.isEmpty() || event.modifiers() == Qt::ControlModifier) {
        return false;
    }
    return text.front().isPrint() && (text.front() < u'0' || text.front() > u'9');
}

} // namespace

DigitBox::DigitBox(QWidget *parent) : QLineEdit(parent)
{
    setMaxLength(MostDigits);
    setAttribute(Qt::WA_InputMethodEnabled, false);
    setInputMethodHints(Qt::ImhDigitsOnly);
}

void DigitBox::keyPressEvent(QKeyEvent *event)
{
    if (!WritesNoDigit(*event)) {
        QLineEdit::keyPressEvent(event);
    }
}

void DigitBox::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    selectAll();
    focusedByPress = event->reason() == Qt::MouseFocusReason;
}

void DigitBox::mousePressEvent(QMouseEvent *event)
{
    QLineEdit::mousePressEvent(event);
    if (focusedByPress) {
        selectAll();
        focusedByPress = false;
    }
}

} // namespace kelvarine
