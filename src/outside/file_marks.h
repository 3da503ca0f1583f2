// What a file has beside its bytes: owner, group, permissions, access list, extended attributes.
#pragma once

#include <string>
#include <sys/stat.h>

namespace kelvarine {

// Gives an open file the marks of the one that it is to replace, which stands at a path and of
// which the system's own record is at hand. What the system does not let the player give is left
// out, and then nobody gets rights that the old file did not grant. False, with the reason in
// errno, when not even the permissions can be set.
bool TakeMarks(int file, const std::string &oldPath, const struct stat &old);

} // namespace kelvarine
