#include "commands/print_run.h"
#include "commands/printing_fixture.h"
#include "grid/grid.h"
#include "logic/driver.h"
#include "print/print_settings.h"
#include "support/outside_double.h"
#include "support/play.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

// ---- The current game ----------------------------------------------------------------------

class PrintedCurrentGame : public Printing {};

TEST_F(PrintedCurrentGame, StandsAtTheMeasuresInThePrintersPixels)
{
    PrintAspect = False;
    PrintCentre = False;
    PrintLeft = 0.5;
    PrintTop = 1.25;
    PrintWidth = 3;
    PrintHeight = 4;
    cmdPrint();
    ASSERT_EQ(Pictures().size(), 1U);
    EXPECT_EQ(Pictures()[0].Text, "board");
    EXPECT_EQ(Pictures()[0].Place, (PagePlace{150, 375, 900, 1200}));
    EXPECT_EQ(Seen.EndedDocuments.size(), 1U);
    EXPECT_TRUE(Seen.Messages.empty());
}

TEST_F(PrintedCurrentGame, MeasuresHoldWherePixelsAreNotSquare)
{
    Seen.Paper = {2250, 6000, 300, 600};
    PrintCentre = False;
    PrintLeft = 1;
    PrintTop = 1;
    cmdPrint();
    EXPECT_EQ(Pictures().at(0).Place, (PagePlace{300, 600, 1500, 3000}));
}

TEST_F(PrintedCurrentGame, HasItsRatingAndGivenCountUnderItsEdges)
{
    PrintCentre = False;
    cmdPrint();
    ASSERT_EQ(Texts(), (std::vector<std::string>{"Easy", "# given cells: 30"}));
    EXPECT_EQ(Seen.Printed[1].Place, (PagePlace{0, 1500, 0, 0}));
    EXPECT_EQ(Seen.Printed[2].Place, (PagePlace{1500 - 17 * 20, 1500, 0, 0}));
}

TEST_F(PrintedCurrentGame, GivenCountIsLeftOutWhenTheTextsDoNotFit)
{
    PrintWidth = PrintHeight = 21.0 * 20 / 300; // as wide as both texts
    cmdPrint();
    EXPECT_EQ(Texts(), (std::vector<std::string>{"Easy", "# given cells: 30"}));
    Seen.Printed.clear();
    PrintWidth = PrintHeight = 20.9 * 20 / 300;
    cmdPrint();
    EXPECT_EQ(Texts(), (std::vector<std::string>{"Easy"}));
}

TEST_F(PrintedCurrentGame, EveryRatingHasItsWord)
{
    const std::vector<std::string> words{
        "None",      "Easy", "Medium", "Hard", "Very hard", "Extreme", "Multiple solutions",
        "Impossible"};
    for (std::size_t rating = 0; rating < words.size(); ++rating) {
        Seen.Printed.clear();
        GameRating = static_cast<std::int32_t>(rating);
        cmdPrint();
        EXPECT_EQ(Texts().at(0), words[rating]);
    }
    Seen.Printed.clear();
    GameRating = 8;
    cmdPrint();
    EXPECT_EQ(Texts().at(0), "");
}

TEST_F(PrintedCurrentGame, IsPutInTheMiddleOfThePaperThatWasChosen)
{
    Seen.Paper = {3000, 3600, 300, 300};
    cmdPrint();
    EXPECT_EQ(Pictures().at(0).Place, (PagePlace{750, 1050, 1500, 1500}));
}

TEST_F(PrintedCurrentGame, WidthOfNoughtPrintsNothingAndSaysNothing)
{
    PrintWidth = 0;
    cmdPrint();
    EXPECT_EQ(Acts(), std::vector<std::string>());
    EXPECT_EQ(Seen.PrintedPages, 0);
}

TEST_F(PrintedCurrentGame, HeightOfNoughtPrintsNothingAndSaysNothing)
{
    PrintHeight = 0;
    cmdPrint();
    EXPECT_EQ(Acts(), std::vector<std::string>());
    EXPECT_EQ(Seen.PrintedPages, 0);
}

TEST_F(PrintedCurrentGame, NothingIsPrintedWhenThePlayerChoosesNoPrinter)
{
    Seen.PrinterRefused = true;
    cmdPrint();
    EXPECT_EQ(Acts(), std::vector<std::string>{"choose printer: "});
}

TEST_F(PrintedCurrentGame, FailureIsToldInTheSystemsWords)
{
    for (int works = 0; works < 3; ++works) {
        ForgetRecord();
        Seen.Printed.clear();
        Seen.PrintsBeforeFailure = works;
        cmdPrint();
        EXPECT_EQ(Seen.Messages, std::vector<std::string>{"No paper left"}) << works;
    }
}

TEST_F(PrintedCurrentGame, PrintingChangesNothingOfTheGame)
{
    const std::string before = ProgramState();
    cmdPrint();
    ForgetRecord();
    EXPECT_EQ(ProgramState(), before);
}

TEST_F(PrintedCurrentGame, GreyscaleMakesNoDifference)
{
    cmdPrint();
    const std::vector<PrintedThing> before = Seen.Printed;
    Seen.Printed.clear();
    PrintGreyScale = True;
    cmdPrint();
    ASSERT_EQ(Seen.Printed.size(), before.size());
    for (std::size_t k = 0; k < before.size(); ++k) {
        EXPECT_EQ(Seen.Printed[k].Text, before[k].Text);
        EXPECT_EQ(Seen.Printed[k].Place, before[k].Place);
    }
}

// ---- The button during other searches ------------------------------------------------------

TEST_F(Printing, ButtonDoesNothingWhileSolutionsAreListed)
{
    SearchActive = True;
    SearchKind = ListingSolutions;
    cmdPrint();
    EXPECT_EQ(Acts(), std::vector<std::string>());
}

TEST_F(Printing, ButtonAsksWhetherToStopAnotherGameSearch)
{
    SearchActive = True;
    SearchKind = SearchingGame;
    cmdPrint();
    EXPECT_EQ(Seen.Questions, std::vector<std::string>{"Would you like to stop searching?"});
    EXPECT_EQ(Seen.PrintedPages, 0);
}

} // namespace
} // namespace kelvarine::testing
