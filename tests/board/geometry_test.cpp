#include "board/geometry.h"
#include "board/look.h"
#include "support/outside_double.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

class Geometry : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

constexpr Cell TopLeft{1, 1};

// Layout for cells of 60 by 66 pixels in the default look: a board of 592 by 646.
void LayOut60By66()
{
    LayoutBoard(592 + 60, 646 + 60, 0);
}

TEST_F(Geometry, CellsShareTheRoomThatLinesAndMarginsLeave)
{
    LayoutBoard(600, 650, 0);
    EXPECT_EQ(CellWidth, (600 - 32 - 80) / 9);
    EXPECT_EQ(CellHeight, (650 - 32 - 80) / 9);
    EXPECT_EQ(BoardPlace.Width, 9 * 54 + 32 + 20);
    EXPECT_EQ(BoardPlace.Height, 9 * 59 + 32 + 20);
}

TEST_F(Geometry, ToolbarTakesHeightAndMovesTheBoardDown)
{
    LayoutBoard(600, 650, 40);
    EXPECT_EQ(CellHeight, (650 - 32 - 80 - 40) / 9);
    EXPECT_EQ(BoardPlace.X, (600 - 538) / 2);
    EXPECT_EQ(BoardPlace.Y, (650 - (9 * 55 + 52) + 40) / 2);
}

TEST_F(Geometry, SecondaryLinesCountSixTimes)
{
    SecondaryThickness = 3;
    LayoutBoard(600, 650, 0);
    EXPECT_EQ(CellWidth, (600 - 32 - 18 - 80) / 9);
    EXPECT_EQ(BoardPlace.Width, 9 * CellWidth + 32 + 18 + 20);
}

TEST_F(Geometry, WindowWithoutRoomHasCellsOfOnePixelAndTheSmallestFonts)
{
    for (const int size : {0, 1, 50, 112}) {
        LayoutBoard(size, size, 0);
        EXPECT_EQ(CellWidth, 1);
        EXPECT_EQ(CellHeight, 1);
        EXPECT_EQ(GivenFontSize, 0.1);
        EXPECT_EQ(PairFontSize, 0.1);
        EXPECT_EQ(QuadFontSize, 0.1);
        EXPECT_EQ(NineFontSize, 0.1);
    }
}

TEST_F(Geometry, WindowThatIsOnlyTooLowHasTheSmallestFonts)
{
    LayoutBoard(900, 40, 0);
    EXPECT_EQ(CellWidth, 87);
    EXPECT_EQ(CellHeight, 1);
    EXPECT_EQ(GivenFontSize, 0.1);
}

TEST_F(Geometry, HalvesOfANegativeMeasureGoTowardsZero)
{
    LayoutBoard(2, 1, 0);
    EXPECT_EQ(BoardPlace.Width, 61);
    EXPECT_EQ(BoardPlace.X, -29); // half of -59
    EXPECT_EQ(BoardPlace.Y, -30);
}

TEST_F(Geometry, FontsFollowTheSmallerSideOfTheCell)
{
    LayOut60By66();
    EXPECT_DOUBLE_EQ(GivenFontSize, 40);
    EXPECT_DOUBLE_EQ(PairFontSize, 20);
    EXPECT_DOUBLE_EQ(QuadFontSize, 15);
    EXPECT_DOUBLE_EQ(NineFontSize, 12);
}

TEST_F(Geometry, OriginsCountThePrimaryAndSecondaryLinesCrossed)
{
    SecondaryThickness = 2;
    LayOut60By66();
    EXPECT_EQ(CellX(1), 10 + 8);
    EXPECT_EQ(CellX(2), 10 + CellWidth + 8 + 2);
    EXPECT_EQ(CellX(4), 10 + 3 * CellWidth + 2 * 8 + 2 * 2);
    EXPECT_EQ(CellX(9), 10 + 8 * CellWidth + 3 * 8 + 6 * 2);
    EXPECT_EQ(CellY(7), 10 + 6 * CellHeight + 3 * 8 + 4 * 2);
}

TEST_F(Geometry, CellsTouchInsideABoxWithoutSecondaryLines)
{
    LayOut60By66();
    EXPECT_EQ(CellX(2), CellX(1) + CellWidth);
    EXPECT_EQ(CellX(4), CellX(3) + CellWidth + PrimaryThickness);
}

TEST_F(Geometry, PointBelongsToTheCellWhosePixelsItHits)
{
    LayOut60By66();
    for (const Cell cell : Cells) {
        const int x = CellX(cell.Column);
        const int y = CellY(cell.Row);
        EXPECT_EQ(CellAt(x, y), cell);
        EXPECT_EQ(CellAt(x + CellWidth - 1, y + CellHeight - 1), cell);
    }
}

TEST_F(Geometry, LinesAndBorderBelongToNoCell)
{
    LayOut60By66();
    EXPECT_EQ(CellAt(CellX(1) - 1, CellY(1)), std::nullopt);
    EXPECT_EQ(CellAt(CellX(4) - 1, CellY(1)), std::nullopt);
    EXPECT_EQ(CellAt(CellX(1), CellY(9) + CellHeight), std::nullopt);
    EXPECT_EQ(CellAt(-1, -1), std::nullopt);
}

TEST_F(Geometry, LayoutOfPencilmarksFollowsTheirCountOnlyInTheVariableOne)
{
    EXPECT_EQ(LayoutFor(0), NumberLayout::None);
    EXPECT_EQ(LayoutFor(1), NumberLayout::One);
    EXPECT_EQ(LayoutFor(2), NumberLayout::Nine);
    PencilmarkLayout = 0;
    EXPECT_EQ(LayoutFor(1), NumberLayout::One);
    EXPECT_EQ(LayoutFor(2), NumberLayout::Pair);
    EXPECT_EQ(LayoutFor(3), NumberLayout::Quad);
    EXPECT_EQ(LayoutFor(4), NumberLayout::Quad);
    EXPECT_EQ(LayoutFor(5), NumberLayout::Nine);
}

TEST_F(Geometry, PairStandsAtFiveAndElevenSixteenths)
{
    LayOut60By66();
    const Point origin{CellX(1), CellY(1)};
    EXPECT_EQ(NumberCentre(NumberLayout::Pair, TopLeft, 2, 1),
              (Point{origin.X + 18, origin.Y + 20}));
    EXPECT_EQ(NumberCentre(NumberLayout::Pair, TopLeft, 7, 2),
              (Point{origin.X + 41, origin.Y + 45}));
}

TEST_F(Geometry, QuadStandsInTheQuartersByPlace)
{
    LayOut60By66();
    const Point origin{CellX(1), CellY(1)};
    const auto centre = [](int place) {
        return NumberCentre(NumberLayout::Quad, TopLeft, 9, place);
    };
    EXPECT_EQ(centre(1), (Point{origin.X + 15, origin.Y + 16}));
    EXPECT_EQ(centre(2), (Point{origin.X + 45, origin.Y + 16}));
    EXPECT_EQ(centre(3), (Point{origin.X + 15, origin.Y + 49}));
    EXPECT_EQ(centre(4), (Point{origin.X + 45, origin.Y + 49}));
}

TEST_F(Geometry, NineStandInRowsOfThreeByNumber)
{
    LayOut60By66();
    const Point origin{CellX(1), CellY(1)};
    const auto centre = [](int number) {
        return NumberCentre(NumberLayout::Nine, TopLeft, number, 1);
    };
    EXPECT_EQ(centre(1), (Point{origin.X + 10, origin.Y + 11}));
    EXPECT_EQ(centre(3), (Point{origin.X + 50, origin.Y + 11}));
    EXPECT_EQ(centre(5), (Point{origin.X + 30, origin.Y + 33}));
    EXPECT_EQ(centre(7), (Point{origin.X + 10, origin.Y + 55}));
    EXPECT_EQ(centre(9), (Point{origin.X + 50, origin.Y + 55}));
}

} // namespace
} // namespace kelvarine::testing
