#include "board/geometry.h"
#include "board/margin.h"
#include "grid/grid.h"
#include "grid/names.h"
#include "support/outside_double.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

class Margin : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

std::string ColumnLabels()
{
    std::string labels;
    for (int column = 1; column <= 9; ++column) {
        labels += ColumnLabel(column);
    }
    return labels;
}

std::string RowLabels()
{
    std::string labels;
    for (int row = 1; row <= 9; ++row) {
        labels += RowLabel(row);
    }
    return labels;
}

TEST_F(Margin, DarkMarginOfSum350HasWhiteText)
{
    ColourTable[MarginColour] = 0xFF5F00; // 255 + 95
    PickMarginTextColour();
    EXPECT_EQ(CoordinateTextColour, 0xFFFFFFU);
}

TEST_F(Margin, MarginOfSum351HasBlackText)
{
    ColourTable[MarginColour] = 0x01FF5F; // 1 + 255 + 95
    PickMarginTextColour();
    EXPECT_EQ(CoordinateTextColour, 0U);
}

TEST_F(Margin, TextStartsWhiteOnTheBlackMargin)
{
    EXPECT_EQ(CoordinateTextColour, 0xFFFFFFU);
}

TEST_F(Margin, ColumnFormatsWithAPrefixShowTheNumberAlone)
{
    ColumnFormat = 3;
    EXPECT_EQ(ColumnLabels(), "123456789");
    EXPECT_EQ(ColumnName(1), "C1");
    ColumnFormat = 4;
    EXPECT_EQ(ColumnLabels(), "123456789");
}

TEST_F(Margin, LabelsShowDigitsOrLettersWithoutI)
{
    ColumnFormat = 0;
    EXPECT_EQ(ColumnLabels(), "123456789");
    ColumnFormat = 1;
    EXPECT_EQ(ColumnLabels(), "ABCDEFGHJ");
    ColumnFormat = 2;
    EXPECT_EQ(ColumnLabels(), "abcdefghj");
}

TEST_F(Margin, RowsAreLabelledByTheirOwnFormat)
{
    ColumnFormat = 0;
    RowFormat = 2;
    EXPECT_EQ(RowLabels(), "abcdefghj");
    RowFormat = 4;
    EXPECT_EQ(RowLabels(), "123456789");
}

TEST_F(Margin, UnknownFormatLabelsNothing)
{
    ColumnFormat = 5;
    RowFormat = -1;
    EXPECT_EQ(ColumnLabels(), "");
    EXPECT_EQ(RowLabels(), "");
}

TEST_F(Margin, EachRatingHasItsWord)
{
    const std::vector<std::string> words{
        "No rating",          "Easy",      "Medium", "Hard", "Very hard", "Extreme",
        "Multiple solutions", "Impossible"};
    for (std::size_t rating = 0; rating < words.size(); ++rating) {
        GameRating = static_cast<std::int32_t>(rating);
        EXPECT_EQ(MarginRatingWord(), words[rating]);
    }
}

TEST_F(Margin, RatingWithoutAWordKeepsThePreviousOne)
{
    GameRating = 4;
    EXPECT_EQ(MarginRatingWord(), "Very hard");
    GameRating = 8;
    EXPECT_EQ(MarginRatingWord(), "Very hard");
    GameRating = -1;
    EXPECT_EQ(MarginRatingWord(), "Very hard");
}

TEST_F(Margin, GivenCountStandsInWords)
{
    GivenCount = 24;
    EXPECT_EQ(GivenCountText(), "# given cells: 24");
}

TEST_F(Margin, GivenCountFitsUpToTheWidthOfTheBoard)
{
    BoardPlace.Width = 200;
    EXPECT_TRUE(GivenCountFits(100, 100));
    EXPECT_FALSE(GivenCountFits(100, 101));
}

} // namespace
} // namespace kelvarine::testing
