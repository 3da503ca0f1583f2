// How often long work lets the event loop have a turn.
#pragma once

#include <chrono>

namespace kelvarine {

// At least so long from one turn to the next; with 0 every call of YieldToEvents is one.
extern std::chrono::milliseconds YieldInterval; // default 10

} // namespace kelvarine
