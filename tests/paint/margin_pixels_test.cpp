#include "board/margin.h"
#include "grid/colour.h"
#include "grid/grid.h"
#include "paint/margin_painter.h"
#include "paint/text_painter.h"
#include "support/pixels.h"

#include <algorithm>

namespace kelvarine::testing {
namespace {

constexpr int Width = 652;
constexpr int Height = 700;
constexpr Colour Background = 0x204060;
constexpr Colour Ink = 0xFFFFFF;

class MarginTexts : public FlatBoard {
protected:
    void SetUp() override
    {
        FlatBoard::SetUp();
        ColourTable[MarginColour] = Background;
        PickMarginTextColour();
        LayoutBoard(Width, Height, 0);
        GameRating = 1;
        GivenCount = 30;
    }
};

// The window as it is painted with a pen and a font of its own.
QImage WindowPicture(int width = Width, int height = Height, Colour pen = 0xFF8000,
                     const QFont &font = {})
{
    QImage picture(width, height, QImage::Format_RGB32);
    picture.fill(Untouched);
    QPainter painter(&picture);
    painter.setPen(QColor::fromRgb(pen));
    painter.setFont(font);
    PaintWindowTexts(painter, width, height);
    return picture;
}

// Smallest rectangle round what stands in a part of the window.
Rectangle TextIn(const QImage &picture, const Rectangle &part)
{
    QImage blank = picture.copy();
    blank.fill(QColor::fromRgb(Background));
    return DifferenceOf(picture, blank, part);
}

Rectangle AboveBoard()
{
    return {1, 1, Width - 2, BoardPlace.Y - 1};
}

Rectangle LeftOfBoard()
{
    return {1, BoardPlace.Y, BoardPlace.X - 1, BoardPlace.Height};
}

Rectangle BelowBoard()
{
    const int bottom = BoardPlace.Y + BoardPlace.Height;
    return {1, bottom, Width - 2, Height - bottom - 1};
}

// Writes what stands below the board: the rating from its left end on, the count up to its right.
void WriteRatingAndCount(QImage &picture, const Face &face, Colour pen)
{
    QPainter painter(&picture);
    const std::string count = "# given cells: 30";
    const int y = BoardPlace.Y + BoardPlace.Height + 4;
    WriteText(painter, face, {BoardPlace.X, y}, "Easy", pen);
    const int x = BoardPlace.X + BoardPlace.Width - TextWidth(face, count);
    WriteText(painter, face, {x, y}, count, pen);
}

TEST_F(MarginTexts, BackgroundFillsTheClientAreaInTheMarginColour)
{
    const QImage picture = WindowPicture();
    EXPECT_EQ(CountOf(picture, {0, 0, Width, Height}, Untouched), 0);
    EXPECT_EQ(PixelAt(picture, 2, 2), Background);
}

TEST_F(MarginTexts, EdgeIsOnePixelOfWhiteAndDarkGrey)
{
    const QImage picture = WindowPicture();
    EXPECT_EQ(PixelAt(picture, 100, 0), 0x808080U);
    EXPECT_EQ(PixelAt(picture, 0, 100), 0x808080U);
    EXPECT_EQ(PixelAt(picture, 100, Height - 1), 0xFFFFFFU);
    EXPECT_EQ(PixelAt(picture, Width - 1, 100), 0xFFFFFFU);
    EXPECT_EQ(PixelAt(picture, 1, 1), Background);
}

TEST_F(MarginTexts, MarginBelow28HasTheEdgeAlone)
{
    MarginThickness = 27;
    LayoutBoard(Width, Height, 0);
    const QImage picture = WindowPicture();
    EXPECT_GE(BoardPlace.X, 27);
    EXPECT_EQ(TextIn(picture, {1, 1, Width - 2, Height - 2}), Rectangle());
    MarginThickness = 28;
    EXPECT_NE(TextIn(WindowPicture(), {1, 1, Width - 2, Height - 2}), Rectangle());
}

TEST_F(MarginTexts, ColumnLabelsStandOverTheMiddlesOfTheColumns)
{
    const QImage picture = WindowPicture();
    for (int column = 1; column <= 9; ++column) {
        const int middle = BoardPlace.X + CellX(column) + CellWidth / 2;
        const Rectangle over{middle - CellWidth / 2, 1, CellWidth, BoardPlace.Y - 1};
        const Rectangle text = TextIn(picture, over);
        EXPECT_NEAR(MiddleOf(text).X, middle, 2) << column;
        EXPECT_LT(text.Y + text.Height, BoardPlace.Y);
        EXPECT_GT(text.Y, BoardPlace.Y - 19);
    }
}

TEST_F(MarginTexts, RowLabelsEndFourPixelsBeforeTheBoard)
{
    const QImage picture = WindowPicture();
    for (int row = 1; row <= 9; ++row) {
        const int middle = BoardPlace.Y + CellY(row) + CellHeight / 2;
        const Rectangle beside{1, middle - CellHeight / 2, BoardPlace.X - 1, CellHeight};
        const Rectangle text = TextIn(picture, beside);
        EXPECT_NEAR(MiddleOf(text).Y, middle, 2) << row;
        EXPECT_LE(text.X + text.Width, BoardPlace.X - 4);
        EXPECT_GE(text.X, BoardPlace.X - 4 - 9);
    }
}

// Cells that are three times as wide as high tell which side a place is worked out from.
TEST_F(MarginTexts, LabelsStandByTheirLinesInAWideWindowAndInAHighOne)
{
    for (const auto &[width, height] : {std::pair(1600, 500), std::pair(500, 1600)}) {
        LayoutBoard(width, height, 0);
        const QImage picture = WindowPicture(width, height);
        for (int line = 1; line <= 9; ++line) {
            const int across = BoardPlace.X + CellX(line) + CellWidth / 2;
            const int down = BoardPlace.Y + CellY(line) + CellHeight / 2;
            const Rectangle over{across - CellWidth / 2, 1, CellWidth, BoardPlace.Y - 1};
            const Rectangle beside{1, down - CellHeight / 2, BoardPlace.X - 1, CellHeight};
            EXPECT_NEAR(MiddleOf(TextIn(picture, over)).X, across, 2) << line;
            EXPECT_NEAR(MiddleOf(TextIn(picture, beside)).Y, down, 2) << line;
        }
    }
}

TEST_F(MarginTexts, LabelsAreWrittenInTheMarginTextColour)
{
    EXPECT_GT(CountOf(WindowPicture(), AboveBoard(), Ink), 20);
    ColourTable[MarginColour] = 0xD0D0D0;
    PickMarginTextColour();
    EXPECT_GT(CountOf(WindowPicture(), AboveBoard(), 0), 20);
}

TEST_F(MarginTexts, LabelsAreNoLargerThanTwelvePoints)
{
    EXPECT_GT(GivenFontSize, 12);
    const Rectangle text = TextIn(WindowPicture(), AboveBoard());
    EXPECT_GE(text.Height, 11);
    EXPECT_LE(text.Height, 13);
}

TEST_F(MarginTexts, RatingStandsBelowTheLeftEndOfTheBoard)
{
    const Rectangle below = BelowBoard();
    const Rectangle left{1, below.Y, Width / 2, below.Height};
    const Rectangle text = TextIn(WindowPicture(), left);
    EXPECT_NEAR(text.X, BoardPlace.X, 2);
    EXPECT_GE(text.Y, BoardPlace.Y + BoardPlace.Height + 4);
    EXPECT_NEAR(text.Width, TextWidth(BoardFace(12), "Easy"), 3);
}

TEST_F(MarginTexts, GivenCountEndsWithTheBoard)
{
    const Rectangle below = BelowBoard();
    const Rectangle right{Width / 2, below.Y, Width / 2 - 1, below.Height};
    const Rectangle text = TextIn(WindowPicture(), right);
    EXPECT_NEAR(text.X + text.Width, BoardPlace.X + BoardPlace.Width, 2);
    EXPECT_NEAR(text.Width, TextWidth(BoardFace(12), "# given cells: 30"), 3);
}

TEST_F(MarginTexts, LongRatingOnANarrowBoardDropsTheGivenCount)
{
    LayoutBoard(300, 400, 0);
    GameRating = 6;
    const double points = std::min(GivenFontSize, 12.0);
    BoardPlace.Width = TextWidth(BoardFace(points), "Multiple solutions") +
                       TextWidth(BoardFace(points), "# given cells: 30");
    const int y = BoardPlace.Y + BoardPlace.Height + 1;
    const Rectangle below{1, y, 298, 400 - y - 1};
    const int both = TextIn(WindowPicture(300, 400), below).Width;
    EXPECT_NEAR(both, BoardPlace.Width, 3);
    --BoardPlace.Width;
    const int one = TextIn(WindowPicture(300, 400), below).Width;
    EXPECT_NEAR(one, TextWidth(BoardFace(points), "Multiple solutions"), 3);
}

TEST_F(MarginTexts, HiddenCoordinatesLeaveRatingAndCountInTheirColourAndTheWindowsFont)
{
    CoordinatesVisible = False;
    // The font may be any that the machine has; what it writes is the same here and there.
    for (const int pixels : {10, 20}) {
        for (const Colour margin : {0x000000U, 0x204060U, 0xFFFFFFU}) {
            ColourTable[MarginColour] = margin;
            PickMarginTextColour();
            const Colour ink = margin == 0xFFFFFF ? 0x000000 : 0xFFFFFF;
            QFont font;
            font.setPixelSize(pixels);
            const QImage written = WindowPicture(Width, Height, 0x000000, font);
            QImage expected(Width, Height, QImage::Format_RGB32);
            expected.fill(QColor::fromRgb(margin));
            const QImage blank = expected;
            EXPECT_EQ(DifferenceOf(written, blank, AboveBoard()), Rectangle());
            EXPECT_EQ(DifferenceOf(written, blank, LeftOfBoard()), Rectangle());
            WriteRatingAndCount(expected, FaceOf(font), ink);
            EXPECT_NE(DifferenceOf(expected, blank, BelowBoard()), Rectangle())
                << "the machine has a font";
            EXPECT_EQ(DifferenceOf(written, expected, BelowBoard()), Rectangle());
        }
    }
}

TEST_F(MarginTexts, AnyWindowPaints)
{
    for (const int size : {1, 2, 30, 4000}) {
        LayoutBoard(size, size, 0);
        EXPECT_EQ(CountOf(WindowPicture(size, size), {0, 0, size, size}, Untouched), 0);
    }
}

} // namespace
} // namespace kelvarine::testing
