// The places of the games in hand of programs that may crash: each program holds one by its number.
// A game stands there in one file that is on the disk, and in a fresh one beside it, which is never
// older, that has come as far as the system and counts until the machine is started anew. So what a
// kill loses does not hang on how long the disk takes.
#pragma once

#include "outside/file_lock.h"

#include <memory>
#include <string>
#include <vector>

namespace kelvarine {

inline constexpr int MostPrograms = 100;

struct RecoveryPlace {
    std::string Path;
    std::string FreshPath;
    std::unique_ptr<FileLock> Lock;
    bool IsWritten = false; // so that what stands there is this program's, whole or begun
};

// Takes the place with a number of 1 to MostPrograms that no program holds; not held when it cannot
// be had.
RecoveryPlace HoldPlace(int number);
bool IsHeld(const RecoveryPlace &place);

// True when a game stands there in either file.
bool GameStandsIn(const RecoveryPlace &place);

// Whether a game stands in the place with a number, whoever holds it.
bool GameStandsAt(int number);

// The numbers of the places where a game stands, the newest first.
std::vector<int> PlacesOfGames();

// The bytes of a fresh file from those of a game. Empty where the system does not tell one start of
// the machine from another, so that there can be none.
std::string FreshBytes(const std::string &game);

// The newest game that stands in a place; empty when none can be read.
std::string GameIn(const RecoveryPlace &place);

// Whether the newest game of a place stands in the file that is on the disk.
bool IsOnDisk(const RecoveryPlace &place);

// Brings a game that stands in the fresh file to the disk, with its time, and takes that file away.
// False when there is one and it cannot be brought there; both files are as they were then.
bool BringToDisk(const RecoveryPlace &place);

// Takes both files away.
void RemoveFiles(const RecoveryPlace &place);

} // namespace kelvarine
