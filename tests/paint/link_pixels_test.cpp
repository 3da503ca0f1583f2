#include "board/links.h"
#include "game/win_display.h"
#include "grid/grid.h"
#include "support/pixels.h"

namespace kelvarine::testing {
namespace {

class LinkPicture : public FlatBoard {
protected:
    void SetUp() override
    {
        FlatBoard::SetUp();
        ColourTable[AlertColour] = 0xFF00FF;
        for (const Cell cell : {Cell{2, 5}, Cell{7, 5}}) {
            WordAt(cell) = BitTable[3] | BitTable[4];
        }
        StrongLinkMode = 1;
    }

    // Row 5 between the two cells.
    static Rectangle Between()
    {
        const int left = CellX(3);
        return {left, CellY(5), CellX(7) - left, CellHeight};
    }

    static int LinkPixels()
    {
        return CountOf(PaintedBoard(), Between(), 0xFF00FF);
    }
};

TEST_F(LinkPicture, LinkIsTwoPixelsThick)
{
    NumberFilter = BitTable[3];
    EXPECT_EQ(LinkPixels(), 2 * Between().Width);
}

TEST_F(LinkPicture, NothingWithAllNumbersInView)
{
    EXPECT_EQ(LinkPixels(), 0);
}

TEST_F(LinkPicture, NothingDuringTheWinDisplay)
{
    StrongLinkMode = 2;
    ChainColumns = {2, 2, 7};
    ChainRows = {3, 5, 5};
    EXPECT_GT(LinkPixels(), 0);
    WinDisplayRunning = True;
    WinStage = 7; // cells without a fill
    EXPECT_EQ(LinkPixels(), 0);
}

TEST_F(LinkPicture, NumberStandsOnTheDisc)
{
    ChainColumns = {2, 2, 7};
    ChainRows = {3, 5, 5};
    ColourTable[UnknownNumberColour] = 0x00FF00;
    const QImage picture = PaintedBoard();
    const Rectangle cell = AreaOf(2, 5);
    EXPECT_GT(CountOf(picture, cell, 0xFF00FF), 100);
    const Point place = NumberPoint({2, 5}, 3);
    EXPECT_GT(CountOf(picture, {place.X - 8, place.Y - 8, 16, 16}, 0x00FF00), 0);
}

} // namespace
} // namespace kelvarine::testing
