#include "commands/print_run.h"
#include "commands/printing_fixture.h"
#include "generator/generator.h"
#include "generator/patterns.h"
#include "generator/random_source.h"
#include "grid/grid.h"
#include "print/page_layout.h"
#include "print/print_settings.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

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

} // namespace
} // namespace kelvarine::testing
