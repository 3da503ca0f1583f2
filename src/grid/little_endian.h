// Numbers in bytes as every file of the program holds them: lowest byte first.
#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace kelvarine {

// The number that begins at a place; all of its bytes must be there.
template <std::unsigned_integral Number>
constexpr Number NumberAt(std::string_view bytes, std::size_t place)
{
    std::uint64_t number = 0;
    for (std::size_t k = sizeof(Number); k-- > 0;) {
        number = number << 8 | static_cast<unsigned char>(bytes[place + k]);
    }
    return static_cast<Number>(number);
}

// Writes a number over the bytes from a place on, all of which must be there.
template <std::unsigned_integral Number>
constexpr void PutNumber(std::string &bytes, std::size_t place, Number number)
{
    for (std::size_t k = 0; k < sizeof(Number); ++k) {
        bytes[place + k] = static_cast<char>(std::uint64_t{number} >> 8 * k & 0xFF);
    }
}

} // namespace kelvarine
