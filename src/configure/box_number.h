// The number that a text box holds.
#pragma once

#include <cstdint>
#include <string_view>

namespace kelvarine {

// Value of the digits that a text begins with after its blanks, at most nine of them; 0 when there
// are none, as in an empty box or one with pasted letters.
std::int32_t NumberIn(std::string_view text);

} // namespace kelvarine
