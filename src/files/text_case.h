// Texts as the player means them: without the blanks round them, and in small letters where
// capitals make no difference.
#pragma once

#include <string>
#include <string_view>

namespace kelvarine {

// The part of a text between its leading and its trailing blanks. Other white space stays.
std::string_view WithoutOuterBlanks(std::string_view text);

// A UTF-8 text with every capital of every script as its small letter. Bytes that are no UTF-8 stay
// as they are.
std::string LowerCase(std::string_view text);

} // namespace kelvarine
