#include "grid/names.h"
#include "support/outside_double.h"

#include <gtest/gtest.h>

#include <array>

namespace kelvarine::testing {
namespace {

class Names : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

TEST_F(Names, DefaultNamesAreLetterAndDigitInBrackets)
{
    EXPECT_EQ(CellName(1, 1), "[A1]");
    EXPECT_EQ(CellName(9, 5), "[J5]");
    EXPECT_EQ(ColumnName(3), "C");
    EXPECT_EQ(RowName(3), "3");
}

TEST_F(Names, LettersLeaveTheIOut)
{
    ColumnFormat = 1;
    RowFormat = 2;
    std::string columns;
    std::string rows;
    for (int line = 1; line <= 9; ++line) {
        columns += ColumnName(line);
        rows += RowName(line);
    }
    EXPECT_EQ(columns, "ABCDEFGHJ");
    EXPECT_EQ(rows, "abcdefghj");
}

TEST_F(Names, ColumnNineIsJAndRowNineIsSmallJ)
{
    ColumnFormat = 1;
    RowFormat = 2;
    EXPECT_EQ(ColumnName(9), "J");
    EXPECT_EQ(RowName(9), "j");
    RowFormat = 1;
    ColumnFormat = 2;
    EXPECT_EQ(ColumnName(9), "j");
    EXPECT_EQ(RowName(9), "J");
}

TEST_F(Names, FormatsOfColumns)
{
    constexpr std::array expected{"7", "G", "g", "C7", "c7"};
    for (ColumnFormat = 0; ColumnFormat <= 4; ++ColumnFormat) {
        EXPECT_EQ(ColumnName(7), expected[ColumnFormat]);
    }
}

TEST_F(Names, FormatsOfRows)
{
    constexpr std::array expected{"7", "G", "g", "R7", "r7"};
    for (RowFormat = 0; RowFormat <= 4; ++RowFormat) {
        EXPECT_EQ(RowName(7), expected[RowFormat]);
    }
}

TEST_F(Names, BothPartsMayBeLetters)
{
    RowFormat = 1;
    EXPECT_EQ(CellName(1, 1), "[AA]");
}

TEST_F(Names, RowFirstWithCommaAndRoundBrackets)
{
    CoordRowFirst = True;
    CoordSeparator = 1;
    CoordBrackets = 1;
    ColumnFormat = 0;
    RowFormat = 3;
    EXPECT_EQ(CellName(2, 7), "(R7,2)");
}

TEST_F(Names, AnyNonZeroPutsTheRowFirst)
{
    CoordRowFirst = 1;
    EXPECT_EQ(CellName(2, 7), "[7B]");
    CoordRowFirst = 0;
    EXPECT_EQ(CellName(2, 7), "[B7]");
}

TEST_F(Names, Separators)
{
    constexpr std::array expected{"[B7]", "[B,7]", "[B-7]", "[B/7]"};
    for (CoordSeparator = 0; CoordSeparator <= 3; ++CoordSeparator) {
        EXPECT_EQ(CellName(2, 7), expected[CoordSeparator]);
    }
}

TEST_F(Names, Brackets)
{
    constexpr std::array expected{"B7", "(B7)", "{B7}", "[B7]", "<B7>"};
    for (CoordBrackets = 0; CoordBrackets <= 4; ++CoordBrackets) {
        EXPECT_EQ(CellName(2, 7), expected[CoordBrackets]);
    }
}

TEST_F(Names, UnknownSettingsProduceNothingForTheirElement)
{
    for (const std::int32_t absurd : {5, -1, 2147483647, -2147483647 - 1}) {
        SetNamingDefaults();
        ColumnFormat = absurd;
        EXPECT_EQ(ColumnName(2), "");
        EXPECT_EQ(CellName(2, 7), "[7]");
        RowFormat = absurd;
        EXPECT_EQ(RowName(7), "");
        EXPECT_EQ(CellName(2, 7), "[]");
        SetNamingDefaults();
        CoordBrackets = absurd;
        EXPECT_EQ(CellName(2, 7), "B7");
        SetNamingDefaults();
        CoordSeparator = absurd;
        EXPECT_EQ(CellName(2, 7), "[B7]");
    }
    SetNamingDefaults();
    CoordSeparator = 4;
    EXPECT_EQ(CellName(2, 7), "[B7]");
}

TEST_F(Names, BoxesByAllTheirCells)
{
    constexpr std::array<std::array<std::string_view, 3>, 3> expected{{
        {"upper-left", "upper-center", "upper-right"},
        {"center-left", "center", "center-right"},
        {"lower-left", "lower-center", "lower-right"},
    }};
    for (int column = 1; column <= 9; ++column) {
        for (int row = 1; row <= 9; ++row) {
            EXPECT_EQ(BoxName(column, row), expected[(row - 1) / 3][(column - 1) / 3]);
        }
    }
    EXPECT_EQ(BoxName(5, 5), "center");
    EXPECT_EQ(BoxName(5, 1), "upper-center");
    EXPECT_EQ(BoxName(1, 5), "center-left");
}

TEST_F(Names, BoxesDoNotFollowTheSettings)
{
    ColumnFormat = 0;
    RowFormat = 3;
    CoordBrackets = 0;
    CoordRowFirst = True;
    EXPECT_EQ(BoxName(8, 2), "upper-right");
}

} // namespace
} // namespace kelvarine::testing
