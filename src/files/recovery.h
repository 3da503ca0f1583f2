// The game in hand on its way through crashes: while it is modified, all of it stands in a recovery
// file of this program's own, which goes with an orderly end and is offered after any other.
#pragma once

#include <string>

namespace kelvarine {

// A change is on its way to the disk after so many milliseconds at most, and nothing is written
// more often.
inline constexpr int RecoveryInterval = 2000;

// Forgets the recovery file, which stays, and lets go of it.
void SetRecoveryDefaults();

// Called once an interval. Begins to write the game in hand when it is modified and has changed
// since; the time alone is written over in the file that stands. Without a modified game there is
// no file. A failure is told once, until a write goes well again. While the board holds no game
// that is the player's, nothing changes, and the look is taken as soon as it does.
void RecoveryTick();

// Writes the game in hand now, when it is modified, for a program that may be ended without another
// word. True when the game is safe: it stands there to its last change, or is not modified.
bool WriteRecovery();

// The game in hand stands in a file of the player's: its recovery file goes until the next change.
void DropRecovery();

// The program ends: nothing is written any more, and no lost game is taken or put aside. Once the
// player has answered for the game, its recovery file goes, too.
void EndRecovery(bool answered);
bool RecoveryHasEnded();

// ---- Games of programs that have gone ------------------------------------------------------

// Looks for the newest recovery file whose program has gone and holds it, so that no other program
// offers it. False when there is none.
bool FindLostGame();

// The game that was found takes the place of the game in hand: modified, with its history and the
// name of its own file. The recovery file is this program's from now on. False when there is no
// game in it.
bool TakeLostGame();

// Keeps the file that was found under its date in the folder of recovered games. False when it
// could not be moved.
bool PutLostGameAside();

} // namespace kelvarine
