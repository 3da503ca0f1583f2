#include "board/geometry.h"
#include "board/look.h"
#include "board/margin.h"
#include "configure/presets.h"
#include "game/clock.h"
#include "game/screens.h"
#include "game/win_display.h"
#include "grid/colour.h"
#include "grid/grid.h"
#include "input/toolbar.h"
#include "outside/screens.h"
#include "outside/window.h"
#include "paint/board_painter.h"
#include "support/widget_configure.h"
#include "support/widget_paints.h"
#include "ui/configure/colours_tab.h"
#include "ui/controls/palette_picture.h"
#include "ui/controls/preset_pictures.h"
#include "ui/window/board_widget.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>

namespace kelvarine::testing {
namespace {

constexpr Cell Given{1, 1};
constexpr Cell Unknown{3, 1};

QByteArray Name(const char *array, int k)
{
    return QByteArray(array) + QByteArray::number(k);
}

// ---- Colors --------------------------------------------------------------------------------

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

// ---- Grid ----------------------------------------------------------------------------------

class GridTabTest : public ConfigureTest {};

// True when some pixel of the painted board has a colour.
bool IsPainted(Colour colour)
{
    const QImage board = PaintedNow();
    for (int y = 0; y < board.height(); ++y) {
        for (int x = 0; x < board.width(); ++x) {
            if ((board.pixel(x, y) & RGB_MASK) == colour) {
                return true;
            }
        }
    }
    return false;
}

struct BarRow {
    const char *Bar;
    const char *Label;
    const char *Frame;
    std::int32_t *Setting;
    int Highest;
    int Small;
};

const std::array BarRows{
    BarRow{"hsbPrimGridThick", "lblPrimGridThick", "Primary Grid Lines", &PrimaryThickness, 50, 2},
    BarRow{"hsbSecGridThick", "lblSecGridThick", "Secondary Grid Lines", &SecondaryThickness, 50,
           1},
    BarRow{"hsbThicknessExt3dBorder", "lblThicknessExt3DBorder", "Exterior 3D Border",
           &BorderThickness, 50, 1},
    BarRow{"hsbExtMarginThickness", "lblExtMarginThickness", "Exterior Margins", &MarginThickness,
           100, 1},
};

TEST_F(GridTabTest, BarsHaveTheirFramesRangesAndSteps)
{
    Open(GridTab);
    for (const BarRow &row : BarRows) {
        const auto *bar = Find<QScrollBar>(row.Bar);
        EXPECT_EQ(bar->minimum(), 0);
        EXPECT_EQ(bar->maximum(), row.Highest);
        EXPECT_EQ(bar->singleStep(), row.Small);
        EXPECT_EQ(bar->pageStep(), 10);
        EXPECT_EQ(bar->value(), *row.Setting);
        EXPECT_EQ(qobject_cast<QGroupBox *>(bar->parentWidget())->title(), row.Frame);
        EXPECT_EQ(Find<QLabel>(row.Label)->text(), QString::number(*row.Setting));
    }
}

TEST_F(GridTabTest, DraggedBarsLayTheBoardOutAndShowTheirValue)
{
    Open(GridTab);
    for (const BarRow &row : BarRows) {
        const int cell = CellWidth;
        const QSize board(BoardPlace.Width, BoardPlace.Height);
        Drag(row.Bar, 40);
        EXPECT_EQ(*row.Setting, 40) << row.Bar;
        EXPECT_EQ(Find<QLabel>(row.Label)->text(), "40");
        EXPECT_LE(CellWidth, cell);
        EXPECT_EQ(Running->Main->Client->Board->width(), BoardPlace.Width);
        EXPECT_EQ(PaintedIn(Given), 0x206050U) << "painted in its new place";
        EXPECT_NE(QSize(BoardPlace.Width, BoardPlace.Height), board);
    }
}

TEST_F(GridTabTest, KeysMoveABarByItsSteps)
{
    Open(GridTab);
    auto *bar = Find<QScrollBar>("hsbPrimGridThick");
    const auto press = [bar](Qt::Key key) {
        QTest::keyClick(bar, key);
        return PrimaryThickness;
    };
    EXPECT_EQ(press(Qt::Key_Right), 10);
    EXPECT_EQ(press(Qt::Key_Left), 8);
    EXPECT_EQ(press(Qt::Key_Down), 10);
    EXPECT_EQ(press(Qt::Key_Up), 8);
    EXPECT_EQ(press(Qt::Key_PageDown), 18);
    EXPECT_EQ(press(Qt::Key_PageUp), 8);
    EXPECT_EQ(press(Qt::Key_End), 50);
    EXPECT_EQ(press(Qt::Key_Home), 0);
}

TEST_F(GridTabTest, ThicknessNullLetsTheCellsOfNeighbouringBoxesTouch)
{
    Open(GridTab);
    Drag("hsbPrimGridThick", 0);
    EXPECT_EQ(PrimaryThickness, 0);
    EXPECT_EQ(CellX(4), CellX(3) + CellWidth);
}

TEST_F(GridTabTest, ThicknessNullDrawsNoLines)
{
    ColourTable.fill(0x808080);
    ColourTable[PrimaryLineColour] = 0xFF00FF;
    ColourTable[SecondaryLineColour] = 0x00FF00;
    ColourTable[AlertColour] = 0x808080;
    BorderThickness = 0;
    SecondaryThickness = 3;
    Open(GridTab);
    Drag("hsbSecGridThick", 2);
    EXPECT_TRUE(IsPainted(0xFF00FF));
    EXPECT_TRUE(IsPainted(0x00FF00));
    Drag("hsbPrimGridThick", 0);
    EXPECT_FALSE(IsPainted(0xFF00FF));
    EXPECT_TRUE(IsPainted(0x00FF00));
    Drag("hsbSecGridThick", 0);
    EXPECT_FALSE(IsPainted(0x00FF00));
}

TEST_F(GridTabTest, MarginBelowTwentyEightHasNoTexts)
{
    Open(GridTab);
    ColourTable[MarginColour] = 0;
    const auto lettersOnMargin = [this] {
        const QImage window = Running->Main->Client->grab().toImage();
        for (int x = 4; x < window.width() - 4; ++x) {
            for (int y = ToolbarHeight; y < BoardPlace.Y; ++y) {
                if ((window.pixel(x, y) & 0xFFFFFF) != 0) {
                    return true;
                }
            }
        }
        return false;
    };
    Drag("hsbExtMarginThickness", 28);
    EXPECT_TRUE(lettersOnMargin());
    Drag("hsbExtMarginThickness", 27);
    EXPECT_FALSE(lettersOnMargin());
}

TEST_F(GridTabTest, EffectsPaintTheBoardAtOnce)
{
    Grid[4][5] |= SelectedBit;
    SecondaryThickness = 4;
    ResizeWindow();
    Open(GridTab);
    struct Row {
        const char *Box;
        const Flag *Setting;
    };
    for (const Row &row :
         {Row{"chk3DExposedCells", &GivenCells3D}, Row{"chk3DUnknownCells", &UnknownCells3D},
          Row{"chk3DSelectedCells", &SelectedCells3D}, Row{"chk3DPrimGrid", &PrimaryGrid3D},
          Row{"chk3DSecGrid", &SecondaryGrid3D}}) {
        ColourTable[PrimaryLineColour] = 0x808080;
        ColourTable[SecondaryLineColour] = 0x808080;
        const Flag before = *row.Setting;
        const QImage board = PaintedNow();
        Click(row.Box);
        EXPECT_NE(*row.Setting, before) << row.Box;
        EXPECT_NE(PaintedNow(), board) << row.Box;
        Click(row.Box);
        EXPECT_EQ(*row.Setting, before) << row.Box;
    }
}

TEST_F(GridTabTest, EffectCaptions)
{
    Open(GridTab);
    EXPECT_EQ(Find<QAbstractButton>("chk3DExposedCells")->text(), " Given cells");
    EXPECT_EQ(Find<QAbstractButton>("chk3DUnknownCells")->text(), " Unknown cells");
    EXPECT_EQ(Find<QAbstractButton>("chk3DSelectedCells")->text(), " Selected cells");
    EXPECT_EQ(Find<QAbstractButton>("optPencilmarkGrid0")->text(), " Variable");
    EXPECT_EQ(Find<QAbstractButton>("optPencilmarkGrid1")->text(), " 3 X 3");
    EXPECT_EQ(Find<QAbstractButton>("chkPencilmarkGridLines")->text(), " Use lines");
}

TEST_F(GridTabTest, PencilmarksAreLaidOutAndRuledAtOnce)
{
    Grid[3][1] = BitTable[2] | BitTable[7];
    ResizeWindow();
    Open(GridTab);
    const QImage three = PaintedNow();
    Click("optPencilmarkGrid0");
    EXPECT_EQ(PencilmarkLayout, 0);
    EXPECT_NE(PaintedNow(), three);
    Click("chkPencilmarkGridLines");
    EXPECT_EQ(PencilmarkLines, True);
    Click("optPencilmarkGrid1");
    EXPECT_EQ(PencilmarkLayout, 1);
    EXPECT_NE(PaintedNow(), three) << "now with lines";
    Click("chkPencilmarkGridLines");
    EXPECT_EQ(PaintedNow(), three);
}

TEST_F(GridTabTest, MarginBarIsMovedFromOutside)
{
    MarginThickness = 10;
    ResizeWindow();
    Open(LogicTab);
    MoveMarginBar(28);
    EXPECT_EQ(MarginThickness, 28);
    EXPECT_EQ(Find<QLabel>("lblExtMarginThickness")->text(), "28");
    Close();
    MoveMarginBar(50);
    EXPECT_EQ(MarginThickness, 28) << "nothing while the screen is closed";
}

// ---- Preset grids --------------------------------------------------------------------------

class PresetTabTest : public ConfigureTest {};

TEST_F(PresetTabTest, EachPressSetsItsLookOnTheBoard)
{
    Open(PresetGridsTab);
    for (int number = 0; number < 8; ++number) {
        LoadPreset(number);
        const auto colours = ColourTable;
        const std::int32_t border = BorderThickness;
        LoadPreset(100);
        QTest::mousePress(Find<QWidget>(Name("picPresetGrid", number)), Qt::LeftButton);
        EXPECT_EQ(ColourTable, colours) << number;
        EXPECT_EQ(BorderThickness, border) << number;
        if (GivenTexture == 0) {
            EXPECT_EQ(PaintedIn(Given), colours[GivenCellColour]) << number;
        }
        const QImage window = Running->Main->Client->grab().toImage();
        EXPECT_EQ(window.pixel(3, ToolbarHeight + 3) & 0xFFFFFF, colours[MarginColour]) << number;
    }
}

TEST_F(PresetTabTest, PicturesAreOneHundredAndThirtyPixelsSquare)
{
    Open(PresetGridsTab);
    for (int number = 0; number < 8; ++number) {
        EXPECT_EQ(Find<QWidget>(Name("picPresetGrid", number))->size(), QSize(130, 130));
    }
    EXPECT_EQ(Screen->findChild<QWidget *>("picPresetGrid8"), nullptr);
}

TEST_F(PresetTabTest, KeysChooseThePictureWithTheFocus)
{
    Open(PresetGridsTab);
    struct Row {
        int Number;
        Qt::Key Key;
        Colour Margin;
    };
    for (const Row &row : {Row{1, Qt::Key_Return, 0x89C7FF}, Row{5, Qt::Key_Space, 0xBBBBBB},
                           Row{7, Qt::Key_Enter, 0x4C0086}}) {
        auto *picture = Find<QWidget>(Name("picPresetGrid", row.Number));
        picture->setFocus();
        QTest::keyClick(picture, Qt::Key_A);
        EXPECT_NE(ColourTable[MarginColour], row.Margin) << "other keys choose nothing";
        QTest::keyClick(picture, row.Key);
        EXPECT_EQ(ColourTable[MarginColour], row.Margin);
    }
}

TEST_F(PresetTabTest, GridTabFollowsWithoutWritingBack)
{
    Open(PresetGridsTab);
    MarginThickness = 130; // more than its bar can show
    QTest::mousePress(Find<QWidget>("picPresetGrid5"), Qt::LeftButton);
    EXPECT_EQ(Find<QScrollBar>("hsbPrimGridThick")->value(), 20);
    EXPECT_EQ(Find<QScrollBar>("hsbSecGridThick")->value(), 6);
    EXPECT_EQ(Find<QScrollBar>("hsbThicknessExt3dBorder")->value(), 0);
    EXPECT_EQ(Find<QLabel>("lblPrimGridThick")->text(), "20") << "whatever the guards";
    EXPECT_TRUE(Find<QAbstractButton>("chk3DPrimGrid")->isChecked());
    EXPECT_TRUE(Find<QAbstractButton>("chk3DSecGrid")->isChecked());
    EXPECT_FALSE(Find<QAbstractButton>("chk3DExposedCells")->isChecked());
    EXPECT_FALSE(Find<QAbstractButton>("chk3DUnknownCells")->isChecked());
    EXPECT_FALSE(Find<QAbstractButton>("chk3DSelectedCells")->isChecked());
    EXPECT_EQ(MarginThickness, 130);
    EXPECT_EQ(PencilmarkLayout, 1);
}

TEST_F(PresetTabTest, PictureWithTheFocusIsMarked)
{
    Open(PresetGridsTab);
    const auto markRound = [this](int number) {
        const QRect place = Find<QWidget>(Name("picPresetGrid", number))->geometry();
        const QImage tab = Find<QWidget>("picTabPresetGrids")->grab().toImage();
        const QRgb text = Screen->palette().color(QPalette::WindowText).rgb();
        return tab.pixel(place.left() - 5, place.center().y()) == text &&
               tab.pixel(place.center().x(), place.top() - 5) == text &&
               tab.pixel(place.right() + 4, place.center().y()) == text &&
               tab.pixel(place.center().x(), place.bottom() + 4) == text;
    };
    EXPECT_FALSE(markRound(3));
    Find<QWidget>("picPresetGrid3")->setFocus();
    EXPECT_TRUE(markRound(3));
    QTest::mousePress(Find<QWidget>("picPresetGrid6"), Qt::LeftButton);
    EXPECT_TRUE(markRound(6));
    EXPECT_FALSE(markRound(3));
}

TEST_F(PresetTabTest, PaintingThePicturesLeavesTheStateAsItWas)
{
    LoadPreset(4);
    MarginThickness = 33;
    PencilmarkLayout = 0;
    PencilmarkLines = True;
    StrongLinkMode = 2;
    NumberFilter = BitTable[3];
    ChainColumns[0] = 2;
    PauseCaption = "Resume";
    ResizeWindow();
    const auto state = [] {
        return std::tuple(Grid, ColourTable, GivenTexture, UnknownTexture, GridTexture,
                          PrimaryThickness, SecondaryThickness, BorderThickness, MarginThickness,
                          PrimaryGrid3D, SecondaryGrid3D, GivenCells3D, UnknownCells3D,
                          SelectedCells3D, PencilmarkLayout, PencilmarkLines, StrongLinkMode,
                          NumberFilter, ChainColumns, PauseCaption, WinDisplayRunning, CellWidth,
                          CellHeight, GivenFontSize, NineFontSize, BoardPlace);
    };
    const auto before = state();
    const QImage board = PaintedNow();
    QImage first = PresetPicture(1, 130, 1.25).copy();
    EXPECT_EQ(state(), before);
    EXPECT_EQ(PaintedNow(), board);
    EXPECT_EQ(first.size(), QSize(163, 163));
    EXPECT_EQ(PresetPicture(1, 130, 1.25), first);
    EXPECT_NE(PresetPicture(5, 130, 1.25), first);
}

TEST_F(PresetTabTest, PictureShowsTheColoursOfItsPreset)
{
    // Top left is a given cell, in its middle row beside the number.
    const QImage plain = PresetPicture(1, 130, 1);
    const QImage dark = PresetPicture(3, 130, 1);
    const auto holds = [](const QImage &picture, Colour colour) {
        for (int x = 0; x < picture.width(); ++x) {
            for (int y = 0; y < picture.height(); ++y) {
                if ((picture.pixel(x, y) & 0xFFFFFF) == colour) {
                    return true;
                }
            }
        }
        return false;
    };
    EXPECT_TRUE(holds(plain, 0xFFFFFF)) << "cells";
    EXPECT_TRUE(holds(plain, 0xCDCDCD)) << "the selected one";
    EXPECT_TRUE(holds(plain, 0x00FE00)) << "the first hi-lite";
    EXPECT_TRUE(holds(plain, 0x87FC87)) << "the second";
    EXPECT_TRUE(holds(dark, 0x2B262A));
    EXPECT_FALSE(holds(dark, 0xCDCDCD));
}

} // namespace
} // namespace kelvarine::testing
