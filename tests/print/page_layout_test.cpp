#include "board/geometry.h"
#include "board/look.h"
#include "print/page_layout.h"
#include "print/print_settings.h"
#include "support/outside_double.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace kelvarine::testing {
namespace {

// A page of 7.5 by 10 inches and a board as wide as it is high.
class PagePlaces : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        BoardPlace = {0, 0, 500, 500};
        TakePrintableArea();
    }
};

class PrintMeasures : public PagePlaces {};
class BatchLayouts : public PagePlaces {};
class PrintGridSizes : public PagePlaces {};

// ---- Place and size of the current game ----------------------------------------------------

TEST_F(PagePlaces, PrintableAreaIsTakenFromThePrinter)
{
    EXPECT_DOUBLE_EQ(PrintableWidth, 7.5);
    EXPECT_DOUBLE_EQ(PrintableHeight, 10);
    Seen.Paper = {1200, 3000, 600, 1200};
    TakePrintableArea();
    EXPECT_DOUBLE_EQ(PrintableWidth, 2);
    EXPECT_DOUBLE_EQ(PrintableHeight, 2.5);
}

TEST_F(PagePlaces, PrintableAreaIsThatOfALetterUntilThePrinterIsAsked)
{
    PrintableWidth = PrintableHeight = 1;
    SetPageDefaults();
    EXPECT_DOUBLE_EQ(PrintableWidth, 7.5);
    EXPECT_DOUBLE_EQ(PrintableHeight, 10);
}

TEST_F(PagePlaces, FiveInchesInTheMiddleByDefault)
{
    EXPECT_EQ(CurrentGamePlace(1, 1), (PagePlace{1.25, 2.5, 5, 5}));
    EXPECT_TRUE(HasSize());
}

TEST_F(PagePlaces, CentreWorksOutLeftAndTopAndKeepsTheirBoxesShut)
{
    PrintAspect = False;
    SetPrintWidth(3);
    SetPrintHeight(4);
    ArrangePicture();
    EXPECT_DOUBLE_EQ(PrintLeft, 2.25);
    EXPECT_DOUBLE_EQ(PrintTop, 3);
    EXPECT_FALSE(IsPlaceFree());
    EXPECT_TRUE(IsSizeFree());
}

TEST_F(PagePlaces, WithoutCentreLeftAndTopStayAndAreFree)
{
    PrintCentre = False;
    PrintLeft = 0.5;
    PrintTop = 6;
    SetPrintWidth(3);
    ArrangePicture();
    EXPECT_DOUBLE_EQ(PrintLeft, 0.5);
    EXPECT_DOUBLE_EQ(PrintTop, 6);
    EXPECT_TRUE(IsPlaceFree());
}

TEST_F(PagePlaces, PictureWiderThanThePageHangsOverBothEdges)
{
    SetPrintWidth(9.5);
    ArrangePicture();
    EXPECT_DOUBLE_EQ(PrintLeft, -1);
}

TEST_F(PagePlaces, FullPageTakesTheWholeAreaWithoutAspect)
{
    PrintAspect = False;
    SetPrintFullPage(True);
    EXPECT_EQ(CurrentGamePlace(1, 1), (PagePlace{0, 0, 7.5, 10}));
}

TEST_F(PagePlaces, FullPageWithAspectTakesTheWholeWidthWhenTheHeightFits)
{
    BoardPlace = {0, 0, 500, 600};
    SetPrintFullPage(True);
    EXPECT_EQ(CurrentGamePlace(1, 1), (PagePlace{0, 0.5, 7.5, 9}));
}

TEST_F(PagePlaces, FullPageWithAspectTakesTheWholeHeightWhenThatDoesNotFit)
{
    BoardPlace = {0, 0, 400, 800};
    SetPrintFullPage(True);
    EXPECT_EQ(CurrentGamePlace(1, 1), (PagePlace{1.25, 0, 5, 10}));
}

TEST_F(PagePlaces, FullPageTicksCentreAndShutsSizePlaceAndCentre)
{
    PrintCentre = False;
    SetPrintFullPage(True);
    EXPECT_EQ(PrintCentre, True);
    EXPECT_FALSE(IsCentreFree());
    EXPECT_FALSE(IsSizeFree());
    EXPECT_FALSE(IsPlaceFree());
    PrintCentre = False;
    EXPECT_FALSE(IsPlaceFree()) << "the full page alone keeps them shut";
}

TEST_F(PagePlaces, FullPageOfAFileTicksCentreToo)
{
    PrintAspect = False;
    PrintCentre = False;
    PrintLeft = 3;
    PrintFullPage = True; // as a file may hold them
    ArrangePicture();
    EXPECT_EQ(PrintCentre, True);
    EXPECT_EQ(PrintLeft, 0);
}

TEST_F(PagePlaces, LeavingTheFullPageFreesTheSizeAndLeavesCentreTicked)
{
    SetPrintFullPage(True);
    SetPrintFullPage(False);
    EXPECT_TRUE(IsSizeFree());
    EXPECT_TRUE(IsCentreFree());
    EXPECT_EQ(PrintCentre, True);
    EXPECT_FALSE(IsPlaceFree());
    EXPECT_DOUBLE_EQ(PrintWidth, 7.5);
}

TEST_F(PagePlaces, AspectLetsTheHeightFollowTheWidth)
{
    BoardPlace = {0, 0, 400, 500};
    SetPrintWidth(4);
    EXPECT_DOUBLE_EQ(PrintWidth, 4);
    EXPECT_DOUBLE_EQ(PrintHeight, 5);
}

TEST_F(PagePlaces, AspectLetsTheWidthFollowTheHeight)
{
    BoardPlace = {0, 0, 400, 500};
    SetPrintHeight(2.5);
    EXPECT_DOUBLE_EQ(PrintWidth, 2);
    EXPECT_DOUBLE_EQ(PrintHeight, 2.5);
}

TEST_F(PagePlaces, WithoutAspectEachChangesAlone)
{
    PrintAspect = False;
    SetPrintWidth(4);
    EXPECT_DOUBLE_EQ(PrintHeight, 5);
    SetPrintHeight(3);
    EXPECT_DOUBLE_EQ(PrintWidth, 4);
}

TEST_F(PagePlaces, WidthOrHeightOfNoughtIsNoSize)
{
    PrintAspect = False;
    SetPrintWidth(0);
    EXPECT_FALSE(HasSize());
    SetPrintWidth(5);
    SetPrintHeight(0);
    EXPECT_FALSE(HasSize());
}

TEST_F(PagePlaces, PictureIsPrintedAsTheBoxesShowIt)
{
    PrintLeft = 1.2345;
    PrintTop = 2.0051;
    PrintWidth = 10.0 / 3;
    PrintHeight = 4.9951;
    const PagePlace place = CurrentGamePlace(100, 1000);
    EXPECT_DOUBLE_EQ(place.Left, 123);
    EXPECT_DOUBLE_EQ(place.Top, 2010);
    EXPECT_DOUBLE_EQ(place.Width, 333);
    EXPECT_DOUBLE_EQ(place.Height, 5000);
    PrintLeft = -1.2345; // of a picture wider than the page
    EXPECT_DOUBLE_EQ(CurrentGamePlace(100, 1000).Left, -123);
}

TEST_F(PagePlaces, SizeShownAsNoughtIsNoSize)
{
    PrintWidth = 0.004;
    EXPECT_FALSE(HasSize());
    PrintWidth = 0.006;
    EXPECT_TRUE(HasSize());
    PrintHeight = 0.004;
    EXPECT_FALSE(HasSize());
}

// ---- Batches -------------------------------------------------------------------------------

struct ExpectedLayout {
    double Side;
    int Columns;
    int Rows;
    double GapAcross;
    double GapDown;
};

struct ExpectedPage {
    double Width;
    double Height;
    std::vector<ExpectedLayout> Games; // by index
    ExpectedLayout Solutions;
};

// Worked out by hand: a letter at 300 pixels to the inch, a broad page on which the higher
// layouts overlap, and a preview.
const std::vector<ExpectedPage> &ExpectedPages()
{
    static const std::vector<ExpectedPage> pages{
        {2400,
         3300,
         {{1680, 1, 1, 360, 810},
          {1320, 1, 2, 540, 220},
          {924, 1, 3, 738, 132},
          {960, 2, 2, 160, 460},
          {840, 2, 3, 240, 195},
          {726, 2, 4, 316, 79.2},
          {726, 3, 4, 55.5, 79.2}},
         {495, 4, 6, 84, 330.0 / 7}},
        {1000,
         700,
         {{700, 1, 1, 150, 0},
          {280, 1, 2, 360, 140.0 / 3},
          {196, 1, 3, 402, 28},
          {400, 2, 2, 200.0 / 3, -100.0 / 3},
          {350, 2, 3, 100, -87.5},
          {154, 2, 4, 692.0 / 3, 16.8},
          {154, 3, 4, 134.5, 16.8}},
         {105, 4, 6, 116, 10}},
        {210,
         297,
         {{147, 1, 1, 31.5, 75},
          {118.8, 1, 2, 45.6, 19.8},
          {83.16, 1, 3, 63.42, 11.88},
          {84, 2, 2, 14, 43},
          {73.5, 2, 3, 21, 19.125},
          {65.34, 2, 4, 26.44, 7.128},
          {65.34, 3, 4, 3.495, 7.128}},
         {44.55, 4, 6, 6.36, 29.7 / 7}},
    };
    return pages;
}

void ExpectLayout(const PageLayout &layout, const ExpectedLayout &expected)
{
    EXPECT_NEAR(layout.Side, expected.Side, 1e-9);
    EXPECT_EQ(layout.Columns, expected.Columns);
    EXPECT_EQ(layout.Rows, expected.Rows);
    EXPECT_NEAR(layout.GapAcross, expected.GapAcross, 1e-9);
    EXPECT_NEAR(layout.GapDown, expected.GapDown, 1e-9);
}

TEST_F(BatchLayouts, SidesAndGapsOfAllSevenOnThreePages)
{
    for (const ExpectedPage &page : ExpectedPages()) {
        for (std::size_t index = 0; index < page.Games.size(); ++index) {
            SCOPED_TRACE(std::to_string(page.Width) + " index " + std::to_string(index));
            ExpectLayout(LayoutOfGames(index, page.Width, page.Height), page.Games[index]);
        }
    }
}

TEST_F(BatchLayouts, SidesAndGapsOfTheSolutionsOnThreePages)
{
    for (const ExpectedPage &page : ExpectedPages()) {
        SCOPED_TRACE(page.Width);
        ExpectLayout(LayoutOfSolutions(page.Width, page.Height), page.Solutions);
    }
}

TEST_F(BatchLayouts, EachHoldsItsNumberOfGames)
{
    const std::vector<int> games{1, 2, 3, 4, 6, 8, 12};
    for (std::size_t index = 0; index < games.size(); ++index) {
        const PageLayout layout = LayoutOfGames(index, 100, 100);
        EXPECT_EQ(layout.Columns * layout.Rows, games[index]);
        PrintGamesPerPage = static_cast<std::int32_t>(index);
        EXPECT_EQ(GamesOnPage(), games[index]);
    }
}

TEST_F(BatchLayouts, GamesFillAPageRowByRow)
{
    const PageLayout layout = LayoutOfGames(4, 2400, 3300);
    EXPECT_EQ(PlaceOf(layout, 0), (PagePlace{240, 195, 840, 840}));
    EXPECT_EQ(PlaceOf(layout, 1), (PagePlace{1320, 195, 840, 840}));
    EXPECT_EQ(PlaceOf(layout, 2), (PagePlace{240, 1230, 840, 840}));
    EXPECT_EQ(PlaceOf(layout, 5), (PagePlace{1320, 2265, 840, 840}));
}

TEST_F(BatchLayouts, BatchIsPagesTimesGames)
{
    PrintGamesPerPage = 4;
    PrintPages = 2;
    EXPECT_EQ(GamesInBatch(), 12);
    EXPECT_EQ(BatchSizeText(), "12 games");
    PrintPages = 0;
    EXPECT_EQ(BatchSizeText(), "0 games");
    PrintGamesPerPage = 0;
    PrintPages = 1;
    EXPECT_EQ(BatchSizeText(), "1 game");
}

TEST_F(BatchLayouts, IndexThatThereIsNotStaysWithinTheTable)
{
    PrintGamesPerPage = 7;
    EXPECT_EQ(GamesOnPage(), 1);
    PrintGamesPerPage = -1;
    EXPECT_EQ(GamesOnPage(), 1);
    EXPECT_EQ(LayoutOfGames(1000, 10, 10).Columns, 3);
}

// ---- The picture of a game -----------------------------------------------------------------

TEST_F(PrintGridSizes, NominalFiveHundredPixelsWhateverTheBoardIs)
{
    EXPECT_EQ(PrintCellSide(), 50); // (480 - 32) / 9 = 49.8
    EXPECT_EQ(PrintGridSide(), 502);
    LayoutBoard(3000, 2000, 0);
    EXPECT_EQ(PrintCellSide(), 50);
}

TEST_F(PrintGridSizes, FollowTheThicknesses)
{
    PrimaryThickness = 2;
    SecondaryThickness = 1;
    BorderThickness = 0;
    EXPECT_EQ(PrintCellSide(), 54); // (500 - 14) / 9 = 54
    EXPECT_EQ(PrintGridSide(), 500);
    PrimaryThickness = 5;
    SecondaryThickness = 2;
    BorderThickness = 20;
    EXPECT_EQ(PrintCellSide(), 48); // (460 - 32) / 9 = 47.6
    EXPECT_EQ(PrintGridSide(), 504);
}

TEST_F(PrintGridSizes, LinesThatLeaveNoRoomLeaveCellsOfAPixel)
{
    PrimaryThickness = 200;
    EXPECT_EQ(PrintCellSide(), 1);
    EXPECT_EQ(PrintGridSide(), 829);
}

TEST_F(PrintGridSizes, FontsComeFromTheSideOfACell)
{
    EXPECT_EQ(PrintCellSizes(), (CellSizes{50, 50, 50 / 1.5, 50 / 3.0, 50 / 4.0, 50 / 5.0}));
}

TEST_F(PrintGridSizes, CellsWithoutRoomHaveTheSmallestFonts)
{
    PrimaryThickness = 200;
    EXPECT_EQ(PrintCellSizes(), (CellSizes{1, 1, 0.1, 0.1, 0.1, 0.1}));
}

// ---- Texts ---------------------------------------------------------------------------------

TEST_F(PrintMeasures, ShowOneOrTwoDecimals)
{
    EXPECT_EQ(MeasureText(5, "."), "5.0");
    EXPECT_EQ(MeasureText(5.25, "."), "5.25");
    EXPECT_EQ(MeasureText(0.5, "."), "0.5");
    EXPECT_EQ(MeasureText(0.05, "."), "0.05");
    EXPECT_EQ(MeasureText(0, "."), "0.0");
    EXPECT_EQ(MeasureText(7.768, "."), "7.77");
    EXPECT_EQ(MeasureText(10.999, "."), "11.0");
    EXPECT_EQ(MeasureText(-1, "."), "-1.0");
    EXPECT_EQ(MeasureText(-0.25, "."), "-0.25");
    EXPECT_EQ(MeasureText(-0.001, "."), "0.0");
}

TEST_F(PrintMeasures, ShowTheSignOfTheLocale)
{
    EXPECT_EQ(MeasureText(5.25, ","), "5,25");
    EXPECT_EQ(MeasureText(5.25, "\u066B"), "5\u066B25");
}

TEST_F(PrintMeasures, AreReadWithPointCommaAndTheSignOfTheLocale)
{
    EXPECT_DOUBLE_EQ(MeasureFrom("5.25", "."), 5.25);
    EXPECT_DOUBLE_EQ(MeasureFrom("5,25", "."), 5.25);
    EXPECT_DOUBLE_EQ(MeasureFrom("5.25", ","), 5.25);
    EXPECT_DOUBLE_EQ(MeasureFrom("5\u066B25", "\u066B"), 5.25);
    EXPECT_DOUBLE_EQ(MeasureFrom(".5", "."), 0.5);
    EXPECT_DOUBLE_EQ(MeasureFrom("12", "."), 12);
    EXPECT_DOUBLE_EQ(MeasureFrom("12.", "."), 12);
}

TEST_F(PrintMeasures, AreReadAsFarAsTheyAreNumbers)
{
    EXPECT_DOUBLE_EQ(MeasureFrom("", "."), 0);
    EXPECT_DOUBLE_EQ(MeasureFrom("abc", "."), 0);
    EXPECT_DOUBLE_EQ(MeasureFrom("-3", "."), 0);
    EXPECT_DOUBLE_EQ(MeasureFrom("4x5", "."), 4);
    EXPECT_DOUBLE_EQ(MeasureFrom("4.2.5", "."), 4.2);
    EXPECT_DOUBLE_EQ(MeasureFrom("1e308", "."), 1);
    EXPECT_DOUBLE_EQ(MeasureFrom(std::string(400, '9'), "."), 1000);
    EXPECT_DOUBLE_EQ(MeasureFrom("\xFF\xFE", "."), 0);
}

TEST_F(PrintMeasures, SurviveTheWayThroughTheirTextWithEitherSign)
{
    for (int hundredths = 0; hundredths <= 3000; ++hundredths) {
        for (const char *sign : {".", ","}) {
            const double read = MeasureFrom(MeasureText(hundredths / 100.0, sign), sign);
            ASSERT_EQ(std::lround(read * 100), hundredths);
        }
    }
}

TEST_F(PrintMeasures, PrintableAreaHasOneDecimalAndNoNought)
{
    EXPECT_EQ(PrintableAreaText("."), "Printable area:  7.5 x 10.0");
    PrintableWidth = 0.5;
    PrintableHeight = 11.19;
    EXPECT_EQ(PrintableAreaText("."), "Printable area:  .5 x 11.2");
    EXPECT_EQ(PrintableAreaText(","), "Printable area:  ,5 x 11,2");
}

} // namespace
} // namespace kelvarine::testing
