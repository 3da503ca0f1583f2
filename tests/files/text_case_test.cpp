#include "files/text_case.h"

#include <gtest/gtest.h>

#include <string>

namespace kelvarine::testing {
namespace {

TEST(TextCase, LettersOfEveryScriptBecomeSmall)
{
    EXPECT_EQ(LowerCase("Game 7.SDK"), "game 7.sdk");
    EXPECT_EQ(LowerCase("ÄÉ ΩЖ ß"), "äé ωж ß");
    EXPECT_EQ(LowerCase(""), "");
}

TEST(TextCase, BytesThatAreNoTextStayAsTheyAre)
{
    EXPECT_EQ(LowerCase("LAT\xe4IN"), "lat\xe4in");
    EXPECT_EQ(LowerCase("\xff\xfe\xc3"), "\xff\xfe\xc3") << "the last one begins a letter";
    EXPECT_EQ(LowerCase(std::string("A\0B", 3)), std::string("a\0b", 3));
}

TEST(TextCase, OuterBlanksGoAndInnerOnesStay)
{
    EXPECT_EQ(WithoutOuterBlanks("  a  b "), "a  b");
    EXPECT_EQ(WithoutOuterBlanks("a"), "a");
    EXPECT_EQ(WithoutOuterBlanks("   "), "");
    EXPECT_EQ(WithoutOuterBlanks(""), "");
}

} // namespace
} // namespace kelvarine::testing
