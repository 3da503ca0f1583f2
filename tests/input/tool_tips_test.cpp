#include "input/tool_tips.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

struct Tips {
    std::int32_t Mode;
    std::int32_t Sign; // 0 plain, 1 minus, 2 plus
    std::string_view One;
    std::string_view Seven;
    std::string_view All;
    std::string_view Sign11 = "Toggle buttons to set, add, or remove";
};

constexpr std::array<Tips, 21> Expected{{
    {0, 0, "Set selected cells to #1", "Set selected cells to #7",
     "Enter all numbers in selected cells"},
    {0, 1, "Remove #1 from selected cells", "Remove #7 from selected cells",
     "Remove all numbers from selected cells"},
    {0, 2, "Add #1 to selected cells", "Add #7 to selected cells",
     "Add all numbers to selected cells"},
    {1, 0, "Highlight selected cells with this color", "Highlight selected cells with this color",
     "Clear all highlights from selected cells", "Freeze displayed alert highlights"},
    {1, 1, "Highlight selected cells with this color", "Highlight selected cells with this color",
     "Clear all highlights from selected cells", "Freeze displayed alert highlights"},
    {1, 2, "Highlight selected cells with this color", "Highlight selected cells with this color",
     "Clear all highlights from selected cells", "Freeze displayed alert highlights"},
    {10, 0, "Select cells containing single 1's", "Select cells containing single 7's",
     "Select all cells containing singles"},
    {10, 1, "De-select cells containing single 1's", "De-select cells containing single 7's",
     "De-select all cells containing singles"},
    {10, 2, "Add cells containing single 1's to selection",
     "Add cells containing single 7's to selection",
     "Add all cells containing singles to selection"},
    {11, 0, "Select 1's + domains", "Select 7's + domains", "Select all singles + domains", "Inop"},
    {11, 1, "Select 1's + domains", "Select 7's + domains", "Select all singles + domains", "Inop"},
    {11, 2, "Select 1's + domains", "Select 7's + domains", "Select all singles + domains", "Inop"},
    {12, 0, "Select cells containing 1 digit", "Select cells containing 7 digits",
     "Select empty cells"},
    {12, 1, "De-select cells containing 1 digit", "De-select cells containing 7 digits",
     "De-select empty cells"},
    {12, 2, "Add cells containing 1 digit to selection",
     "Add cells containing 7 digits to selection", "Add empty cells to selection"},
    {13, 0, "Select cells containing 1's", "Select cells containing 7's",
     "Select all cells containing #'s"},
    {13, 1, "De-select cells containing 1's", "De-select cells containing 7's",
     "De-select all cells containing #'s"},
    {13, 2, "Add cells containing 1's to selection", "Add cells containing 7's to selection",
     "Add all cells containing #'s to selection"},
    {20, 0, "View isolated 1's", "View isolated 7's", "View all #'s"},
    {20, 1, "Remove 1's from view", "Remove 7's from view", "View all #'s"},
    {20, 2, "Add 1's to view", "Add 7's to view", "View all #'s"},
}};

// The tip of 7 with another number in it.
std::string ForNumber(std::string_view tipOfSeven, int number)
{
    std::string tip(tipOfSeven);
    if (const std::size_t place = tip.find('7'); place != std::string::npos) {
        tip.replace(place, 1, std::to_string(number));
    }
    return tip;
}

TEST(ToolTips, SayWhatEachButtonDoesByModeAndSign)
{
    for (const Tips &tips : Expected) {
        EXPECT_EQ(ToolTip(1, tips.Mode, tips.Sign), tips.One);
        for (int number = 2; number <= 9; ++number) {
            EXPECT_EQ(ToolTip(number, tips.Mode, tips.Sign), ForNumber(tips.Seven, number));
        }
        EXPECT_EQ(ToolTip(10, tips.Mode, tips.Sign), tips.All);
        EXPECT_EQ(ToolTip(11, tips.Mode, tips.Sign), tips.Sign11);
        EXPECT_EQ(ToolTip(0, tips.Mode, tips.Sign), "View all, select all, & clear all highlights");
    }
}

TEST(ToolTips, AbsurdModesAndSignsAreHarmless)
{
    EXPECT_EQ(ToolTip(5, 7, 0), "");
    EXPECT_EQ(ToolTip(5, -1, 0), "");
    EXPECT_EQ(ToolTip(5, 0, 99), "Add #5 to selected cells");
    EXPECT_EQ(ToolTip(5, 0, -99), "Set selected cells to #5");
}

} // namespace
} // namespace kelvarine::testing
