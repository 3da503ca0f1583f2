// A batch while it runs: how far it is, how it is stopped, and what it leaves of the game in hand.
#include "commands/print_run.h"
#include "commands/printing_fixture.h"
#include "generator/generator.h"
#include "grid/grid.h"
#include "logic/driver.h"
#include "print/print_settings.h"
#include "support/outside_double.h"
#include "support/play.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kelvarine::testing {
namespace {

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

TEST_F(PrintedBatch, IsOnUntilTheGameInHandIsRatedAndCannotBeStoppedThen)
{
    int turns = 0;
    Seen.OnYield = [&] {
        if (!Seen.EndedDocuments.empty()) {
            ++turns;
            EXPECT_EQ(PrintRunning, True);
            cmdPrint();
        }
    };
    cmdPrint();
    EXPECT_GT(turns, 0);
    EXPECT_TRUE(Seen.Questions.empty());
    EXPECT_EQ(Seen.EndedDocuments.size(), 1U);
    EXPECT_EQ(PrintRunning, False);
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

} // namespace
} // namespace kelvarine::testing
