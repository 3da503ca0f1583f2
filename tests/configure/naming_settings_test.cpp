#include "configure/naming_settings.h"
#include "grid/names.h"
#include "support/outside_double.h"
#include "support/play.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

class NamingSettings : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

TEST_F(NamingSettings, FormatsRefreshTheWindowWhoseLabelsFollow)
{
    SetColumnFormat(3);
    SetRowFormat(4);
    EXPECT_EQ(CellName(2, 7), "[C2r7]");
    EXPECT_EQ(Acts(), (Texts{"refresh: ", "refresh: "}));
}

TEST_F(NamingSettings, SeparatorAndBracketsRefreshNothing)
{
    SetCoordSeparator(1);
    SetCoordBrackets(4);
    EXPECT_EQ(CellName(2, 7), "<B,7>");
    EXPECT_EQ(Acts(), Texts());
}

TEST_F(NamingSettings, LettersForBothAreTheSameLetters)
{
    SetColumnFormat(1);
    SetRowFormat(1);
    EXPECT_EQ(CellName(1, 1), "[AA]");
    EXPECT_EQ(CellName(9, 9), "[JJ]");
}

TEST_F(NamingSettings, SwitchingTwiceGivesBackTheFirstOrder)
{
    SwitchCoordOrder();
    EXPECT_EQ(CoordRowFirst, True);
    EXPECT_EQ(CellName(2, 7), "[7B]");
    SwitchCoordOrder();
    EXPECT_EQ(CoordRowFirst, False);
    EXPECT_EQ(CellName(2, 7), "[B7]");
}

TEST_F(NamingSettings, EveryCaptionIsWhatItsIndexGives)
{
    EXPECT_EQ(ColumnCaptions,
              (std::array<std::string_view, 5>{" 1-9 ", " A-J ", " a-j ", " C1-C9 ", " c1-c9 "}));
    EXPECT_EQ(RowCaptions,
              (std::array<std::string_view, 5>{" 1-9 ", " A-J ", " a-j ", " R1-R9 ", " r1-r9 "}));
    EXPECT_EQ(SeparatorCaptions, (std::array<std::string_view, 4>{" None ", " , ", " - ", " / "}));
    EXPECT_EQ(BracketCaptions,
              (std::array<std::string_view, 5>{" None ", " ( ) ", " { } ", " [ ] ", " < > "}));
    for (std::int32_t k = 0; k < 5; ++k) {
        SetColumnFormat(k);
        SetRowFormat(k);
        const std::string range = " " + ColumnName(1) + "-" + ColumnName(9) + " ";
        EXPECT_EQ(ColumnCaptions[static_cast<std::size_t>(k)], range);
        const std::string rows = " " + RowName(1) + "-" + RowName(9) + " ";
        EXPECT_EQ(RowCaptions[static_cast<std::size_t>(k)], rows);
    }
}

} // namespace
} // namespace kelvarine::testing
