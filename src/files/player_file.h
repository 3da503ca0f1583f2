// Files that stand where the player wants them.
#pragma once

#include <string>
#include <string_view>

namespace kelvarine {

// Replaces a file by new bytes, in one step that leaves the old file or the new one. Where only
// writing in place will do the player is asked, and what stood there is kept in the folder of
// recovered games until that is done. False when the player would rather not, or when it failed;
// of a failure the words are left, and where the old bytes are kept.
bool WritePlayerFile(const std::string &path, std::string_view bytes, std::string &failure);

// The same, and a failure is told.
bool SavePlayerFile(const std::string &path, std::string_view bytes);

} // namespace kelvarine
