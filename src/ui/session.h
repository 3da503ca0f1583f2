// The end that others call for: the session's end and the signals that ask a program to go. Both
// behave as closing the window does.
#pragma once

namespace kelvarine {

// Watches for both from now on. The main window must stand.
void WatchForTheEnd();

} // namespace kelvarine
