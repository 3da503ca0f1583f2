#include "board/geometry.h"
#include "board/look.h"
#include "game/screens.h"
#include "grid/colour.h"
#include "grid/grid.h"
#include "input/toolbar.h"
#include "outside/screens.h"
#include "outside/window.h"
#include "support/widget_configure.h"
#include "ui/window/board_widget.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>

namespace kelvarine::testing {
namespace {

class GridTabTest : public ConfigureTest {};

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
    EXPECT_TRUE(Holds(PaintedNow(), 0xFF00FF));
    EXPECT_TRUE(Holds(PaintedNow(), 0x00FF00));
    Drag("hsbPrimGridThick", 0);
    EXPECT_FALSE(Holds(PaintedNow(), 0xFF00FF));
    EXPECT_TRUE(Holds(PaintedNow(), 0x00FF00));
    Drag("hsbSecGridThick", 0);
    EXPECT_FALSE(Holds(PaintedNow(), 0x00FF00));
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

} // namespace
} // namespace kelvarine::testing
