#include "grid/digits.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

TEST(Digits, TenMarksAreDigits)
{
    std::string digits;
    for (int code = -128; code < 128; ++code) {
        if (IsDigit(static_cast<char>(code))) {
            digits += static_cast<char>(code);
        }
    }
    EXPECT_EQ(digits, "0123456789");
}

TEST(Digits, TwoStandForANumberBelowAHundred)
{
    EXPECT_EQ(TwoDigits(0), "00");
    EXPECT_EQ(TwoDigits(7), "07");
    EXPECT_EQ(TwoDigits(10), "10");
    EXPECT_EQ(TwoDigits(59), "59");
    EXPECT_EQ(TwoDigits(99), "99");
    EXPECT_EQ(TwoDigits(105), "05");
}

} // namespace
} // namespace kelvarine::testing
