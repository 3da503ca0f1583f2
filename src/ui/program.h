// The program from its first window to its end.
#pragma once

namespace kelvarine {

// Opens the main window on an empty grid and runs until it is closed. The application object must
// stand and all state must have its defaults or the player's settings. Returns the exit code.
int RunProgram();

} // namespace kelvarine
