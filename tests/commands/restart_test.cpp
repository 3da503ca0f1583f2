#include "commands/restart.h"
#include "game/clock.h"
#include "game/lifecycle.h"
#include "game/undo.h"
#include "generator/game_number.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

class BeginningAgain : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

TEST_F(BeginningAgain, BlankGridStartsAnEmptyGame)
{
    StartSavedGame(EasyGame);
    Grid[0][0] = 7;
    GameModified = True;
    Seen.SaveAnswers = {Answer::No};
    GameNumber = 12;
    mnuGameBlankGrid();
    EXPECT_EQ(Acts(),
              (Texts{"pending events: ", "save question: Would you like to save this game first?",
                     "stop sound: ", "board: ", "refresh: "}));
    EXPECT_EQ(Grid, GridTable{});
    EXPECT_EQ(GivenCount, 0);
    EXPECT_EQ(GameRating, 6);
    EXPECT_EQ(HistoryCount, 1);
    EXPECT_TRUE(SameCells(History[StartSlot], GridTable{}));
    EXPECT_EQ(GameModified, True);
}

TEST_F(BeginningAgain, BlankGridOfASavedGameAsksNothing)
{
    StartSavedGame(EasyGame);
    mnuGameBlankGrid();
    EXPECT_EQ(Acts(), (Texts{"stop sound: ", "board: ", "refresh: "}));
}

TEST_F(BeginningAgain, CancelBeforeABlankGridChangesNothingAtAll)
{
    for (const Answer answer : {Answer::Cancel, Answer::Yes}) {
        StartSavedGame(EasyGame);
        GameModified = True;
        LastAnswer = 2;
        const std::string before = ProgramState();
        Seen.SaveAnswers = {answer};
        mnuGameBlankGrid();
        Texts acts{"pending events: ", "save question: Would you like to save this game first?"};
        if (answer == Answer::Yes) {
            acts.insert(acts.end(), {"file dialog: Save Game As", "file dialog: cancelled"});
        }
        EXPECT_EQ(Acts(), acts);
        ForgetRecord();
        EXPECT_EQ(ProgramState(), before);
    }
}

TEST_F(BeginningAgain, RestartAsksAndNoKeepsThePosition)
{
    StartSavedGame(EasyGame);
    Grid[3][1] = BitTable[4];
    PushUndoState();
    const std::string before = ProgramState();
    Seen.YesNoAnswers = {false};
    mnuRestartSameGame();
    EXPECT_EQ(Seen.Calls, (Texts{"question: Are you sure you want to abandon your position and "
                                 "start over?"}));
    EXPECT_EQ(Seen.Titles, Texts{"Kelvarine"});
    ForgetRecord();
    EXPECT_EQ(ProgramState(), before);
}

TEST_F(BeginningAgain, RestartGoesBackToTheStartPosition)
{
    StartSavedGame(EasyGame);
    for (CellWord n = 1; n <= 150; ++n) {
        Grid[3][1] = BitTable[n % 9 + 1] | (n << ColourShift & CellColour);
        PushUndoState();
    }
    SnapshotAvailable = True;
    GameFilePath = "mine.sdk";
    SolveSeconds = 42;
    Grid[0][4] = 9;
    Seen.YesNoAnswers = {true};
    mnuRestartSameGame();
    EXPECT_EQ(Acts(), (Texts{"question: Are you sure you want to abandon your position and "
                             "start over?",
                             "stop sound: ", "board: ", "refresh: "}));
    EXPECT_TRUE(SameCells(Grid, History[StartSlot], ~SolutionMask));
    EXPECT_EQ(Grid[3][1] & CandidateMask, CandidateMask);
    EXPECT_EQ(Grid[0][4], 9U) << "only the 81 cells come back";
    EXPECT_EQ(HistoryCount, 1);
    EXPECT_EQ(SnapshotAvailable, False);
    EXPECT_EQ(GameFilePath, "mine.sdk");
    EXPECT_EQ(SolveSeconds, 0);
}

TEST_F(BeginningAgain, RestartAfterABlankGridGivesTheBlankGridAgain)
{
    StartSavedGame(EasyGame);
    mnuGameBlankGrid();
    Grid[5][5] = BitTable[5];
    PushUndoState();
    Seen.YesNoAnswers = {true};
    mnuRestartSameGame();
    EXPECT_EQ(Grid, GridTable{});
}

TEST_F(BeginningAgain, GameWonAndRestartedDoesNotCountWhenItIsWonAgain)
{
    SetGame(EasyGame);
    StartGame(0);
    SetGivens(EasySolution);
    FinishChange();
    EXPECT_EQ(StatsCounted, True);
    Seen.YesNoAnswers = {true};
    mnuRestartSameGame();
    EXPECT_EQ(GameRating, 1);
    EXPECT_EQ(StatsCounted, True);
}

} // namespace
} // namespace kelvarine::testing
