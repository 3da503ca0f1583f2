// What a page of the help holds beside its words: the position that a player can copy, and the two
// forms of its pictures.
#pragma once

#include <QString>

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

inline constexpr int HelpPictureRatio = 2; // pictures hold so many pixels for each logical one

// Name of a picture's form for dark windows, by the name of the one for light windows.
inline QString DarkFormOf(QString picture)
{
    return picture.replace(QStringLiteral(".png"), QStringLiteral("-dark.png"));
}

} // namespace kelvarine
