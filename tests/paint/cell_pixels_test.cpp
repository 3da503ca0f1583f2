#include "grid/colour.h"
#include "grid/grid.h"
#include "paint/cell_painter.h"
#include "paint/texture_painter.h"
#include "support/pixels.h"

#include <algorithm>

namespace kelvarine::testing {
namespace {

constexpr Cell Place{5, 5};

class CellPicture : public FlatBoard {};

QImage CellPainted(CellWord word)
{
    WordAt(Place) = word;
    QImage picture = EmptyPicture();
    DrawCell(CanvasOf(picture), Place, FillOf(Place));
    return picture;
}

Colour MiddleColour(CellWord word)
{
    return PixelAt(CellPainted(word), MiddleOf(AreaOf(Place)));
}

TEST_F(CellPicture, FillCoversExactlyTheCell)
{
    const QImage picture = CellPainted(0);
    EXPECT_EQ(DifferenceOf(picture, EmptyPicture(), {0, 0, picture.width(), picture.height()}),
              AreaOf(Place));
    EXPECT_EQ(CountOf(picture, AreaOf(Place), ColourTable[UnknownCellColour]), 60 * 64);
}

TEST_F(CellPicture, EachMarkShowsItsColour)
{
    EXPECT_EQ(MiddleColour(GivenBit | BitTable[1]), ColourTable[GivenCellColour]);
    EXPECT_EQ(MiddleColour(HintCellBit), ColourTable[HintCellColour]);
    EXPECT_EQ(MiddleColour(HintDomainBit), ColourTable[HintDomainColour]);
    EXPECT_EQ(MiddleColour(CellWord{6} << ColourShift), HighlightColours[6]);
    EXPECT_EQ(MiddleColour(CellWord{10} << ColourShift), ColourTable[HintCellColour]);
    EXPECT_EQ(MiddleColour(CellWord{11} << ColourShift), ColourTable[HintDomainColour]);
}

TEST_F(CellPicture, SelectedColourWinsOverCellColour)
{
    EXPECT_EQ(MiddleColour(GivenBit | SelectedBit | CellWord{3} << ColourShift),
              ColourTable[SelectedCellColour]);
}

TEST_F(CellPicture, CellColourTwelveLeavesTheCellUnfilled)
{
    EXPECT_EQ(CellPainted(CellWord{12} << ColourShift), EmptyPicture());
}

TEST_F(CellPicture, TextureBeginsInTheCornerOfTheCellAndEndsWithIt)
{
    UnknownTexture = 4;
    ColourTable[UnknownCellColour] = 0xFFFFFF;
    const QImage picture = CellPainted(0);
    QImage tile(TileSide, TileSide, QImage::Format_RGB32);
    tile.fill(Qt::white);
    TextureRectangle(CanvasOf(tile), {0, 0, TileSide, TileSide}, 4);
    for (int y = 0; y < CellHeight; ++y) {
        for (int x = 0; x < CellWidth; ++x) {
            ASSERT_EQ(PixelAt(picture, CellX(5) + x, CellY(5) + y),
                      PixelAt(tile, x % TileSide, y % TileSide));
        }
    }
    EXPECT_EQ(DifferenceOf(picture, EmptyPicture(), {0, 0, picture.width(), picture.height()}),
              AreaOf(Place));
}

TEST_F(CellPicture, ColouredCellsHaveNoTexture)
{
    UnknownTexture = 4;
    const QImage picture = CellPainted(CellWord{2} << ColourShift);
    EXPECT_EQ(CountOf(picture, AreaOf(Place), HighlightColours[2]), 60 * 64);
}

// Whether the frame of the cell is there, told from its outermost pixels.
bool IsFramed(const QImage &picture, Colour top, Colour bottom)
{
    const int x = CellX(5) + 30;
    return PixelAt(picture, x, CellY(5)) == top && PixelAt(picture, x, CellY(5) + 1) == top &&
           PixelAt(picture, x, CellY(5) + 63) == bottom &&
           PixelAt(picture, x, CellY(5) + 62) == bottom;
}

TEST_F(CellPicture, FramesOfTwoPixelsFollowTheKindOfTheCell)
{
    const CellWord given = GivenBit | BitTable[1];
    EXPECT_FALSE(IsFramed(CellPainted(given), 0xEBEBEB, 0x404040));
    GivenCells3D = True;
    EXPECT_TRUE(IsFramed(CellPainted(given), 0xEBEBEB, 0x404040));
    EXPECT_FALSE(IsFramed(CellPainted(0), 0xEBEBEB, 0x404040));
    UnknownCells3D = True;
    EXPECT_TRUE(IsFramed(CellPainted(0), 0xEBEBEB, 0x404040));
    EXPECT_FALSE(IsFramed(CellPainted(SelectedBit), 0xEBEBEB, 0x404040));
    SelectedCells3D = True;
    EXPECT_TRUE(IsFramed(CellPainted(SelectedBit), 0x404040, 0xFFFFFF));
    EXPECT_TRUE(IsFramed(CellPainted(given | SelectedBit), 0x404040, 0xFFFFFF));
}

TEST_F(CellPicture, FrameStaysInsideTheCell)
{
    UnknownCells3D = True;
    const QImage picture = CellPainted(0);
    EXPECT_EQ(DifferenceOf(picture, EmptyPicture(), {0, 0, picture.width(), picture.height()}),
              AreaOf(Place));
    EXPECT_EQ(PixelAt(picture, CellX(5), CellY(5)), 0xD2D2D2U);
    EXPECT_EQ(PixelAt(picture, CellX(5) + 2, CellY(5) + 2), ColourTable[UnknownCellColour]);
}

void ExpectRingInside(int width, int height)
{
    LayOutCells(width, height);
    const QImage plain = CellPainted(0);
    const QImage ringed = CellPainted(AlertBit);
    const Rectangle all{0, 0, plain.width(), plain.height()};
    const Rectangle ring = DifferenceOf(plain, ringed, all);
    const int longer = std::max(width, height) / 2;
    EXPECT_GE(ring.X, CellX(5));
    EXPECT_GE(ring.Y, CellY(5));
    EXPECT_LE(ring.X + ring.Width, CellX(5) + width);
    EXPECT_LE(ring.Y + ring.Height, CellY(5) + height);
    EXPECT_GE(std::max(ring.Width, ring.Height), 2 * longer - 1);
}

TEST_F(CellPicture, AlertRingHasTheLongerHalfAxisAsRadiusAndStaysInside)
{
    ExpectRingInside(60, 60);
    ExpectRingInside(60, 64);
    ExpectRingInside(91, 40);
    ExpectRingInside(33, 77);
}

// How many pixels of a column the alert ring covers, the smoothed ones in part.
double RingCover(const std::vector<Colour> &column)
{
    double cover = 0;
    for (const Colour colour : column) {
        cover += (colour >> 16) / 255.0; // fill without red below an alert of full red
    }
    return cover;
}

TEST_F(CellPicture, AlertRingHasSmoothEdges)
{
    UnknownCells3D = False;
    ColourTable[UnknownCellColour] = 0x0000FF;
    ColourTable[AlertColour] = 0xFF0000;
    const QImage picture = CellPainted(AlertBit);
    const Rectangle area = AreaOf(Place);
    const int plain = CountOf(picture, area, 0x0000FF) + CountOf(picture, area, 0xFF0000);
    EXPECT_GT(area.Width * area.Height - plain, 100);
}

TEST_F(CellPicture, AlertRingIsTwoPixelsThickInTheAlertColour)
{
    ColourTable[UnknownCellColour] = 0x0000FF;
    ColourTable[AlertColour] = 0xFF0000;
    const QImage picture = CellPainted(AlertBit);
    const int x = CellX(5) + 30;
    EXPECT_NEAR(RingCover(ColumnOf(picture, x, CellY(5), CellY(5) + 31)), 2, 0.1);
    EXPECT_NEAR(RingCover(ColumnOf(picture, x, CellY(5) + 32, CellY(5) + 63)), 2, 0.1);
    EXPECT_EQ(PixelAt(picture, x, CellY(5) + 1), 0xFF0000U);
    EXPECT_EQ(PixelAt(picture, x, CellY(5) + 62), 0xFF0000U);
    EXPECT_EQ(PixelAt(picture, MiddleOf(AreaOf(Place))), 0x0000FFU);
}

TEST_F(CellPicture, AlertRingOfATinyCellDoesNotFail)
{
    for (const int size : {1, 2, 3, 4}) {
        LayOutCells(size, size);
        EXPECT_FALSE(CellPainted(AlertBit).isNull());
    }
}

} // namespace
} // namespace kelvarine::testing
