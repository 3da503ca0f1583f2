// The two forms of the singles that trust the pencilmarks.

#include "grid/grid.h"
#include "logic/singles.h"
#include "support/outside_double.h"
#include "support/traces.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace kelvarine::testing {
namespace {

class FastSingles : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

// Writes "+" of a drawing out as all nine candidates.
std::string WithFullCells(std::string_view drawing)
{
    std::string text;
    for (const char mark : drawing) {
        text += mark == '+' ? "123456789" : std::string(1, mark);
    }
    return text;
}

TEST_F(FastSingles, NakedSinglesAreTakenOutOfTheirDomainInScanOrder)
{
    // A5 becomes a number on the way and is taken out of A9 in turn. E1 held the 5 as well.
    EXPECT_EQ(TracesOf(ApplyNakedSingles, 0, R"(
        [5] . . . 5 . . . .
        .  15 . . . . . . .
        .   . . . . . . . .
        .   . . . . . . . .
        59  . . . . . . . .
        .   . . . . . . . .
        .   . . . . . . . .
        .   . . . . . . . .
        19  . . . . . . . .
    )"),
              "found\nA5 59 -> 9\nA9 19 -> 1\nB2 15 -> 1\nE1 5 -> .\n");
}

TEST_F(FastSingles, NakedSinglesDoNotGoBackInTheScan)
{
    // J9 makes A9 a number when the turn of A9 has passed.
    EXPECT_EQ(TracesOf(ApplyNakedSingles, 0, R"(
        45 . . . . . . . .
        .  . . . . . . . .
        .  . . . . . . . .
        .  . . . . . . . .
        .  . . . . . . . .
        .  . . . . . . . .
        .  . . . . . . . .
        .  . . . . . . . .
        34 . . . . . . . 3
    )"),
              "found\nA9 34 -> 4\n");
}

TEST_F(FastSingles, NakedSinglesNeverTakeFromAGiven)
{
    // Three wrong givens, one of them with two candidates.
    EXPECT_EQ(TracesOf(ApplyNakedSingles, 0, R"(
        [5] . . . [5] . . . [59]
        [5] . . . .   . . . .
        .   . . . .   . . . .
        .   . . . .   . . . .
        .   . . . .   . . . .
        .   . . . .   . . . .
        .   . . . .   . . . .
        .   . . . .   . . . .
        .   . . . .   . . . .
    )"),
              "");
}

TEST_F(FastSingles, NakedSinglesReachTheWholeDomainAndNoFurther)
{
    EXPECT_EQ(TracesOf(ApplyNakedSingles, 0, WithFullCells(R"(
        + + + + + + + + +
        + + + + + + + + +
        + + + + + + + + +
        + + + + + + + + +
        + + + + 6 + + + +
        + + + + + + + + +
        + + + + + + + + +
        + + + + + + + + +
        + + + + + + + + +
    )")),
              [] {
                  std::string text = "found\n";
                  for (const char *cell :
                       {"A5", "B5", "C5", "D4", "D5", "D6", "E1", "E2", "E3", "E4",
                        "E6", "E7", "E8", "E9", "F4", "F5", "F6", "G5", "H5", "J5"}) {
                      text += std::string(cell) + " 123456789 -> 12345789\n";
                  }
                  return text;
              }());
}

// Column A: the 3 stands in A3 alone, the 6 in A2 alone; the 7 is left to A1 once A3 is a 3.
TEST_F(FastSingles, HiddenSinglesArePlacedNumberByNumberAndSeeEachOther)
{
    EXPECT_EQ(TracesOf(ApplyHiddenSingles, 0, WithFullCells(R"(
        57   + + + + + + + +
        56   + + + + + + + +
        357  + + + + + + + +
        1245 + + + + + + + +
        1245 + + + + + + + +
        1289 + + + + + + + +
        1289 + + + + + + + +
        489  + + + + + + + +
        489  + + + + + + + +
    )")),
              "found\nA1 57 -> 7\nA2 56 -> 6\nA3 357 -> 3\n");
}

TEST_F(FastSingles, HiddenSinglesOfRowAndBox)
{
    // The 8 of row 2 stands in J2 alone, the 9 of the lower-right box in H8.
    EXPECT_EQ(TracesOf(ApplyHiddenSingles, 0, WithFullCells(R"(
        +    +    +    +    +    +    +        +        +
        1267 1267 1267 3459 3459 3459 34       25       158
        +    +    +    +    +    +    +        +        +
        +    +    +    +    +    +    +        +        +
        +    +    +    +    +    +    +        +        +
        +    +    +    +    +    +    +        +        +
        +    +    +    +    +    +    12345678 12345678 12345678
        +    +    +    +    +    +    12345678 1239     12345678
        +    +    +    +    +    +    12345678 12345678 12345678
    )")),
              "found\nH8 1239 -> 9\nJ2 158 -> 8\n");
}

TEST_F(FastSingles, HiddenSinglesSkipAHouseInWhichAGivenHoldsTheNumber)
{
    // The 3 of column A stands in A5 beside the given 3 of A3, or above the one of A9.
    EXPECT_EQ(TracesOf(ApplyHiddenSingles, 0, WithFullCells(R"(
        12   + + + + + + + +
        12   + + + + + + + +
        [3]  + + + + + + + +
        4567 + + + + + + + +
        35   + + + + + + + +
        4567 + + + + + + + +
        4789 + + + + + + + +
        4789 + + + + + + + +
        4789 + + + + + + + +
    )")),
              "");
    EXPECT_EQ(TracesOf(ApplyHiddenSingles, 0, WithFullCells(R"(
        12   + + + + + + + +
        12   + + + + + + + +
        4789 + + + + + + + +
        4567 + + + + + + + +
        35   + + + + + + + +
        4567 + + + + + + + +
        4789 + + + + + + + +
        4789 + + + + + + + +
        [3]  + + + + + + + +
    )")),
              "");
}

TEST_F(FastSingles, HiddenSinglesCountAPlacedNumberThatIsNoGiven)
{
    // A3 alone has the 3 and nothing else to lose; together with A5 there are two.
    constexpr std::string_view placed = R"(
        12   + + + + + + + +
        12   + + + + + + + +
        3    + + + + + + + +
        4567 + + + + + + + +
        THIS + + + + + + + +
        4567 + + + + + + + +
        4789 + + + + + + + +
        4789 + + + + + + + +
        4789 + + + + + + + +
    )";
    for (const char *candidates : {"35  ", "5   "}) {
        std::string drawing(placed);
        drawing.replace(drawing.find("THIS"), 4, candidates);
        EXPECT_EQ(TracesOf(ApplyHiddenSingles, 0, WithFullCells(drawing)), "");
    }
}

TEST_F(FastSingles, FastFormsKeepTheRestOfTheWord)
{
    constexpr CellWord rest = 0xFFFFFC00;
    Grid[1][1] = rest | BitTable[5];
    Grid[1][2] = rest | BitTable[5] | BitTable[6];
    Flag found = False;
    ApplyNakedSingles(0, found);
    EXPECT_EQ(Grid[1][1], rest | BitTable[5]);
    EXPECT_EQ(Grid[1][2], rest | BitTable[6]);
    Grid[1][2] = rest | BitTable[6] | BitTable[7];
    ApplyHiddenSingles(0, found);
    EXPECT_EQ(Grid[1][2], rest | BitTable[6]);
}

TEST_F(FastSingles, FastFormsActInModeZeroAlone)
{
    constexpr std::string_view drawing = R"(
        [5] 56 . . . . . . .
        .   .  . . . . . . .
        .   .  . . . . . . .
        .   .  . . . . . . .
        .   .  . . . . . . .
        .   .  . . . . . . .
        .   .  . . . . . . .
        .   .  . . . . . . .
        .   .  . . . . . . .
    )";
    for (std::int32_t mode = 1; mode <= 5; ++mode) {
        EXPECT_EQ(TracesOf(ApplyNakedSingles, mode, drawing), "");
        EXPECT_EQ(TracesOf(ApplyHiddenSingles, mode, drawing), "");
    }
}

TEST_F(FastSingles, FoundIsNeverCleared)
{
    Flag found = True;
    for (auto *const operation :
         {FindUnplacedLastCandidate, FindUnplacedNakedSingle, FindUnplacedHiddenSingle,
          ApplyNakedSingles, ApplyHiddenSingles}) {
        operation(0, found);
        EXPECT_EQ(found, True);
    }
}

} // namespace
} // namespace kelvarine::testing
