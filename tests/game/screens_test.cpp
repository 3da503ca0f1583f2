#include "game/screens.h"

#include <gtest/gtest.h>

#include <limits>

namespace kelvarine::testing {
namespace {

constexpr std::int32_t Wide = 1920;
constexpr std::int32_t High = 1080;
constexpr std::int32_t Back = 13; // whole pixels of 200 twips

WindowPlace OnScreen(const WindowPlace &place)
{
    return ReachablePlace(place, Wide, High);
}

TEST(Screens, WindowOnTheScreenStaysWhereItIs)
{
    for (const WindowPlace &place :
         {WindowPlace{0, 0, 700, 800}, WindowPlace{1900, 1070, 700, 800},
          WindowPlace{-600, -700, 700, 800}, WindowPlace{200, 100, 4000, 3000}}) {
        EXPECT_EQ(OnScreen(place), place);
    }
}

TEST(Screens, WindowOnASecondScreenThatIsGoneComesBack)
{
    EXPECT_EQ(OnScreen({2500, 100, 700, 800}), (WindowPlace{Back, 100, 700, 800}));
    EXPECT_EQ(OnScreen({-1900, 100, 700, 800}), (WindowPlace{Back, 100, 700, 800}));
    EXPECT_EQ(OnScreen({100, 1500, 700, 800}), (WindowPlace{100, Back, 700, 800}));
    EXPECT_EQ(OnScreen({100, -1000, 700, 800}), (WindowPlace{100, Back, 700, 800}));
    EXPECT_EQ(OnScreen({9000, 9000, 700, 800}), (WindowPlace{Back, Back, 700, 800}));
}

// Ten twips are less than a pixel, so that one pixel on the screen is in reach.
TEST(Screens, OnePixelOnTheScreenIsInReach)
{
    EXPECT_EQ(OnScreen({1919, 1079, 700, 800}), (WindowPlace{1919, 1079, 700, 800}));
    EXPECT_EQ(OnScreen({1920, 1080, 700, 800}), (WindowPlace{Back, Back, 700, 800}));
    EXPECT_EQ(OnScreen({-699, -799, 700, 800}), (WindowPlace{-699, -799, 700, 800}));
    EXPECT_EQ(OnScreen({-700, -800, 700, 800}), (WindowPlace{Back, Back, 700, 800}));
}

TEST(Screens, NoPlaceIsTooFarAway)
{
    constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(OnScreen({least, most, 700, 800}), (WindowPlace{Back, Back, 700, 800}));
    EXPECT_EQ(OnScreen({most, least, most, most}), (WindowPlace{Back, Back, most, most}));
    EXPECT_EQ(ReachablePlace({0, 0, 10, 10}, most, most), (WindowPlace{0, 0, 10, 10}));
}

} // namespace
} // namespace kelvarine::testing
