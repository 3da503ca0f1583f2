// The end of the program when its display goes: the toolkit ends it where it stands, in the middle
// of its work, and taking down what is at work crashes.
#pragma once

namespace kelvarine {

// Whether std::exit on this thread ends the program at once, as one that has failed: nothing is
// taken down then. The game in hand is in its file for the next start.
void EndAtOnceOnExit(bool on);

} // namespace kelvarine
