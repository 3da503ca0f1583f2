// Where the program's own files lie, and where the player's do at first.
#pragma once

#include <string>

namespace kelvarine {

// The player's home, with a closing slash.
std::string HomeFolder();

// The player's folder for settings, with a closing slash; "config.sdu" is kept here. It need not
// exist yet.
std::string SettingsFolder();

// The player's folder for data, with a closing slash; "stats.sdu" and sounds of the player's own
// are kept here. It need not exist yet.
std::string DataFolder();

// The folder of the data that came with the program, with a closing slash: "data" beside the
// program, as in a build folder, or "share/kelvarine" beside the folder of programs, as installed.
// Empty when there is neither.
std::string ProgramDataFolder();

// The same for a program in some folder, given with its closing slash.
std::string ProgramDataFolder(const std::string &programFolder);

} // namespace kelvarine
