// Paths of files, as bytes: their folders, and where their symbolic links lead.
#pragma once

#include <string>

namespace kelvarine {

// What stands before the last slash of a path, "." where there is none, and what follows it.
std::string FolderOf(const std::string &path);
std::string NameIn(const std::string &path);

// Follows a path that may be a symbolic link, and another, to what it leads to, also where nothing
// stands yet. False, with the reason in errno, when the links go round, and when somebody else has
// put one into a folder that others may write to.
bool FollowLinks(const std::string &path, std::string &target);

} // namespace kelvarine
