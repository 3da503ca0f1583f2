// The clipboard's text, in UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace kelvarine {

// What is on the clipboard; empty when that is no text.
std::string ClipboardText();

// Puts a text there.
void SetClipboardText(std::string_view text);

} // namespace kelvarine
