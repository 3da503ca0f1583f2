// The folder of games that might have been lost: those that a player did not want to go on with,
// and what stood in a file that is being written over.
#pragma once

#include <string>

namespace kelvarine {

// With a closing slash; beside the statistics. It need not exist yet.
std::string RecoveredFolder();

inline constexpr int MostRecoveredGames = 10;

// Moves a game there, under the date and time of its last change, and removes the oldest of more
// than ten. False when that fails; the file stands where it stood then.
bool KeepRecoveredGame(const std::string &path);

// Puts a copy of a file there under a name of its own, which it returns. Empty, with the system's
// words in error, when that fails.
std::string CopyToRecovered(const std::string &path, std::string &error);

} // namespace kelvarine
