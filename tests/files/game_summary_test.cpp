#include "board/links.h"
#include "files/game_file.h"
#include "files/game_summary.h"
#include "game/clock.h"
#include "game/lifecycle.h"
#include "grid/history.h"
#include "grid/rating_words.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

constexpr std::string_view Puzzle =
    "53..7....6..195....98....6.8...6...34..8.3..17...2...6.6....28....419..5....8..79";

// All that another game might be seen in.
auto StateNow()
{
    return std::tuple(GameFileBytes(), History, GameModified, GivenCount, GameRating, SolutionCount,
                      UsedMask, SolveMask, ChainColumns, ChainRows, SolutionList, HintText,
                      HintTitle, SearchActive, NumberFilter, GameFilePath);
}

TEST(GameSummary, TellsGivensRatingAndTimeOfAGameFile)
{
    Restart();
    ASSERT_TRUE(ReadGame(Puzzle));
    SolveSeconds = 312;
    const std::string contents = GameFileBytes();
    const std::int32_t rating = GameRating;
    const GridTable cells = Grid;
    Restart();
    const auto summary = SummaryOf(contents);
    ASSERT_TRUE(summary);
    EXPECT_EQ(summary->Givens, 30);
    EXPECT_EQ(summary->Rating, rating);
    EXPECT_EQ(summary->Rating, RatedEasy);
    EXPECT_EQ(summary->Seconds, 312);
    for (const Cell cell : Cells) {
        EXPECT_EQ(summary->Cells[cell.Column][cell.Row] & (GivenBit | CandidateMask),
                  cells[cell.Column][cell.Row] & (GivenBit | CandidateMask));
    }
}

TEST(GameSummary, TextTellsNoTime)
{
    Restart();
    const auto summary = SummaryOf(Puzzle);
    ASSERT_TRUE(summary);
    EXPECT_EQ(summary->Givens, 30);
    EXPECT_LT(summary->Seconds, 0);
}

TEST(GameSummary, GameInHandIsAsBefore)
{
    Restart();
    ASSERT_TRUE(ReadGame(Puzzle));
    Grid[3][1] = BitTable[4];
    FinishChange();
    ChainColumns[0] = 1;
    ChainColumns[1] = 5;
    ChainRows[1] = 6;
    const auto before = StateNow();
    const std::string other(81, '.');
    for (const std::string &contents :
         {GameFileBytes(GridTable{}), std::string(Puzzle), other, std::string("no game")}) {
        SummaryOf(contents);
        EXPECT_TRUE(StateNow() == before) << contents.substr(0, 10);
    }
}

// The file dialog can delete it while it shows another one.
TEST(GameSummary, GameWhoseFileWentDuringTheRatingStaysModified)
{
    Restart();
    ASSERT_TRUE(ReadGame(Puzzle));
    GameModified = False;
    Seen.OnYield = [] {
        GameModified = True;
    };
    ASSERT_TRUE(SummaryOf(Puzzle));
    EXPECT_EQ(GameModified, True);
}

TEST(GameSummary, BoardIsPaintedWhenTheGameInHandIsBack)
{
    Restart();
    ASSERT_TRUE(ReadGame(Puzzle));
    const GridTable cells = Grid;
    int yields = 0;
    Seen.OnYield = [&] {
        ++yields;
        Seen.BoardPaints = 0;
    };
    ASSERT_TRUE(SummaryOf(Puzzle));
    EXPECT_GT(yields, 0);
    EXPECT_EQ(Seen.BoardPaints, 1);
    EXPECT_EQ(Grid, cells);
}

TEST(GameSummary, OtherContentsAreNoGame)
{
    Restart();
    for (const std::string_view contents : {"", "Dear player", "123"}) {
        EXPECT_FALSE(SummaryOf(contents)) << contents;
    }
}

} // namespace
} // namespace kelvarine::testing
