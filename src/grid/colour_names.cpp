#include "grid/colour_names.h"

#include <algorithm>
#include <array>

namespace kelvarine {

namespace {

struct NamedColour {
    std::string_view Name;
    Colour Value;
};

constexpr std::array NamedColours{
    NamedColour{"black", Rgb(0, 0, 0)},
    NamedColour{"dark gray", Rgb(80, 80, 80)},
    NamedColour{"gray", Rgb(128, 128, 128)},
    NamedColour{"light gray", Rgb(192, 192, 192)},
    NamedColour{"white", Rgb(255, 255, 255)},
    NamedColour{"dark red", Rgb(128, 0, 0)},
    NamedColour{"red", Rgb(255, 0, 0)},
    NamedColour{"pink", Rgb(255, 170, 190)},
    NamedColour{"brown", Rgb(140, 80, 30)},
    NamedColour{"orange", Rgb(255, 150, 40)},
    NamedColour{"olive", Rgb(128, 128, 0)},
    NamedColour{"yellow", Rgb(255, 255, 0)},
    NamedColour{"light yellow", Rgb(255, 255, 170)},
    NamedColour{"dark green", Rgb(0, 100, 0)},
    NamedColour{"green", Rgb(0, 190, 0)},
    NamedColour{"light green", Rgb(150, 255, 150)},
    NamedColour{"teal", Rgb(0, 128, 128)},
    NamedColour{"cyan", Rgb(0, 255, 255)},
    NamedColour{"navy", Rgb(0, 0, 128)},
    NamedColour{"blue", Rgb(0, 0, 255)},
    NamedColour{"light blue", Rgb(110, 180, 255)},
    NamedColour{"purple", Rgb(128, 0, 128)},
    NamedColour{"violet", Rgb(150, 110, 220)},
    NamedColour{"magenta", Rgb(255, 0, 255)},
};

constexpr int Part(Colour colour, int shift)
{
    return static_cast<int>(colour >> shift & 0xFF);
}

// How far two colours lie apart, with the weights that the eye gives the parts.
constexpr int Distance(Colour a, Colour b)
{
    const int red = Part(a, 16) - Part(b, 16);
    const int green = Part(a, 8) - Part(b, 8);
    const int blue = Part(a, 0) - Part(b, 0);
    return 3 * red * red + 4 * green * green + 2 * blue * blue;
}

} // namespace

std::string_view ColourName(Colour colour)
{
    return std::ranges::min_element(
               NamedColours, {},
               [colour](const NamedColour &named) { return Distance(named.Value, colour); })
        ->Name;
}

std::string ColourInWords(Colour colour)
{
    return std::string(ColourName(colour)) + ", red " + std::to_string(Part(colour, 16)) +
           ", green " + std::to_string(Part(colour, 8)) + ", blue " +
           std::to_string(Part(colour, 0));
}

} // namespace kelvarine
