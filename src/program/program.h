// The program from its start to its end: the order of the steps, whatever front end stands around
// them.
#pragma once

#include <string>

namespace kelvarine {

// Starts the program, whose state must have its defaults: reads the player's settings, opens the
// main window on an empty grid with the screens that were open, and lets the event loop offer a
// game that was not closed and open a game file, given by its full path, unless that is empty.
void StartProgram(const std::string &gameFile);

// Keeps the game in hand in its recovery file, and the settings, for a program that is asked to go
// and may be ended before the player has answered. Says nothing, and does nothing once the end has
// been agreed on.
void KeepBeforeAsking();

// Does what is due before the main window goes: asks whether to stop a search, or whether to save,
// and keeps the settings. False when the player would rather stay.
bool EndProgram();

// Whether the program cannot end yet: the board holds the cells of a run of the logic or of a
// batch, so that nothing can be asked about the game in hand, or a batch's document is being handed
// over. What waits for the end of a run waits for that of both.
bool EndMustWait();

// What it is made of. While a run of the logic is under way: whether it may end, which is asked
// where it can be stopped. Without a run: the question whether to save, false when the player would
// rather stay; and what is due when it is answered, or has been before.
bool MayEndRun();
bool AskBeforeTheEnd();
void EndProgramAnswered();

// The last of these where nobody could be asked: what is kept for a crash stays for the next start.
void EndProgramUnasked();

// Writes the settings as they are, with the windows that are open, while the program goes on.
void KeepSettings();

} // namespace kelvarine
