// Colours in words, for those who have them read to them.
#pragma once

#include "grid/colour.h"

#include <string>
#include <string_view>

namespace kelvarine {

// The everyday name of the colour that looks most like this one, such as "dark green".
std::string_view ColourName(Colour colour);

// The name and the value of a colour: "orange, red 255, green 150, blue 40".
std::string ColourInWords(Colour colour);

} // namespace kelvarine
