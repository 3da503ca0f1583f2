// Decimal digits in texts.
#pragma once

#include <cstdint>
#include <string>

namespace kelvarine {

constexpr bool IsDigit(char mark)
{
    return mark >= '0' && mark <= '9';
}

// A number of up to two digits as two, such as "07"; of a longer one the last two.
inline std::string TwoDigits(std::int64_t number)
{
    const std::string digits = "0" + std::to_string(number);
    return digits.substr(digits.size() - 2);
}

} // namespace kelvarine
