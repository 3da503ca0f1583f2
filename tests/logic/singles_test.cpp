#include "grid/grid.h"
#include "grid/names.h"
#include "logic/singles.h"
#include "support/outside_double.h"
#include "support/positions.h"
#include "support/traces.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace kelvarine::testing {
namespace {

// Rows with a small letter, in front of the columns, as in "(r5,C9)".
void NameRowsFirst()
{
    ColumnFormat = 3;
    RowFormat = 4;
    CoordSeparator = 1;
    CoordBrackets = 1;
    CoordRowFirst = True;
}

class Singles : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

// ---- Last candidate ------------------------------------------------------------------------

// Column A lacks the 9; the last cell has the pencilmarks 1, 3 and 9.
constexpr std::string_view ColumnNearlyFull = R"(
    [1] . . . . . . . .
    [2] . . . . . . . .
    3   . . . . . . . .
    4   . . . . . . . .
    [5] . . . . . . . .
    6   . . . . . . . .
    [7] . . . . . . . .
    [8] . . . . . . . .
    139 . . . . . . . .
)";

// Row 5 lacks the 8; the last cell is empty.
constexpr std::string_view RowNearlyFull = R"(
    .   .   . .   .   . .   .   .
    .   .   . .   .   . .   .   .
    .   .   . .   .   . .   .   .
    .   .   . .   .   . .   .   .
    [9] [1] 2 [3] [4] 5 [6] [7] .
    .   .   . .   .   . .   .   .
    .   .   . .   .   . .   .   .
    .   .   . .   .   . .   .   .
    .   .   . .   .   . .   .   .
)";

// The upper-center box holds the 1 twice and lacks 8 and 9.
constexpr std::string_view BoxWithRepeat = R"(
    . . . [1] [2] 3   . . .
    . . . [4] .   [5] . . .
    . . . 6   [7] 1   . . .
    . . . .   .   .   . . .
    . . . .   .   .   . . .
    . . . .   .   .   . . .
    . . . .   .   .   . . .
    . . . .   .   .   . . .
    . . . .   .   .   . . .
)";

TEST_F(Singles, LastCandidateOfAColumnIsPlacedWhateverItsPencilmarks)
{
    EXPECT_EQ(TracesOf(FindUnplacedLastCandidate, 0, ColumnNearlyFull), "found\nA9 139 -> 9\n");
    EXPECT_EQ(TracesOf(FindUnplacedLastCandidate, 1, ColumnNearlyFull), "alert A9\n");
    EXPECT_EQ(TracesOf(FindUnplacedLastCandidate, 2, ColumnNearlyFull), "");
    EXPECT_EQ(TracesOf(FindUnplacedLastCandidate, 2, ColumnNearlyFull, MakeCell(1, 9)),
              "selected A9\n"
              "hint cell A9\n"
              "hint domain A1 A2 A3 A4 A5 A6 A7 A8 A9\n"
              "title Unplaced last candidate\n"
              "text Cell [A9] is the last incomplete cell in column A|"
              "and must contain the last candidate which is a 9.\n");
    EXPECT_EQ(TracesOf(FindUnplacedLastCandidate, 2, ColumnNearlyFull, MakeCell(1, 8)),
              "selected A8\n");
    EXPECT_EQ(TracesOf(FindUnplacedLastCandidate, 3, ColumnNearlyFull),
              "text There's an unplaced last candidate.\n");
    EXPECT_EQ(TracesOf(FindUnplacedLastCandidate, 4, ColumnNearlyFull),
              "text There's an unplaced last candidate.|It's in a column.\n");
    EXPECT_EQ(TracesOf(FindUnplacedLastCandidate, 5, ColumnNearlyFull),
              "selected A9\n"
              "hint cell A9\n"
              "hint domain A1 A2 A3 A4 A5 A6 A7 A8 A9\n"
              "title Unplaced last candidate\n"
              "text Cell [A9] is the last incomplete cell in column A|"
              "and must contain the last candidate which is a 9.\n");
}

TEST_F(Singles, LastCandidateOfARowIsNamedInThePlayersStyle)
{
    NameRowsFirst();
    constexpr std::string_view full = "selected J5\n"
                                      "hint cell J5\n"
                                      "hint domain A5 B5 C5 D5 E5 F5 G5 H5 J5\n"
                                      "title Unplaced last candidate\n"
                                      "text Cell (r5,C9) is the last incomplete cell in row r5|"
                                      "and must contain the last candidate which is a 8.\n";
    EXPECT_EQ(TracesOf(FindUnplacedLastCandidate, 0, RowNearlyFull), "found\nJ5 . -> 8\n");
    EXPECT_EQ(TracesOf(FindUnplacedLastCandidate, 1, RowNearlyFull), "alert J5\n");
    EXPECT_EQ(TracesOf(FindUnplacedLastCandidate, 2, RowNearlyFull, MakeCell(9, 5)), full);
    EXPECT_EQ(TracesOf(FindUnplacedLastCandidate, 3, RowNearlyFull),
              "text There's an unplaced last candidate.\n");
    EXPECT_EQ(TracesOf(FindUnplacedLastCandidate, 4, RowNearlyFull),
              "text There's an unplaced last candidate.|It's in a row.\n");
    EXPECT_EQ(TracesOf(FindUnplacedLastCandidate, 5, RowNearlyFull), full);
}

TEST_F(Singles, LastCandidateWithARepeatLeavesTwoNumbersAndReadsTen)
{
    constexpr std::string_view full =
        "selected E2\n"
        "hint cell E2\n"
        "hint domain D1 D2 D3 E1 E2 E3 F1 F2 F3\n"
        "title Unplaced last candidate\n"
        "text Cell [E2] is the last incomplete cell in the upper-center box|"
        "and must contain the last candidate which is a 10.\n";
    EXPECT_EQ(TracesOf(FindUnplacedLastCandidate, 0, BoxWithRepeat), "found\nE2 . -> 89\n");
    EXPECT_EQ(TracesOf(FindUnplacedLastCandidate, 1, BoxWithRepeat), "alert E2\n");
    EXPECT_EQ(TracesOf(FindUnplacedLastCandidate, 2, BoxWithRepeat, MakeCell(5, 2)), full);
    EXPECT_EQ(TracesOf(FindUnplacedLastCandidate, 3, BoxWithRepeat),
              "text There's an unplaced last candidate.\n");
    EXPECT_EQ(TracesOf(FindUnplacedLastCandidate, 4, BoxWithRepeat),
              "text There's an unplaced last candidate.|It's in a box.\n");
    EXPECT_EQ(TracesOf(FindUnplacedLastCandidate, 5, BoxWithRepeat), full);
}

TEST_F(Singles, LastCandidateIsReportedAgainWhileItsHouseRepeatsANumber)
{
    SetPencilmarks(BoxWithRepeat);
    Flag found = False;
    FindUnplacedLastCandidate(0, found);
    found = False;
    FindUnplacedLastCandidate(0, found);
    EXPECT_EQ(found, True);
    EXPECT_EQ(Grid[5][2], BitTable[8] | BitTable[9]);
}

// Filling A9 completes column A; row 9 then lacks only its last cell.
TEST_F(Singles, LaterHousesSeeALastCandidatePlacedBefore)
{
    EXPECT_EQ(TracesOf(FindUnplacedLastCandidate, 0, R"(
        1 . . . . . . . .
        2 . . . . . . . .
        3 . . . . . . . .
        4 . . . . . . . .
        5 . . . . . . . .
        6 . . . . . . . .
        7 . . . . . . . .
        8 . . . . . . . .
        . 1 2 3 4 5 6 7 .
    )"),
              "found\nA9 . -> 9\nJ9 . -> 8\n");
}

TEST_F(Singles, LastCandidateNeedsExactlyEightNumbers)
{
    SetPencilmarks(ColumnNearlyFull);
    Grid[1][4] = 0;
    Flag found = False;
    FindUnplacedLastCandidate(0, found);
    EXPECT_EQ(found, False);
    Grid[1][4] = BitTable[4];
    Grid[1][9] = BitTable[4];
    FindUnplacedLastCandidate(0, found);
    EXPECT_EQ(found, False);
}

TEST_F(Singles, LastCandidateKeepsTheRestOfTheWord)
{
    SetPencilmarks(ColumnNearlyFull);
    Grid[1][9] |= 0xFFF00000 | BitTable[13];
    Flag found = False;
    FindUnplacedLastCandidate(0, found);
    EXPECT_EQ(Grid[1][9], 0xFFF00000 | BitTable[13] | BitTable[9]);
}

// ---- Naked single --------------------------------------------------------------------------

// The domain of E5 holds every number but 7; the cell itself has the pencilmarks 1, 2 and 3.
constexpr std::string_view DomainLacksSeven = R"(
    . . . .   [1] .   .   . .
    . . . .   .   .   .   . .
    . . . .   [2] .   .   . .
    . . . [9] .   .   .   . .
    . 4 . .   123 .   [5] . 6
    . . . .   .   [8] .   . .
    . . . .   .   .   .   . .
    . . . .   .   .   .   . .
    . . . .   3   .   .   . .
)";

// The domain of C8 holds every number but 8.
constexpr std::string_view DomainLacksEight = R"(
    . . [1] . . . . . .
    . . 2   . . . . . .
    . . .   . . . . . .
    . . .   . . . . . .
    . . .   . . . . . .
    . . .   . . . . . .
    3 . .   . . . . . .
    . . .   4 . 5 . 6 .
    . 7 9   . . . . . .
)";

// The domain of B2 lacks the 5. Once that stands, the domain of B7 lacks only the 6.
constexpr std::string_view NakedSinglesInARow = R"(
    [1] .  .   .   .   .   .   .   .
    .   .  [2] [3] .   .   [4] .   .
    6   9  .   .   .   .   .   .   .
    .   8  .   .   .   .   .   .   .
    .   7  .   .   .   .   .   .   .
    .   .  .   .   .   .   .   .   .
    .   56 .   .   [1] [2] .   [3] 4
    .   .  .   .   .   .   .   .   .
    .   .  .   .   .   .   .   .   .
)";

TEST_F(Singles, NakedSingleIgnoresThePencilmarksOfItsCell)
{
    constexpr std::string_view full =
        "selected E5\n"
        "hint cell E5\n"
        "hint domain A5 B5 C5 D4 D5 D6 E1 E2 E3 E4 E5 E6 E7 E8 E9 F4 F5 F6 G5 H5 J5\n"
        "title Unplaced naked single\n"
        "text Cell [E5] must contain a 7 because it's the |only unused number in its domain.\n";
    EXPECT_EQ(TracesOf(FindUnplacedNakedSingle, 0, DomainLacksSeven), "found\nE5 123 -> 7\n");
    EXPECT_EQ(TracesOf(FindUnplacedNakedSingle, 1, DomainLacksSeven), "alert E5\n");
    EXPECT_EQ(TracesOf(FindUnplacedNakedSingle, 2, DomainLacksSeven), "");
    EXPECT_EQ(TracesOf(FindUnplacedNakedSingle, 2, DomainLacksSeven, MakeCell(5, 5)), full);
    EXPECT_EQ(TracesOf(FindUnplacedNakedSingle, 2, DomainLacksSeven, MakeCell(5, 4)),
              "selected E4\n");
    EXPECT_EQ(TracesOf(FindUnplacedNakedSingle, 3, DomainLacksSeven),
              "text There's an unplaced naked single.\n");
    EXPECT_EQ(TracesOf(FindUnplacedNakedSingle, 4, DomainLacksSeven),
              "text There's an unplaced naked single.|It's in the center box.\n");
    EXPECT_EQ(TracesOf(FindUnplacedNakedSingle, 5, DomainLacksSeven), full);
}

TEST_F(Singles, NakedSingleIsNamedInThePlayersStyle)
{
    NameRowsFirst();
    constexpr std::string_view full =
        "selected C8\n"
        "hint cell C8\n"
        "hint domain A7 A8 A9 B7 B8 B9 C1 C2 C3 C4 C5 C6 C7 C8 C9 D8 E8 F8 G8 H8 J8\n"
        "title Unplaced naked single\n"
        "text Cell (r8,C3) must contain a 8 because it's the |only unused number in its domain.\n";
    EXPECT_EQ(TracesOf(FindUnplacedNakedSingle, 0, DomainLacksEight), "found\nC8 . -> 8\n");
    EXPECT_EQ(TracesOf(FindUnplacedNakedSingle, 1, DomainLacksEight), "alert C8\n");
    EXPECT_EQ(TracesOf(FindUnplacedNakedSingle, 2, DomainLacksEight, MakeCell(3, 8)), full);
    EXPECT_EQ(TracesOf(FindUnplacedNakedSingle, 3, DomainLacksEight),
              "text There's an unplaced naked single.\n");
    EXPECT_EQ(TracesOf(FindUnplacedNakedSingle, 4, DomainLacksEight),
              "text There's an unplaced naked single.|It's in the lower-left box.\n");
    EXPECT_EQ(TracesOf(FindUnplacedNakedSingle, 5, DomainLacksEight), full);
}

TEST_F(Singles, LaterCellsSeeANakedSinglePlacedBefore)
{
    constexpr std::string_view full =
        "selected B2\n"
        "hint cell B2\n"
        "hint domain A1 A2 A3 B1 B2 B3 B4 B5 B6 B7 B8 B9 C1 C2 C3 D2 E2 F2 G2 H2 J2\n"
        "title Unplaced naked single\n"
        "text Cell [B2] must contain a 5 because it's the |only unused number in its domain.\n";
    EXPECT_EQ(TracesOf(FindUnplacedNakedSingle, 0, NakedSinglesInARow),
              "found\nB2 . -> 5\nB7 56 -> 6\n");
    EXPECT_EQ(TracesOf(FindUnplacedNakedSingle, 1, NakedSinglesInARow), "alert B2\n");
    EXPECT_EQ(TracesOf(FindUnplacedNakedSingle, 2, NakedSinglesInARow, MakeCell(2, 2)), full);
    EXPECT_EQ(TracesOf(FindUnplacedNakedSingle, 4, NakedSinglesInARow),
              "text There's an unplaced naked single.|It's in the upper-left box.\n");
    EXPECT_EQ(TracesOf(FindUnplacedNakedSingle, 5, NakedSinglesInARow), full);
}

TEST_F(Singles, NakedSingleNeedsExactlyOneOpenNumber)
{
    SetPencilmarks(DomainLacksSeven);
    Grid[5][9] = 0;
    Flag found = False;
    FindUnplacedNakedSingle(0, found);
    EXPECT_EQ(found, False);
    Grid[5][9] = BitTable[3];
    Grid[5][8] = BitTable[7];
    FindUnplacedNakedSingle(0, found);
    EXPECT_EQ(found, False);
}

// ---- Hidden single -------------------------------------------------------------------------

// The 4 of column D can only stand in D6.
constexpr std::string_view FourInColumnD = R"(
    . . . .   .   .   . . .
    . . . .   .   [4] . . .
    . . . .   .   .   . . .
    . . . [1] .   .   . . .
    . . . 2   .   .   . . .
    . . . 123 .   .   . . .
    . . . .   .   .   . . .
    . . . .   4   .   . . .
    . . . .   .   .   . . .
)";

// The 7 of row 3 can only stand in E3.
constexpr std::string_view SevenInRowThree = R"(
    .   . . .   . . . . [7]
    [7] . . .   . . . . .
    .   . . [1] . 2 . . .
    .   . . .   . . . . .
    .   . . .   . . . . .
    .   . . .   . . . . .
    .   . . .   . . . . .
    .   . . .   . . . . .
    .   . . .   . . . . .
)";

// The 1 of the upper-left box can only stand in A1.
constexpr std::string_view OneInABox = R"(
    .   2 [3] . . . .   . .
    [4] 5 6   . . . .   . .
    .   . .   . . . [1] . .
    .   . .   . . . .   . .
    .   . .   . . . .   . .
    .   . .   . . . .   . .
    .   . .   . . . .   . .
    .   . .   . . . .   . .
    .   . .   . . . .   . .
)";

TEST_F(Singles, HiddenSingleOfAColumn)
{
    constexpr std::string_view full =
        "selected D6\n"
        "hint domain D1 D2 D3 D4 D5 D6 D7 D8 D9\n"
        "title Hidden single\n"
        "text Cell [D6] is the only cell in column D that can hold the number 4.\n";
    EXPECT_EQ(TracesOf(FindUnplacedHiddenSingle, 0, FourInColumnD), "found\nD6 123 -> 4\n");
    EXPECT_EQ(TracesOf(FindUnplacedHiddenSingle, 1, FourInColumnD), "alert D6\n");
    EXPECT_EQ(TracesOf(FindUnplacedHiddenSingle, 2, FourInColumnD), "");
    EXPECT_EQ(TracesOf(FindUnplacedHiddenSingle, 2, FourInColumnD, MakeCell(4, 6)), full);
    EXPECT_EQ(TracesOf(FindUnplacedHiddenSingle, 2, FourInColumnD, MakeCell(4, 4)),
              "selected D4\n");
    EXPECT_EQ(TracesOf(FindUnplacedHiddenSingle, 3, FourInColumnD),
              "text There's a hidden single.\n");
    EXPECT_EQ(TracesOf(FindUnplacedHiddenSingle, 4, FourInColumnD),
              "text There's a hidden single.|It's in a column.\n");
    EXPECT_EQ(TracesOf(FindUnplacedHiddenSingle, 5, FourInColumnD), full);
}

TEST_F(Singles, HiddenSingleOfARowIsNamedInThePlayersStyle)
{
    NameRowsFirst();
    constexpr std::string_view full =
        "selected E3\n"
        "hint domain A3 B3 C3 D3 E3 F3 G3 H3 J3\n"
        "title Hidden single\n"
        "text Cell (r3,C5) is the only cell in row r3 that can hold the number 7.\n";
    EXPECT_EQ(TracesOf(FindUnplacedHiddenSingle, 0, SevenInRowThree), "found\nE3 . -> 7\n");
    EXPECT_EQ(TracesOf(FindUnplacedHiddenSingle, 1, SevenInRowThree), "alert E3\n");
    EXPECT_EQ(TracesOf(FindUnplacedHiddenSingle, 2, SevenInRowThree, MakeCell(5, 3)), full);
    EXPECT_EQ(TracesOf(FindUnplacedHiddenSingle, 3, SevenInRowThree),
              "text There's a hidden single.\n");
    EXPECT_EQ(TracesOf(FindUnplacedHiddenSingle, 4, SevenInRowThree),
              "text There's a hidden single.|It's in a row.\n");
    EXPECT_EQ(TracesOf(FindUnplacedHiddenSingle, 5, SevenInRowThree), full);
}

TEST_F(Singles, HiddenSingleOfABox)
{
    constexpr std::string_view full =
        "selected A1\n"
        "hint domain A1 A2 A3 B1 B2 B3 C1 C2 C3\n"
        "title Hidden single\n"
        "text Cell [A1] is the only cell in the upper-left box that can hold the number 1.\n";
    EXPECT_EQ(TracesOf(FindUnplacedHiddenSingle, 0, OneInABox), "found\nA1 . -> 1\n");
    EXPECT_EQ(TracesOf(FindUnplacedHiddenSingle, 1, OneInABox), "alert A1\n");
    EXPECT_EQ(TracesOf(FindUnplacedHiddenSingle, 2, OneInABox, MakeCell(1, 1)), full);
    EXPECT_EQ(TracesOf(FindUnplacedHiddenSingle, 3, OneInABox), "text There's a hidden single.\n");
    EXPECT_EQ(TracesOf(FindUnplacedHiddenSingle, 4, OneInABox),
              "text There's a hidden single.|It's in a box.\n");
    EXPECT_EQ(TracesOf(FindUnplacedHiddenSingle, 5, OneInABox), full);
}

// D1 holds the 4 of column D already, if wrongly.
TEST_F(Singles, HiddenSingleFindsNothingInAHouseThatHoldsTheNumber)
{
    SetPencilmarks(FourInColumnD);
    Grid[4][1] = BitTable[4];
    Flag found = False;
    FindUnplacedHiddenSingle(0, found);
    EXPECT_EQ(found, False);
    EXPECT_EQ(CountCandidates(4, 6), 3);
}

// A1 is the only cell for the 1 in its box and the only one for the 7 in its row. Both are judged
// on the position at the start, so the later one has the last word.
TEST_F(Singles, HiddenSinglesOfOneCallDoNotSeeEachOther)
{
    constexpr std::string_view both = R"(
        .   2 [3] . .   . .   .   .
        [4] 5 6   . [7] . .   .   .
        .   . .   . .   . [1] [7] .
        .   . .   . .   . .   .   .
        .   . .   . .   . .   .   .
        .   . .   . .   . .   .   .
        .   . .   . .   . .   .   .
        .   . .   . .   . .   .   .
        .   . .   . .   . .   .   .
    )";
    EXPECT_EQ(TracesOf(FindUnplacedHiddenSingle, 0, both), "found\nA1 . -> 7\n");
    EXPECT_EQ(TracesOf(FindUnplacedHiddenSingle, 5, both),
              "selected A1\n"
              "hint domain A1 A2 A3 B1 B2 B3 C1 C2 C3\n"
              "title Hidden single\n"
              "text Cell [A1] is the only cell in the upper-left box that can hold the number "
              "1.\n");
}

} // namespace
} // namespace kelvarine::testing
