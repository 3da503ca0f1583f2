// Banners: words in boxes over a picture that is not to be read for a while.
#pragma once

#include <QPainter>

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace kelvarine {

inline constexpr std::string_view SearchingText = " Searching ";

// How many games were screened so far: " # of games screened: 5 ".
std::string GamesScreenedText(std::int32_t count);

// Draws a raised text at so many points in the middle of a picture of a size, and lines at another
// size under it, each in a box of its own.
void PaintBanner(QPainter &painter, QSize picture, double points, std::string_view text,
                 double linePoints = 1, std::span<const std::string> lines = {});

} // namespace kelvarine
