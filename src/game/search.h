// How a running search is stopped, and what it keeps the player from.
#pragma once

namespace kelvarine {

// Asks whether to stop a running search. On yes clears SearchActive and sets StopRequested.
void QueryStopSearch();

// True while the logic works on the board, also after it was told to stop.
bool IsBusy();

// First steps of every command that the player starts: while a game search or a long run of the
// driver goes on, asks whether to stop it; otherwise ends the win display. False when the command
// must not act.
bool ReadyForCommand();

} // namespace kelvarine
