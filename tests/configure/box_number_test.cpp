#include "configure/box_number.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

TEST(BoxNumber, DigitsAreTheirNumber)
{
    EXPECT_EQ(NumberIn("81"), 81);
    EXPECT_EQ(NumberIn("9"), 9);
    EXPECT_EQ(NumberIn("07"), 7);
}

TEST(BoxNumber, EmptyTextIsNull)
{
    EXPECT_EQ(NumberIn(""), 0);
}

TEST(BoxNumber, PastedLettersAreNullAndEndANumber)
{
    EXPECT_EQ(NumberIn("ab"), 0);
    EXPECT_EQ(NumberIn("4x"), 4);
    EXPECT_EQ(NumberIn("-5"), 0);
}

TEST(BoxNumber, BlanksInFrontDoNotCount)
{
    EXPECT_EQ(NumberIn(" 7"), 7);
    EXPECT_EQ(NumberIn("   123456789"), 123456789);
    EXPECT_EQ(NumberIn("7 8"), 7);
    EXPECT_EQ(NumberIn("  "), 0);
    EXPECT_EQ(NumberIn(" x7"), 0);
}

TEST(BoxNumber, AnyLengthIsHarmless)
{
    EXPECT_EQ(NumberIn("99999999999999999999"), 999999999);
}

} // namespace
} // namespace kelvarine::testing
