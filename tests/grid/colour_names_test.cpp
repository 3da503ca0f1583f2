#include "grid/colour_names.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

TEST(ColourNames, PureColoursBearTheirNames)
{
    EXPECT_EQ(ColourName(Rgb(0, 0, 0)), "black");
    EXPECT_EQ(ColourName(Rgb(255, 255, 255)), "white");
    EXPECT_EQ(ColourName(Rgb(255, 0, 0)), "red");
    EXPECT_EQ(ColourName(Rgb(255, 255, 0)), "yellow");
    EXPECT_EQ(ColourName(Rgb(0, 0, 255)), "blue");
}

TEST(ColourNames, ColourBetweenIsCalledByTheNearest)
{
    EXPECT_EQ(ColourName(Rgb(250, 20, 10)), "red");
    EXPECT_EQ(ColourName(Rgb(10, 90, 20)), "dark green");
    EXPECT_EQ(ColourName(Rgb(200, 190, 195)), "light gray");
    EXPECT_EQ(ColourName(Rgb(255, 173, 90)), "orange");
}

TEST(ColourNames, WordsOfAColourAreItsNameAndItsParts)
{
    EXPECT_EQ(ColourInWords(Rgb(255, 150, 40)), "orange, red 255, green 150, blue 40");
    EXPECT_EQ(ColourInWords(Rgb(0, 7, 128)), "navy, red 0, green 7, blue 128");
}

} // namespace
} // namespace kelvarine::testing
