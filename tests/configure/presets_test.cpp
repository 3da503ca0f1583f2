#include "board/geometry.h"
#include "board/look.h"
#include "board/margin.h"
#include "configure/presets.h"
#include "grid/colour.h"
#include "support/outside_double.h"
#include "support/play.h"

#include <gtest/gtest.h>

#include <sstream>

namespace kelvarine::testing {
namespace {

struct Look {
    std::int32_t Number;
    std::string_view Colours; // red,green,blue of the twelve
    std::string_view Rest;    // textures; given, unknown, selected 3D; lines; lines 3D; border
};

constexpr std::array Looks{
    Look{0,
         "120,117,250 255,255,255 254,134,196 246,244,247 0,0,0 0,0,0 93,93,93 0,103,187 3,251,4 "
         "0,187,70 255,0,0 137,199,255",
         "4 0 0; T T T; 8 1; F F; 10"},
    Look{1,
         "255,255,255 255,255,255 205,205,205 0,0,0 110,110,110 0,0,0 0,0,0 136,136,136 0,254,0 "
         "135,252,135 255,0,0 137,199,255",
         "0 0 0; F F F; 4 1; F F; 10"},
    Look{2,
         "32,96,80 66,120,107 54,162,253 255,255,255 255,255,255 0,0,0 0,0,0 255,255,255 204,204,0 "
         "136,136,0 255,0,0 0,0,0",
         "0 0 0; T T T; 8 0; F F; 10"},
    Look{3,
         "43,38,42 43,38,42 3,138,255 254,254,0 246,246,246 255,255,119 255,255,119 110,110,110 "
         "255,127,0 199,101,4 255,0,0 0,0,0",
         "0 0 0; F F F; 16 6; T T; 0"},
    Look{4,
         "185,185,187 185,185,187 119,255,255 2,0,211 0,0,0 255,85,85 0,0,0 110,110,110 255,255,0 "
         "170,170,0 255,0,0 3,110,204",
         "9 9 8; T T T; 16 0; T T; 0"},
    Look{5,
         "119,0,0 255,179,102 255,68,68 255,255,17 0,0,0 119,60,0 153,77,0 0,0,0 68,68,255 "
         "85,179,255 255,255,255 187,187,187",
         "7 7 7; F F F; 20 6; T T; 0"},
    Look{6,
         "17,148,255 85,179,255 255,255,255 0,0,0 0,0,0 0,0,0 0,0,0 110,110,110 255,255,0 "
         "170,170,0 255,0,0 131,131,131",
         "0 0 0; T T T; 14 4; F F; 8"},
    Look{7,
         "192,192,192 192,192,192 119,255,255 0,0,0 0,0,238 192,192,192 192,192,192 110,110,110 "
         "255,119,255 190,102,255 255,0,0 76,0,134",
         "0 0 1; T T T; 12 4; F F; 12"},
    Look{8,
         "0,0,0 255,0,255 255,0,134 119,0,63 51,51,51 0,0,255 0,0,255 0,0,255 0,187,70 0,255,0 "
         "255,0,0 0,0,0",
         "0 9 5; T T T; 20 10; T T; 0"},
    Look{9,
         "192,192,192 187,255,213 119,255,255 0,0,0 0,0,0 187,187,187 0,0,0 110,110,110 0,187,70 "
         "0,255,0 255,0,0 192,192,192",
         "0 9 5; T T T; 20 10; T T; 0"},
    Look{10,
         "0,0,0 0,0,0 170,170,170 255,255,0 255,255,255 0,140,255 187,187,187 187,187,187 "
         "0,121,221 0,255,255 255,0,0 255,255,255",
         "0 0 7; F F F; 10 1; T F; 0"},
    Look{100,
         "238,0,0 246,246,246 119,255,255 0,0,0 0,0,0 0,121,221 0,0,0 110,110,110 0,187,70 0,255,0 "
         "255,0,0 192,192,192",
         "9 9 5; T T T; 20 0; T T; 0"},
};

std::string ColoursNow()
{
    std::ostringstream text;
    for (const Colour colour : ColourTable) {
        text << (text.tellp() > 0 ? " " : "") << (colour >> 16) << ',' << (colour >> 8 & 0xFF)
             << ',' << (colour & 0xFF);
    }
    return text.str();
}

char Sign(Flag flag)
{
    return flag == True ? 'T' : flag == False ? 'F' : '?';
}

std::string RestNow()
{
    std::ostringstream text;
    text << GivenTexture << ' ' << UnknownTexture << ' ' << GridTexture << "; "
         << Sign(GivenCells3D) << ' ' << Sign(UnknownCells3D) << ' ' << Sign(SelectedCells3D)
         << "; " << PrimaryThickness << ' ' << SecondaryThickness << "; " << Sign(PrimaryGrid3D)
         << ' ' << Sign(SecondaryGrid3D) << "; " << BorderThickness;
    return text.str();
}

class Presets : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

TEST_F(Presets, EachLoadsItsWholeLook)
{
    for (const Look &look : Looks) {
        EXPECT_TRUE(LoadPreset(look.Number));
        EXPECT_EQ(ColoursNow(), look.Colours) << look.Number;
        EXPECT_EQ(RestNow(), look.Rest) << look.Number;
    }
    EXPECT_EQ(Acts(), std::vector<std::string>()) << "loading shows nothing";
}

TEST_F(Presets, NoneTouchesTheMarginOrThePencilmarks)
{
    for (const Look &look : Looks) {
        MarginThickness = 77;
        PencilmarkLayout = 0;
        PencilmarkLines = True;
        HighlightColours[3] = 0x123456;
        StrongLinkMode = 2;
        CoordinatesVisible = False;
        LoadPreset(look.Number);
        EXPECT_EQ(MarginThickness, 77);
        EXPECT_EQ(PencilmarkLayout, 0);
        EXPECT_EQ(PencilmarkLines, True);
        EXPECT_EQ(HighlightColours[3], 0x123456U);
        EXPECT_EQ(StrongLinkMode, 2);
        EXPECT_EQ(CoordinatesVisible, False);
    }
}

TEST_F(Presets, NumberTwoIsTheLookOfAStart)
{
    const std::string colours = ColoursNow();
    const std::string rest = RestNow();
    LoadPreset(5);
    ASSERT_NE(ColoursNow(), colours);
    LoadPreset(2);
    EXPECT_EQ(ColoursNow(), colours);
    EXPECT_EQ(RestNow(), rest);
}

TEST_F(Presets, UnknownNumberDoesNothing)
{
    LoadPreset(5);
    const std::string colours = ColoursNow();
    for (const std::int32_t number : {-1, 11, 99, 101}) {
        EXPECT_FALSE(LoadPreset(number));
        ApplyPreset(number);
    }
    EXPECT_EQ(ColoursNow(), colours);
    EXPECT_EQ(Acts(), std::vector<std::string>());
}

TEST_F(Presets, ApplyingLaysTheWindowOutAndPicksTheMarginText)
{
    ApplyPreset(1); // a light margin
    EXPECT_EQ(CoordinateTextColour, StandardColours[0]);
    EXPECT_EQ(Acts(), std::vector<std::string>{"resize: "});
    ApplyPreset(3); // a black one
    EXPECT_EQ(CoordinateTextColour, StandardColours[15]);
}

} // namespace
} // namespace kelvarine::testing
