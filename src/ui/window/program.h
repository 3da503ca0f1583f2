// The program over the toolkit, from its first window to its end.
#pragma once

#include <string>

namespace kelvarine {

// Reads the player's settings, opens the main window on an empty grid or on a game file given by
// its full path, and runs until the window is closed. The application object must stand and all
// state must have its defaults. Returns the exit code.
int RunProgram(const std::string &gameFile = {});

} // namespace kelvarine
