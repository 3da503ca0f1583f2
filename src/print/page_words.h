// A printed page in words, for those who do not see its picture.
#pragma once

#include <string>
#include <string_view>

namespace kelvarine {

// What the settings of printing bring onto a page: the game on the board with its size and place,
// in inches with a decimal sign, or how a batch of new games is laid out.
std::string PageInWords(std::string_view sign);

} // namespace kelvarine
