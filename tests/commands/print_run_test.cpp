#include "board/geometry.h"
#include "commands/print_run.h"
#include "game/game_in_hand.h"
#include "game/lifecycle.h"
#include "generator/generator.h"
#include "generator/patterns.h"
#include "generator/random_source.h"
#include "logic/driver.h"
#include "print/page_layout.h"
#include "print/print_settings.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kelvarine::testing {
namespace {

constexpr std::uint32_t Seed = 4711;
constexpr std::int32_t SixPerPage = 4; // index

// A game that is being played, on a page of 2250 by 3000 pixels, 300 to the inch.
class Printing : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        init_genrand(Seed);
        BoardPlace = {0, 0, 500, 500};
        StartSavedGame(EasyGame);
        WordAt({3, 1}) = (WordAt({3, 1}) & SolutionMask) | BitTable[4] | SelectedBit;
        ForgetRecord();
    }
};

class PrintedCurrentGame : public Printing {};

class PrintedBatch : public Printing {
protected:
    void SetUp() override
    {
        Printing::SetUp();
        PrintMode = PrintNewGames;
        PrintIncludeSolutions = False;
    }
};

std::vector<PrintedThing> Pictures()
{
    std::vector<PrintedThing> pictures;
    std::ranges::copy_if(Seen.Printed, std::back_inserter(pictures), &PrintedThing::Picture);
    return pictures;
}

std::vector<std::string> Texts()
{
    std::vector<std::string> texts;
    for (const PrintedThing &thing : Seen.Printed) {
        if (!thing.Picture) {
            texts.push_back(thing.Text);
        }
    }
    return texts;
}

// Pictures on each page, from the first.
std::vector<int> PicturesByPage()
{
    std::vector<int> counts(static_cast<std::size_t>(Seen.PrintedPages));
    for (const PrintedThing &picture : Pictures()) {
        ++counts.at(static_cast<std::size_t>(picture.Page - 1));
    }
    return counts;
}

// Digits of SolutionMask, or "." where there are none, in the order of NumbersOf.
std::string SolutionOf(const GridTable &grid)
{
    GridTable solved{};
    for (const Cell cell : Cells) {
        solved[cell.Column][cell.Row] =
            (grid[cell.Column][cell.Row] & SolutionMask) >> SolutionShift;
    }
    return NumbersOf(solved);
}

// ---- The current game ----------------------------------------------------------------------

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

// ---- Batches -------------------------------------------------------------------------------

TEST_F(PrintedBatch, TwoPagesOfSixWithSolutionsAreTwelveGamesAndOnePageOfSolutions)
{
    PrintGamesPerPage = SixPerPage;
    PrintPages = 2;
    PrintIncludeSolutions = True;
    cmdPrint();
    EXPECT_EQ(PicturesByPage(), (std::vector<int>{6, 6, 12}));
    EXPECT_EQ(Seen.EndedDocuments, std::vector<std::string>{""});
}

TEST_F(PrintedBatch, TwentyFiveGamesHaveTwoPagesOfSolutions)
{
    PrintPages = 25;
    PrintIncludeSolutions = True;
    cmdPrint();
    std::vector<int> expected(25, 1);
    expected.insert(expected.end(), {24, 1});
    EXPECT_EQ(PicturesByPage(), expected);
}

TEST_F(PrintedBatch, TwentyFourSolutionsLeaveNoEmptyPageBehind)
{
    PrintGamesPerPage = 6; // twelve to a page
    PrintPages = 2;
    PrintIncludeSolutions = True;
    cmdPrint();
    EXPECT_EQ(PicturesByPage(), (std::vector<int>{12, 12, 24}));
}

TEST_F(PrintedBatch, WithoutSolutionsTheLastPageOfGamesIsTheLast)
{
    PrintGamesPerPage = SixPerPage;
    PrintPages = 2;
    cmdPrint();
    EXPECT_EQ(PicturesByPage(), (std::vector<int>{6, 6}));
}

TEST_F(PrintedBatch, EachLayoutPutsItsGamesInTheirPlaces)
{
    for (std::int32_t index = 0; index < 7; ++index) {
        Seen.Printed.clear();
        Seen.PrintedPages = 0;
        PrintGamesPerPage = index;
        cmdPrint();
        const std::vector<PrintedThing> pictures = Pictures();
        const PageLayout layout = LayoutOfGames(static_cast<std::size_t>(index), 2250, 3000);
        ASSERT_EQ(static_cast<int>(pictures.size()), GamesOnPage());
        for (std::size_t k = 0; k < pictures.size(); ++k) {
            EXPECT_EQ(pictures[k].Text, "grid");
            EXPECT_EQ(pictures[k].Place, PlaceOf(layout, static_cast<int>(k)));
        }
    }
}

TEST_F(PrintedBatch, GamesHaveRatingAndNumberUnderTheirEdges)
{
    PrintGamesPerPage = 1;
    cmdPrint();
    EXPECT_EQ(Texts(), (std::vector<std::string>{"Easy", "Game #1", "Easy", "Game #2"}));
    const PagePlace place = Pictures()[1].Place;
    const double under = place.Top + place.Height;
    EXPECT_EQ(Seen.Printed[4].Place, (PagePlace{place.Left, under, 0, 0}));
    EXPECT_EQ(Seen.Printed[5].Place, (PagePlace{place.Left + place.Width - 140, under, 0, 0}));
}

TEST_F(PrintedBatch, NumbersRunOnOverThePages)
{
    PrintGamesPerPage = 1;
    PrintPages = 3;
    cmdPrint();
    EXPECT_EQ(Texts().back(), "Game #6");
}

TEST_F(PrintedBatch, SolutionsAreThoseOfTheGamesAsGivens)
{
    PrintGamesPerPage = SixPerPage;
    PrintPages = 2;
    PrintIncludeSolutions = True;
    cmdPrint();
    const std::vector<PrintedThing> pictures = Pictures();
    ASSERT_EQ(pictures.size(), 24U);
    for (std::size_t k = 0; k < 12; ++k) {
        const GridTable &solution = pictures[k + 12].Cells;
        EXPECT_EQ(NumbersOf(solution), SolutionOf(pictures[k].Cells));
        for (const Cell cell : Cells) {
            EXPECT_NE(solution[cell.Column][cell.Row] & GivenBit, 0U);
            const CellWord game = pictures[k].Cells[cell.Column][cell.Row];
            if ((game & GivenBit) != 0) {
                EXPECT_EQ(game & CandidateMask, solution[cell.Column][cell.Row] & CandidateMask);
            }
        }
    }
}

TEST_F(PrintedBatch, SolutionsHaveTheirNumberOnly)
{
    PrintIncludeSolutions = True;
    cmdPrint();
    EXPECT_EQ(Texts(), (std::vector<std::string>{"Easy", "Game #1", "", "Game #1"}));
    const PagePlace place = PlaceOf(LayoutOfSolutions(2250, 3000), 0);
    EXPECT_EQ(Pictures()[1].Place, place);
    const PagePlace label = Seen.Printed.back().Place;
    EXPECT_DOUBLE_EQ(label.Left + PrintedTextWidth("Game #1"), place.Left + place.Width);
    EXPECT_DOUBLE_EQ(label.Top, place.Top + place.Height);
}

TEST_F(PrintedBatch, GamesAreThoseThatTheGeneratorMakes)
{
    PrintGamesPerPage = 3;
    cmdPrint();
    init_genrand(Seed);
    for (const PrintedThing &picture : Pictures()) {
        ASSERT_TRUE(GenerateGame());
        EXPECT_EQ(picture.Cells, Grid);
    }
}

TEST_F(PrintedBatch, PencilmarksAreFilledWhenWished)
{
    FillOnStart = True;
    cmdPrint();
    for (const Cell cell : Cells) {
        const CellWord word = Pictures()[0].Cells[cell.Column][cell.Row];
        EXPECT_EQ(CandidatesIn(word), (word & GivenBit) != 0 ? 1 : 9);
    }
}

TEST_F(PrintedBatch, NoGameThatTheAppliedLogicSolvesReachesThePage)
{
    SolveOnStart = True;
    SolveMask = BitTable[1] | BitTable[2];
    DifficultySelection = BitTable[1] | BitTable[2];
    PrintGamesPerPage = SixPerPage;
    cmdPrint();
    EXPECT_EQ(Pictures().size(), 6U);
    for (const PrintedThing &picture : Pictures()) {
        EXPECT_NE(NumbersOf(picture.Cells).find('.'), std::string::npos);
    }
    for (const std::string &text : Texts()) {
        EXPECT_NE(text, "Easy") << "singles solve every easy game";
    }
    EXPECT_TRUE(Seen.Messages.empty());
}

TEST_F(PrintedBatch, HiddenGamesArePrintedEmptyWithTheirSolutions)
{
    RevealPattern = ExposeManually;
    PrintIncludeSolutions = True;
    cmdPrint();
    EXPECT_EQ(NumbersOf(Pictures().at(0).Cells), Dots(81));
    EXPECT_EQ(Texts().at(0), "Multiple solutions");
    EXPECT_EQ(NumbersOf(Pictures().at(1).Cells).find('.'), std::string::npos);
}

TEST_F(PrintedBatch, NoPagesBringsTheNotice)
{
    PrintPages = 0;
    cmdPrint();
    EXPECT_EQ(Seen.Messages,
              std::vector<std::string>{"Please enter the number of pages you'd like to print."});
    EXPECT_EQ(Acts().size(), 1U);
}

TEST_F(PrintedBatch, NothingIsMadeWhenThePlayerChoosesNoPrinter)
{
    Seen.PrinterRefused = true;
    cmdPrint();
    EXPECT_EQ(Acts(), std::vector<std::string>{"choose printer: "});
}

TEST_F(PrintedBatch, SearchCanBeStoppedAsLongAsItRuns)
{
    PrintIncludeSolutions = True;
    PrintGamesPerPage = 1;
    cmdPrint();
    ASSERT_FALSE(Seen.Printed.empty());
    for (const PrintedThing &thing : Seen.Printed) {
        EXPECT_EQ(thing.SearchedFor, SearchingGame) << thing.Text;
    }
    EXPECT_EQ(SearchKind, NotStoppable);
    EXPECT_EQ(PrintRunning, False);
}

TEST_F(PrintedBatch, GamesScreenedCountsForEachGameAnew)
{
    std::vector<std::int32_t> counts;
    PrintGamesPerPage = SixPerPage;
    Seen.OnPrint = [&](const PrintedThing &thing) {
        if (thing.Picture) {
            counts.push_back(std::ranges::count_if(Seen.Calls, [](const std::string &call) {
                return call.starts_with("search banner: ");
            }));
            EXPECT_EQ(GamesScreened, counts.back());
            Seen.Calls.clear();
        }
    };
    cmdPrint();
    EXPECT_EQ(counts.size(), 6U);
}

TEST_F(PrintedBatch, ProgressTellsTheGameAndTheirNumber)
{
    PrintGamesPerPage = SixPerPage;
    PrintPages = 2;
    std::vector<std::string> texts;
    Seen.OnPrint = [&](const PrintedThing &thing) {
        if (thing.Picture) {
            texts.push_back(BatchProgressText());
            EXPECT_EQ(PrintRunning, True);
        }
        PrintPages = 1; // a change in the middle of it is for the next batch
    };
    cmdPrint();
    ASSERT_EQ(texts.size(), 12U);
    EXPECT_EQ(texts.front(), " Game 1 of 12 ");
    EXPECT_EQ(texts.back(), " Game 12 of 12 ");
}

// What a batch must leave as it was.
std::string HandState()
{
    ForgetRecord();
    const std::string chain = std::to_string(ChainColumns[1]) + std::to_string(ChainRows[1]);
    return ProgramState() + chain;
}

TEST_F(PrintedBatch, GameInHandIsBackAfterwards)
{
    SolveOnStart = True; // so that undo states are pushed
    SolveMask = BitTable[1];
    ChainColumns[0] = 2;
    ChainColumns[1] = 7;
    ChainRows[1] = 8;
    PrintIncludeSolutions = True;
    PrintGamesPerPage = SixPerPage;
    const std::string before = HandState();
    cmdPrint();
    EXPECT_EQ(Seen.BoardPaints, 1);
    EXPECT_EQ(HandState(), before);
}

TEST_F(PrintedBatch, ClickDuringARunAsksAndAYesEndsTheDocumentWithWhatWasPrinted)
{
    PrintGamesPerPage = SixPerPage;
    PrintPages = 2;
    PrintIncludeSolutions = True;
    const std::string before = HandState();
    Seen.YesNoAnswers = {true};
    Seen.OnYield = [] {
        if (PrintGameNumber == 8 && Seen.Questions.empty()) {
            cmdPrint();
        }
    };
    cmdPrint();
    EXPECT_EQ(Seen.Questions, std::vector<std::string>{"Would you like to stop searching?"});
    EXPECT_EQ(PicturesByPage(), (std::vector<int>{6, 1}));
    EXPECT_EQ(Seen.EndedDocuments, std::vector<std::string>{""});
    EXPECT_EQ(PrintRunning, False);
    EXPECT_EQ(SearchKind, NotStoppable);
    EXPECT_EQ(HandState(), before);
}

TEST_F(PrintedBatch, NoToTheQuestionLetsItRunOn)
{
    PrintGamesPerPage = SixPerPage;
    Seen.OnYield = [] {
        if (PrintGameNumber == 2 && Seen.Questions.empty()) {
            cmdPrint();
        }
    };
    cmdPrint();
    EXPECT_EQ(Seen.Questions.size(), 1U);
    EXPECT_EQ(PicturesByPage(), std::vector<int>{6});
}

TEST_F(PrintedBatch, StopBeforeTheFirstGamePrintsNothing)
{
    Seen.YesNoAnswers = {true};
    Seen.OnYield = [] {
        if (Seen.Questions.empty()) {
            cmdPrint();
        }
    };
    cmdPrint();
    EXPECT_EQ(Seen.PrintedPages, 0);
    EXPECT_EQ(Seen.EndedDocuments.size(), 1U);
}

TEST_F(PrintedBatch, StopWithAFullPageBehindItLeavesNoEmptyPage)
{
    PrintPages = 3;
    Seen.YesNoAnswers = {true};
    Seen.OnYield = [] {
        if (PrintGameNumber == 2 && Seen.Questions.empty()) {
            cmdPrint();
        }
    };
    cmdPrint();
    EXPECT_EQ(PicturesByPage(), std::vector<int>{1});
}

TEST_F(PrintedBatch, StopDuringTheAppliedLogicStopsTheBatch)
{
    SolveOnStart = True;
    SolveMask = BitTable[1];
    const std::string before = HandState();
    Seen.YesNoAnswers = {true};
    Seen.OnYield = [] {
        if (PrintRunning != False && SolveMask == BitTable[1] && Seen.Questions.empty()) {
            cmdPrint();
        }
    };
    cmdPrint();
    EXPECT_EQ(Seen.Questions.size(), 1U);
    EXPECT_EQ(Seen.PrintedPages, 0);
    EXPECT_EQ(HandState(), before);
}

TEST_F(PrintedBatch, FailureIsToldInTheSystemsWordsWithTheGameInHandBack)
{
    PrintGamesPerPage = SixPerPage;
    PrintPages = 2;
    PrintIncludeSolutions = True;
    const std::string before = HandState();
    // In the first picture, in a label, at a new page and among the solutions.
    for (const int works : {0, 2, 18, 40}) {
        Seen.Printed.clear();
        Seen.PrintedPages = 0;
        Seen.PrintsBeforeFailure = works;
        cmdPrint();
        EXPECT_EQ(Seen.Messages, std::vector<std::string>{"No paper left"}) << works;
        EXPECT_EQ(PrintRunning, False);
        EXPECT_EQ(HandState(), before);
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
