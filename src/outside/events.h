// The event loop, seen from long work, the cursor that tells of it, and the time of day.
#pragma once

namespace kelvarine {

// Lets pending events run. Cheap to call often: it looks at the clock first.
void YieldToEvents();

// Lets all pending events run now.
void RunPendingEvents();

// Shows the wait cursor while on, the usual one when off. Calls nest.
void SetWaitCursor(bool on);

// Seconds since midnight, with their fraction.
double SecondsSinceMidnight();

} // namespace kelvarine
