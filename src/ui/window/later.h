// Work of a window that waits until what goes on now is over.
#pragma once

#include "outside/events.h"

#include <QPointer>

namespace kelvarine {

// Calls a widget's procedure in a turn of the event loop of its own, if the widget is still there.
template <typename Widget>
void Later(Widget *widget, void (Widget::*run)())
{
    CallFromEventLoop([widget = QPointer(widget), run] {
        if (widget != nullptr) {
            (widget->*run)();
        }
    });
}

} // namespace kelvarine
