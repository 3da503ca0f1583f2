#include "configure/configuration.h"
#include "files/game_file.h"
#include "game/screens.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "logic/driver.h"
#include "logic/kept_settings.h"
#include "logic/technique_masks.h"
#include "outside/folders.h"
#include "outside/whole_file.h"
#include "program/program.h"
#include "support/child_process.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"
#include "support/settings_folder.h"

#include <gtest/gtest.h>

#include <csignal>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

class WholeProgram : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }

    // The settings of an earlier run that ended in this state.
    void KeepSettings()
    {
        WriteConfiguration();
        Restart();
    }

    SettingsFolders Folders;
};

TEST_F(WholeProgram, StartsOnAnEmptyGameThatNobodyHasToSave)
{
    StartProgram("");
    EXPECT_EQ(Acts(),
              (Texts{"window made: ", "stop sound: ", "window shown: ", "window in front: "}));
    EXPECT_EQ(Grid, GridTable{});
    EXPECT_EQ(GameModified, False);
    EXPECT_EQ(HistoryCount, 1);
    ASSERT_EQ(Seen.LaterDeeds.size(), 1U);
    ForgetRecord();
    Seen.LaterDeeds[0]();
    EXPECT_EQ(Acts(), Texts{}) << "there is no game to go on with";
}

TEST_F(WholeProgram, BringsBackTheScreensThatWereOpenButTheSolutions)
{
    ConfigureOpen = True;
    StatisticsOpen = True;
    SolutionsOpen = True;
    KeepSettings();
    StartProgram("");
    EXPECT_EQ(Acts(), (Texts{"window made: ", "stop sound: ", "window shown: ", "configure: 0",
                             "statistics screen: ", "statistics: ", "window in front: "}));
    EXPECT_EQ(SolutionsOpen, False);
}

TEST_F(WholeProgram, OpensAGameFileOnlyWithinTheEventLoop)
{
    StartProgram("/no/such/game.sdk");
    ASSERT_EQ(Seen.LaterDeeds.size(), 1U);
    EXPECT_TRUE(Seen.Messages.empty());
    Seen.LaterDeeds[0]();
    EXPECT_EQ(Seen.Messages,
              (Texts{"Unable to open file.\r\rSelected file is either corrupted or is not "
                     "a sudoku game file."}));
}

TEST_F(WholeProgram, EndStopsTheSoundAndKeepsThePlace)
{
    StartProgram("");
    StartSavedGame(EasyGame);
    EXPECT_TRUE(EndProgram());
    EXPECT_EQ(Acts(), (Texts{"stop sound: ", "place kept: "}));
}

TEST_F(WholeProgram, EndWritesTheSettings)
{
    StartProgram("");
    EXPECT_EQ(Folders.ReadSetting("config.sdu"), "");
    EXPECT_TRUE(EndProgram());
    EXPECT_NE(Folders.ReadSetting("config.sdu"), "");
}

TEST_F(WholeProgram, CancelInTheSaveQuestionKeepsTheProgramAndWritesNothing)
{
    StartProgram("");
    GameModified = True;
    ForgetRecord();
    Seen.SaveAnswers = {Answer::Cancel};
    EXPECT_FALSE(EndProgram());
    EXPECT_EQ(Acts(), (Texts{"pending events: ",
                             "save question: Would you like to save this game first?"}));
    EXPECT_EQ(Folders.ReadSetting("config.sdu"), "");
}

TEST_F(WholeProgram, QuestionBeforeTheEndEndsNothing)
{
    StartProgram("");
    GameModified = True;
    ForgetRecord();
    Seen.SaveAnswers = {Answer::No, Answer::Cancel};
    EXPECT_TRUE(AskBeforeTheEnd());
    EXPECT_FALSE(AskBeforeTheEnd());
    EXPECT_EQ(Seen.Questions.size(), 2U);
    EXPECT_EQ(Folders.ReadSetting("config.sdu"), "");
    KeepSettings();
    EXPECT_NE(Folders.ReadSetting("config.sdu"), "");
}

TEST_F(WholeProgram, EndWithoutAQuestionKeepsTheSettingsAndTheGameForTheNextStart)
{
    StartProgram("");
    StartSavedGame(EasyGame);
    PushUndoState();
    ForgetRecord();
    KeepBeforeAsking();
    ForgetRecord();
    EndProgramUnasked();
    EXPECT_EQ(Acts(), (Texts{"stop sound: ", "place kept: "}));
    EXPECT_TRUE(Seen.Questions.empty());
    EXPECT_EQ(GameModified, True);
    EXPECT_FALSE(Seen.RecoveryTimerOn);
    EXPECT_NE(Folders.ReadSetting("config.sdu"), "");
    EXPECT_TRUE(FileExists(DataFolder() + "recovery-1.sdk"));
}

TEST_F(WholeProgram, EndOfAnAnsweredSessionTakesWhatIsKeptAway)
{
    StartProgram("");
    StartSavedGame(EasyGame);
    PushUndoState();
    KeepBeforeAsking();
    EndProgramAnswered();
    EXPECT_FALSE(FileExists(DataFolder() + "recovery-1.sdk"));
    EXPECT_FALSE(Seen.RecoveryTimerOn);
}

TEST_F(WholeProgram, EndDuringASearchStopsItAndClosesThen)
{
    StartProgram("");
    for (const std::int32_t kind : {SearchingGame, ListingSolutions}) {
        GameModified = True;
        StartRun();
        SearchKind = kind;
        Seen.LaterDeeds.clear();
        ForgetRecord();
        Seen.YesNoAnswers = {true};
        EXPECT_FALSE(EndProgram());
        EXPECT_EQ(Acts(), (Texts{"stop sound: ", "question: Would you like to stop searching?"}));
        EXPECT_EQ(SearchActive, False);
        EXPECT_FALSE(EndProgram()) << "not before the run has ended";
        EXPECT_TRUE(Seen.LaterDeeds.empty());
        EndRun();
        ASSERT_EQ(Seen.LaterDeeds.size(), 1U);
        Seen.LaterDeeds.front()();
        EXPECT_EQ(Acts().back(), "window closed: ");
    }
}

TEST_F(WholeProgram, EndDuringASearchThatGoesOnIsTakenBack)
{
    StartProgram("");
    StartRun();
    SearchKind = SearchingGame;
    Seen.LaterDeeds.clear();
    Seen.YesNoAnswers = {false};
    EXPECT_FALSE(EndProgram());
    EXPECT_NE(SearchActive, False);
    EndRun();
    EXPECT_TRUE(Seen.LaterDeeds.empty());
}

TEST_F(WholeProgram, NoTakesAnEarlierClosingBackToo)
{
    StartProgram("");
    StartRun();
    Seen.LaterDeeds.clear();
    EXPECT_FALSE(EndProgram()) << "it waits";
    RunIsLong = True;
    Seen.YesNoAnswers = {false};
    EXPECT_FALSE(EndProgram());
    EndRun();
    EXPECT_TRUE(Seen.LaterDeeds.empty());
}

TEST_F(WholeProgram, ClosingThatWaitsIsAskedAboutWhenTheRunBecomesLong)
{
    StartProgram("");
    SetGame(Dots(79) + "11");
    SolveMask = MaskOf({XWing}) | TrialBit;
    Seen.LaterDeeds.clear();
    Seen.OnYield = [] {
        Seen.Steady += 1;
        if (Seen.Yields == 1) {
            EXPECT_FALSE(EndProgram());
        }
        if (!Seen.LaterDeeds.empty()) {
            EXPECT_NE(RunIsLong, False);
            SearchActive = False;
        }
    };
    Seen.Yields = 0;
    ApplyLogic(SolveAsPlayer);
    ASSERT_EQ(Seen.LaterDeeds.size(), 1U);
    ForgetRecord();
    Seen.LaterDeeds.front()();
    EXPECT_EQ(Acts().back(), "window closed: ");
}

TEST_F(WholeProgram, QuestionsOfASessionDuringARunCloseNothingLater)
{
    StartProgram("");
    StartRun();
    SearchKind = SearchingGame;
    Seen.LaterDeeds.clear();
    Seen.YesNoAnswers = {false, true};
    EXPECT_FALSE(MayEndRun());
    EXPECT_TRUE(MayEndRun());
    EXPECT_EQ(SearchActive, False);
    EndRun();
    EXPECT_TRUE(Seen.LaterDeeds.empty());
}

TEST_F(WholeProgram, SearchThatThePlayerHasStoppedIsNotAskedAboutAgain)
{
    StartProgram("");
    SearchKind = SearchingGame;
    StopRequested = False;
    StartRun();
    Seen.YesNoAnswers = {true};
    EXPECT_TRUE(MayEndRun());
    EndRun();
    StartRun(); // the rest of a rating
    EXPECT_TRUE(MayEndRun());
    EXPECT_EQ(Seen.Questions.size(), 1U);
    EndRun();
}

TEST_F(WholeProgram, SignalAfterTheAnswerKeepsNothingMore)
{
    StatisticsOpen = True;
    KeepSettings();
    StartProgram("");
    EXPECT_TRUE(EndProgram());
    const std::string atTheEnd = Folders.ReadSetting("config.sdu");
    StatisticsOpen = False; // as the screens go with the program
    PushUndoState();
    KeepBeforeAsking();
    EXPECT_EQ(Folders.ReadSetting("config.sdu"), atTheEnd);
    EXPECT_FALSE(FileExists(DataFolder() + "recovery-1.sdk"));
}

TEST_F(WholeProgram, ToldToGoWhileItStartsAsksAboutNoGame)
{
    ASSERT_EQ(RunInChild([] {
                  StartProgram("");
                  PushUndoState();
                  KeepBeforeAsking();
                  return ::raise(SIGKILL);
              }),
              -1);
    Restart();
    StartProgram("/no/such/game.sdk");
    ASSERT_EQ(Seen.LaterDeeds.size(), 1U);
    EXPECT_TRUE(EndProgram());
    ForgetRecord();
    Seen.LaterDeeds[0]();
    EXPECT_EQ(Acts(), Texts{});
    EXPECT_TRUE(FileExists(DataFolder() + "recovery-1.sdk")) << "it is for the next start";
}

TEST_F(WholeProgram, SettingsKeptDuringARunAreThePlayers)
{
    StartProgram("");
    SolveMask = SinglesMask;
    MaxXYLinks = 7;
    const std::string own = ConfigurationBytes();
    {
        const KeptSettings kept;
        SolveMask = RatingMask;
        MaxXYLinks = 81;
        {
            const KeptSettings inner;
            SolveMask = CountingMask;
            EXPECT_EQ(ConfigurationBytes(), own);
            EXPECT_EQ(SolveMask, CountingMask);
        }
        EXPECT_EQ(MaxXYLinks, 81);
        KeepBeforeAsking();
    }
    EXPECT_EQ(Folders.ReadSetting("config.sdu"), own);
}

TEST_F(WholeProgram, EndDuringAShortRunWaitsForIt)
{
    StartProgram("");
    StartRun();
    Seen.LaterDeeds.clear();
    ForgetRecord();
    EXPECT_FALSE(EndProgram());
    EXPECT_TRUE(Acts().empty());
    EndRun();
    EXPECT_EQ(Seen.LaterDeeds.size(), 1U);
}

// ---- What is kept for a crash ----------------------------------------------------------------

TEST_F(WholeProgram, LooksAtTheGameEveryTwoSecondsUntilItsEnd)
{
    StartProgram("");
    EXPECT_TRUE(Seen.RecoveryTimerOn);
    EXPECT_EQ(Seen.RecoveryMilliseconds, 2000);
    EXPECT_TRUE(EndProgram());
    EXPECT_FALSE(Seen.RecoveryTimerOn);
}

TEST_F(WholeProgram, KeepsGameAndSettingsBeforeItAsksAndSaysNothing)
{
    StartProgram("");
    StartSavedGame(EasyGame);
    PushUndoState();
    ForgetRecord();
    KeepBeforeAsking();
    EXPECT_EQ(Acts(), Texts{"place kept: "});
    EXPECT_NE(Folders.ReadSetting("config.sdu"), "");
    EXPECT_TRUE(FileExists(DataFolder() + "recovery-1.sdk"));
    EXPECT_EQ(GameModified, True);
    EXPECT_TRUE(EndProgram()) << "and No is the answer";
    EXPECT_FALSE(FileExists(DataFolder() + "recovery-1.sdk"));
}

TEST_F(WholeProgram, CancelAtTheEndKeepsWhatIsKept)
{
    StartProgram("");
    PushUndoState();
    KeepBeforeAsking();
    Seen.SaveAnswers = {Answer::Cancel};
    EXPECT_FALSE(EndProgram());
    EXPECT_TRUE(FileExists(DataFolder() + "recovery-1.sdk"));
    EXPECT_TRUE(Seen.RecoveryTimerOn);
}

TEST_F(WholeProgram, GameThatCameBackIsAskedAboutBeforeAFileIsOpened)
{
    std::string error;
    StartSavedGame(EasyGame);
    ASSERT_TRUE(ReplaceWholeFile(DataFolder() + "recovery-1.sdk", GameFileBytes() + "GR", error));
    Restart();
    StartProgram("/no/such/game.sdk");
    ForgetRecord();
    Seen.YesNoAnswers = {true};
    Seen.SaveAnswers = {Answer::Cancel};
    Seen.LaterDeeds[0]();
    EXPECT_EQ(Seen.Questions,
              (Texts{"The last game was not closed. Would you like to go on with it?",
                     "Would you like to save this game first?"}));
    EXPECT_TRUE(Seen.Messages.empty()) << "the file is left alone";
    EXPECT_EQ(GivenCount, 30);
    EXPECT_EQ(GameModified, True);
}

} // namespace
} // namespace kelvarine::testing
