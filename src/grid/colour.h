// Colours, as numbers.
#pragma once

#include <array>
#include <cstdint>

namespace kelvarine {

// A colour as 0xRRGGBB.
using Colour = std::uint32_t;

// The colour of three parts, each 0..255.
constexpr Colour Rgb(std::uint32_t red, std::uint32_t green, std::uint32_t blue)
{
    return red << 16 | green << 8 | blue;
}

// The sixteen colours of the classic console palette, 0 black to 15 white.
inline constexpr std::array<Colour, 16> StandardColours{
    0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080, 0x808000, 0xC0C0C0,
    0x808080, 0x0000FF, 0x00FF00, 0x00FFFF, 0xFF0000, 0xFF00FF, 0xFFFF00, 0xFFFFFF};

} // namespace kelvarine
