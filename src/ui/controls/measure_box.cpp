#include "ui/controls/measure_box.h"

#include "outside/printer.h"
#include "paint/text.h"
#include "print/page_layout.h"

#include <QKeyEvent>

namespace kelvarine {

namespace {

constexpr int LongestMeasure = 6; // "999.99"

QString Sign()
{
    return Text(DecimalSign());
}

bool IsPrintable(const QString &typed)
{
    return !typed.isEmpty() && typed.at(0).isPrint();
}

} // namespace

MeasureBox::MeasureBox(QWidget *parent) : QLineEdit(parent)
{
    setMaxLength(LongestMeasure);
}

double MeasureBox::Measure() const
{
    return MeasureFrom(text().toStdString(), DecimalSign());
}

void MeasureBox::ShowMeasure(double inches)
{
    if (!hasFocus() || !isModified()) {
        setText(Text(MeasureText(inches, DecimalSign())));
    }
}

void MeasureBox::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    // A click sets the cursor after the focus and would take the selection away again.
    QMetaObject::invokeMethod(this, "selectAll", Qt::QueuedConnection);
}

void MeasureBox::focusOutEvent(QFocusEvent *event)
{
    setModified(false);
    QLineEdit::focusOutEvent(event);
}

// Lets digits and one decimal sign through, and keys that are no characters. Point and comma both
// give the sign of the locale, since a keypad may hold the other one.
void MeasureBox::keyPressEvent(QKeyEvent *event)
{
    const QString typed = event->text();
    const bool digit = typed.size() == 1 && typed.at(0) >= u'0' && typed.at(0) <= u'9';
    const bool shortcut = (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0;
    if (digit || shortcut || !IsPrintable(typed)) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    QString rest = text();
    rest.remove(selectionStart(), static_cast<int>(selectedText().size()));
    const bool sign = typed == u"." || typed == u"," || typed == Sign();
    if (sign && !rest.contains(u'.') && !rest.contains(u',') && !rest.contains(Sign())) {
        insert(Sign());
    }
}

} // namespace kelvarine
