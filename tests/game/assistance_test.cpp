#include "game/assistance.h"
#include "game/lifecycle.h"
#include "game/search.h"
#include "game/win_display.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "logic/rating.h"
#include "logic/technique_masks.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

class Assistance : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

// The solution with one cell left open that may hold any number.
void OpenOneCell(std::size_t column, std::size_t row)
{
    SetGivens(EasySolution);
    Grid[column][row] = CandidateMask;
}

// ---- Hints ---------------------------------------------------------------------------------

TEST_F(Assistance, SolvedGridHasNoHints)
{
    SetGivens(EasySolution);
    HintText = "left over";
    mnuHint();
    EXPECT_EQ(Seen.Calls, Texts{"message: There are no hints available now."});
    EXPECT_EQ(Seen.Titles, Texts{"Kelvarine"});
}

TEST_F(Assistance, HintComesInThreeStages)
{
    OpenOneCell(1, 1);
    Grid[4][4] |= SelectedBit;
    HistoryCount = 3;
    const GridTable before = Grid;
    Seen.YesNoAnswers = {true, true};
    mnuHint();
    EXPECT_EQ(
        Seen.Calls,
        (Texts{"question: There's an unplaced last candidate.\r\rWould you like to know more?",
               "question: There's an unplaced last candidate.\rIt's in a column.\r\r"
               "Want to know where it is?",
               "board: ",
               "message: Cell [A1] is the last incomplete cell in column A\r"
               "and must contain the last candidate which is a 5."}));
    EXPECT_EQ(Seen.Titles, (Texts{"Hint", "Hint", "Unplaced last candidate"}));
    EXPECT_EQ(CellsWith(SelectedBit), "A1") << "only the target stays selected";
    EXPECT_EQ(CellsWith(HintCellBit), "A1");
    EXPECT_EQ(CellsWith(HintDomainBit), "A1 A2 A3 A4 A5 A6 A7 A8 A9");
    EXPECT_TRUE(SameCells(Grid, before, LastingFields));
    EXPECT_EQ(HistoryCount, 3) << "a hint is no move";
}

TEST_F(Assistance, HintEndsAtEitherNo)
{
    OpenOneCell(1, 1);
    Grid[4][4] |= SelectedBit;
    Seen.YesNoAnswers = {false};
    mnuHint();
    EXPECT_EQ(Seen.Calls.size(), 1U);
    Seen.YesNoAnswers = {true, false};
    mnuHint();
    EXPECT_EQ(Seen.Calls.size(), 3U);
    EXPECT_EQ(Seen.BoardPaints, 0);
    EXPECT_EQ(CellsWith(SelectedBit), "D4");
    EXPECT_EQ(CellsWith(HintDomainBit | HintCellBit), "");
}

TEST_F(Assistance, HintSpeaksOfAnEight)
{
    OpenOneCell(6, 1);
    Seen.YesNoAnswers = {true, true};
    mnuHint();
    EXPECT_EQ(Seen.Messages, Texts{"Cell [F1] is the last incomplete cell in column F\r"
                                   "and must contain the last candidate which is an 8."});
}

TEST_F(Assistance, ArticleIsMendedInsideLongerWordsToo)
{
    HintText = "a 8 and a 88, area 8, a 9, A 8, a  8";
    MendArticles();
    EXPECT_EQ(HintText, "an 8 and an 88, arean 8, a 9, A 8, a  8");
}

TEST_F(Assistance, HintAsksTheLevelTableAndNoMask)
{
    OpenOneCell(1, 1);
    SolveMask = 0;
    AlertMask = 0;
    mnuHint();
    EXPECT_EQ(Seen.Questions,
              Texts{"There's an unplaced last candidate.\r\rWould you like to know more?"});
    EXPECT_EQ(AlertMask, 0U);
    Restart();
    OpenOneCell(1, 1);
    SolveMask = 0xFFFFFFFF;
    AlertMask = 0xFFFFFFFF;
    LevelTable = {0, 0, 0, 0, 0, 0, 0xFFFFFFFF, 0, 0, 0};
    mnuHint();
    EXPECT_EQ(Seen.Messages, Texts{"There are no hints available now."});
}

TEST_F(Assistance, ClashOfGivensComesFirst)
{
    SetGame("55.......");
    Grid[9][9] = CandidateMask;
    Seen.YesNoAnswers = {true, true};
    mnuHint();
    EXPECT_EQ(Seen.Calls,
              (Texts{"question: There's a conflict with given cells.\r\rWould you like to know "
                     "more?",
                     "question: There's a conflict with given cells.\rIt's in a row.\r\rWant to "
                     "know where it is?",
                     "board: ",
                     "message: Cell [B1] is a given cell which conflicts directly with the given "
                     "cell [A1] in the same row."}));
    EXPECT_EQ(Seen.Titles.back(), "Conflict with given cells");
}

// ---- Reason of an alert --------------------------------------------------------------------

TEST_F(Assistance, ReasonNeedsOneSelectedCell)
{
    mnuShowAlertReason();
    Grid[2][2] |= SelectedBit;
    Grid[8][8] |= SelectedBit | AlertBit;
    mnuShowAlertReason();
    Grid[5][5] |= SelectedBit;
    mnuShowAlertReason();
    EXPECT_EQ(Seen.Calls, (Texts{"message: Please select a cell.",
                                 "message: Please select just one cell at a time.",
                                 "message: Please select just one cell at a time."}));
    EXPECT_EQ(Seen.Titles, (Texts{"Kelvarine", "Kelvarine", "Kelvarine"}));
}

TEST_F(Assistance, CellWithoutAlertsHasNoReason)
{
    Grid[2][2] |= SelectedBit;
    Grid[3][3] |= AlertBit;
    mnuShowAlertReason();
    EXPECT_EQ(Seen.Calls, Texts{"message: This cell has no alerts."});
}

TEST_F(Assistance, ReasonIsShownOnThePaintedBoard)
{
    OpenOneCell(6, 1);
    AlertMask = 0x2;
    Grid[6][1] |= SelectedBit | AlertBit;
    mnuShowAlertReason();
    EXPECT_EQ(Seen.Calls,
              (Texts{"board: ", "message: Cell [F1] is the last incomplete cell in column F\r"
                                "and must contain the last candidate which is an 8."}));
    EXPECT_EQ(Seen.Titles, Texts{"Unplaced last candidate"});
    EXPECT_EQ(CellsWith(HintCellBit), "F1");
}

TEST_F(Assistance, AlertThatNoTechniqueClaimsHasAnEmptyReason)
{
    SetGame(EasyGame);
    Grid[3][1] |= SelectedBit | AlertBit;
    HintText = "old";
    HintTitle = "old title";
    mnuShowAlertReason();
    EXPECT_EQ(Seen.Calls, (Texts{"board: ", "message: "}));
    EXPECT_EQ(Seen.Titles, Texts{""});
}

// ---- Applying logic ------------------------------------------------------------------------

TEST_F(Assistance, LogicNeedsSelectedTechniques)
{
    SetGame(EasyGame);
    mnuApplyLogic();
    EXPECT_EQ(Seen.Calls,
              Texts{"message: There are no solve techniques selected on the \"Logic tab\" of the "
                    "configuration screen."});
    EXPECT_EQ(Seen.Titles, Texts{"Kelvarine"});
}

TEST_F(Assistance, LogicLeavesASolvedGridAlone)
{
    SetGivens(EasySolution);
    SolveMask = 0x6;
    const std::string before = ProgramState();
    mnuApplyLogic();
    EXPECT_EQ(ProgramState(), before);
}

TEST_F(Assistance, LogicThatSolvesTheGameWinsItForThePlayer)
{
    StartSavedGame(EasyGame);
    SolveMask = 0x6;
    mnuApplyLogic();
    EXPECT_EQ(IsGridSolved(), True);
    EXPECT_EQ(WinDisplayRunning, True);
    EXPECT_EQ(StatsCounted, True);
    EXPECT_EQ(Acts(), Texts{"board: "});
    EXPECT_EQ(HistoryCount, 2);
    EXPECT_EQ(GameModified, True);
    EXPECT_EQ(SolveMask, 0x6U);
}

TEST_F(Assistance, LogicWorksOnThePencilmarksAsTheyStandAndScansAgain)
{
    StartSavedGame(EasyGame);
    Grid[3][1] &= ~BitTable[4]; // its own number
    Grid[9][9] |= AlertBit;
    SolveMask = 0x2;
    AlertMask = 0x2;
    LevelTable[1] = 0; // no technique runs
    const GridTable before = Grid;
    mnuApplyLogic();
    EXPECT_EQ(IsGridSolved(), False);
    EXPECT_TRUE(SameCells(Grid, before, LastingFields));
    EXPECT_EQ(CellsWith(AlertBit), "");
    EXPECT_EQ(WinDisplayRunning, False);
    EXPECT_EQ(Acts(), Texts{"board: "});
    EXPECT_EQ(HistoryCount, 1);
}

TEST_F(Assistance, PencilmarksThatExcludeTheSolutionEndUnsolved)
{
    StartSavedGame(EasyGame);
    Grid[3][1] = BitTable[1]; // the solution has a 4 here
    Grid[4][1] = BitTable[2]; // and a 6 here
    Grid[9][1] |= AlertBit;
    SolveMask = 0x6;
    AlertMask = 0x80000; // a technique that does not exist
    mnuApplyLogic();
    EXPECT_EQ(IsGridSolved(), False);
    EXPECT_EQ(WinDisplayRunning, False);
    EXPECT_EQ(Grid[9][1] & AlertBit, 0U) << "a fresh scan";
    EXPECT_EQ(Acts().back(), "board: ");
}

TEST_F(Assistance, StoppedSearchGoesOnAsAWinWithTheUnfinishedGrid)
{
    StartSavedGame(EasyGame);
    SolveMask = 0x6;
    Seen.OnYield = [] {
        SearchActive = False;
    };
    mnuApplyLogic();
    EXPECT_EQ(IsGridSolved(), False);
    EXPECT_EQ(WinDisplayRunning, True);
}

// Techniques that find nothing in an empty grid full of pencilmarks: trials without an end.
void StartLongRun()
{
    StartSavedGame(Dots(79) + "11");
    FillPencilmarks();
    SolveMask = MaskOf({XWing}) | TrialBit;
    ForgetRecord();
    Seen.Yields = 0;
}

TEST_F(Assistance, LongRunShowsTheBannerAndLeavesTheGameWhenStopped)
{
    StartLongRun();
    const GridTable before = Grid;
    const std::int32_t levels = HistoryCount;
    Seen.OnYield = [] {
        Seen.Steady += 0.3;
        if (Seen.Yields == 20) {
            Seen.YesNoAnswers = {true};
            EXPECT_FALSE(ReadyForCommand());
        }
    };
    mnuApplyLogic();
    EXPECT_EQ(Seen.Yields, 20);
    EXPECT_EQ(Acts(), (Texts{"banner:  Standby ", "stop sound: ",
                             "question: Would you like to stop searching?", "board: "}));
    EXPECT_EQ(Grid, before);
    EXPECT_EQ(HistoryCount, levels);
    EXPECT_EQ(WinDisplayRunning, False);
}

TEST_F(Assistance, BannerOfALongRunIsTakenAwayOnce)
{
    StartLongRun();
    Seen.OnYield = [] {
        Seen.Steady += 3;
        if (Seen.Yields == 2) {
            SearchActive = False;
        }
    };
    mnuApplyLogic();
    EXPECT_EQ(Acts(), (Texts{"banner:  Standby ", "board: "}));
    Seen.OnYield = nullptr;
    ForgetRecord();
    RateGame();
    EXPECT_EQ(Acts(), Texts{}) << "a game that is rated for itself is on no board";
}

TEST_F(Assistance, NothingIsLetInBetweenTheYesAndTheEndOfTheRun)
{
    StartLongRun();
    const auto levels = History;
    Seen.OnYield = [] {
        Seen.Steady += 3;
        Seen.YesNoAnswers = {true};
        if (Seen.Yields == 2) {
            EXPECT_FALSE(ReadyForCommand());
            EXPECT_FALSE(ReadyForCommand()) << "the board is still the run's";
            EXPECT_EQ(Seen.Questions.size(), 1U);
        }
    };
    mnuApplyLogic();
    EXPECT_EQ(Seen.Yields, 2);
    EXPECT_EQ(std::mismatch(levels.begin(), levels.begin() + SafeCopySlot, History.begin()).first,
              levels.begin() + SafeCopySlot);
    EXPECT_TRUE(ReadyForCommand());
}

TEST_F(Assistance, RunOfLessThanTwoSecondsCannotBeStopped)
{
    StartLongRun();
    Seen.OnYield = [] {
        Seen.Steady += 0.3;
        if (Seen.Yields == 6) {
            EXPECT_FALSE(ReadyForCommand());
            EXPECT_TRUE(Acts().empty());
            SearchActive = False;
        }
    };
    mnuApplyLogic();
    EXPECT_EQ(Seen.Yields, 6);
}

// ---- Solving the game ----------------------------------------------------------------------

TEST_F(Assistance, ImpossibleGameIsNotSolved)
{
    GameRating = 7;
    SetGivens(EasySolution);
    mnuSolveGame();
    EXPECT_EQ(Seen.Calls,
              Texts{"message: This sudoku is rated impossible because it has no solution."});
    EXPECT_EQ(Seen.Titles, Texts{"Kelvarine"});
}

TEST_F(Assistance, SolvedGameIsLeftAlone)
{
    SetGivens(EasySolution);
    GameRating = 5;
    const std::string before = ProgramState();
    mnuSolveGame();
    EXPECT_EQ(ProgramState(), before);
}

TEST_F(Assistance, GameSolvedByTheProgramIsWonButCountsAsCounted)
{
    StartSavedGame(EasyGame);
    SolveMask = 0x2;
    Grid[3][1] = BitTable[1]; // a wrong entry is no obstacle: the pencilmarks are filled in
    mnuSolveGame();
    EXPECT_EQ(IsGridSolved(), True);
    EXPECT_EQ(NumbersOf(Grid).substr(0, 9), "534678912");
    EXPECT_EQ(StatsCounted, True);
    EXPECT_EQ(WinDisplayRunning, True);
    EXPECT_EQ(SolveMask, 0x2U);
    EXPECT_EQ(HistoryCount, 2);
    EXPECT_EQ(Acts(), Texts{}) << "the command does not paint";
}

TEST_F(Assistance, SolvedGameOfSeveralSolutionsIsKeptOutOfTheStatisticsToo)
{
    StartSavedGame("");
    ASSERT_EQ(GameRating, 6);
    mnuSolveGame();
    EXPECT_EQ(IsGridSolved(), True);
    EXPECT_EQ(StatsCounted, True);
}

TEST_F(Assistance, GridStandsWhereLogicLeftItWhenThereIsNoSolution)
{
    OpenOneCell(1, 1);
    Grid[1][1] = BitTable[1];
    Grid[2][1] = BitTable[5] | GivenBit; // the number that the open cell needs
    GameRating = 1;                      // of an earlier position
    SolveMask = 0x4;
    mnuSolveGame();
    EXPECT_EQ(IsGridSolved(), False);
    EXPECT_EQ(Grid[1][1], CandidateMask) << "the pencilmarks stay filled in";
    EXPECT_EQ(StatsCounted, False);
    EXPECT_EQ(WinDisplayRunning, False);
    EXPECT_EQ(SolveMask, 0x4U);
    EXPECT_EQ(Acts(), Texts{});
}

} // namespace
} // namespace kelvarine::testing
