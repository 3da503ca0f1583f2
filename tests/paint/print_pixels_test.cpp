#include "configure/presets.h"
#include "game/clock.h"
#include "game/win_display.h"
#include "grid/colour.h"
#include "paint/board_painter.h"
#include "paint/print_painter.h"
#include "print/page_layout.h"
#include "support/outside_double.h"
#include "support/pixels.h"
#include "support/play.h"
#include "support/positions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace kelvarine::testing {
namespace {

class PrintedGrid : public FlatBoard {
protected:
    void SetUp() override
    {
        FlatBoard::SetUp();
        SetGame(EasyGame);
    }
};

class PrintedBoard : public PrintedGrid {};

Rectangle Whole(const QImage &picture)
{
    return {0, 0, picture.width(), picture.height()};
}

bool AreEqual(const QImage &one, const QImage &other)
{
    return one.size() == other.size() && DifferenceOf(one, other, Whole(one)) == Rectangle();
}

// Pixels of a cell in the picture of a game, in the default look.
Rectangle PrintedCell(int column, int row)
{
    const auto origin = [](int line) {
        return 10 + (line - 1) * 50 + (line + 2) / 3 * 8;
    };
    return {origin(column), origin(row), 50, 50};
}

QImage Paper(QSize size)
{
    QImage paper(size, QImage::Format_RGB32);
    paper.fill(Qt::white);
    return paper;
}

QImage OnPaper(int side, bool withNumbers)
{
    QImage paper = Paper({side, side});
    QPainter painter(&paper);
    painter.setRenderHint(QPainter::Antialiasing);
    PrintGrid(painter, QRectF(0, 0, side, side), withNumbers);
    return paper;
}

// ---- PrintGrid -----------------------------------------------------------------------------

TEST_F(PrintedGrid, HasItsFixedSizeAndLeavesTheBoardsAlone)
{
    const CellSizes before = SizesInUse();
    const QImage picture = PictureOfGrid(true);
    EXPECT_EQ(picture.size(), QSize(502, 502));
    EXPECT_EQ(SizesInUse(), before);
    LayOutCells(20, 25);
    EXPECT_TRUE(AreEqual(PictureOfGrid(true), picture));
}

TEST_F(PrintedGrid, LinesAndFillsStandWhereTheSizesPutThem)
{
    const QImage picture = PictureOfGrid(false);
    EXPECT_EQ(PixelAt(picture, 0, 0), 0xD2D2D2U);
    EXPECT_EQ(PixelAt(picture, 501, 501), 0x5A5A5AU);
    EXPECT_EQ(PixelAt(picture, 10, 10), ColourTable[PrimaryLineColour]);
    EXPECT_EQ(PixelAt(picture, 17, 100), ColourTable[PrimaryLineColour]);
    EXPECT_EQ(PixelAt(picture, 18, 18), ColourTable[GivenCellColour]);
    EXPECT_EQ(PixelAt(picture, 168, 100), ColourTable[PrimaryLineColour]);
    EXPECT_EQ(PixelAt(picture, 18 + 2 * 50, 18), ColourTable[UnknownCellColour]);
}

TEST_F(PrintedGrid, WithoutNumbersItIsEmpty)
{
    const QImage empty = PictureOfGrid(false);
    for (const Cell cell : Cells) {
        const Rectangle area = PrintedCell(cell.Column, cell.Row);
        const bool given = (WordAt(cell) & GivenBit) != 0;
        const Colour fill = ColourTable[given ? GivenCellColour : UnknownCellColour];
        EXPECT_EQ(CountOf(empty, area, fill), 2500);
    }
    EXPECT_FALSE(AreEqual(PictureOfGrid(true), empty));
}

TEST_F(PrintedGrid, ShowsAllNumbersWhateverIsInView)
{
    const QImage all = PictureOfGrid(true);
    NumberFilter = BitTable[5];
    EXPECT_TRUE(AreEqual(PictureOfGrid(true), all));
    EXPECT_EQ(NumberFilter, BitTable[5]);
}

TEST_F(PrintedGrid, ShowsAllNumbersOfAPausedGame)
{
    const QImage all = PictureOfGrid(true);
    PauseCaption = "Resume";
    EXPECT_TRUE(AreEqual(PictureOfGrid(true), all));
}

TEST_F(PrintedGrid, HasNeitherSelectionNorAlertsNorHintMarks)
{
    const QImage plain = PictureOfGrid(true);
    const GridTable before = Grid;
    WordAt({1, 1}) |= SelectedBit;
    WordAt({3, 1}) |= AlertBit;
    WordAt({4, 4}) |= HintCellBit;
    WordAt({5, 5}) |= HintDomainBit;
    const GridTable marked = Grid;
    EXPECT_TRUE(AreEqual(PictureOfGrid(true), plain));
    EXPECT_EQ(Grid, marked);
    EXPECT_NE(Grid, before);
}

TEST_F(PrintedGrid, HasNothingOfTheWinDisplay)
{
    const QImage plain = PictureOfGrid(true);
    WinDisplayRunning = True;
    WinStage = 2;
    WinColoursSet = True;
    EXPECT_TRUE(AreEqual(PictureOfGrid(true), plain));
    EXPECT_EQ(WinDisplayRunning, True);
}

TEST_F(PrintedGrid, KeepsColoursFramesAndRuledLines)
{
    PencilmarkLines = True;
    UnknownCells3D = True;
    WordAt({3, 1}) |= CellWord{3} << ColourShift;
    WordAt({4, 1}) |= CellWord{11} << ColourShift;
    const QImage picture = PictureOfGrid(true);
    const Rectangle coloured = PrintedCell(3, 1);
    EXPECT_EQ(PixelAt(picture, coloured.X + 8, coloured.Y + 3), HighlightColours[3]);
    EXPECT_EQ(PixelAt(picture, coloured.X, coloured.Y + 10), 0xD2D2D2U);
    EXPECT_EQ(PixelAt(picture, coloured.X + 10, coloured.Y + 16),
              ColourTable[PencilmarkLineColour]);
    const Rectangle lasting = PrintedCell(4, 1);
    EXPECT_EQ(PixelAt(picture, lasting.X + 8, lasting.Y + 3), ColourTable[HintDomainColour]);
}

TEST_F(PrintedGrid, NumbersHaveTheColoursAndTheLayoutOfTheBoard)
{
    ColourTable[GivenNumberColour] = 0xFF0000;
    ColourTable[UnknownNumberColour] = 0x0000FF;
    WordAt({3, 1}) = BitTable[4];
    WordAt({4, 1}) = BitTable[2] | BitTable[7];
    const QImage small = PictureOfGrid(true);
    EXPECT_GT(CountOf(small, PrintedCell(1, 1), 0xFF0000), 50);
    EXPECT_GT(CountOf(small, PrintedCell(3, 1), 0x0000FF), 50);
    PencilmarkLayout = 0;
    const QImage variable = PictureOfGrid(true);
    EXPECT_GT(CountOf(variable, PrintedCell(4, 1), 0x0000FF),
              CountOf(small, PrintedCell(4, 1), 0x0000FF));
}

// ---- On paper ------------------------------------------------------------------------------

TEST_F(PrintedGrid, PaperHasThePixelsOfThePictureAtItsOwnSize)
{
    SecondaryThickness = 3;
    PrimaryGrid3D = True;
    SecondaryGrid3D = True;
    GivenCells3D = True;
    UnknownCells3D = True;
    PencilmarkLines = True;
    EXPECT_TRUE(AreEqual(OnPaper(PrintGridSide(), false), PictureOfGrid(false)));
}

TEST_F(PrintedGrid, PaperHasTheTexturesOfThePicture)
{
    GridTexture = 3;
    GivenTexture = 5;
    UnknownTexture = 7;
    GivenCells3D = True;
    const QImage textured = PictureOfGrid(false);
    EXPECT_TRUE(AreEqual(OnPaper(502, false), textured));
    UnknownTexture = 0;
    EXPECT_FALSE(AreEqual(OnPaper(502, false), textured));
}

TEST_F(PrintedGrid, TexturesKeepTheirPixelsWhenTheyAreLargeOnPaper)
{
    GridTexture = 3;
    UnknownTexture = 7;
    const QImage picture = PictureOfGrid(false);
    const QImage paper = OnPaper(3 * 502, false);
    EXPECT_TRUE(AreEqual(paper, picture.scaled(paper.size())));
}

// How dark a row of pixels is from one to another, counted in black pixels.
double InkBetween(const QImage &picture, QPoint from, QPoint to)
{
    const QPoint step((to.x() > from.x()) ? 1 : 0, (to.y() > from.y()) ? 1 : 0);
    double ink = 0;
    for (QPoint pixel = from; pixel != to; pixel += step) {
        ink += (255 - qGray(picture.pixel(pixel))) / 255.0;
    }
    return ink;
}

TEST_F(PrintedGrid, ThinLinesKeepTheirInkOnPaperOfAnySize)
{
    LoadPreset(1);
    Grid = {};
    BorderThickness = 0;
    const int nominal = PrintGridSide();
    for (int side = nominal / 2; side <= nominal; side += 7) {
        const QImage paper = OnPaper(side, false);
        const double scale = static_cast<double>(side) / nominal;
        const double cell = side / 9.0;
        const int middle = static_cast<int>(cell / 2);
        for (int line = 1; line <= 8; ++line) {
            const int from = static_cast<int>(cell * (line - 0.5));
            const int to = static_cast<int>(cell * (line + 0.5));
            const double thickness =
                scale * (line % 3 == 0 ? PrimaryThickness : SecondaryThickness);
            EXPECT_GT(InkBetween(paper, {from, middle}, {to, middle}), 0.98 * thickness) << side;
            EXPECT_GT(InkBetween(paper, {middle, from}, {middle, to}), 0.98 * thickness) << side;
        }
    }
}

TEST_F(PrintedGrid, DigitsArePaintedAtTheSizeOfThePaper)
{
    SetGivens(EasySolution);
    const QImage paper = OnPaper(4 * 502, true);
    const QImage enlarged =
        PictureOfGrid(true).scaled(paper.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    // Of a sharp digit nearly all pixels are either ink or fill.
    const Rectangle area{4 * 18, 4 * 18, 4 * 150, 4 * 150};
    const auto sharp = [&area](const QImage &picture) {
        return CountOf(picture, area, ColourTable[GivenNumberColour]) +
               CountOf(picture, area, ColourTable[GivenCellColour]);
    };
    const int all = area.Width * area.Height;
    EXPECT_GT(sharp(paper), all * 98 / 100);
    EXPECT_LT(sharp(enlarged), all * 96 / 100);
}

TEST_F(PrintedGrid, DigitsOnPaperStandWhereThePictureHasThem)
{
    SetGivens(EasySolution);
    const QImage picture = PictureOfGrid(true);
    const QImage empty = PictureOfGrid(false);
    const QImage paper = OnPaper(4 * 502, true);
    const QImage emptyPaper = OnPaper(4 * 502, false);
    for (const Cell cell : Cells) {
        const Rectangle area = PrintedCell(cell.Column, cell.Row);
        const Rectangle ink = DifferenceOf(picture, empty, area);
        const Rectangle inkOnPaper = DifferenceOf(
            paper, emptyPaper, {4 * area.X, 4 * area.Y, 4 * area.Width, 4 * area.Height});
        EXPECT_NEAR(inkOnPaper.X / 4.0, ink.X, 1);
        EXPECT_NEAR(inkOnPaper.Y / 4.0, ink.Y, 1);
        EXPECT_NEAR(inkOnPaper.Width / 4.0, ink.Width, 2);
        EXPECT_NEAR(inkOnPaper.Height / 4.0, ink.Height, 2);
    }
}

TEST_F(PrintedGrid, DiagonalRunsFromCornerToCornerOnPaper)
{
    PencilmarkLayout = 0;
    PencilmarkLines = True;
    Grid = {};
    WordAt({3, 1}) = BitTable[2] | BitTable[7];
    const QImage paper = OnPaper(4 * 502, true);
    const Rectangle area = PrintedCell(3, 1);
    for (const int step : {6, 20, 25, 30, 44}) {
        const int x = 4 * (area.X + step) + 2;
        const int y = 4 * area.Y + 4 * (50 * 50 - 51 * step) / 50 + 2; // ends one pixel above
        EXPECT_EQ(PixelAt(paper, x, y), ColourTable[PencilmarkLineColour]) << step;
        EXPECT_EQ(PixelAt(paper, x, y - 8), ColourTable[UnknownCellColour]) << step;
        EXPECT_EQ(PixelAt(paper, x, y + 8), ColourTable[UnknownCellColour]) << step;
    }
}

TEST_F(PrintedGrid, PaperOutsideThePlaceStaysWhite)
{
    QImage paper = Paper({600, 600});
    QPainter painter(&paper);
    PrintGrid(painter, QRectF(50, 80, 502, 502), true);
    painter.end();
    const QImage blank = Paper({600, 600});
    EXPECT_EQ(DifferenceOf(paper, blank, Whole(paper)), (Rectangle{50, 80, 502, 502}));
}

TEST_F(PrintedGrid, LinesThatLeaveNoRoomDoNoHarm)
{
    PrimaryThickness = 250;
    BorderThickness = 300;
    EXPECT_EQ(PictureOfGrid(true).width(), PrintGridSide());
    OnPaper(100, true);
}

// ---- The board on paper --------------------------------------------------------------------

TEST_F(PrintedBoard, HasTheSizesAndTheLookOfTheBoard)
{
    WordAt({3, 1}) |= CellWord{3} << ColourShift;
    EXPECT_TRUE(AreEqual(PictureOfBoard(), PaintedBoard()));
}

TEST_F(PrintedBoard, LacksTheMarksOfTheScreen)
{
    const QImage plain = PaintedBoard();
    WordAt({1, 1}) |= SelectedBit;
    WordAt({3, 1}) |= AlertBit;
    WordAt({4, 4}) |= HintCellBit;
    WordAt({5, 5}) |= HintDomainBit;
    const GridTable marked = Grid;
    EXPECT_FALSE(AreEqual(PaintedBoard(), plain));
    EXPECT_TRUE(AreEqual(PictureOfBoard(), plain));
    EXPECT_EQ(Grid, marked);
}

TEST_F(PrintedBoard, StandsAsItDoesOnTheScreenWithNumbersOutOfViewAndPaused)
{
    NumberFilter = BitTable[5];
    const QImage filtered = PaintedBoard();
    EXPECT_TRUE(AreEqual(PictureOfBoard(), filtered));
    PauseCaption = "Resume";
    EXPECT_TRUE(AreEqual(PictureOfBoard(), PaintedBoard()));
    EXPECT_FALSE(AreEqual(PictureOfBoard(), filtered));
}

TEST_F(PrintedBoard, IsStretchedToItsPlace)
{
    Grid = {};
    QImage paper = Paper({2 * BoardPlace.Width + 10, 3 * BoardPlace.Height + 10});
    QPainter painter(&paper);
    PrintBoard(painter, QRectF(5, 5, 2 * BoardPlace.Width, 3 * BoardPlace.Height));
    painter.end();
    const QImage board = PaintedBoard();
    EXPECT_TRUE(AreEqual(paper.copy(5, 5, 2 * board.width(), 3 * board.height()),
                         board.scaled(2 * board.width(), 3 * board.height())));
}

} // namespace
} // namespace kelvarine::testing
