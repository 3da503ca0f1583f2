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

// How far bytes have to come: into the system's hands, where no end of the program harms them, or
// onto the disk, where no power cut does either. A file in the system's hands is whole until the
// machine stops, and may be anything after that.
enum class Reach : std::uint8_t { System, Disk };

// Replaces a file, or makes it, with the folders above it if wanted: written in its folder, flushed
// to the disk where it is to come there, renamed. Symbolic links keep pointing where they point,
// also where nothing stands yet, and the new file takes over owner, permissions, access list and
// attributes as far as the system lets it. What is write-protected, a directory, a pipe or a device
// is not replaced. False when any of that fails; error holds the system's own words then, and the
// old file is whole and nothing left beside it, save that where the disk does not take the change
// of names the new one stands whole.
bool ReplaceWholeFile(const std::string &path, std::string_view bytes, std::string &error,
                      MissingFolders missing = MissingFolders::Made, Reach reach = Reach::Disk);

// True when a file may be written, and yet a new one would not do in its place: it has other names,
// something is mounted on it, or the folder lets the player put none there. Where it can be neither
// way, or not be looked at, error holds the system's words.
bool NeedsWritingInPlace(const std::string &path, std::string &error);

// Writes the bytes over a file that is there, flushes them and cuts it to their length. False, with
// the system's words in error, when that fails; it may hold half of them then.
bool WriteInPlace(const std::string &path, std::string_view bytes, std::string &error);

// Writes bytes over others in the middle of a file, without waiting for the disk. False when that
// fails. A few bytes that lie within a sector of the disk change at once or not at all.
bool OverwritePart(const std::string &path, std::size_t place, std::string_view bytes);

// True when something by that name exists.
bool FileExists(const std::string &path);

} // namespace kelvarine
