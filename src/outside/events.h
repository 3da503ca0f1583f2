// The event loop, seen from long work, the cursor that tells of it, and the time.
#pragma once

#include <functional>

namespace kelvarine {

// Lets pending events run. Cheap to call often: it looks at the clock first.
void YieldToEvents();

// Lets all pending events run now.
void RunPendingEvents();

// Shows the wait cursor while on, the usual one when off. Calls nest.
void SetWaitCursor(bool on);

// Does a deed once, at the next turn of the event loop.
void CallFromEventLoop(std::function<void()> deed);

// A day of the calendar: year, month 1..12, day of the month 1..31.
struct Day {
    int Year = 0;
    int Month = 0;
    int Number = 0;
};

Day Today();

// Seconds since midnight, with their fraction.
double SecondsSinceMidnight();

// Seconds on a clock that nobody sets, from any start.
double SteadySeconds();

} // namespace kelvarine
