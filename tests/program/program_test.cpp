#include "configure/configuration.h"
#include "game/screens.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "logic/driver.h"
#include "program/program.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"
#include "support/settings_folder.h"

#include <gtest/gtest.h>

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
    EXPECT_TRUE(Seen.LaterDeeds.empty());
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

TEST_F(WholeProgram, WhereNobodyMayBeAskedNothingIsAndTheSettingsAreKept)
{
    for (void (*keep)() : {KeepUnasked, EndProgramUnasked}) {
        StartProgram("");
        GameModified = True;
        ForgetRecord();
        keep();
        EXPECT_TRUE(Seen.Questions.empty());
        EXPECT_EQ(GameModified, True);
        EXPECT_NE(Folders.ReadSetting("config.sdu"), "");
    }
}

TEST_F(WholeProgram, EndDuringASearchAsksOnlyWhetherToStopIt)
{
    StartProgram("");
    GameModified = True;
    SearchActive = True;
    SearchKind = SearchingGame;
    ForgetRecord();
    Seen.YesNoAnswers = {true};
    EXPECT_FALSE(EndProgram());
    EXPECT_EQ(Acts(), (Texts{"stop sound: ", "question: Would you like to stop searching?"}));
    EXPECT_EQ(SearchActive, False);
}

} // namespace
} // namespace kelvarine::testing
