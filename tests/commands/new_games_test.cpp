#include "commands/new_games.h"
#include "game/clock.h"
#include "game/lifecycle.h"
#include "game/search.h"
#include "game/undo.h"
#include "generator/game_number.h"
#include "generator/generator.h"
#include "generator/patterns.h"
#include "generator/random_source.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "logic/driver.h"
#include "logic/technique_masks.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kelvarine::testing {
namespace {

class NewGames : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        init_genrand(1);
    }

    static bool SearchBegan()
    {
        return GamesScreened > 0;
    }

    // Stops the search at its yield number so many, as a player who answers yes does.
    static void StopAtYield(int number)
    {
        Seen.OnYield = [number] {
            if (Seen.Yields == number) {
                Seen.YesNoAnswers.push_front(true);
                QueryStopSearch();
            }
        };
    }
};

TEST_F(NewGames, NoLevelSelectedKeepsItsApostrophe)
{
    DifficultySelection = 0;
    mnuGameRandom();
    EXPECT_EQ(Seen.Messages,
              std::vector<std::string>{"Please select one or more level's of difficulty\ron the "
                                       "\"New Games\" tab of the configuration screen."});
    EXPECT_FALSE(SearchBegan());
}

TEST_F(NewGames, LevelsWithoutTechniquesAreTold)
{
    LevelTable[1] = 0;
    mnuGameRandom();
    EXPECT_EQ(
        Seen.Messages,
        std::vector<std::string>{
            "There area no logic techniques that meet your requested level of difficulty.\r\rOn "
            "the configuration screen:\r\rPlease select one or more different levels of "
            "difficulty on the \"New Games\" tab\rand/or change the difficulty rating of the "
            "logic techniques on the \"Logic\" tab.\r"});
    EXPECT_FALSE(SearchBegan());
}

TEST_F(NewGames, LevelFiveNeedsNoTechniques)
{
    LevelTable[5] = 0;
    DifficultySelection = BitTable[5];
    MinGivens = 40;
    MaxGivens = 17;
    mnuGameRandom();
    // The next check speaks, so this one passed.
    EXPECT_EQ(Seen.Messages,
              std::vector<std::string>{
                  "A new game cannot be generated because the minimum # of givens exceeds\rthe "
                  "maximum # of givens on the \"New Games\" tab of the configuration screen."});
}

TEST_F(NewGames, LogicThatSolvesEveryWishedGameIsTold)
{
    SolveOnStart = True;
    SolveMask = LevelTable[1];
    mnuGameRandom();
    EXPECT_EQ(
        Seen.Messages,
        std::vector<std::string>{
            "You've chosen to apply selected solve logic to your new games.\r\rHowever, the "
            "techniques you've selected for solving on the logic tab will not\rallow you to "
            "generate a game that meets your requested level of difficulty.\r\rPlease select one "
            "or more different levels of difficulty on the \"New Games\" tab\rand/or change your "
            "solve selections on the \"Logic\" tab."});
    EXPECT_FALSE(SearchBegan());
}

TEST_F(NewGames, FewGivensAreAskedAboutAndNoEnds)
{
    MaxGivens = 16;
    MinGivens = 10;
    mnuGameRandom();
    EXPECT_EQ(Seen.Questions,
              std::vector<std::string>{
                  "The maximum # of givens is set to 16 on the \"New Games\" tab of the "
                  "configuration screen,\ryet a single-solution game with less than 17 givens has "
                  "never been found.\r\rWould you like to continue searching anyway?"});
    EXPECT_FALSE(SearchBegan());
}

TEST_F(NewGames, CancelInTheSaveQuestionChangesNothingAtAll)
{
    SetGivens(EasyGame);
    StartGame(NewGame);
    const GridTable before = Grid;
    Seen.Calls.clear();
    Seen.SaveAnswers = {Answer::Cancel};
    mnuGameRandom();
    EXPECT_EQ(Grid, before);
    EXPECT_EQ(Seen.BoardPaints, 0);
    EXPECT_EQ(Seen.WindowRefreshes, 0);
    EXPECT_FALSE(SearchBegan());
}

TEST_F(NewGames, HopelessSearchRunsUntilItIsStopped)
{
    SetGivens(EasyGame);
    StartGame(NewGame);
    GameFilePath = "/games/mine.sdk";
    SolveSeconds = 77;
    HistoryCount = 1;
    mnuTakeSnapshot();
    const GridTable before = Grid;
    const auto historyBefore = History;
    const std::int32_t ratingBefore = GameRating;
    MinGivens = 10;
    MaxGivens = 16;
    Seen.SaveAnswers = {Answer::No};
    Seen.YesNoAnswers = {true};
    Seen.Yields = 0;
    StopAtYield(20000);
    mnuGameRandom();
    EXPECT_GT(GamesScreened, 19);
    EXPECT_EQ(Grid, before);
    EXPECT_EQ(History[NewestSlot], historyBefore[NewestSlot]);
    EXPECT_EQ(History[SnapshotSlot], historyBefore[SnapshotSlot]);
    EXPECT_EQ(HistoryCount, 1);
    EXPECT_EQ(HistoryPosition, 1);
    EXPECT_EQ(GameRating, ratingBefore);
    EXPECT_EQ(GivenCount, 30);
    EXPECT_EQ(GameFilePath, "/games/mine.sdk");
    EXPECT_EQ(SolveSeconds, 77);
    EXPECT_EQ(SnapshotAvailable, True);
    EXPECT_EQ(SearchKind, NotStoppable);
    EXPECT_EQ(SearchActive, False);
    EXPECT_EQ(Seen.Calls.back(), "refresh: ");
}

// Wherever the answer comes, in the removal of cells or in the rating of a game, it ends the
// search.
TEST_F(NewGames, StopIsHeardAtEveryYield)
{
    SetGivens(EasyGame);
    StartGame(NewGame);
    const GridTable before = Grid;
    MaxGivens = 40;
    DifficultySelection = BitTable[5];
    LevelTable[6] = BitTable[19]; // no technique stands behind it, so nothing passes
    LevelTable[5] |= BitTable[19];
    for (int stopAt = 1; stopAt < 1500; stopAt += 7) {
        GameModified = False;
        Seen.Yields = 0;
        StopAtYield(stopAt);
        mnuGameRandom();
        ASSERT_EQ(Grid, before) << "stopped at yield " << stopAt;
        ASSERT_LE(Seen.Yields - stopAt, 2000) << "the answer was not heard";
        ASSERT_EQ(Seen.YesNoAnswers.size(), 0U);
        Seen.OnYield = nullptr;
    }
}

TEST_F(NewGames, RandomGameStartsAsANewGame)
{
    GameFilePath = "/games/old.sdk";
    mnuGameRandom();
    EXPECT_TRUE(SearchBegan());
    EXPECT_EQ(GameRating, 1);
    EXPECT_EQ(GameFilePath, "");
    EXPECT_EQ(HistoryCount, 1);
    EXPECT_EQ(History[StartSlot], Grid);
    EXPECT_EQ(ClockRunning, True);
    EXPECT_EQ(std::ranges::count(Seen.Calls, "search banner: 1"), 1);
    EXPECT_EQ(CellsWith(CandidateMask), CellsWith(GivenBit));
}

TEST_F(NewGames, PencilmarksAreFilledInWhenWished)
{
    FillOnStart = True;
    mnuGameRandom();
    for (const Cell cell : Cells) {
        EXPECT_EQ(CandidatesIn(WordAt(cell)), (WordAt(cell) & GivenBit) != 0 ? 1 : 9);
    }
}

TEST_F(NewGames, GameThatAppliedLogicSolvesIsThrownAwayWithoutAWord)
{
    SolveOnStart = True;
    SolveMask = BitTable[1]; // naked singles alone
    mnuGameRandom();
    EXPECT_TRUE(Seen.Messages.empty());
    EXPECT_EQ(IsGridSolved(), False);
    EXPECT_EQ(GameRating, 1);
    EXPECT_EQ(HistoryCount, 1);
}

TEST_F(NewGames, ManualPatternMakesNoChecksAndShowsNoBanner)
{
    RevealPattern = ExposeManually;
    DifficultySelection = 0;
    mnuGameRandom();
    EXPECT_TRUE(Seen.Messages.empty());
    EXPECT_EQ(GamesScreened, 0);
    EXPECT_EQ(GivenCount, 0);
    for (const Cell cell : Cells) {
        EXPECT_EQ(CandidatesIn(WordAt(cell)), 0);
        EXPECT_EQ(CandidatesIn((WordAt(cell) & SolutionMask) >> SolutionShift), 1);
    }
    EXPECT_EQ(GameRating, 6);
}

// The empty grid of the manual pattern, to which logic without an end is applied, or such as solves
// it and so has it thrown away, again and again.
TEST_F(NewGames, AppliedLogicIsStoppedLikeTheSearchAndBringsTheGameBack)
{
    for (const std::uint32_t mask : {MaskOf({XWing}) | TrialBit, SinglesMask | TrialBit}) {
        for (void (*make)() : {mnuGameRandom, UserSelectedGame}) {
            Restart();
            StartSavedGame(EasyGame);
            const GridTable before = Grid;
            RevealPattern = ExposeManually;
            SolveOnStart = True;
            SolveMask = mask;
            ForgetRecord();
            Seen.Yields = 0;
            Seen.TextAnswers = {"7"};
            bool stopped = false;
            Seen.OnYield = [&] {
                if (Seen.Yields > 3 && !stopped) {
                    stopped = true;
                    Seen.YesNoAnswers = {true};
                    EXPECT_FALSE(ReadyForCommand());
                }
            };
            make();
            if (stopped) {
                EXPECT_TRUE(SameCells(Grid, before, LastingFields));
                EXPECT_EQ(SearchKind, NotStoppable);
            } else {
                EXPECT_EQ(make, UserSelectedGame) << "which does not ask for another game";
            }
        }
    }
}

TEST_F(NewGames, NumberedGameIsTheSameEveryTime)
{
    Seen.TextAnswers = {"4711", "4711"};
    UserSelectedGame();
    const std::string first = NumbersOf(Grid);
    genrand_int31();
    UserSelectedGame();
    EXPECT_EQ(NumbersOf(Grid), first);
    EXPECT_EQ(GameNumber, 4711);
}

TEST_F(NewGames, NumberedGameMakesNoCheckOfTheSettings)
{
    MinGivens = 40;
    MaxGivens = 17;
    Seen.TextAnswers = {"4711"};
    StopAtYield(500);
    UserSelectedGame();
    EXPECT_TRUE(Seen.Messages.empty());
    EXPECT_TRUE(SearchBegan());
}

TEST_F(NewGames, GivingUpTheNumberLeavesTheGame)
{
    SetGivens(EasyGame);
    StartGame(NewGame);
    const GridTable before = Grid;
    Seen.Calls.clear();
    Seen.TextAnswers = {""};
    UserSelectedGame();
    EXPECT_EQ(Grid, before);
    EXPECT_EQ(Seen.BoardPaints, 0);
}

} // namespace
} // namespace kelvarine::testing
