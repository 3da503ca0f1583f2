// The game file: a whole game as records of words, or its position as framed text. The name decides
// what is written, the contents decide what is read.
#pragma once

#include <string>
#include <string_view>

namespace kelvarine {

// Writes the game to GameFilePath, in one step that leaves the old file or the new one: as text
// when the path ends in ".txt" in small letters, else whole, which clears GameModified. False when
// there is no path, or when the writing failed; of a failure the player has been told, and the old
// file and GameModified are as they were.
bool WriteGameFile();

// Loads a game from a file of any name. A game file brings everything back; a text brings the
// position alone, and history, start position and time stay those of the game before. Ends in
// StartGame. False, with Grid as it was, when there is no such file or nothing in it is a game.
bool ReadGameFile(const std::string &path);

// The game in hand as the bytes of a game file.
std::string GameFileBytes();

// What ReadGameFile does with the contents of a file.
bool ReadGame(std::string_view contents);

} // namespace kelvarine
