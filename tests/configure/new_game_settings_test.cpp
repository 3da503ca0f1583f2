#include "configure/new_game_settings.h"
#include "generator/generator.h"
#include "support/outside_double.h"
#include "support/play.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

class NewGameSettings : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

TEST_F(NewGameSettings, EasyAloneAtTheStart)
{
    for (std::int32_t level = 1; level <= Levels; ++level) {
        EXPECT_EQ(AcceptsLevel(level), level == 1);
    }
}

TEST_F(NewGameSettings, MaskIsRebuiltWholeFromAllFive)
{
    DifficultySelection = 0xFFFFFFFF;
    SetAcceptedLevels({false, false, true, false, false, true});
    EXPECT_EQ(DifficultySelection, 0x24U);
    EXPECT_TRUE(AcceptsLevel(2));
    EXPECT_FALSE(AcceptsLevel(3));
}

TEST_F(NewGameSettings, AllLevelsMayBeOff)
{
    SetAcceptedLevels({});
    EXPECT_EQ(DifficultySelection, 0U);
    EXPECT_EQ(Acts(), std::vector<std::string>());
}

TEST_F(NewGameSettings, Captions)
{
    const std::vector<std::string> words{" Easy", " Medium", " Hard", " Very hard", " Extreme"};
    std::vector<std::string> captions;
    for (std::int32_t level = 1; level <= Levels; ++level) {
        captions.push_back(DifficultyCaption(level));
    }
    EXPECT_EQ(captions, words);
}

} // namespace
} // namespace kelvarine::testing
