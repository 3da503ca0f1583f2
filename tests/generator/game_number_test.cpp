#include "generator/game_number.h"
#include "generator/random_source.h"
#include "support/outside_double.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

constexpr std::string_view FirstPrompt =
    "Please select a game number between 1 and 2,147,483,647\r";
constexpr std::string_view LaterPrompt =
    "Your game number is out of limits.\r\r"
    "Please select a game number between 1 and 2,147,483,647\r";

class GameNumbers : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

TEST_F(GameNumbers, DigitsFollowedByLettersSelectTheGameOfThoseDigits)
{
    Seen.TextAnswers = {"  42abc7"};
    EXPECT_TRUE(SelectGameNumber(UserSelected));
    EXPECT_EQ(GameNumber, 42);
    EXPECT_EQ(Seen.Questions, std::vector<std::string>{std::string(FirstPrompt)});
}

TEST_F(GameNumbers, LettersAloneEndTheCommandQuietly)
{
    GameNumber = 9;
    Seen.TextAnswers = {"abc"};
    EXPECT_FALSE(SelectGameNumber(UserSelected));
    EXPECT_EQ(GameNumber, 9);
    EXPECT_EQ(Seen.Questions.size(), 1U);
    EXPECT_TRUE(Seen.Messages.empty());
}

TEST_F(GameNumbers, NegativeAnswerAsksAgainAndZeroEnds)
{
    Seen.TextAnswers = {"-5", "0"};
    EXPECT_FALSE(SelectGameNumber(UserSelected));
    EXPECT_EQ(Seen.Questions,
              (std::vector<std::string>{std::string(FirstPrompt), std::string(LaterPrompt)}));
}

TEST_F(GameNumbers, NumberAboveTheLimitAsksAgain)
{
    Seen.TextAnswers = {"2147483648", "99999999999999999999999", "2147483647"};
    EXPECT_TRUE(SelectGameNumber(UserSelected));
    EXPECT_EQ(GameNumber, 2147483647);
    EXPECT_EQ(Seen.Questions.size(), 3U);
}

TEST_F(GameNumbers, CancelAndEmptyAnswerGiveUp)
{
    Seen.TextAnswers = {""};
    EXPECT_FALSE(SelectGameNumber(UserSelected));
}

TEST_F(GameNumbers, AnswersAreRoundedWithTiesToTheEvenNumber)
{
    EXPECT_EQ(TypedNumber("2.5"), 2);
    EXPECT_EQ(TypedNumber("3.5"), 4);
    EXPECT_EQ(TypedNumber("0.5"), 0);
    EXPECT_EQ(TypedNumber("+7.2x"), 7);
    EXPECT_EQ(TypedNumber("-0.4"), 0);
    EXPECT_EQ(TypedNumber("1,000"), 1);
    EXPECT_EQ(TypedNumber(""), 0);
    EXPECT_EQ(TypedNumber("   "), 0);
    EXPECT_EQ(TypedNumber("-"), 0);
    EXPECT_EQ(TypedNumber("."), 0);
}

TEST_F(GameNumbers, SelectionSeedsTheStreamWithTheNumber)
{
    Seen.TextAnswers = {"5489"};
    ASSERT_TRUE(SelectGameNumber(UserSelected));
    EXPECT_EQ(genrand_int31(), static_cast<std::int32_t>(3499211612U >> 1));
}

TEST_F(GameNumbers, RandomModeDrawsTheNumberAndSeedsWithIt)
{
    init_genrand(5489);
    ASSERT_TRUE(SelectGameNumber(RandomGame));
    EXPECT_EQ(GameNumber, static_cast<std::int32_t>(3499211612U >> 1));
    const std::int32_t next = genrand_int31();
    init_genrand(static_cast<std::uint32_t>(GameNumber));
    EXPECT_EQ(next, genrand_int31());
}

TEST_F(GameNumbers, OtherModesTakeTheNumberThatStandsOrAsk)
{
    GameNumber = 5489;
    EXPECT_TRUE(SelectGameNumber("Same"));
    EXPECT_TRUE(Seen.Questions.empty());
    EXPECT_EQ(genrand_int31(), static_cast<std::int32_t>(3499211612U >> 1));
    GameNumber = 0;
    Seen.TextAnswers = {"77"};
    EXPECT_TRUE(SelectGameNumber("Same"));
    EXPECT_EQ(GameNumber, 77);
}

} // namespace
} // namespace kelvarine::testing
