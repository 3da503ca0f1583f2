#include "grid/colour.h"
#include "grid/grid.h"
#include "paint/grid_painter.h"
#include "paint/texture_painter.h"
#include "support/pixels.h"

namespace kelvarine::testing {
namespace {

constexpr Colour LineColour = 0x803010;
constexpr Colour DarkLineColour = 0x3A0000;
constexpr Colour InnerColour = 0x20A0C0;

using Row = std::vector<Colour>;
using Step = void (*)(const Canvas &);

// The board of cells of 60 by 64 with lines of colours of their own.
class GridLines : public FlatBoard {
protected:
    void SetUp() override
    {
        FlatBoard::SetUp();
        ColourTable[PrimaryLineColour] = LineColour;
        ColourTable[SecondaryLineColour] = InnerColour;
    }
};

QImage After(Step step)
{
    QImage picture = EmptyPicture();
    step(CanvasOf(picture));
    return picture;
}

Rectangle Whole()
{
    return {0, 0, BoardPlace.Width, BoardPlace.Height};
}

int RightOfCells()
{
    return CellX(9) + CellWidth;
}

int BottomOfCells()
{
    return CellY(9) + CellHeight;
}

TEST_F(GridLines, PrimaryBarsLieAboveAndLeftOfEachBox)
{
    const QImage picture = After(DrawPrimaryGrid);
    const Row bar(8, LineColour);
    for (const int line : {1, 4, 7}) {
        EXPECT_EQ(ColumnOf(picture, CellX(2), CellY(line) - 8, CellY(line) - 1), bar);
        EXPECT_EQ(RowOf(picture, CellY(2), CellX(line) - 8, CellX(line) - 1), bar);
        EXPECT_EQ(PixelAt(picture, CellX(line), CellY(2)), Untouched);
        EXPECT_EQ(PixelAt(picture, CellX(2), CellY(line)), Untouched);
    }
    EXPECT_EQ(PixelAt(picture, CellX(1) - 9, CellY(2)), Untouched);
    EXPECT_EQ(PixelAt(picture, CellX(2), CellY(1) - 9), Untouched);
}

TEST_F(GridLines, PrimaryBarsReachPastTheLastBoxByTheirThickness)
{
    const QImage picture = After(DrawPrimaryGrid);
    EXPECT_EQ(PixelAt(picture, RightOfCells() + 7, CellY(1) - 1), LineColour);
    EXPECT_EQ(PixelAt(picture, RightOfCells() + 8, CellY(1) - 1), Untouched);
    EXPECT_EQ(PixelAt(picture, CellX(1) - 1, BottomOfCells() + 7), LineColour);
    EXPECT_EQ(PixelAt(picture, CellX(1) - 1, BottomOfCells() + 8), Untouched);
    EXPECT_EQ(PixelAt(picture, RightOfCells(), CellY(2)), Untouched);
}

TEST_F(GridLines, ClosingBarsLieRightAndBelow)
{
    const QImage picture = After(CloseGrid);
    const Row bar(8, LineColour);
    const int right = RightOfCells();
    const int bottom = BottomOfCells();
    EXPECT_EQ(RowOf(picture, CellY(2), right, right + 7), bar);
    EXPECT_EQ(ColumnOf(picture, CellX(2), bottom, bottom + 7), bar);
    EXPECT_EQ(PixelAt(picture, right - 1, CellY(2)), Untouched);
    EXPECT_EQ(PixelAt(picture, CellX(2), bottom - 1), Untouched);
    EXPECT_EQ(PixelAt(picture, right + 8, CellY(2)), Untouched);
    EXPECT_EQ(PixelAt(picture, CellX(2), bottom + 8), Untouched);
    // They begin at the first cell, not in the corner of the bars before it.
    EXPECT_EQ(PixelAt(picture, right, CellY(1) - 1), Untouched);
    EXPECT_EQ(PixelAt(picture, right, CellY(1)), LineColour);
    EXPECT_EQ(PixelAt(picture, CellX(1) - 1, bottom), Untouched);
    EXPECT_EQ(PixelAt(picture, CellX(1), bottom), LineColour);
}

TEST_F(GridLines, PrimaryThicknessZeroDrawsNoLines)
{
    PrimaryThickness = 0;
    LayOutCells(60, 64);
    for (const Flag threeD : {False, True}) {
        PrimaryGrid3D = threeD;
        EXPECT_EQ(After(DrawPrimaryGrid), EmptyPicture());
        EXPECT_EQ(After(CloseGrid), EmptyPicture());
    }
}

TEST_F(GridLines, PrimaryThicknessTwoIn3DIsAFrameOfThicknessOne)
{
    PrimaryThickness = 2;
    PrimaryGrid3D = True;
    LayOutCells(60, 64);
    const QImage boxes = After(DrawPrimaryGrid);
    const int y = CellY(2);
    EXPECT_EQ(RowOf(boxes, y, CellX(1) - 2, CellX(1)), (Row{Untouched, DarkLineColour, Untouched}));
    EXPECT_EQ(RowOf(boxes, y, CellX(4) - 3, CellX(4)),
              (Row{Untouched, LineColour, DarkLineColour, Untouched}));
    const QImage outside = After(CloseGrid);
    EXPECT_EQ(RowOf(outside, y, CellX(1) - 3, CellX(1)),
              (Row{Untouched, LineColour, Untouched, Untouched}));
    EXPECT_EQ(RowOf(outside, y, RightOfCells(), RightOfCells() + 2),
              (Row{Untouched, DarkLineColour, Untouched}));
}

TEST_F(GridLines, PrimaryGridIn3DFillsTheWholeLine)
{
    PrimaryGrid3D = True;
    QImage picture = EmptyPicture();
    DrawPrimaryGrid(CanvasOf(picture));
    CloseGrid(CanvasOf(picture));
    const int y = CellY(2);
    EXPECT_EQ(RowOf(picture, y, CellX(4) - 8, CellX(4) - 1),
              (Row{LineColour, LineColour, LineColour, LineColour, DarkLineColour, DarkLineColour,
                   DarkLineColour, DarkLineColour}));
    EXPECT_EQ(RowOf(picture, y, BorderThickness, CellX(1) - 1),
              (Row{LineColour, LineColour, LineColour, LineColour, DarkLineColour, DarkLineColour,
                   DarkLineColour, DarkLineColour}));
    EXPECT_EQ(RowOf(picture, y, RightOfCells(), RightOfCells() + 7),
              (Row{LineColour, LineColour, LineColour, LineColour, DarkLineColour, DarkLineColour,
                   DarkLineColour, DarkLineColour}));
}

TEST_F(GridLines, SecondaryThicknessZeroHasNoLinesAndCellsTouch)
{
    for (const Flag threeD : {False, True}) {
        SecondaryGrid3D = threeD;
        EXPECT_EQ(After(DrawSecondaryGrid), EmptyPicture());
    }
    const QImage board = PaintedBoard();
    EXPECT_EQ(CountOf(board, {CellX(1), CellY(1), 3 * CellWidth, 3 * CellHeight},
                      ColourTable[UnknownCellColour]),
              9 * CellWidth * CellHeight);
}

TEST_F(GridLines, FlatSecondaryBarsRunThroughTheBox)
{
    SecondaryThickness = 3;
    LayOutCells(60, 64);
    const QImage picture = After(DrawSecondaryGrid);
    const int boxWidth = 3 * CellWidth + 6;
    const int boxHeight = 3 * CellHeight + 6;
    for (const int line : {2, 3, 5, 6, 8, 9}) {
        EXPECT_EQ(ColumnOf(picture, CellX(1), CellY(line) - 4, CellY(line)),
                  (Row{Untouched, InnerColour, InnerColour, InnerColour, Untouched}));
        EXPECT_EQ(RowOf(picture, CellY(1), CellX(line) - 4, CellX(line)),
                  (Row{Untouched, InnerColour, InnerColour, InnerColour, Untouched}));
        EXPECT_EQ(RowOf(picture, CellY(line) - 1, CellX(4), CellX(4) + boxWidth - 1),
                  Row(static_cast<std::size_t>(boxWidth), InnerColour));
        EXPECT_EQ(ColumnOf(picture, CellX(line) - 3, CellY(7), CellY(7) + boxHeight - 1),
                  Row(static_cast<std::size_t>(boxHeight), InnerColour));
    }
    EXPECT_EQ(PixelAt(picture, CellX(4) - 1, CellY(2) - 1), Untouched);
    EXPECT_EQ(PixelAt(picture, CellX(4) + boxWidth, CellY(2) - 1), Untouched);
}

TEST_F(GridLines, SecondaryLinesIn3DAreLightThenDark)
{
    SecondaryThickness = 4;
    SecondaryGrid3D = True;
    LayOutCells(60, 64);
    const QImage picture = After(DrawSecondaryGrid);
    constexpr Colour dark = 0x005A7A;
    const Row line{Untouched, InnerColour, InnerColour, dark, dark, Untouched};
    for (const int place : {2, 3, 5, 9}) {
        EXPECT_EQ(RowOf(picture, CellY(5) + 9, CellX(place) - 5, CellX(place)), line);
        EXPECT_EQ(ColumnOf(picture, CellX(5) + 9, CellY(place) - 5, CellY(place)), line);
    }
    for (const int place : {1, 4, 7}) {
        EXPECT_EQ(PixelAt(picture, CellX(place) - 2, CellY(5) + 9), Untouched);
        EXPECT_EQ(PixelAt(picture, CellX(5) + 9, CellY(place) - 2), Untouched);
    }
}

TEST_F(GridLines, BackgroundTextureCoversEverythingInsideTheBorderFromItsCorner)
{
    GridTexture = 12;
    QImage picture = EmptyPicture();
    picture.fill(Qt::white);
    TextureBackground(CanvasOf(picture));
    const int width = BoardPlace.Width;
    const int height = BoardPlace.Height;
    EXPECT_EQ(CountOf(picture, {0, 0, width, BorderThickness}, 0xFFFFFF), width * BorderThickness);
    EXPECT_EQ(CountOf(picture, {0, 0, BorderThickness, height}, 0xFFFFFF),
              height * BorderThickness);
    const auto tiled = [&](int x, int y) {
        return PixelAt(picture, BorderThickness + x, BorderThickness + y);
    };
    for (const int x : {0, 13, 55, width - BorderThickness - 1}) {
        for (const int y : {0, 27, 55, height - BorderThickness - 1}) {
            EXPECT_EQ(tiled(x, y), tiled(x % TileSide, y % TileSide));
        }
    }
    EXPECT_LT(CountOf(picture, {BorderThickness, BorderThickness, TileSide, TileSide}, 0xFFFFFF),
              TileSide * TileSide / 2);
}

TEST_F(GridLines, TextureIsCombinedByABitwiseAnd)
{
    GridTexture = 4;
    QImage white = EmptyPicture();
    white.fill(Qt::white);
    TextureBackground(CanvasOf(white));
    const QImage textured = After(TextureBackground);
    for (int x = BorderThickness; x < BorderThickness + TileSide; ++x) {
        EXPECT_EQ(PixelAt(textured, x, 40), Untouched & PixelAt(white, x, 40));
    }
}

TEST_F(GridLines, TileZeroAndNumbersThatAreNoTileLeaveAllAsItIs)
{
    for (const std::int32_t texture : {0, -1, 13, 2147483647}) {
        GridTexture = texture;
        EXPECT_EQ(After(TextureBackground), EmptyPicture());
    }
}

TEST_F(GridLines, EveryTileIsAGreyPatternOfItsOwn)
{
    std::vector<QImage> tiles;
    for (std::int32_t texture = 1; texture < TileCount; ++texture) {
        QImage tile(TileSide, TileSide, QImage::Format_RGB32);
        tile.fill(Qt::white);
        TextureRectangle(CanvasOf(tile), {0, 0, TileSide, TileSide}, texture);
        int sum = 0;
        for (int y = 0; y < TileSide; ++y) {
            for (const Colour colour : RowOf(tile, y, 0, TileSide - 1)) {
                EXPECT_EQ(colour, (colour & 0xFF) * 0x010101);
                sum += static_cast<int>(colour & 0xFF);
            }
        }
        EXPECT_GE(sum, 128 * TileSide * TileSide);
        EXPECT_LE(sum, 230 * TileSide * TileSide);
        for (const QImage &other : tiles) {
            EXPECT_NE(tile, other);
        }
        tiles.push_back(tile);
    }
}

TEST_F(GridLines, ExteriorBorderIsARaisedFrameUpToTheEdge)
{
    const QImage picture = After(DrawExteriorBorder);
    const int middleX = BoardPlace.Width / 2;
    const int middleY = BoardPlace.Height / 2;
    EXPECT_EQ(ColumnOf(picture, middleX, 0, 10), [] {
        Row expected(10, 0xEBEBEB);
        expected.push_back(Untouched);
        return expected;
    }());
    EXPECT_EQ(PixelAt(picture, 0, middleY), 0xD2D2D2U);
    EXPECT_EQ(PixelAt(picture, BoardPlace.Width - 1, middleY), 0x5A5A5AU);
    EXPECT_EQ(PixelAt(picture, middleX, BoardPlace.Height - 1), 0x404040U);
    EXPECT_EQ(PixelAt(picture, BoardPlace.Width - 11, middleY), Untouched);
    EXPECT_EQ(PixelAt(picture, 0, 0), 0xD2D2D2U);
    EXPECT_EQ(PixelAt(picture, BoardPlace.Width - 1, 0), 0xEBEBEBU);
    EXPECT_EQ(PixelAt(picture, BoardPlace.Width - 1, BoardPlace.Height - 1), 0x5A5A5AU);
    EXPECT_EQ(PixelAt(picture, 0, BoardPlace.Height - 1), 0xD2D2D2U);
}

TEST_F(GridLines, BorderThicknessZeroDrawsNoBorder)
{
    BorderThickness = 0;
    LayOutCells(60, 64);
    EXPECT_EQ(After(DrawExteriorBorder), EmptyPicture());
    EXPECT_EQ(CountOf(PaintedBoard(), Whole(), 0xEBEBEB), 0);
}

} // namespace
} // namespace kelvarine::testing
