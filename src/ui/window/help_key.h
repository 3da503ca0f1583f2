// F1: help for the window in front.
#pragma once

class QWidget;

namespace kelvarine {

// Gives a window the topic that F1 shows while it is in front. Can be called again at any time; a
// window without one has the default topic.
void SetHelpContext(QWidget *window, int context);

// Makes F1 work in every window of the program from now on.
void WatchForHelpKey();

} // namespace kelvarine
