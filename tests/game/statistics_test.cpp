#include "game/screens.h"
#include "game/statistics_fixture.h"
#include "game/undo.h"
#include "grid/grid.h"
#include "support/play.h"
#include "support/positions.h"

#include <algorithm>
#include <filesystem>

namespace kelvarine::testing {
namespace {

// ---- Counting ------------------------------------------------------------------------------

TEST_F(Statistics, FirstEasyGameIsBestAndAverage)
{
    Solve(1, 95);
    EXPECT_EQ(SessionStats[0], (LevelRecord{0, 1, 95, 95}));
    EXPECT_EQ(InFile()[0], (LevelRecord{0, 1, 95, 95}));
    mnuStatistics();
    const Texts row{"Easy", "0", "1", "0:01:35 ", "0:01:35 ", "0"};
    EXPECT_EQ(Row(SessionTable, 0), row);
    EXPECT_EQ(Row(AllSessionsTable, 0), row);
}

TEST_F(Statistics, SecondEasyGameMovesBestAndAverage)
{
    Solve(1, 95);
    Solve(1, 85);
    EXPECT_EQ(SessionStats[0], (LevelRecord{0, 2, 85, 90}));
    EXPECT_EQ(InFile()[0], (LevelRecord{0, 2, 85, 90}));
}

TEST_F(Statistics, BestTimeMetExactlyStays)
{
    Solve(2, 100);
    Solve(2, 100);
    EXPECT_EQ(SessionStats[1].BestTime, 100);
    Solve(2, 99.6);
    EXPECT_EQ(SessionStats[1].BestTime, 100) << "less, and rounded";
    Solve(2, 101);
    EXPECT_EQ(SessionStats[1].BestTime, 100);
}

TEST_F(Statistics, AverageIsRoundedAtEachGame)
{
    Solve(1, 10);
    Solve(1, 11);
    EXPECT_EQ(SessionStats[0].AvgTime, 10) << "10.5 goes to the even number";
    Solve(1, 12);
    EXPECT_EQ(SessionStats[0].AvgTime, 11) << "of the rounded 10, 10 and 12";
}

TEST_F(Statistics, GameThatMustNotCountIsLeftOut)
{
    StatsCounted = True;
    GameRating = 3;
    SolveSeconds = 50;
    UpdateStatistics();
    EXPECT_EQ(SessionStats, StatisticsRecord{});
    EXPECT_FALSE(FileExists(StatisticsFilePath()));
}

TEST_F(Statistics, EachRatedLevelHasItsRecordAndNoOtherRatingCounts)
{
    for (std::int32_t rating = 0; rating <= 7; ++rating) {
        Solve(rating, 10.0 * rating);
    }
    const StatisticsRecord expected{
        {{0, 1, 10, 10}, {0, 1, 20, 20}, {0, 1, 30, 30}, {0, 1, 40, 40}, {0, 1, 50, 50}}};
    EXPECT_EQ(SessionStats, expected);
    EXPECT_EQ(InFile(), expected);
}

TEST_F(Statistics, WonGameCountsOnce)
{
    SetGivens(EasySolution);
    StartGame(NewGame);
    EXPECT_EQ(StatsCounted, True);
    EXPECT_EQ(SessionStats[4].Solved, 1) << "a full grid needs no technique and is extreme";
    StartGame(SameGame);
    Undo();
    EXPECT_EQ(SessionStats[4].Solved, 1);
    EXPECT_EQ(InFile()[4].Solved, 1);
}

TEST_F(Statistics, SessionStartsAtNothingAndTheFileGoesOn)
{
    Solve(1, 100);
    SetStatisticsDefaults();
    Solve(1, 50);
    EXPECT_EQ(SessionStats[0], (LevelRecord{0, 1, 50, 50}));
    EXPECT_EQ(InFile()[0], (LevelRecord{0, 2, 50, 75}));
}

// ---- Texts ---------------------------------------------------------------------------------

TEST_F(Statistics, TimesAlwaysHaveHours)
{
    EXPECT_EQ(StatisticsTime(0), "0:00:00 ");
    EXPECT_EQ(StatisticsTime(5), "0:00:05 ");
    EXPECT_EQ(StatisticsTime(95), "0:01:35 ");
    EXPECT_EQ(StatisticsTime(3599), "0:59:59 ");
    EXPECT_EQ(StatisticsTime(3600), "1:00:00 ");
    EXPECT_EQ(StatisticsTime(3723), "1:02:03 ");
    EXPECT_EQ(StatisticsTime(360000), "100:00:00 ");
    EXPECT_EQ(StatisticsTime(Most), "596523:14:07 ");
    EXPECT_EQ(StatisticsTime(-61), "-0:01:01 ");
    EXPECT_EQ(StatisticsTime(Least), "-596523:14:08 ");
}

TEST_F(Statistics, PercentagesHaveOneDecimalOrNone)
{
    for (const PercentFormat format : {PercentFormat::OneDecimal, PercentFormat::WholeBelowZero}) {
        EXPECT_EQ(PercentText(0, 4, format), "0");
        EXPECT_EQ(PercentText(1, 4, format), "25");
        EXPECT_EQ(PercentText(1, 3, format), "33.3");
        EXPECT_EQ(PercentText(2, 3, format), "66.7");
        EXPECT_EQ(PercentText(1, 8, format), "12.5");
        EXPECT_EQ(PercentText(4, 4, format), "100");
        EXPECT_EQ(PercentText(1, 10000, format), "0");
        EXPECT_EQ(PercentText(1999, 2000, format), "100");
        EXPECT_EQ(PercentText(1, Most, format), "0");
        EXPECT_EQ(PercentText(Most, 1, format), "214748364700");
    }
}

TEST_F(Statistics, PercentageBelowZeroDiffersBetweenTheTables)
{
    EXPECT_EQ(PercentText(-1, 3, PercentFormat::OneDecimal), "33.3");
    EXPECT_EQ(PercentText(-2, 3, PercentFormat::WholeBelowZero), "67");
    EXPECT_EQ(PercentText(-1, 1, PercentFormat::OneDecimal), "100");
    EXPECT_EQ(PercentText(Least, 1, PercentFormat::WholeBelowZero), "214748364800");
}

TEST_F(Statistics, TablesStartAtZero)
{
    for (const StatisticsTable &table : StatisticsLabels) {
        for (std::size_t row = 0; row < 6; ++row) {
            const std::string name(StatisticsRowNames[row]);
            EXPECT_EQ(Texts(table[row].begin(), table[row].end()),
                      (Texts{name, "0", "0", "0", "0", "0"}));
        }
    }
    EXPECT_EQ(StatisticsLabels[0][3][0], "Very Hard");
    EXPECT_EQ(StatisticsLabels[1][5][0], "Total");
}

TEST_F(Statistics, TotalSumsUpAndWeighsTheAverages)
{
    StatisticsTable table;
    const StatisticsRecord record{
        {{5, 2, 100, 110}, {0, 0, 0, 0}, {3, 1, 60, 61}, {0, 0, 0, 0}, {1, 4, 300, 301}}};
    FillStatisticsTable(table, record, PercentFormat::OneDecimal);
    // (2 * 110 + 1 * 61 + 4 * 301) / 7 = 212.14
    EXPECT_EQ(Texts(table[5].begin(), table[5].end()),
              (Texts{"", "9", "7", "0:01:00 ", "0:03:32 ", ""}));
    EXPECT_EQ(Texts(table[0].begin(), table[0].end()),
              (Texts{"", "5", "2", "0:01:40 ", "0:01:50 ", "40"}));
}

TEST_F(Statistics, BestTimeOfTheTotalIsTheLeastThatThereIs)
{
    StatisticsTable table;
    FillStatisticsTable(table, {{{0, 1, 0, 0}, {0, 1, 9, 9}, {0, 1, 1, 1}, {0, 1, 2, 2}}},
                        PercentFormat::OneDecimal);
    EXPECT_EQ(table[TotalRow][3], "0:00:01 ");
}

TEST_F(Statistics, AverageOfTheTotalIsRounded)
{
    StatisticsTable table;
    FillStatisticsTable(table, {{{0, 1, 1, 10}, {0, 1, 1, 11}}}, PercentFormat::OneDecimal);
    EXPECT_EQ(table[TotalRow][4], "0:00:10 ") << "10.5 goes to the even number";
    FillStatisticsTable(table, {{{0, 1, 1, 11}, {0, 1, 1, 12}}}, PercentFormat::OneDecimal);
    EXPECT_EQ(table[TotalRow][4], "0:00:12 ");
}

TEST_F(Statistics, TotalAverageIsShownAsSoonAsAGameWasSolved)
{
    StatisticsTable table;
    table[TotalRow].fill("old");
    FillStatisticsTable(table, {}, PercentFormat::OneDecimal);
    EXPECT_EQ(Texts(table[5].begin(), table[5].end()),
              (Texts{"old", "0", "0", "old", "old", "old"}));
    FillStatisticsTable(table, {{{0, 1, 0, 0}}}, PercentFormat::OneDecimal);
    EXPECT_EQ(Texts(table[5].begin(), table[5].end()),
              (Texts{"old", "0", "1", "old", "0:00:00 ", "old"}));
}

TEST_F(Statistics, LabelWithoutATimeKeepsItsText)
{
    StatisticsTable table;
    table[1].fill("old");
    FillStatisticsTable(table, {{{}, {0, 3, 0, -5}}}, PercentFormat::OneDecimal);
    EXPECT_EQ(Texts(table[1].begin(), table[1].end()),
              (Texts{"old", "0", "3", "old", "old", "old"}));
}

TEST_F(Statistics, TotalsOfAbsurdRecordsAreTexts)
{
    StatisticsTable table;
    StatisticsRecord record;
    record.fill({Most, Most, Most, Most});
    FillStatisticsTable(table, record, PercentFormat::OneDecimal);
    EXPECT_EQ(Texts(table[5].begin(), table[5].end()),
              (Texts{"", "10737418235", "10737418235", "596523:14:07 ", "596523:14:07 ", ""}));
    record = {{{0, Most, 1, Most}, {0, Least, 1, Least}, {0, 2, 1, 0}}};
    FillStatisticsTable(table, record, PercentFormat::WholeBelowZero);
    EXPECT_EQ(table[5][2], "1");
    EXPECT_EQ(table[5][4], "596523:14:07 ");
}

// ---- The screen ----------------------------------------------------------------------------

TEST_F(Statistics, OpeningLoadsTheTables)
{
    Solve(1, 95);
    ForgetRecord();
    mnuStatistics();
    EXPECT_EQ(Acts(), (Texts{"statistics screen: ", "statistics: "}));
    EXPECT_EQ(StatisticsOpen, True);
    EXPECT_EQ(StatisticsLabels[0][0][2], "1");
}

TEST_F(Statistics, WithoutAFileTheTablesStayAsTheyAre)
{
    SessionStats[0] = {0, 4, 10, 10};
    StatisticsLabels[0][0][2] = "as it was";
    LoadStatisticsScreen();
    EXPECT_EQ(StatisticsLabels[0][0][2], "as it was");
    EXPECT_EQ(StatisticsLabels[0][0][3], "0");
}

TEST_F(Statistics, TablesKeepTheirTextsWhenTheScreenOpensAgain)
{
    Solve(1, 95);
    mnuStatistics();
    StatisticsOpen = False;
    PutFile(std::string(80, '\0'));
    mnuStatistics();
    EXPECT_EQ(Row(AllSessionsTable, 0), (Texts{"Easy", "0", "0", "0:01:35 ", "0:01:35 ", "0"}));
}

TEST_F(Statistics, OpenScreenFollowsEachRecordedGame)
{
    Solve(1, 95);
    EXPECT_EQ(std::ranges::count(Seen.Calls, "statistics: "), 0);
    EXPECT_EQ(StatisticsLabels[0][0][2], "0");
    StatisticsOpen = True;
    Solve(1, 85);
    EXPECT_EQ(std::ranges::count(Seen.Calls, "statistics: "), 1);
    EXPECT_EQ(StatisticsLabels[0][0][2], "2");
    GameRating = 7;
    UpdateStatistics();
    EXPECT_EQ(std::ranges::count(Seen.Calls, "statistics: "), 1);
}

TEST_F(Statistics, PlayedIsShownAsItStandsInTheFile)
{
    PutFile(StatisticsBytes({{{8, 5, 0, 0}, {4, -1, 0, 0}}}));
    SessionStats[1] = {4, -1, 0, 0};
    mnuStatistics();
    EXPECT_EQ(Row(AllSessionsTable, 0), (Texts{"Easy", "8", "5", "0", "0", "62.5"}));
    EXPECT_EQ(Row(AllSessionsTable, 1), (Texts{"Medium", "4", "-1", "0", "0", "25"}));
    EXPECT_EQ(Row(AllSessionsTable, 5), (Texts{"Total", "12", "4", "0", "0:00:00 ", "0"}));
    EXPECT_EQ(Row(SessionTable, 1)[5], "25");
}

// ---- Clearing ------------------------------------------------------------------------------

TEST_F(Statistics, ClearingAsksAndNoChangesNothing)
{
    Solve(1, 95);
    mnuStatistics();
    const auto labels = StatisticsLabels;
    ForgetRecord();
    cmdClearStats();
    EXPECT_EQ(Acts(), Texts{"question: Are you sure you want to clear your statistics?"});
    EXPECT_EQ(StatisticsLabels, labels);
    EXPECT_EQ(SessionStats[0].Solved, 1);
    EXPECT_TRUE(FileExists(StatisticsFilePath()));
}

TEST_F(Statistics, ClearingEmptiesTablesSessionAndFile)
{
    Solve(1, 95);
    Solve(5, 20);
    mnuStatistics();
    ForgetRecord();
    Seen.YesNoAnswers = {true};
    cmdClearStats();
    EXPECT_EQ(Acts(),
              (Texts{"question: Are you sure you want to clear your statistics?", "statistics: "}));
    for (std::size_t table = 0; table < 2; ++table) {
        for (std::size_t row = 0; row < 6; ++row) {
            EXPECT_EQ(Row(table, row),
                      (Texts{std::string(StatisticsRowNames[row]), "0", "0", "0", "0", "0"}));
        }
    }
    EXPECT_EQ(SessionStats, StatisticsRecord{});
    EXPECT_FALSE(FileExists(StatisticsFilePath()));
}

TEST_F(Statistics, NextSolvedGameMakesTheFileAfresh)
{
    Solve(1, 95);
    Seen.YesNoAnswers = {true};
    cmdClearStats();
    Solve(2, 30);
    EXPECT_EQ(InFile(), (StatisticsRecord{{{}, {0, 1, 30, 30}}}));
}

TEST_F(Statistics, ClearingWithoutAFileIsNoFailure)
{
    Seen.YesNoAnswers = {true};
    cmdClearStats();
    EXPECT_TRUE(Seen.Messages.empty());
}

TEST_F(Statistics, FileThatCannotBeDeletedIsTold)
{
    std::filesystem::create_directories(StatisticsFilePath() + "/inside");
    Seen.YesNoAnswers = {true};
    cmdClearStats();
    EXPECT_EQ(Seen.Messages, Texts{"Directory not empty"});
}

TEST_F(Statistics, NothingIsClearedDuringASearch)
{
    Solve(1, 95);
    ForgetRecord();
    SearchActive = True;
    Seen.YesNoAnswers = {true};
    cmdClearStats();
    EXPECT_EQ(Acts(), Texts{});
    EXPECT_EQ(SessionStats[0].Solved, 1);
}

} // namespace
} // namespace kelvarine::testing
