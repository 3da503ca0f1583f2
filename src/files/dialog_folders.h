// The folders that the file dialog goes through: how one is typed, entered, made and left when it
// has gone, and those that were used last.
#pragma once

#include "grid/cell_word.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kelvarine {

// Folders of files that were chosen while the program runs, the latest first, each once, with a
// closing slash.
inline constexpr std::size_t MostRecentFolders = 5;
extern std::vector<std::string> RecentFolders;

// Whether the lists show what begins with a point.
extern Flag HiddenFilesShown;

// Puts the state above to its defaults.
void SetDialogFolderDefaults();

// Puts the folder of a path in front of the recent ones.
void RememberFolderOf(const std::string &path);

// A typed path whose "~/" stands for the player's home, written out; any other text as it is.
std::string WithHomeWrittenOut(std::string_view typed);

// The folder that a typed text names, with a closing slash: "~", "." and "..", or a path with a
// slash to a folder that is there. One that begins with none of "/" and "~" lies in a folder given.
// Empty for everything else; a bare name is a file's.
std::string TypedFolder(std::string_view typed, const std::string &folder);

// A folder, or the nearest one above it that is there.
std::string NearestFolder(std::string folder);

// The folder above one; the root's is the root.
std::string FolderAbove(const std::string &folder);

// Whether the entries of a folder can be read; why not has been told when they cannot.
bool AgreeToEnter(const std::string &folder);

// Makes a folder in another one and returns it with a closing slash; empty when the name is, or
// when it could not be made, which has been told.
std::string MakeFolder(const std::string &folder, std::string_view name);

} // namespace kelvarine
