// Files as the program uses them: read whole and replaced whole, so that no crash and no full disk
// ever leaves half of one.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace kelvarine {

// What is longer than this is read as far as here. No file of the program comes near it.
inline constexpr std::size_t LongestFile = std::size_t{64} << 20U;

// Reads a regular file whole into bytes, at most longest of them. False when there is no such file,
// when it is a directory, pipe or device, or when it cannot be read; bytes is empty then and error
// holds the system's own words.
bool ReadWholeFile(const std::string &path, std::string &bytes, std::string &error,
                   std::size_t longest = LongestFile);

// The program's own folders are made where they are missing; the player's are not.
enum class MissingFolders : std::uint8_t { Made, Refused };

// Replaces a file, or makes it, with the folders above it if wanted: written beside it, flushed to
// the disk, renamed. A symbolic link keeps pointing where it points; the permissions of a file that
// was there are kept. What is write-protected, a directory, a pipe or a device is not replaced.
// False when any of that fails; the old file is then whole, nothing is left beside it, and error
// holds the system's own words.
bool ReplaceWholeFile(const std::string &path, std::string_view bytes, std::string &error,
                      MissingFolders missing = MissingFolders::Made);

// True when something by that name exists.
bool FileExists(const std::string &path);

} // namespace kelvarine
