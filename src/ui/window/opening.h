// How the windows of the program open: whole within the part of their screen that windows may take,
// with their frame, at the largest size up to the one that they want.
#pragma once

namespace kelvarine {

// Sees to every window that opens from now on. The main window must stand.
void WatchOpeningWindows();

} // namespace kelvarine
