// Where the program's own files lie.
#pragma once

#include <string>

namespace kelvarine {

// The player's folder for settings, with a closing slash; "config.sdu" is kept here. It need not
// exist yet.
std::string SettingsFolder();

// The player's folder for data, with a closing slash; "stats.sdu" and sounds of the player's own
// are kept here. It need not exist yet.
std::string DataFolder();

} // namespace kelvarine
