#include "ui/controls/focus_frame.h"

#include <QFocusEvent>
#include <QPainter>
#include <QVariant>
#include <QWidget>

namespace kelvarine {

namespace {

constexpr const char *ByKey = "focusByKey";

} // namespace

void NoteFocus(QWidget &control, const QFocusEvent &event)
{
    // A window that comes to the front again gives the focus back as it was.
    if (event.reason() != Qt::ActiveWindowFocusReason && event.reason() != Qt::PopupFocusReason) {
        control.setProperty(ByKey, event.gotFocus() && event.reason() != Qt::MouseFocusReason);
    }
    control.update();
}

void NoteKey(QWidget &control)
{
    control.setProperty(ByKey, true);
    control.update();
}

bool ShowsFocus(const QWidget &control)
{
    return control.hasFocus() && control.property(ByKey).toBool();
}

void PaintFocus(const QWidget &control, QPainter &painter, const QRect &place)
{
    if (ShowsFocus(control)) {
        painter.setPen(control.palette().color(QPalette::Highlight));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(place.adjusted(0, 0, -1, -1));
    }
}

} // namespace kelvarine
