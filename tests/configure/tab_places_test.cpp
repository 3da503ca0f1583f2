#include "configure/tab_places.h"

#include <gtest/gtest.h>

#include <string>

namespace kelvarine::testing {
namespace {

constexpr int Width = 105;
constexpr std::int32_t None = -1;

std::int32_t At(double x, double y, std::int32_t current, int width = Width)
{
    return TabAt(x, y, current, width).value_or(None);
}

TEST(TabPlaces, FrontRowHoldsTheCurrentFour)
{
    for (int column = 0; column < 4; ++column) {
        const int x = 60 + column * Width;
        EXPECT_EQ(At(x, 40, 1), column);
        EXPECT_EQ(At(x + 8, 20, 1), column + 4);
        EXPECT_EQ(At(x, 40, 6), column + 4);
        EXPECT_EQ(At(x + 8, 20, 6), column);
    }
}

TEST(TabPlaces, OnlyRowsFromTenUpToFiftyCount)
{
    EXPECT_EQ(At(60, 9.9, 0), None);
    EXPECT_EQ(At(60, 10, 0), 4);
    EXPECT_EQ(At(60, 49.9, 0), 0);
    EXPECT_EQ(At(60, 50, 0), None);
}

TEST(TabPlaces, BetweenTwentyNineAndThirtyTheTwoRowsDisagree)
{
    EXPECT_EQ(At(240, 29.5, 5), 6) << "above 29, so of the second four";
    EXPECT_EQ(At(240, 29.5, 1), 6) << "below 30, so of the rear row";
    EXPECT_EQ(At(240, 29, 5), 2);
    EXPECT_EQ(At(240, 30, 5), 6);
    EXPECT_EQ(At(240, 30, 1), 2);
}

TEST(TabPlaces, NothingLeftOfTheFirstTabAfterTheReduction)
{
    EXPECT_EQ(At(10, 40, 0), None);
    EXPECT_EQ(At(11, 40, 0), 0);
    EXPECT_EQ(At(18, 20, 0), None);
    EXPECT_EQ(At(19, 20, 0), 4);
}

TEST(TabPlaces, PixelBetweenTwoTabsBelongsToNone)
{
    EXPECT_EQ(At(Width + 9, 40, 0), 0);
    EXPECT_EQ(At(Width + 10, 40, 0), None);
    EXPECT_EQ(At(Width + 11, 40, 0), 1);
}

TEST(TabPlaces, NothingRightOfTheLastTab)
{
    EXPECT_EQ(At(4 * Width + 9, 40, 0), 3);
    EXPECT_EQ(At(4 * Width + 10, 40, 0), None);
    EXPECT_EQ(At(4 * Width + 17, 20, 0), 7);
    EXPECT_EQ(At(4 * Width + 18, 20, 0), None);
}

TEST(TabPlaces, TabsGrowWithAWideWindow)
{
    EXPECT_EQ(TabWidthFor(100), 105);
    EXPECT_EQ(TabWidthFor(458), 105);
    EXPECT_EQ(TabWidthFor(459), 114);
    EXPECT_EQ(TabWidthFor(700), 175);
    EXPECT_EQ(At(11 + 175 * 3, 40, 0, 175), 3);
}

TEST(TabPlaces, WithoutATabTheSecondFourStandInFront)
{
    for (const std::int32_t current : {8, 9}) {
        EXPECT_EQ(At(60, 40, current), 4);
        EXPECT_EQ(At(60, 20, current), 0);
    }
}

TEST(TabPlaces, LeftEdgeIsWhereTheHitsBegin)
{
    for (std::int32_t current = 0; current < 8; ++current) {
        for (std::int32_t tab = 0; tab < 8; ++tab) {
            const int y = IsInFront(tab, current) ? 40 : 20;
            EXPECT_EQ(At(TabLeft(tab, current, Width), y, current), tab);
            EXPECT_NE(At(TabLeft(tab, current, Width) - 1, y, current), tab);
        }
    }
}

} // namespace
} // namespace kelvarine::testing
