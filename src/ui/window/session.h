// The end that others call for: the session's end and the signals that ask a program to go. A
// signal is a closing of the window. A session first has the program ask what a closing asks and
// keep its settings, and the window closes only when it is told to, which may never come. One
// signal is kept from ending the program: that of a file which grows too large.
#pragma once

namespace kelvarine {

// Sees to all of them from now on. The main window must stand.
void WatchForTheEnd();

// Does what is due before the window goes and gives true, while the session makes the program go
// and the player has answered for the very game that is in hand, or could not be asked.
bool EndAsAgreed();

} // namespace kelvarine
