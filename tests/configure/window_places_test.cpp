#include "configure/window_places.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

constexpr WindowPlace Screen{0, 0, 1920, 1080};

TEST(WindowPlaces, OpensAtTheRightWhereThereIsRoom)
{
    EXPECT_EQ(PlaceBeside({100, 50, 760, 830}, 458, 600, Screen), (WindowPlace{860, 50, 458, 600}));
}

TEST(WindowPlaces, OpensAtTheLeftWhereTheRightHasNoRoom)
{
    EXPECT_EQ(PlaceBeside({1000, 50, 760, 830}, 458, 600, Screen),
              (WindowPlace{542, 50, 458, 600}));
}

TEST(WindowPlaces, WithoutRoomOnEitherSideItEndsWithTheScreen)
{
    EXPECT_EQ(PlaceBeside({200, 50, 1600, 830}, 458, 600, Screen),
              (WindowPlace{1462, 50, 458, 600}));
}

TEST(WindowPlaces, NeverOffTheScreen)
{
    EXPECT_EQ(PlaceBeside({100, 900, 760, 830}, 458, 600, Screen),
              (WindowPlace{860, 480, 458, 600}));
    EXPECT_EQ(BroughtOnScreen({-300, -20, 458, 600}, Screen), (WindowPlace{0, 0, 458, 600}));
    EXPECT_EQ(BroughtOnScreen({5000, 5000, 458, 600}, Screen), (WindowPlace{1462, 480, 458, 600}));
}

TEST(WindowPlaces, TooLargeAWindowBecomesAsLargeAsTheScreen)
{
    EXPECT_EQ(BroughtOnScreen({50, 50, 4000, 3000}, Screen), Screen);
}

TEST(WindowPlaces, PlaceInReachStays)
{
    EXPECT_EQ(BroughtOnScreen({300, 200, 458, 600}, Screen), (WindowPlace{300, 200, 458, 600}));
}

TEST(WindowPlaces, SecondScreenHasItsOwnOrigin)
{
    constexpr WindowPlace second{1920, 100, 1280, 1024};
    EXPECT_EQ(BroughtOnScreen({0, 0, 458, 600}, second), (WindowPlace{1920, 100, 458, 600}));
}

} // namespace
} // namespace kelvarine::testing
