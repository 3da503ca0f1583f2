#include "grid/colour.h"
#include "paint/frame_painter.h"
#include "support/pixels.h"

namespace kelvarine::testing {
namespace {

constexpr Colour Grey(Colour level)
{
    return level << 16 | level << 8 | level;
}

constexpr Colour None = Untouched;

QImage SmallPicture()
{
    QImage picture(20, 20, QImage::Format_RGB32);
    picture.fill(Untouched);
    return picture;
}

// Frames are drawn round the rectangle from (5, 6), 4 wide and 3 high.
QImage Framed(int style, int thickness)
{
    QImage picture = SmallPicture();
    DrawFrame3D(CanvasOf(picture), style, thickness, 5, 4, 6, 3);
    return picture;
}

QImage BoxFramed(bool raised, int thickness)
{
    QImage picture = SmallPicture();
    DrawBoxFrame3D(CanvasOf(picture), raised, thickness, 5, 4, 6, 3);
    return picture;
}

using Row = std::vector<Colour>;

class Frame : public FlatBoard {};

TEST_F(Frame, OfOnePixelLiesRoundTheRectangleWithTheLaterLegAtEachCorner)
{
    const QImage picture = Framed(Raised, 1);
    const Colour b = Grey(64);
    const Colour r = Grey(90);
    const Colour t = Grey(235);
    const Colour l = Grey(210);
    EXPECT_EQ(RowOf(picture, 4, 3, 10), Row(8, None));
    EXPECT_EQ(RowOf(picture, 5, 3, 10), (Row{None, l, t, t, t, t, t, None}));
    EXPECT_EQ(RowOf(picture, 6, 3, 10), (Row{None, l, None, None, None, None, r, None}));
    EXPECT_EQ(RowOf(picture, 8, 3, 10), (Row{None, l, None, None, None, None, r, None}));
    EXPECT_EQ(RowOf(picture, 9, 3, 10), (Row{None, l, b, b, b, b, r, None}));
    EXPECT_EQ(RowOf(picture, 10, 3, 10), Row(8, None));
}

TEST_F(Frame, GrowsOutwardFromTheRectangle)
{
    const QImage picture = Framed(Sunken, 3);
    const Colour b = Grey(255);
    const Colour r = Grey(218);
    const Colour t = Grey(64);
    const Colour l = Grey(90);
    EXPECT_EQ(RowOf(picture, 3, 1, 12), (Row{None, l, t, t, t, t, t, t, t, t, t, None}));
    EXPECT_EQ(RowOf(picture, 4, 1, 12), (Row{None, l, l, t, t, t, t, t, t, t, r, None}));
    EXPECT_EQ(RowOf(picture, 7, 1, 12),
              (Row{None, l, l, l, None, None, None, None, r, r, r, None}));
    EXPECT_EQ(RowOf(picture, 11, 1, 12), (Row{None, l, b, b, b, b, b, b, b, b, r, None}));
    EXPECT_EQ(RowOf(picture, 12, 1, 12), Row(12, None));
}

TEST_F(Frame, EachStyleHasItsFourShades)
{
    const std::vector<Row> shades{{Grey(255), Grey(218), Grey(64), Grey(90)},
                                  {Grey(64), Grey(90), Grey(235), Grey(210)},
                                  {Grey(64), Grey(90), Grey(190), Grey(170)}};
    for (const int style : {Sunken, Raised, RaisedDimmer}) {
        const QImage picture = Framed(style, 1);
        EXPECT_EQ((Row{PixelAt(picture, 6, 9), PixelAt(picture, 9, 7), PixelAt(picture, 6, 5),
                       PixelAt(picture, 4, 7)}),
                  shades[static_cast<std::size_t>(style)]);
    }
}

TEST_F(Frame, BelowThicknessOneOrOfNoStyleIsNothing)
{
    EXPECT_EQ(Framed(Raised, 0), SmallPicture());
    EXPECT_EQ(Framed(Raised, -5), SmallPicture());
    EXPECT_EQ(Framed(3, 2), SmallPicture());
    EXPECT_EQ(Framed(-1, 2), SmallPicture());
}

TEST_F(Frame, IsCutAtTheEdgesOfThePicture)
{
    QImage picture = SmallPicture();
    DrawFrame3D(CanvasOf(picture), Raised, 30, 5, 4, 6, 3);
    EXPECT_EQ(PixelAt(picture, 10, 0), Grey(235));
    EXPECT_EQ(PixelAt(picture, 19, 8), Grey(90));
    EXPECT_EQ(PixelAt(picture, 6, 7), None);
}

TEST_F(Frame, OfABoxIsDarkAtTheTopAndTheLeftUnlessRaised)
{
    ColourTable[PrimaryLineColour] = 0x50C828;
    const Colour light = 0x50C828;
    const Colour dark = 0x0A8200; // 70 less of each, not below 0
    const QImage sunken = BoxFramed(false, 1);
    EXPECT_EQ(RowOf(sunken, 5, 4, 9), Row(6, dark));
    EXPECT_EQ(RowOf(sunken, 9, 4, 9), (Row{dark, light, light, light, light, light}));
    EXPECT_EQ(RowOf(sunken, 7, 4, 9), (Row{dark, None, None, None, None, light}));
    const QImage raised = BoxFramed(true, 1);
    EXPECT_EQ(RowOf(raised, 5, 4, 9), Row(6, light));
    EXPECT_EQ(RowOf(raised, 9, 4, 9), (Row{light, dark, dark, dark, dark, dark}));
    EXPECT_EQ(RowOf(raised, 7, 4, 9), (Row{light, None, None, None, None, dark}));
}

class SecondaryLine : public FlatBoard {
protected:
    void SetUp() override
    {
        FlatBoard::SetUp();
        ColourTable[SecondaryLineColour] = 0x808080;
        CellWidth = 4;
        CellHeight = 3;
    }

    static constexpr Colour Light = 0x808080;
    static constexpr Colour Dark = 0x3A3A3A;
};

TEST_F(SecondaryLine, HorizontalOfFourHasTwoLightAndTwoDarkRows)
{
    SecondaryThickness = 4;
    QImage picture = SmallPicture();
    DrawHorizontalSecondaryLine3D(CanvasOf(picture), 2, 8, 10);
    const Colour l = Light;
    const Colour d = Dark;
    EXPECT_EQ(RowOf(picture, 5, 6, 14), Row(9, None));
    EXPECT_EQ(RowOf(picture, 6, 6, 14), (Row{None, None, l, l, l, l, None, None, None}));
    EXPECT_EQ(RowOf(picture, 7, 6, 14), (Row{None, l, l, l, l, l, l, None, None}));
    EXPECT_EQ(RowOf(picture, 8, 6, 14), (Row{None, d, d, d, d, d, d, d, None}));
    EXPECT_EQ(RowOf(picture, 9, 6, 14), (Row{None, None, d, d, d, d, d, None, None}));
    EXPECT_EQ(RowOf(picture, 10, 6, 14), Row(9, None));
}

TEST_F(SecondaryLine, VerticalOfFourHasTwoLightAndTwoDarkColumns)
{
    SecondaryThickness = 4;
    QImage picture = SmallPicture();
    DrawVerticalSecondaryLine3D(CanvasOf(picture), 2, 10, 8);
    const Colour l = Light;
    const Colour d = Dark;
    EXPECT_EQ(ColumnOf(picture, 5, 5, 13), Row(9, None));
    EXPECT_EQ(ColumnOf(picture, 6, 5, 13), (Row{None, None, None, l, l, l, l, None, None}));
    EXPECT_EQ(ColumnOf(picture, 7, 5, 13), (Row{None, None, l, l, l, l, l, l, None}));
    EXPECT_EQ(ColumnOf(picture, 8, 5, 13), (Row{None, d, d, d, d, d, d, d, None}));
    EXPECT_EQ(ColumnOf(picture, 9, 5, 13), (Row{None, None, d, d, d, d, d, None, None}));
    EXPECT_EQ(ColumnOf(picture, 10, 5, 13), Row(9, None));
}

TEST_F(SecondaryLine, OfOddThicknessLeavesItsLastPixel)
{
    SecondaryThickness = 3;
    QImage picture = SmallPicture();
    DrawHorizontalSecondaryLine3D(CanvasOf(picture), SecondaryThickness / 2, 8, 10);
    EXPECT_EQ(ColumnOf(picture, 9, 6, 10), (Row{None, Light, Dark, None, None}));
}

} // namespace
} // namespace kelvarine::testing
