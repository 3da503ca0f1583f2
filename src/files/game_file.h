// The game file: a whole game as records of words, or its position as framed text. The name decides
// what is written, the contents decide what is read.
#pragma once

#include "grid/grid.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace kelvarine {

struct GameInHand;

inline constexpr std::size_t GameFileSize = 41360; // bytes of a whole game

// The endings of the program's own names.
inline constexpr std::string_view GameExtension = ".sdk";
inline constexpr std::string_view TextExtension = ".txt";

// Where the time stands in a game file, and its size.
inline constexpr std::size_t TimePlace = 80;
inline constexpr std::size_t TimeSize = 8;

// Writes the game to GameFilePath, in one step that leaves the old file or the new one: as text
// when the path ends in ".txt" in small letters, else whole, which clears GameModified. False when
// there is no path, or when the writing failed; of a failure the player has been told, and the old
// file and GameModified are as they were. The player may be asked whether to write the file in
// place.
bool WriteGameFile();

// Loads a game from a file of any name, and sets FileWasText. A game file brings everything back; a
// text brings the position alone, and history, start position and time stay those of the game
// before. Ends in StartGame. False, with Grid as it was, when there is no such file or nothing in
// it is a game.
bool ReadGameFile(const std::string &path);

// The game on the board as the bytes of a game file; the same with other cells than those on the
// board; and a game that was put aside.
std::string GameFileBytes();
std::string GameFileBytes(const GridTable &cells);
std::string GameFileBytes(const GameInHand &game);

// True when the contents of a file are a game file, and no text.
bool IsWholeGame(std::string_view contents);

// What ReadGameFile does with the contents of a file.
bool ReadGame(std::string_view contents);

// Reads the cells of the contents of a file into Grid, and the time played; it is below 0 for a
// text. False, with Grid as it was, when nothing in it is a game. Of what else a game is made of
// only the safe copy in History changes, over which a text is tried.
bool ReadCells(std::string_view contents, double &seconds);

} // namespace kelvarine
