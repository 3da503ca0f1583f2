// Names of files between the system, to which they are bytes, and the toolkit, to which they are
// text. A byte that belongs to no letter takes the form of half a letter, so that every name comes
// back as it was.
#pragma once

#include <QString>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kelvarine {

// A name or a path as text, and the bytes of such a text.
QString ShownName(std::string_view bytes);
std::string NameBytes(const QString &shown);

struct FileEntry {
    std::string Name;
    QString Shown;
    std::int64_t Size = 0;    // in bytes
    std::int64_t Changed = 0; // in seconds of the system's time
};

// The order in which names are shown: whatever their case.
bool ShownBefore(const FileEntry &a, const FileEntry &b);

enum class Hidden : std::uint8_t { LeftOut, Included };

// The files in a folder, and its folders, as they are shown. What begins with a point is hidden.
// Empty when the folder cannot be read.
std::vector<FileEntry> FilesIn(const std::string &folder, Hidden hidden = Hidden::LeftOut);
std::vector<FileEntry> FoldersIn(const std::string &folder, Hidden hidden = Hidden::LeftOut);

// Why the entries of a folder cannot be read, in the system's words; empty when they can.
std::string WhyUnreadable(const std::string &folder);

} // namespace kelvarine
