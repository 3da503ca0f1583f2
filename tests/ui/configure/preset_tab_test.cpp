#include "board/geometry.h"
#include "board/look.h"
#include "configure/presets.h"
#include "game/clock.h"
#include "game/screens.h"
#include "game/win_display.h"
#include "grid/colour.h"
#include "grid/grid.h"
#include "input/toolbar.h"
#include "outside/window.h"
#include "support/widget_configure.h"
#include "ui/controls/preset_pictures.h"

#include <QAbstractButton>
#include <QLabel>

namespace kelvarine::testing {
namespace {

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
    EXPECT_TRUE(Holds(plain, 0xFFFFFF)) << "cells";
    EXPECT_TRUE(Holds(plain, 0xCDCDCD)) << "the selected one";
    EXPECT_TRUE(Holds(plain, 0x00FE00)) << "the first hi-lite";
    EXPECT_TRUE(Holds(plain, 0x87FC87)) << "the second";
    EXPECT_TRUE(Holds(dark, 0x2B262A));
    EXPECT_FALSE(Holds(dark, 0xCDCDCD));
}

} // namespace
} // namespace kelvarine::testing
