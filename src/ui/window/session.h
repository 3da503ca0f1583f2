// The end that others call for: the session's end and the signals that ask a program to go. Both
// behave as closing the window does. One signal is kept from ending the program: that of a file
// which grows too large.
#pragma once

namespace kelvarine {

// Sees to all of them from now on. The main window must stand.
void WatchForTheEnd();

} // namespace kelvarine
