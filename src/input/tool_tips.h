// The words of the toolbar's tips.
#pragma once

#include <cstdint>
#include <string>

namespace kelvarine {

// Tip of a button, 0..11, by the mode of the toolbar and its sign.
std::string ToolTip(std::int32_t index, std::int32_t mode, std::int32_t sign);

} // namespace kelvarine
