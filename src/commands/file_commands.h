// The commands that open and save games.
#pragma once

#include <string>
#include <string_view>

namespace kelvarine {

// The name within a path: what follows the last slash, without outer blanks, in small letters.
std::string FileNameOf(std::string_view path);

// Names the game's file in the title.
void ShowFileInTitle();

// Opens a game that the player chooses, after the question about the game in hand. A file that is
// no game is told, and the game in hand goes on.
void mnuOpen();

// Opens a game by its full path, without any question.
void OpenGameFile(const std::string &path);

// Opens a game that the player has dropped on the window, after the question about the game in
// hand. Nothing but the question whether to stop it while a search runs.
void OpenDroppedGame(const std::string &path);

// Save the game: under the name that it has, asking for one when it has none, or when the player
// does not want what was read as text under a foreign name to become a game; and under a name that
// the player chooses.
void mnuSave();
void mnuSaveAs();

// Saves the game for a caller that is about to give it up, as mnuSave does but for the title. False
// when the player cancelled or the writing failed.
bool SaveGame();

} // namespace kelvarine
