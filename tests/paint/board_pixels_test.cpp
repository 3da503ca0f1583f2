#include "game/win_display.h"
#include "grid/colour.h"
#include "grid/grid.h"
#include "outside/board.h"
#include "paint/board_painter.h"
#include "paint/text_painter.h"
#include "support/pixels.h"
#include "support/positions.h"

#include <array>
#include <limits>

namespace kelvarine::testing {
namespace {

class BoardPainting : public FlatBoard {
protected:
    void SetUp() override
    {
        FlatBoard::SetUp();
        SetBoardPictureSize(BoardPlace.Width, BoardPlace.Height, 1);
        FillPencilmarks();
    }
};

class Banner : public BoardPainting {};

Rectangle Whole(const QImage &picture)
{
    return {0, 0, picture.width(), picture.height()};
}

TEST_F(BoardPainting, ShowsTheFinishedPictureOnce)
{
    DrawBoard();
    EXPECT_EQ(PictureShows, 1);
    EXPECT_EQ(BoardPicture().size(), QSize(BoardPlace.Width, BoardPlace.Height));
    EXPECT_EQ(DifferenceOf(BoardPicture(), PaintedBoard(), Whole(BoardPicture())), Rectangle());
}

TEST_F(BoardPainting, RunningSearchFreezesThePicture)
{
    DrawBoard();
    const QImage before = BoardPicture().copy();
    SearchActive = True;
    Grid[1][1] = SelectedBit;
    DrawBoard();
    EXPECT_EQ(PictureShows, 1);
    EXPECT_EQ(BoardPicture(), before);
}

TEST_F(BoardPainting, LaterStepsCoverEarlierOnes)
{
    SecondaryThickness = 2;
    LayOutCells(60, 64);
    Grid[1][1] = AlertBit | SelectedBit;
    const QImage board = PaintedBoard();
    EXPECT_EQ(PixelAt(board, 0, 0), 0xD2D2D2U);
    EXPECT_EQ(PixelAt(board, BorderThickness, BorderThickness), ColourTable[PrimaryLineColour]);
    EXPECT_EQ(PixelAt(board, CellX(2) - 1, CellY(1)), ColourTable[SecondaryLineColour]);
    EXPECT_EQ(PixelAt(board, CellX(1), CellY(1)), ColourTable[SelectedCellColour]);
    EXPECT_EQ(PixelAt(board, CellX(1) + 30, CellY(1) + 1), ColourTable[AlertColour]);
}

TEST_F(BoardPainting, DefaultBoardPaintsEveryPixel)
{
    const QImage board = PaintedBoard();
    EXPECT_EQ(CountOf(board, Whole(board), Untouched), 0);
}

TEST_F(BoardPainting, WhatNoRulePaintsKeepsWhatThePictureHeld)
{
    DrawBoard();
    const Colour before = PixelAt(BoardPicture(), CellX(5) + 1, CellY(5) + 1);
    ColourTable[UnknownCellColour] = 0x0000FF;
    Grid[5][5] = CellWord{12} << ColourShift;
    DrawBoard();
    EXPECT_EQ(PixelAt(BoardPicture(), CellX(5) + 1, CellY(5) + 1), before);
    EXPECT_EQ(PixelAt(BoardPicture(), CellX(6) + 1, CellY(5) + 1), 0x0000FFU);
}

TEST_F(BoardPainting, PictureKeepsWhatFitsWhenItIsResized)
{
    DrawBoard();
    const Colour corner = PixelAt(BoardPicture(), 0, 0);
    SetBoardPictureSize(50, 2000, 1);
    EXPECT_EQ(BoardPicture().size(), QSize(50, 2000));
    EXPECT_EQ(PixelAt(BoardPicture(), 0, 0), corner);
}

// Lines in 3D of an odd thickness leave a pixel out, and what an earlier layout painted there would
// be seen in it.
TEST_F(BoardPainting, NothingOfAnEarlierLayoutIsSeen)
{
    constexpr std::array Windows{QSize(700, 760), QSize(640, 700), QSize(560, 640)};
    const auto layOut = [](const QSize &window) {
        LayoutBoard(window.width(), window.height(), 0);
        SetBoardPictureSize(BoardPlace.Width, BoardPlace.Height, 1);
        DrawBoard();
    };
    PrimaryGrid3D = True;
    SecondaryGrid3D = True;
    for (const auto &[primary, secondary] : {std::pair(15, 5), std::pair(8, 11), std::pair(7, 3)}) {
        for (const auto &window : Windows) {
            PrimaryThickness = primary;
            SecondaryThickness = secondary;
            SetBoardPictureSize(1, 1, 1);
            layOut(window);
            const QImage fresh = BoardPicture().copy();
            for (const auto &earlier : Windows) {
                layOut(earlier);
                layOut(window);
                EXPECT_EQ(BoardPicture(), fresh) << primary << " at " << window.width();
            }
            SecondaryThickness = 0;
            layOut(window);
            SecondaryThickness = secondary;
            layOut(window);
            EXPECT_EQ(BoardPicture(), fresh) << "of another thickness";
        }
    }
}

TEST_F(BoardPainting, PaintingChangesNothingOfTheGame)
{
    SetGame("53..7....6..195....98....6.8...6...34..8.3..17...2...6.6....28....419..5....8..79");
    Grid[1][1] |= AlertBit | SelectedBit;
    const GridTable before = Grid;
    DrawBoard();
    EXPECT_EQ(Grid, before);
    EXPECT_EQ(NumberFilter, CandidateMask);
}

TEST_F(BoardPainting, DoubleRatioPaintsEachPixelAsFour)
{
    Grid = {};
    const QImage single = PaintedBoard();
    const QImage twofold = PaintedBoard(2);
    EXPECT_EQ(twofold.size(), single.size() * 2);
    for (int y = 0; y < single.height(); y += 3) {
        for (int x = 0; x < single.width(); ++x) {
            ASSERT_EQ(PixelAt(twofold, 2 * x, 2 * y), PixelAt(single, x, y));
            ASSERT_EQ(PixelAt(twofold, 2 * x + 1, 2 * y + 1), PixelAt(single, x, y));
        }
    }
}

TEST_F(BoardPainting, DigitsAreSharpAtADoubleRatio)
{
    SetGivens(std::string(81, '8'));
    const QImage twofold = PaintedBoard(2);
    const QImage enlarged = PaintedBoard().scaled(twofold.size());
    EXPECT_NE(DifferenceOf(twofold, enlarged, Whole(twofold)), Rectangle());
    const Colour ink = ColourTable[GivenNumberColour];
    const double share = CountOf(twofold, Whole(twofold), ink) /
                         (4.0 * CountOf(PaintedBoard(), Whole(PaintedBoard()), ink));
    EXPECT_GT(share, 1); // fewer of the pixels lie on the smoothed edge
}

TEST_F(BoardPainting, BrokenRatioLeavesNoGaps)
{
    for (const double ratio : {1.25, 1.5, 1.75, 3.0}) {
        const QImage board = PaintedBoard(ratio);
        EXPECT_EQ(CountOf(board, Whole(board), Untouched), 0) << ratio;
    }
}

TEST_F(BoardPainting, PictureOfAnotherFormatStaysAsItIs)
{
    QImage picture(40, 40, QImage::Format_Grayscale8);
    picture.fill(77);
    const QImage before = picture.copy();
    PaintBoard(picture);
    EXPECT_EQ(picture, before);
    QImage none;
    PaintBoard(none);
    EXPECT_TRUE(none.isNull());
}

TEST_F(BoardPainting, WindowOfOnePixelAndAHugeOnePaint)
{
    for (const QSize window : {QSize(1, 1), QSize(4000, 3000), QSize(1, 3000), QSize(0, 0)}) {
        LayoutBoard(window.width(), window.height(), 0);
        SetBoardPictureSize(BoardPlace.Width, BoardPlace.Height, 1);
        DrawBoard();
        EXPECT_EQ(BoardPicture().size(), QSize(BoardPlace.Width, BoardPlace.Height));
    }
    SetBoardPictureSize(0, -5, 1);
    DrawBoard();
    EXPECT_EQ(BoardPicture().size(), QSize(1, 1));
}

TEST_F(BoardPainting, AbsurdSettingsPaint)
{
    Grid[5][5] = 0xFFFFFFFF;
    Grid[6][6] = ~SelectedBit;
    for (const std::int32_t value : {-1, 0, 1, 7, 99, 100}) {
        PrimaryThickness = value;
        SecondaryThickness = 100 - value;
        BorderThickness = value;
        GivenTexture = UnknownTexture = GridTexture = value;
        PencilmarkLayout = value;
        WinStage = value;
        PrimaryGrid3D = SecondaryGrid3D = PencilmarkLines = value % 2 == 0 ? False : True;
        for (const Flag running : {False, True}) {
            WinDisplayRunning = running;
            for (const int size : {1, 300, 1500}) {
                LayoutBoard(size, size, 0);
                SetBoardPictureSize(BoardPlace.Width, BoardPlace.Height, 1);
                DrawBoard();
                EXPECT_FALSE(BoardPicture().isNull());
            }
        }
    }
}

TEST_F(BoardPainting, PictureSmallerThanTheLayoutIsNotOverrun)
{
    SetBoardPictureSize(37, 23, 1);
    GridTexture = 5;
    DrawBoard();
    EXPECT_EQ(BoardPicture().size(), QSize(37, 23));
}

TEST_F(Banner, StandsInTheMiddleUntilTheNextPainting)
{
    DrawBoard();
    const QImage before = BoardPicture().copy();
    DrawBanner(" Standby ");
    EXPECT_EQ(PictureShows, 2);
    const Rectangle place = DifferenceOf(before, BoardPicture(), Whole(before));
    const Face face = BoardFace(GivenFontSize * 1.1);
    const int width = TextWidth(face, " Standby ");
    EXPECT_EQ(place, (Rectangle{(BoardPlace.Width - width) / 2 - 10,
                                (BoardPlace.Height - face.Height) / 2 - 10, width + 20,
                                face.Height + 20}));
    DrawBoard();
    EXPECT_EQ(BoardPicture(), before);
}

TEST_F(Banner, HasABlackFrameAWhiteBoxAndARaisedText)
{
    DrawBoard();
    DrawBanner(" Standby ");
    const Face face = BoardFace(GivenFontSize * 1.1);
    const int x = (BoardPlace.Width - TextWidth(face, " Standby ")) / 2;
    const int y = (BoardPlace.Height - face.Height) / 2;
    const int middle = y + face.Height / 2;
    EXPECT_EQ(RowOf(BoardPicture(), middle, x - 10, x - 1), std::vector<Colour>(10, 0));
    EXPECT_EQ(PixelAt(BoardPicture(), x, middle), 0xFFFFFFU);
    const Rectangle box{x, y, TextWidth(face, " Standby "), face.Height};
    EXPECT_GT(CountOf(BoardPicture(), box, 0xC0C0C0), 100);
    EXPECT_GT(CountOf(BoardPicture(), box, 0), 500);
}

TEST_F(Banner, OfASearchShowsTheCountBelowThoughASearchRuns)
{
    DrawBoard();
    const QImage before = BoardPicture().copy();
    SearchActive = True;
    DrawSearchBanner(1234);
    const Face large = BoardFace(GivenFontSize * 1.1);
    const Face small = BoardFace(NineFontSize);
    const int top = (BoardPlace.Height - large.Height) / 2;
    const int width = TextWidth(small, " # of games screened: 1234 ");
    const int y = top + large.Height + 14;
    const int x = (BoardPlace.Width - width) / 2;
    const Rectangle place = DifferenceOf(before, BoardPicture(), Whole(before));
    EXPECT_EQ(place.Y, top - 10);
    EXPECT_EQ(place.Y + place.Height, y + small.Height + 10);
    EXPECT_EQ(RowOf(BoardPicture(), y + 3, x - 10, x),
              (std::vector<Colour>{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xFFFFFF}));
    EXPECT_GT(CountOf(BoardPicture(), {x, y, width, small.Height}, 0), 50);
}

TEST_F(Banner, WithAnyCountOrTextDoesNotFail)
{
    SetBoardPictureSize(5, 5, 1);
    DrawBoard();
    DrawSearchBanner(std::numeric_limits<std::int32_t>::min());
    DrawBanner("");
    DrawBanner(std::string(5000, 'W'));
    EXPECT_EQ(BoardPicture().size(), QSize(5, 5));
}

} // namespace
} // namespace kelvarine::testing
