#include "game/clock.h"
#include "game/win_display.h"
#include "grid/colour.h"
#include "grid/grid.h"
#include "paint/board_painter.h"
#include "paint/number_painter.h"
#include "paint/text_painter.h"
#include "support/pixels.h"
#include "support/positions.h"

namespace kelvarine::testing {
namespace {

constexpr Cell Place{5, 5};
constexpr Colour GivenInk = 0xF0E0D0;
constexpr Colour UnknownInk = 0xC0FFB0;
constexpr Colour RuledInk = 0x0080FF;

CellWord Candidates(std::string_view digits)
{
    CellWord word = 0;
    for (const char digit : digits) {
        word |= BitOf(digit - '0');
    }
    return word;
}

class Numbers : public FlatBoard {
protected:
    void SetUp() override
    {
        FlatBoard::SetUp();
        ColourTable[GivenNumberColour] = GivenInk;
        ColourTable[UnknownNumberColour] = UnknownInk;
        ColourTable[PencilmarkLineColour] = RuledInk;
    }
};

QImage NumbersPainted(CellWord word)
{
    WordAt(Place) = word;
    QImage picture = EmptyPicture();
    DrawNumbers(CanvasOf(picture), Place);
    return picture;
}

Rectangle Whole(const QImage &picture)
{
    return {0, 0, picture.width(), picture.height()};
}

// Where the only number of a cell's that is in view was painted.
Rectangle InkOf(CellWord word, int number)
{
    NumberFilter = BitOf(number);
    const QImage picture = NumbersPainted(word);
    NumberFilter = CandidateMask;
    return DifferenceOf(picture, EmptyPicture(), Whole(picture));
}

// Expects number to stand round a point, at the height of a digit of a size in points.
void ExpectNumber(CellWord word, int number, int x, int y, double points)
{
    const Rectangle ink = InkOf(word, number);
    const Point wanted{CellX(5) + x, CellY(5) + y};
    const int tolerance = 2 + static_cast<int>(points) / 12;
    EXPECT_TRUE(AreNear(MiddleOf(ink), wanted, tolerance))
        << number << " at " << ink.X << ' ' << ink.Y << ' ' << ink.Width << ' ' << ink.Height;
    const double digitHeight = points * 96 / 72 * 0.71; // of the typeface's digits
    EXPECT_NEAR(ink.Height, digitHeight, 2.5);
}

TEST_F(Numbers, GivenStandsLargeInTheCentreInItsColour)
{
    const CellWord word = GivenBit | Candidates("8");
    ExpectNumber(word, 8, 30, 32, 40);
    EXPECT_GT(CountOf(NumbersPainted(word), AreaOf(Place), GivenInk), 50);
}

TEST_F(Numbers, GivenOfSeveralCandidatesShowsTheLowest)
{
    const QImage picture = NumbersPainted(GivenBit | Candidates("357"));
    EXPECT_EQ(picture, NumbersPainted(GivenBit | Candidates("3")));
}

TEST_F(Numbers, SingleCandidateStandsLargeInTheCentreInTheOtherColour)
{
    for (const std::int32_t layout : {0, 1}) {
        PencilmarkLayout = layout;
        ExpectNumber(Candidates("8"), 8, 30, 32, 40);
        EXPECT_GT(CountOf(NumbersPainted(Candidates("8")), AreaOf(Place), UnknownInk), 50);
    }
}

TEST_F(Numbers, DigitsAreDrawnWholeAndDifferFromEachOther)
{
    std::vector<QImage> pictures;
    for (int number = 1; number <= 9; ++number) {
        pictures.push_back(NumbersPainted(BitOf(number)));
        for (std::size_t other = 0; other + 1 < pictures.size(); ++other) {
            EXPECT_NE(pictures.back(), pictures[other]);
        }
    }
}

TEST_F(Numbers, EdgesOfDigitsBlendWithWhatLiesBeneath)
{
    ColourTable[UnknownCellColour] = 0xFFFFFF;
    ColourTable[UnknownNumberColour] = 0x00FF00;
    WordAt(Place) = Candidates("8");
    const QImage board = PaintedBoard();
    int blended = 0;
    for (int y = CellY(5); y < CellY(5) + CellHeight; ++y) {
        for (const Colour colour : RowOf(board, y, CellX(5), CellX(5) + CellWidth - 1)) {
            EXPECT_EQ(colour >> 8 & 0xFF, 0xFFU);
            EXPECT_EQ(colour >> 16, colour & 0xFF);
            blended += colour != 0xFFFFFF && colour != 0x00FF00 ? 1 : 0;
        }
    }
    EXPECT_GT(blended, 20);
}

TEST_F(Numbers, PairStandsOnTheDiagonal)
{
    PencilmarkLayout = 0;
    ExpectNumber(Candidates("27"), 2, 18, 20, 20);
    ExpectNumber(Candidates("27"), 7, 41, 44, 20);
}

TEST_F(Numbers, IsolatedNumberOfAPairKeepsItsPlaceAndLosesTheDiagonal)
{
    PencilmarkLayout = 0;
    PencilmarkLines = True;
    NumberFilter = Candidates("7");
    const QImage picture = NumbersPainted(Candidates("27"));
    EXPECT_EQ(CountOf(picture, Whole(picture), RuledInk), 0);
    ExpectNumber(Candidates("27"), 7, 41, 44, 20);
}

TEST_F(Numbers, ThreeAndFourStandInTheQuarters)
{
    PencilmarkLayout = 0;
    ExpectNumber(Candidates("258"), 2, 15, 16, 15);
    ExpectNumber(Candidates("258"), 5, 45, 16, 15);
    ExpectNumber(Candidates("258"), 8, 15, 48, 15);
    ExpectNumber(Candidates("2589"), 9, 45, 48, 15);
}

TEST_F(Numbers, FiveAndMoreStandByNumberInRowsOfThree)
{
    PencilmarkLayout = 0;
    for (const std::string_view word : {"12589", "123456789"}) {
        ExpectNumber(Candidates(word), 1, 10, 10, 12);
        ExpectNumber(Candidates(word), 5, 30, 32, 12);
        ExpectNumber(Candidates(word), 9, 50, 53, 12);
    }
}

TEST_F(Numbers, ThreeByThreeLayoutKeepsAPairInItsFixedPlaces)
{
    PencilmarkLayout = 1;
    ExpectNumber(Candidates("27"), 2, 30, 10, 12);
    ExpectNumber(Candidates("27"), 7, 10, 53, 12);
}

TEST_F(Numbers, CellWithoutCandidatesShowsNeitherNumberNorRuledLines)
{
    PencilmarkLines = True;
    EXPECT_EQ(NumbersPainted(0), EmptyPicture());
    EXPECT_EQ(NumbersPainted(GivenBit), EmptyPicture());
}

TEST_F(Numbers, CellWithOneCandidateHasNoRuledLines)
{
    PencilmarkLines = True;
    const QImage picture = NumbersPainted(Candidates("4"));
    EXPECT_EQ(CountOf(picture, Whole(picture), RuledInk), 0);
}

TEST_F(Numbers, RuledLinesAreDrawnOnlyWhenWanted)
{
    const QImage picture = NumbersPainted(Candidates("27"));
    EXPECT_EQ(CountOf(picture, Whole(picture), RuledInk), 0);
}

TEST_F(Numbers, DiagonalRunsFromBelowTheCellToAboveIt)
{
    PencilmarkLayout = 0;
    PencilmarkLines = True;
    const QImage picture = NumbersPainted(Candidates("27"));
    const Rectangle all = Whole(picture);
    EXPECT_EQ(PixelAt(picture, CellX(5), CellY(5) + 64), RuledInk);
    EXPECT_EQ(PixelAt(picture, CellX(5) + 60, CellY(5) - 1), RuledInk);
    // One pixel in each of the 66 rows, none of them smoothed.
    EXPECT_EQ(CountOf(picture, all, RuledInk), 66);
    for (int y = CellY(5) - 1; y <= CellY(5) + 64; ++y) {
        EXPECT_EQ(CountOf(picture, {0, y, all.Width, 1}, RuledInk), 1);
    }
}

TEST_F(Numbers, QuartersAreRuledOnePixelPastTheCell)
{
    PencilmarkLayout = 0;
    PencilmarkLines = True;
    const QImage picture = NumbersPainted(Candidates("123"));
    const std::vector<Colour> across(61, RuledInk);
    const std::vector<Colour> down(65, RuledInk);
    EXPECT_EQ(RowOf(picture, CellY(5) + 32, CellX(5), CellX(5) + 60), across);
    EXPECT_EQ(ColumnOf(picture, CellX(5) + 30, CellY(5), CellY(5) + 64), down);
    EXPECT_EQ(CountOf(picture, Whole(picture), RuledInk), 61 + 65 - 1);
}

TEST_F(Numbers, NinthsAreRuledAtTheThirds)
{
    PencilmarkLayout = 1;
    PencilmarkLines = True;
    const QImage picture = NumbersPainted(Candidates("27"));
    const std::vector<Colour> across(61, RuledInk);
    const std::vector<Colour> down(65, RuledInk);
    EXPECT_EQ(RowOf(picture, CellY(5) + 21, CellX(5), CellX(5) + 60), across);
    EXPECT_EQ(RowOf(picture, CellY(5) + 42, CellX(5), CellX(5) + 60), across);
    EXPECT_EQ(ColumnOf(picture, CellX(5) + 20, CellY(5), CellY(5) + 64), down);
    EXPECT_EQ(ColumnOf(picture, CellX(5) + 40, CellY(5), CellY(5) + 64), down);
    EXPECT_EQ(CountOf(picture, Whole(picture), RuledInk), 2 * (61 + 65) - 4);
}

TEST_F(Numbers, HiddenGivenLooksEmptyButStaysAGiven)
{
    WordAt(Place) = GivenBit | Candidates("6");
    NumberFilter = CandidateMask & ~Candidates("6");
    const QImage board = PaintedBoard();
    EXPECT_EQ(CountOf(board, AreaOf(Place), ColourTable[GivenCellColour]), 60 * 64);
    EXPECT_EQ(WordAt(Place), GivenBit | Candidates("6"));
}

TEST_F(Numbers, GivenThatIsSelectedAndColouredShowsItsNumberInTheGivenColour)
{
    WordAt(Place) = GivenBit | SelectedBit | CellWord{3} << ColourShift | Candidates("6");
    const QImage board = PaintedBoard();
    EXPECT_EQ(PixelAt(board, CellX(5) + 1, CellY(5) + 1), ColourTable[SelectedCellColour]);
    EXPECT_GT(CountOf(board, AreaOf(Place), GivenInk), 50);
}

TEST_F(Numbers, PausedGameHidesNumbersAndRuledLinesButNotMarks)
{
    PencilmarkLines = True;
    WordAt(Place) = SelectedBit | AlertBit | Candidates("27");
    Grid[1][1] = GivenBit | Candidates("5");
    PauseCaption = "Resume";
    const QImage board = PaintedBoard();
    EXPECT_EQ(CountOf(board, Whole(board), RuledInk), 0);
    EXPECT_EQ(CountOf(board, Whole(board), UnknownInk), 0);
    EXPECT_EQ(CountOf(board, Whole(board), GivenInk), 0);
    EXPECT_GT(CountOf(board, AreaOf(Place), ColourTable[SelectedCellColour]), 2000);
    EXPECT_EQ(PixelAt(board, CellX(5) + 30, CellY(5) + 1), ColourTable[AlertColour]);
}

TEST_F(Numbers, WinDisplayShowsBlackNumbersWhateverTheColours)
{
    WinDisplayRunning = True;
    WinColoursSet = True;
    WinColours.fill(0xFFFFFF);
    WinStage = 2;
    Grid[1][1] = GivenBit | Candidates("5");
    WordAt(Place) = Candidates("5");
    const QImage board = PaintedBoard();
    EXPECT_GT(CountOf(board, AreaOf(1, 1), 0), 50);
    EXPECT_GT(CountOf(board, AreaOf(Place), 0), 50);
    EXPECT_EQ(CountOf(board, Whole(board), GivenInk), 0);
    EXPECT_EQ(CountOf(board, Whole(board), UnknownInk), 0);
}

TEST_F(Numbers, FractionsOfASizeCount)
{
    EXPECT_EQ(TextWidth(BoardFace(40), "0"), 30);
    EXPECT_EQ(TextWidth(BoardFace(40.7), "00000"), 151); // 54.27 pixels by 0.556 by 5
    EXPECT_LT(TextWidth(BoardFace(20.2), "0000000000"), TextWidth(BoardFace(20.6), "0000000000"));
}

TEST_F(Numbers, SmallestFontDrawsWithoutFailing)
{
    LayoutBoard(1, 1, 0);
    EXPECT_EQ(GivenFontSize, 0.1);
    EXPECT_FALSE(NumbersPainted(Candidates("123456789")).isNull());
    EXPECT_FALSE(NumbersPainted(GivenBit | Candidates("1")).isNull());
}

} // namespace
} // namespace kelvarine::testing
