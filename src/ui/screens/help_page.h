// What a page of the help holds beside its words: the position that a player can copy.
#pragma once

#include <string>
#include <string_view>

namespace kelvarine {

// The position of a page: the text of its first <pre>. Empty when it has none.
inline std::string PositionOf(std::string_view page)
{
    constexpr std::string_view opening = "<pre>";
    const std::size_t start = page.find(opening);
    const std::size_t end = page.find("</pre>");
    if (start == std::string_view::npos || end == std::string_view::npos || end < start) {
        return {};
    }
    return std::string(page.substr(start + opening.size(), end - start - opening.size()));
}

} // namespace kelvarine
