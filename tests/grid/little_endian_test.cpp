#include "grid/little_endian.h"

#include <gtest/gtest.h>

#include <limits>

namespace kelvarine::testing {
namespace {

using namespace std::string_view_literals;

TEST(LittleEndian, LowestByteStandsFirst)
{
    EXPECT_EQ(NumberAt<std::uint8_t>("\x81"sv, 0), 0x81U);
    EXPECT_EQ(NumberAt<std::uint16_t>("\x01\x82"sv, 0), 0x8201U);
    EXPECT_EQ(NumberAt<std::uint32_t>("\x01\x02\x03\x84"sv, 0), 0x84030201U);
    EXPECT_EQ(NumberAt<std::uint64_t>("\x01\x02\x03\x04\x05\x06\x07\x88"sv, 0),
              0x8807060504030201U);
}

TEST(LittleEndian, ReadsFromThePlaceOn)
{
    EXPECT_EQ(NumberAt<std::uint16_t>("\xFF\x34\x12\xFF"sv, 1), 0x1234U);
}

TEST(LittleEndian, WritesItsOwnBytesAndNoOthers)
{
    std::string bytes = "0123456789";
    PutNumber(bytes, 1, std::uint32_t{0xFF007F80});
    EXPECT_EQ(bytes, "0\x80\x7F\0\xFF"
                     "56789"sv);
    PutNumber(bytes, 8, std::uint16_t{0x4241});
    EXPECT_EQ(bytes.substr(5), "567AB");
}

template <typename Number>
void ExpectBack(Number number)
{
    std::string bytes(sizeof(Number) + 1, 'x');
    PutNumber(bytes, 1, number);
    EXPECT_EQ(NumberAt<Number>(bytes, 1), number);
    EXPECT_EQ(bytes[0], 'x');
}

TEST(LittleEndian, WhatIsWrittenIsRead)
{
    for (int shift = 0; shift < 64; ++shift) {
        const std::uint64_t number = std::uint64_t{0x8000000000000001} >> shift;
        ExpectBack(number);
        ExpectBack(static_cast<std::uint32_t>(number));
        ExpectBack(static_cast<std::uint16_t>(number));
    }
    ExpectBack(std::numeric_limits<std::uint64_t>::max());
}

} // namespace
} // namespace kelvarine::testing
