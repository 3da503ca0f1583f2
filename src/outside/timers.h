// The timers of the program.
#pragma once

namespace kelvarine {

// Switches the clock's timer, which calls ClockTick once a second.
void SetClockTimer(bool on);

// Switches the win display's timer, which calls WinDisplayTick every so many milliseconds.
void SetWinTimer(bool on, int milliseconds);

// Switches the recovery's timer, which calls RecoveryTick every so many milliseconds.
void SetRecoveryTimer(bool on, int milliseconds);

} // namespace kelvarine
