// One call that puts the whole program to the state of its start.
#pragma once

namespace kelvarine {

// Sets every piece of global state to its default. Called once when the program starts and by the
// tests before each case.
void SetDefaults();

} // namespace kelvarine
