// Settings of two programs in one file: what each player changed stays.
#pragma once

#include <string>
#include <string_view>

namespace kelvarine {

// The bytes of a file of settings out of three: those that this program last had in common with the
// file, those that it has now, and those that stand in the file by now. What was changed here is
// taken from here, everything else from the file; what means something only as a whole, a window's
// place or the techniques of the levels, goes as a whole. What stands there counts only when it is
// a whole file of this version.
std::string MergedSettings(std::string_view common, std::string_view now,
                           std::string_view standing);

} // namespace kelvarine
