// Names of files between the system, to which they are bytes, and the toolkit, to which they are
// text. A byte that belongs to no letter takes the form of half a letter, so that every name comes
// back as it was.
#pragma once

#include <QString>

#include <string>
#include <string_view>
#include <vector>

namespace kelvarine {

// A name or a path as text, and the bytes of such a text.
QString ShownName(std::string_view bytes);
std::string NameBytes(const QString &shown);

// The names of the files in a folder that are not hidden, in the order in which they are shown:
// whatever their case.
std::vector<std::string> FilesIn(const std::string &folder);

} // namespace kelvarine
