#include "board/margin.h"
#include "configure/look_settings.h"
#include "grid/colour.h"
#include "support/outside_double.h"
#include "support/play.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

class LookSettings : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

TEST_F(LookSettings, Captions)
{
    const std::array<std::string_view, 12> captions{
        " Given cells",          " Unknown cells",         " Selected cells",
        " Given numbers",        " Unknown numbers",       " Primary grid lines",
        " Secondary grid lines", " Pencilmark grid lines", " Hi-lites 1",
        " Hi-lites 2",           " Alerts && links",       " Exterior margins"};
    EXPECT_EQ(ColourCaptions, captions);
}

TEST_F(LookSettings, ColourIsSetAndTheBoardPainted)
{
    for (std::size_t k = 0; k < 11; ++k) {
        ForgetRecord();
        SetColour(k, 0x010203);
        EXPECT_EQ(ColourTable[k], 0x010203U);
        EXPECT_EQ(Acts(), Texts{"board: "});
    }
}

TEST_F(LookSettings, WhiteMarginMakesItsTextBlackAtOnce)
{
    ASSERT_EQ(CoordinateTextColour, StandardColours[15]);
    SetColour(MarginColour, 0xFFFFFF);
    EXPECT_EQ(CoordinateTextColour, StandardColours[0]);
    EXPECT_EQ(Acts(), (Texts{"refresh: ", "board: "}));
}

TEST_F(LookSettings, FourColoursHaveATexture)
{
    EXPECT_EQ(TextureOf(0), &GivenTexture);
    EXPECT_EQ(TextureOf(1), &UnknownTexture);
    EXPECT_EQ(TextureOf(5), &GridTexture);
    EXPECT_EQ(TextureOf(6), &GridTexture);
    for (const std::size_t k : {2U, 3U, 4U, 7U, 8U, 9U, 10U, 11U}) {
        EXPECT_EQ(TextureOf(k), nullptr) << k;
    }
}

TEST_F(LookSettings, TextureGoesToItsColourAlone)
{
    SetTexture(0, 4);
    SetTexture(1, 5);
    SetTexture(5, 6);
    EXPECT_EQ(GivenTexture, 4);
    EXPECT_EQ(UnknownTexture, 5);
    EXPECT_EQ(GridTexture, 6);
    EXPECT_EQ(Acts(), (Texts{"board: ", "board: ", "board: "}));
}

TEST_F(LookSettings, BothKindsOfGridLinesShareATexture)
{
    SetTexture(5, 3);
    SetTexture(6, 7);
    EXPECT_EQ(GridTexture, 7);
}

TEST_F(LookSettings, TextureOfSelectedCellsDoesNothing)
{
    SetTexture(2, 9);
    EXPECT_EQ(GivenTexture, 0);
    EXPECT_EQ(UnknownTexture, 0);
    EXPECT_EQ(GridTexture, 0);
    EXPECT_EQ(Acts(), Texts());
}

TEST_F(LookSettings, ThicknessLaysTheWindowOut)
{
    SetThickness(PrimaryThickness, 0);
    EXPECT_EQ(PrimaryThickness, 0);
    EXPECT_EQ(Acts(), Texts{"resize: "});
}

TEST_F(LookSettings, FlagsAndLayoutPaintTheBoard)
{
    SetLookFlag(GivenCells3D, false);
    EXPECT_EQ(GivenCells3D, False);
    SetLookFlag(GivenCells3D, true);
    EXPECT_EQ(GivenCells3D, True);
    SetPencilmarkLayout(0);
    EXPECT_EQ(PencilmarkLayout, 0);
    EXPECT_EQ(Acts(), (Texts{"board: ", "board: ", "board: "}));
}

} // namespace
} // namespace kelvarine::testing
