// Words in files made of records of ten, put there and read by the tests' own arithmetic.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace kelvarine::testing {

// Puts a word, lowest byte first, at an element 0..9 of a record, the first of which is 1.
inline void PutWord(std::string &file, std::size_t record, std::size_t element, std::uint32_t word)
{
    const std::size_t place = 40 * (record - 1) + 4 * element;
    file.at(place) = static_cast<char>(word % 256);
    file.at(place + 1) = static_cast<char>(word / 256 % 256);
    file.at(place + 2) = static_cast<char>(word / 65536 % 256);
    file.at(place + 3) = static_cast<char>(word / 16777216);
}

// The word at an element of a record.
inline std::uint32_t WordOf(std::string_view file, std::size_t record, std::size_t element)
{
    const auto byte = [&](std::size_t i) {
        return static_cast<unsigned char>(file.at(40 * (record - 1) + 4 * element + i));
    };
    return byte(0) + 256U * byte(1) + 65536U * byte(2) + 16777216U * byte(3);
}

} // namespace kelvarine::testing
