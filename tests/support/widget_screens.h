// Every window of the program, one after the other.
#pragma once

#include "ui/window/main_window.h"

#include <functional>

namespace kelvarine::testing {

// Brings each window on view and looks at it: the main window, the settings on each tab,
// statistics, solutions, the file dialog, the help, a question and About.
void LookAtEveryWindow(MainWindow &main, const std::function<void(QWidget &window)> &look);

} // namespace kelvarine::testing
