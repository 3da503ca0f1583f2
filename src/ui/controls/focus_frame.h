// The mark of the control that has the keyboard: a thin frame, and only for those who came by it.
#pragma once

#include <QRect>

class QFocusEvent;
class QPainter;
class QWidget;

namespace kelvarine {

// A control got or lost the focus, or took a key. It is painted anew.
void NoteFocus(QWidget &control, const QFocusEvent &event);
void NoteKey(QWidget &control);

// Whether the focus is to be shown: a press of the mouse shows its effect anyway.
bool ShowsFocus(const QWidget &control);

// Paints the frame just within a place, if the focus is to be shown.
void PaintFocus(const QWidget &control, QPainter &painter, const QRect &place);

} // namespace kelvarine
