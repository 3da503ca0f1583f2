// The sound files that are there: the player's own in the folder of data, and those that came with
// the program. The extension of a file tells its use.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kelvarine {

// The folders with sounds in the order of search, each with a closing slash: a file of the
// player's own stands before one of the same name that came with the program.
std::vector<std::string> SoundFolders();

// Fills AnnouncerFiles, AlertFiles and WinFiles from some folders, each sorted by name, and puts
// the choice among each to its default. Called once at the start, before the configuration is read.
void FindSoundFiles(const std::vector<std::string> &folders = SoundFolders());

// The path of a sound file by its bare name, or an empty text when there is none.
std::string SoundPath(std::string_view file,
                      const std::vector<std::string> &folders = SoundFolders());

} // namespace kelvarine
