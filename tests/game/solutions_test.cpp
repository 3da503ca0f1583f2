#include "game/clock.h"
#include "game/lifecycle.h"
#include "game/screens.h"
#include "game/search.h"
#include "game/solutions.h"
#include "game/undo.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "logic/driver.h"
#include "support/driver_games.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"
#include "support/random_grids.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

constexpr std::string_view PlainFrame = "+-------+-------+-------+\r\n"
                                        "| 9 8 2 | 3 1 6 | 7 4 5 |\r\n"
                                        "| 6 3 5 | 7 2 4 | 1 9 8 |\r\n"
                                        "| 7 4 1 | 8 5 9 | 6 3 2 |\r\n"
                                        "+-------+-------+-------+\r\n"
                                        "| 4 7 8 | 1 9 5 | 3 2 6 |\r\n"
                                        "| 1 2 9 | 6 8 3 | 4 5 7 |\r\n"
                                        "| 5 6 3 | 4 7 2 | 9 8 1 |\r\n"
                                        "+-------+-------+-------+\r\n"
                                        "| 8 9 7 | 5 3 1 | 2 6 4 |\r\n"
                                        "| 3 1 6 | 2 4 8 | 5 7 9 |\r\n"
                                        "| 2 5 4 | 9 6 7 | 8 1 3 |\r\n"
                                        "+-------+-------+-------+\r\n"
                                        "\r\n";

class Solutions : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }

    // How often the screen was given a whole list.
    static std::int64_t Listings()
    {
        return std::ranges::count_if(
            Seen.Calls, [](const std::string &call) { return call.starts_with("solutions: "); });
    }

    static void Open(std::string_view game)
    {
        StartSavedGame(game);
        mnuShowSolution();
        ForgetRecord();
    }
};

// ---- Texts ---------------------------------------------------------------------------------

TEST_F(Solutions, FrameTakesThirteenLinesAndAnEmptyLine)
{
    const std::string text = SolutionsText(1, PlainSolution);
    EXPECT_EQ(text, PlainFrame);
    EXPECT_EQ(std::ranges::count(text, '\n'), 14);
}

TEST_F(Solutions, FramesFollowEachOther)
{
    const std::string two = std::string(PlainSolution) + std::string(PlainSolution);
    EXPECT_EQ(SolutionsText(1, two), std::string(PlainFrame) + std::string(PlainFrame));
}

TEST_F(Solutions, LineTakesTheDigitsAsTheyAre)
{
    const std::string one(PlainSolution);
    EXPECT_EQ(SolutionsText(0, one), one + "\r\n");
    EXPECT_EQ(SolutionsText(0, one + one), one + "\r\n" + one + "\r\n");
}

TEST_F(Solutions, EmptyListIsAnEmptyText)
{
    EXPECT_EQ(SolutionsText(0, ""), "");
    EXPECT_EQ(SolutionsText(1, ""), "");
}

TEST_F(Solutions, CountsInWords)
{
    EXPECT_EQ(SolutionCountWords(0), "No solutions");
    EXPECT_EQ(SolutionCountWords(1), "1 solution");
    EXPECT_EQ(SolutionCountWords(2), "2 solutions");
    EXPECT_EQ(SolutionCountWords(25), "25 solutions");
    EXPECT_EQ(SolutionCountWords(26), "More than 25 solutions");
    EXPECT_EQ(SolutionCountWords(2147483647), "More than 25 solutions");
}

// ---- Listing -------------------------------------------------------------------------------

TEST_F(Solutions, CommandOpensTheScreenListsAndRepaints)
{
    StartSavedGame(PlainGame);
    mnuShowSolution();
    EXPECT_EQ(Acts(), (Texts{"solutions screen: ", "solution count: 1 solution",
                             "solutions: 1 solution", "board: "}));
    EXPECT_EQ(SolutionsOpen, True);
    EXPECT_EQ(SolutionsOnView, PlainFrame);
    EXPECT_EQ(SearchKind, 0);
    EXPECT_EQ(SearchActive, False);
}

TEST_F(Solutions, SearchRunsWithItsOwnKindAndMaskAndPutsTheMaskBack)
{
    StartSavedGame(PlainGame);
    SolveMask = 0x123;
    std::int32_t kind = -1;
    std::uint32_t mask = 0;
    Seen.OnYield = [&] {
        kind = SearchKind;
        mask = SolveMask;
    };
    mnuShowSolution();
    EXPECT_EQ(kind, 4);
    EXPECT_EQ(mask, 0x40000006U);
    EXPECT_EQ(SolveMask, 0x123U);
}

TEST_F(Solutions, GridComesBackWithAllItsBits)
{
    std::mt19937 random(5);
    for (int round = 0; round < 30; ++round) {
        SetSoundPosition(random, Pencilmarks::Stale);
        for (const Cell cell : Cells) {
            WordAt(cell) |= static_cast<CellWord>(random()) & ~(CandidateMask | GivenBit);
        }
        const GridTable before = Grid;
        const std::int32_t levels = HistoryCount;
        ListSolutions();
        EXPECT_EQ(Grid, before);
        EXPECT_EQ(History[SolutionsCopySlot], before);
        EXPECT_EQ(HistoryCount, levels);
    }
}

TEST_F(Solutions, PencilmarksOfThePlayerDoNotCount)
{
    SetGivens(PlainGame);
    ListSolutions();
    EXPECT_EQ(SolutionList, PlainSolution);
}

TEST_F(Solutions, ListIsMadeAfresh)
{
    SetGame(PlainGame);
    SolutionList = "left over";
    ListSolutions();
    EXPECT_EQ(SolutionList, PlainSolution);
}

TEST_F(Solutions, PositionWithoutSolutions)
{
    SetGame(NoSolution);
    SolutionsOnView = "left over";
    ListSolutions();
    EXPECT_EQ(SolutionCountText, "No solutions");
    EXPECT_EQ(SolutionsOnView, "");
}

TEST_F(Solutions, TwentyFiveAreListed)
{
    SetGame(TwentyFiveSolutions);
    SolutionsFormat = 0;
    ListSolutions();
    EXPECT_EQ(SolutionCountText, "25 solutions");
    EXPECT_EQ(SolutionsOnView.size(), 25U * 83U);
    EXPECT_EQ(std::ranges::count(Seen.Calls, "solution count: 24 solutions"), 1);
}

TEST_F(Solutions, TwentySixthIsToldAndNotListed)
{
    for (const std::string_view game : {TwentySixSolutions, ThirtySolutions}) {
        SetGame(game);
        SolutionsFormat = 0;
        ListSolutions();
        EXPECT_EQ(SolutionCountText, "More than 25 solutions");
        EXPECT_EQ(SolutionsOnView.size(), 25U * 83U);
        EXPECT_EQ(Seen.Calls.back(), "board: ");
    }
}

TEST_F(Solutions, CountGoesUpWhileTheyAreListed)
{
    SetGame(ThreeSolutions);
    ListSolutions();
    EXPECT_EQ(Acts(), (Texts{"solution count: 1 solution", "solution count: 2 solutions",
                             "solution count: 3 solutions", "solutions: 3 solutions", "board: "}));
}

TEST_F(Solutions, StoppedListingKeepsWhatWasFoundAndTheGrid)
{
    SetGame(ThirtySolutions);
    const GridTable before = Grid;
    Seen.YesNoAnswers = {true};
    Seen.OnYield = [] {
        if (SolutionCount == 4 && SearchActive != False) {
            QueryStopSearch();
        }
    };
    SolutionsFormat = 0;
    ListSolutions();
    EXPECT_EQ(Seen.Questions, Texts{"Would you like to stop searching?"});
    EXPECT_EQ(SolutionCountText, "4 solutions");
    EXPECT_EQ(SolutionsOnView.size(), 4U * 83U);
    EXPECT_EQ(Grid, before);
    EXPECT_EQ(SearchKind, 0);
}

TEST_F(Solutions, OpeningAfreshForgetsTheFormerPosition)
{
    Open(PlainGame);
    SolutionsOpen = False;
    Seen.OnYield = [] {
        if (SolutionCount == 0) {
            EXPECT_EQ(SolutionsOnView, "");
            EXPECT_EQ(SolutionCountText, "");
        }
    };
    mnuShowSolution();
    EXPECT_EQ(SolutionsOnView, PlainFrame);
}

// ---- Format --------------------------------------------------------------------------------

TEST_F(Solutions, FormatStartsAsFrames)
{
    EXPECT_EQ(SolutionsFormat, 1);
}

TEST_F(Solutions, ChangeOfFormatShowsTheListAnew)
{
    Open(PlainGame);
    optSolutionsFormat(0);
    EXPECT_EQ(SolutionsFormat, 0);
    EXPECT_EQ(Acts(), Texts{"solutions: 1 solution"});
    EXPECT_EQ(SolutionsOnView, std::string(PlainSolution) + "\r\n");
    optSolutionsFormat(1);
    EXPECT_EQ(SolutionsOnView, PlainFrame);
}

TEST_F(Solutions, ChangeOfFormatWithoutAListShowsTheCountAtHand)
{
    SolutionCount = 2;
    optSolutionsFormat(0);
    EXPECT_EQ(SolutionCountText, "2 solutions");
    EXPECT_EQ(SolutionsOnView, "");
}

// ---- Refreshing ----------------------------------------------------------------------------

TEST_F(Solutions, ClosedScreenListsNothing)
{
    StartSavedGame(PlainGame);
    PushUndoState();
    Undo();
    Redo();
    StartGame(NewGame);
    RefreshSolutions();
    EXPECT_EQ(Listings(), 0);
}

TEST_F(Solutions, EveryNewGameListsAnew)
{
    Open(PlainGame);
    for (const std::int32_t mode : {NewGame, SameGame, GameFromFile}) {
        SetGame(ThreeSolutions);
        SolutionList.clear();
        ForgetRecord();
        StartGame(mode);
        EXPECT_EQ(Listings(), 1) << mode;
        EXPECT_EQ(SolutionCount, 3);
        EXPECT_EQ(SolutionList.size(), 3U * 81U);
        EXPECT_EQ(std::ranges::count(Seen.Calls, "solutions screen: "), 0)
            << "the board keeps the focus";
    }
}

TEST_F(Solutions, NewGameListsBetweenTheAlertsAndTheClock)
{
    Open(PlainGame);
    SolveSeconds = 77;
    double seconds = 0;
    Seen.OnYield = [&] {
        if (SearchKind == ListingSolutions) {
            seconds = SolveSeconds;
        }
    };
    StartGame(NewGame);
    EXPECT_EQ(seconds, 77);
    EXPECT_EQ(SolveSeconds, 0);
}

TEST_F(Solutions, UndoAndRedoListAnew)
{
    Open(PlainGame);
    SetGame(ThreeSolutions);
    PushUndoState();
    ForgetRecord();
    Undo();
    EXPECT_EQ(Listings(), 1);
    EXPECT_EQ(SolutionCountText, "1 solution");
    Redo();
    EXPECT_EQ(Listings(), 2);
    EXPECT_EQ(SolutionCountText, "3 solutions");
    Redo();
    EXPECT_EQ(Listings(), 2) << "at the newest level nothing happens";
}

TEST_F(Solutions, SolvedGridIsItsOnlySolution)
{
    SetGivens(EasySolution);
    SolutionsFormat = 0;
    ListSolutions();
    EXPECT_EQ(SolutionsOnView,
              "534678912672195348198342567859761423426853791713924856961537284287419635345286179"
              "\r\n");
}

TEST_F(Solutions, AbsurdGridsEndWithTheGridAsItWas)
{
    std::mt19937 random(6);
    for (int round = 0; round < 20; ++round) {
        SetAbsurdPosition(random);
        const GridTable before = Grid;
        int yields = 0;
        Seen.OnYield = [&] {
            SearchActive = ++yields > 2000 ? False : SearchActive;
        };
        ListSolutions();
        EXPECT_EQ(Grid, before);
        EXPECT_EQ(SolutionList.size() % 81, 0U);
    }
}

} // namespace
} // namespace kelvarine::testing
