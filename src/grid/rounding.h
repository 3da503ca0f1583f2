// Rounding as the whole program means it.
#pragma once

#include <cmath>

namespace kelvarine {

// To the nearest whole number, ties to the even one.
inline double RoundHalfEven(double value)
{
    return std::nearbyint(value); // the default rounding mode is ties-to-even
}

} // namespace kelvarine
