#include "board/fill.h"
#include "game/win_display.h"
#include "grid/colour.h"
#include "grid/grid.h"
#include "support/outside_double.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace kelvarine::testing {
namespace {

constexpr Cell TopLeft{1, 1};

class Fill : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        for (std::size_t k = 1; k <= 10; ++k) {
            HighlightColours[k] = static_cast<Colour>(0x100000 + k);
        }
        GivenTexture = 3;
        UnknownTexture = 7;
    }
};

class WinFill : public Fill {
protected:
    void SetUp() override
    {
        Fill::SetUp();
        WinDisplayRunning = True;
        WinColoursSet = True;
        for (std::size_t k = 1; k <= 9; ++k) {
            WinColours[k] = static_cast<Colour>(k);
        }
    }
};

CellFill FillOfWord(CellWord word)
{
    Grid[1][1] = word;
    return FillOf(TopLeft);
}

CellWord Coloured(CellWord value)
{
    return value << ColourShift;
}

// The entries of WinColours that the cells show, as nine rows of digits.
std::string Pattern()
{
    std::string text;
    for (int row = 1; row <= 9; ++row) {
        for (int column = 1; column <= 9; ++column) {
            text += std::to_string(FillOf(MakeCell(column, row)).Paint.value_or(0));
        }
        text += '\n';
    }
    return text;
}

TEST_F(Fill, SelectionWinsOverHintMarksAndColours)
{
    const CellFill fill = FillOfWord(SelectedBit | HintCellBit | HintDomainBit | Coloured(3));
    EXPECT_EQ(fill.Paint, ColourTable[SelectedCellColour]);
    EXPECT_EQ(fill.Texture, NoTexture);
}

TEST_F(Fill, HintCellWinsOverHintDomainAndColours)
{
    EXPECT_EQ(FillOfWord(HintCellBit | HintDomainBit | Coloured(3)).Paint,
              ColourTable[HintCellColour]);
    EXPECT_EQ(FillOfWord(HintDomainBit | Coloured(3)).Paint, ColourTable[HintDomainColour]);
}

TEST_F(Fill, PlainCellsHaveTheirColourAndTexture)
{
    EXPECT_EQ(FillOfWord(0).Paint, ColourTable[UnknownCellColour]);
    EXPECT_EQ(FillOfWord(0).Texture, 7);
    EXPECT_EQ(FillOfWord(GivenBit | BitTable[5]).Paint, ColourTable[GivenCellColour]);
    EXPECT_EQ(FillOfWord(GivenBit | BitTable[5]).Texture, 3);
}

TEST_F(Fill, ColoursOneToNineAreThePlayers)
{
    for (CellWord value = 1; value <= 9; ++value) {
        EXPECT_EQ(FillOfWord(GivenBit | Coloured(value)).Paint, HighlightColours[value]);
        EXPECT_EQ(FillOfWord(Coloured(value)).Texture, NoTexture);
    }
}

TEST_F(Fill, ColoursTenAndElevenAreThoseOfLastingHintMarks)
{
    EXPECT_EQ(FillOfWord(Coloured(10)).Paint, ColourTable[HintCellColour]);
    EXPECT_EQ(FillOfWord(Coloured(11)).Paint, ColourTable[HintDomainColour]);
}

TEST_F(Fill, CellColourTwelveAndAboveLeavesTheCellUnfilled)
{
    for (CellWord value = 12; value <= 15; ++value) {
        EXPECT_EQ(FillOfWord(Coloured(value)).Paint, std::nullopt);
        EXPECT_EQ(FillOfWord(Coloured(value)).Texture, NoTexture);
    }
}

TEST_F(WinFill, HasNoTextureAndHeedsNoMark)
{
    WinStage = 2;
    const CellFill fill = FillOfWord(SelectedBit | Coloured(3));
    EXPECT_EQ(fill.Paint, 1U);
    EXPECT_EQ(fill.Texture, NoTexture);
}

TEST_F(WinFill, StageZeroTakesRandomStandardColoursEachTime)
{
    WinStage = 0;
    std::set<Colour> seen;
    for (int k = 0; k < 2000; ++k) {
        seen.insert(FillOf(TopLeft).Paint.value_or(Colour{0xABCDEF}));
    }
    const std::set<Colour> expected(StandardColours.begin() + 1, StandardColours.begin() + 15);
    EXPECT_EQ(seen, expected);
}

TEST_F(WinFill, AnyStageIsRandomUntilTheColoursAreSet)
{
    WinColoursSet = False;
    for (const std::int32_t stage : {1, 4, 7}) {
        WinStage = stage;
        const Colour colour = FillOf(TopLeft).Paint.value_or(Colour{0xABCDEF});
        EXPECT_NE(std::find(StandardColours.begin() + 1, StandardColours.end() - 1, colour),
                  StandardColours.end() - 1);
    }
}

TEST_F(WinFill, StagesOneAndThreeAreConcentricSquares)
{
    for (const std::int32_t stage : {1, 3}) {
        WinStage = stage;
        EXPECT_EQ(Pattern(), "111111111\n"
                             "122222221\n"
                             "123333321\n"
                             "123444321\n"
                             "123454321\n"
                             "123444321\n"
                             "123333321\n"
                             "122222221\n"
                             "111111111\n");
    }
}

TEST_F(WinFill, StageTwoIsVerticalStripes)
{
    WinStage = 2;
    std::string expected;
    for (int row = 1; row <= 9; ++row) {
        expected += "123456789\n";
    }
    EXPECT_EQ(Pattern(), expected);
}

TEST_F(WinFill, StageFourIsHorizontalStripes)
{
    WinStage = 4;
    EXPECT_EQ(Pattern().substr(0, 20), "111111111\n222222222\n");
    EXPECT_EQ(Pattern().substr(80), "999999999\n");
}

TEST_F(WinFill, StageFiveIsACheckerboard)
{
    WinStage = 5;
    EXPECT_EQ(Pattern().substr(0, 30), "121212121\n212121212\n121212121\n");
}

TEST_F(WinFill, StageSixHasAColourForEachProductOfBandAndStack)
{
    WinStage = 6;
    EXPECT_EQ(Pattern(), "111222333\n111222333\n111222333\n"
                         "222444666\n222444666\n222444666\n"
                         "333666999\n333666999\n333666999\n");
}

TEST_F(WinFill, StageSevenAndAbsurdStagesFillNothing)
{
    for (const std::int32_t stage : {7, 8, -1, 2147483647}) {
        WinStage = stage;
        EXPECT_EQ(FillOf(TopLeft).Paint, std::nullopt);
    }
}

} // namespace
} // namespace kelvarine::testing
