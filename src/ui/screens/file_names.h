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

// Entries of a folder in the order in which they are shown. Where it could not be read, or not to
// its end, the system's words say why, and the entries are those that were read before.
struct FolderContents {
    std::vector<FileEntry> Entries;
    std::string Failure;
};

// The files in a folder, and its folders. What begins with a point is hidden.
FolderContents FilesIn(const std::string &folder, Hidden hidden = Hidden::LeftOut);
FolderContents FoldersIn(const std::string &folder, Hidden hidden = Hidden::LeftOut);

} // namespace kelvarine
