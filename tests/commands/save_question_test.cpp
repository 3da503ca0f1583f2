#include "commands/save_question.h"
#include "game/lifecycle.h"
#include "grid/history.h"
#include "support/outside_double.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

class SaveQuestion : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

TEST_F(SaveQuestion, UnmodifiedGameIsNotAskedAbout)
{
    LastAnswer = 2;
    QuerySaveGame();
    EXPECT_EQ(LastAnswer, 0);
    EXPECT_EQ(Seen.Calls, Texts{});
}

TEST_F(SaveQuestion, SaveQuestionComesAfterPendingEvents)
{
    GameModified = True;
    Seen.SaveAnswers = {Answer::No};
    LastAnswer = 2;
    QuerySaveGame();
    EXPECT_EQ(LastAnswer, 0);
    EXPECT_EQ(Seen.Calls, (Texts{"pending events: ",
                                 "save question: Would you like to save this game first?"}));
    EXPECT_EQ(GameModified, True);
}

TEST_F(SaveQuestion, CancelInTheSaveQuestionStopsTheCaller)
{
    GameModified = True;
    Seen.SaveAnswers = {Answer::Cancel};
    QuerySaveGame();
    EXPECT_EQ(LastAnswer, 2);
}

TEST_F(SaveQuestion, YesStopsTheCallerWhenNoFileIsChosen)
{
    GameModified = True;
    Seen.SaveAnswers = {Answer::Yes};
    QuerySaveGame();
    EXPECT_EQ(LastAnswer, 2);
    EXPECT_EQ(GameModified, True);
}

} // namespace
} // namespace kelvarine::testing
