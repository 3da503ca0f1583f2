// Files of settings, written down word by word by the tests themselves.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace kelvarine::testing {

// The words of a file: eleven records of ten.
using FileWords = std::array<std::array<std::int32_t, 10>, 11>;

constexpr std::int32_t FileColour(std::int32_t red, std::int32_t green, std::int32_t blue)
{
    return red + 256 * green + 65536 * blue;
}

inline constexpr std::int32_t FileWhite = FileColour(255, 255, 255);

// The file of the defaults, where each list of sounds has files.
inline constexpr FileWords DefaultWords{{
    {1, 8, 0, 10, 30, -1, -1, -1, 1, 0},
    {1, 0, 1, 0, 0, 0, 0, 0, 0, 0},
    {FileColour(32, 96, 80), FileColour(66, 120, 107), FileColour(54, 162, 253), FileWhite,
     FileWhite, 0, 0, FileWhite, FileColour(204, 204, 0), FileColour(136, 136, 0)},
    {FileColour(255, 0, 0), 0, 5, 0, 0, 2, 0, 17, 40, 0},
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0},
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0},
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0},
    {0, 0, -1, -1, 0, 500, 500, 0, 0, -1},
    {-1, 1, -1, -1, 0, 3, 0, 0, 0, 0},
    {0x6, 0x228, 0xCD0, 0xFF100, -0x100000, 0, 81, 81, 81, 0},
    {1, 1, 1, 0, 32000, 32000, 32000, 32000, 0, 0},
}};

// The bytes of a file, lowest byte of each word first.
inline std::string BytesOf(const FileWords &words)
{
    std::string bytes;
    for (const auto &record : words) {
        for (const std::int32_t word : record) {
            const auto bits = static_cast<std::uint32_t>(word);
            for (const unsigned shift : {0U, 8U, 16U, 24U}) {
                bytes += static_cast<char>(bits >> shift & 0xFFU);
            }
        }
    }
    return bytes;
}

// The defaults with one element, of record 1..11, replaced.
inline std::string DefaultsWith(std::size_t record, std::size_t element, std::int32_t value)
{
    FileWords words = DefaultWords;
    words.at(record - 1).at(element) = value;
    return BytesOf(words);
}

} // namespace kelvarine::testing
