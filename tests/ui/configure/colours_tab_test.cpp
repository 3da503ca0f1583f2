#include "board/look.h"
#include "board/margin.h"
#include "game/screens.h"
#include "grid/colour.h"
#include "grid/grid.h"
#include "input/toolbar.h"
#include "paint/board_painter.h"
#include "support/widget_configure.h"
#include "support/widget_paints.h"
#include "ui/configure/colours_tab.h"
#include "ui/controls/palette_picture.h"
#include "ui/window/board_widget.h"

#include <QLabel>

namespace kelvarine::testing {
namespace {

class ColoursTabTest : public ConfigureTest {
protected:
    int BarValue(int k)
    {
        return Find<QScrollBar>(Name("hsbColor", k))->value();
    }

    void ExpectBars(int red, int green, int blue)
    {
        EXPECT_EQ(BarValue(0), red);
        EXPECT_EQ(BarValue(1), green);
        EXPECT_EQ(BarValue(2), blue);
    }
};

TEST_F(ColoursTabTest, OptionsShowTheirColourOnTheBars)
{
    Open(ColoursTab);
    EXPECT_EQ(ColourIndex, 0U);
    ExpectBars(32, 96, 80);
    const auto colours = ColourTable;
    for (int k = 0; k < 12; ++k) {
        Click(Name("optTableColors", k));
        EXPECT_EQ(ColourIndex, static_cast<std::size_t>(k));
        const Colour colour = ColourTable[static_cast<std::size_t>(k)];
        ExpectBars(static_cast<int>(colour >> 16), static_cast<int>(colour >> 8 & 0xFF),
                   static_cast<int>(colour & 0xFF));
    }
    EXPECT_EQ(ColourTable, colours) << "showing writes nothing back";
}

TEST_F(ColoursTabTest, BarsOnTheirWayToAColourWriteNothing)
{
    Open(ColoursTab);
    const auto colours = ColourTable;
    int moves = 0;
    QObject::connect(Find<QScrollBar>("hsbColor0"), &QScrollBar::valueChanged, Screen, [&] {
        ++moves;
        EXPECT_EQ(ColourTable, colours);
    });
    Click("optTableColors2");
    EXPECT_EQ(moves, 1);
}

TEST_F(ColoursTabTest, BarsHaveTheirRangeAndSteps)
{
    Open(ColoursTab);
    for (int k = 0; k < 3; ++k) {
        const auto *bar = Find<QScrollBar>(Name("hsbColor", k));
        EXPECT_EQ(bar->minimum(), 0);
        EXPECT_EQ(bar->maximum(), 255);
        EXPECT_EQ(bar->singleStep(), 1);
        EXPECT_EQ(bar->pageStep(), 10);
    }
}

TEST_F(ColoursTabTest, DraggedBarsPaintTheBoard)
{
    Open(ColoursTab);
    Click("optTableColors1");
    Drag("hsbColor0", 200);
    Drag("hsbColor1", 10);
    Drag("hsbColor2", 255);
    EXPECT_EQ(ColourTable[1], 0xC80AFFU);
    EXPECT_EQ(PaintedIn(Unknown), 0xC80AFFU);
    EXPECT_EQ(PaintedIn(Given), 0x206050U) << "the other colour stays";
    EXPECT_EQ(Find<QLabel>("lblColor0")->text(), "200");
}

TEST_F(ColoursTabTest, BoardFollowsTheThumbBeforeItIsLetGo)
{
    Open(ColoursTab);
    auto *bar = Find<QScrollBar>("hsbColor0");
    const QPoint thumb(bar->width() * 32 / 255 + 10, bar->height() / 2);
    QTest::mousePress(bar, Qt::LeftButton, Qt::NoModifier, thumb);
    QTest::mouseMove(bar, thumb + QPoint(100, 0));
    EXPECT_TRUE(bar->isSliderDown());
    EXPECT_GT(bar->value(), 60);
    EXPECT_EQ(PaintedIn(Given) >> 16, static_cast<Colour>(bar->value()));
    QTest::mouseRelease(bar, Qt::LeftButton, Qt::NoModifier, thumb + QPoint(100, 0));
}

TEST_F(ColoursTabTest, PressOnThePalettePicksThePixel)
{
    Open(ColoursTab);
    auto *palette = Find<QWidget>("picColorpal");
    const QPoint place(30, 90);
    QTest::mousePress(palette, Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseRelease(palette, Qt::LeftButton, Qt::NoModifier, place);
    const Colour seen =
        palette->grab().toImage().pixel(place) & 0xFFFFFF; // what the player pressed on
    EXPECT_EQ(ColourTable[0], seen);
    EXPECT_EQ(PaintedIn(Given), seen);
    ExpectBars(static_cast<int>(seen >> 16), static_cast<int>(seen >> 8 & 0xFF),
               static_cast<int>(seen & 0xFF));
}

TEST_F(ColoursTabTest, PaletteHoldsBlackWhiteAndPureColours)
{
    const QImage picture = PalettePicture(148, 228);
    EXPECT_EQ(picture.pixel(0, 0) & 0xFFFFFF, 0U);
    EXPECT_EQ(picture.pixel(147, 0) & 0xFFFFFF, 0xFFFFFFU);
    EXPECT_EQ(picture.pixel(0, 227) & 0xFFFFFF, 0U);
    EXPECT_FALSE(PalettePicture(1, 1).isNull());
}

TEST_F(ColoursTabTest, PressOnASwatchCarriesItsColourOver)
{
    Open(ColoursTab);
    Click("optTableColors4");
    QTest::mousePress(Find<QWidget>("swatch2"), Qt::LeftButton);
    QTest::mouseRelease(Find<QWidget>("swatch2"), Qt::LeftButton);
    EXPECT_EQ(ColourTable[4], 0x36A2FDU);
    EXPECT_EQ(ColourTable[2], 0x36A2FDU);
    ExpectBars(54, 162, 253);
}

TEST_F(ColoursTabTest, SwatchesAndTilesActOnAnyButton)
{
    Open(ColoursTab);
    QTest::mousePress(Find<QWidget>("swatch2"), Qt::RightButton);
    QTest::mouseRelease(Find<QWidget>("swatch2"), Qt::RightButton);
    EXPECT_EQ(ColourTable[0], ColourTable[2]);
    QTest::mousePress(Find<QWidget>("swatch3"), Qt::MiddleButton);
    QTest::mouseRelease(Find<QWidget>("swatch3"), Qt::MiddleButton);
    EXPECT_EQ(ColourTable[0], ColourTable[3]);
    QTest::mousePress(Find<QWidget>("tile7"), Qt::RightButton);
    QTest::mouseRelease(Find<QWidget>("tile7"), Qt::RightButton);
    EXPECT_EQ(GivenTexture, 7);
    QTest::mousePress(Find<QWidget>("tile4"), Qt::MiddleButton);
    QTest::mouseRelease(Find<QWidget>("tile4"), Qt::MiddleButton);
    EXPECT_EQ(GivenTexture, 4);
}

TEST_F(ColoursTabTest, SwatchTakesItsTextureOverItsFrame)
{
    Open(ColoursTab);
    auto *swatch = Find<QWidget>("swatch0");
    Find<QWidget>("optTableColors0")->setFocus();
    const QImage plain = swatch->grab().toImage();
    QTest::mousePress(Find<QWidget>("tile7"), Qt::LeftButton);
    const QImage textured = swatch->grab().toImage();
    int changedOnFrame = 0;
    for (int x = 0; x < plain.width(); ++x) {
        for (int y = 0; y < plain.height(); ++y) {
            const QRgb pixel = textured.pixel(x, y);
            EXPECT_EQ(pixel & plain.pixel(x, y), pixel) << "a texture only takes colour away";
            changedOnFrame += y < 2 && pixel != plain.pixel(x, y) ? 1 : 0;
        }
    }
    EXPECT_GT(changedOnFrame, 0);
}

TEST_F(ColoursTabTest, SwatchesStandFromPixel156To196OfTheirOptions)
{
    Open(ColoursTab);
    for (int k = 0; k < 12; ++k) {
        const auto *option = Find<QWidget>(Name("optTableColors", k));
        const auto *swatch = Find<QWidget>(Name("swatch", k));
        EXPECT_EQ(swatch->x() - option->x(), 156);
        EXPECT_EQ(swatch->width(), 40);
        EXPECT_LE(std::abs(swatch->geometry().center().y() - option->geometry().center().y()), 1);
    }
}

TEST_F(ColoursTabTest, TilesStandUnderThePalette)
{
    Open(ColoursTab);
    const auto *palette = Find<QWidget>("picColorpal");
    for (int k = 0; k < 12; ++k) {
        const auto *tile = Find<QWidget>(Name("tile", k));
        EXPECT_EQ(tile->size(), QSize(48, 24));
        EXPECT_EQ(tile->pos() - palette->pos(), QPoint(2 + k % 3 * 48, 239 + k / 3 * 24));
    }
}

TEST_F(ColoursTabTest, TilesGoToTheTextureOfTheColour)
{
    Open(ColoursTab);
    struct Row {
        int Colour;
        const std::int32_t *Texture;
    };
    for (const Row &row : {Row{0, &GivenTexture}, Row{1, &UnknownTexture}, Row{5, &GridTexture},
                           Row{6, &GridTexture}}) {
        Click(Name("optTableColors", row.Colour));
        for (int tile = 11; tile >= 0; --tile) {
            QTest::mousePress(Find<QWidget>(Name("tile", tile)), Qt::LeftButton);
            EXPECT_EQ(*row.Texture, tile);
        }
    }
    Click("optTableColors0");
    const QImage before = PaintedNow();
    QTest::mousePress(Find<QWidget>("tile7"), Qt::LeftButton);
    EXPECT_NE(PaintedNow(), before);
}

TEST_F(ColoursTabTest, TileWithAColourWithoutTextureDoesNothing)
{
    Open(ColoursTab);
    Click("optTableColors2");
    const QImage before = PaintedNow();
    QTest::mousePress(Find<QWidget>("tile7"), Qt::LeftButton);
    EXPECT_EQ(GivenTexture, 0);
    EXPECT_EQ(UnknownTexture, 0);
    EXPECT_EQ(GridTexture, 0);
    EXPECT_EQ(PaintedNow(), before);
}

TEST_F(ColoursTabTest, WhiteMarginMakesTheTextBlackAtOnce)
{
    Open(ColoursTab);
    Click("optTableColors11");
    QTest::mousePress(Find<QWidget>("swatch3"), Qt::LeftButton);
    EXPECT_EQ(ColourTable[11], 0xFFFFFFU);
    EXPECT_EQ(CoordinateTextColour, 0U);
    const QImage window = Running->Main->Client->grab().toImage();
    EXPECT_EQ(window.pixel(3, ToolbarHeight + 3) & 0xFFFFFF, 0xFFFFFFU)
        << "the window's background";
    Drag("hsbColor0", 0);
    Drag("hsbColor1", 0);
    Drag("hsbColor2", 0);
    EXPECT_EQ(CoordinateTextColour, 0xFFFFFFU);
}

TEST_F(ColoursTabTest, SwatchesAndTilesAnswerToTheKeyboard)
{
    Open(ColoursTab);
    QTest::keyPress(Find<QWidget>("swatch3"), Qt::Key_Space);
    EXPECT_EQ(ColourTable[0], 0xFFFFFFU);
    QTest::keyPress(Find<QWidget>("tile4"), Qt::Key_Space);
    EXPECT_EQ(GivenTexture, 4);
}

TEST_F(ColoursTabTest, ColourChangedElsewhereShowsWhenTheTabComesUp)
{
    Open(PresetGridsTab);
    Click("picPresetGrid1");
    Open(ColoursTab);
    ExpectBars(255, 255, 255);
}

TEST_F(ColoursTabTest, EachStepOfADragPaintsTheBoardOnceAndNoWidgetTwice)
{
    ClearCellBits(~CellWord{0});
    FillPencilmarks();
    Open(ColoursTab);
    auto *bar = Find<QScrollBar>("hsbColor1");
    constexpr int changes = 60;
    QCoreApplication::processEvents();
    const std::int64_t boards = BoardsPainted;
    const PaintCounter painted;
    for (int k = 0; k < changes; ++k) {
        bar->setValue(k);
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(BoardsPainted - boards, changes);
    EXPECT_EQ(painted.PaintsOf(Running->Main->Client->Board), changes);
    EXPECT_EQ(painted.MostPaintsIn(Running->Main.get()), changes);
    EXPECT_EQ(painted.MostPaintsIn(Screen), changes);
    EXPECT_EQ(PaintedIn(Unknown), ColourTable[1]);
}

} // namespace
} // namespace kelvarine::testing
