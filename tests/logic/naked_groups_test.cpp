#include "logic/naked_groups.h"
#include "logic/technique.h"
#include "support/outside_double.h"
#include "support/positions.h"
#include "support/technique_calls.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

class NakedGroups : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

Technique Naked(std::int32_t size)
{
    return [size](std::int32_t mode, Flag &found) {
        FindNakedGroup(mode, found, size);
    };
}

TEST_F(NakedGroups, NakedPairInColumnInAllModes)
{
    constexpr std::string_view drawing = R"(
        123 . . . . . . . .
        27  . . . . . . . .
        .   . . . . . . . .
        .   . . . . . . . .
        27  . . . . . . . .
        .   . . . . . . . .
        .   . . . . . . . .
        .   . . . . . . . .
        247 . . . . . . . .
    )";
    EXPECT_EQ(Call(Naked(2), ModeChange, drawing), (Left{.Found = true,
                                                         .Changed = "A1 123>13 A9 247>4",
                                                         .Marks = "A1 A2 A5 A9",
                                                         .List = "A9 A5"}));
    EXPECT_EQ(Call(Naked(2), ModeAlert, drawing),
              (Left{.Alerts = "A1 A9", .Marks = "A1 A2 A5 A9", .List = "A5 A5"}));
    EXPECT_EQ(Call(Naked(2), ModeExplain, drawing, "A9"),
              (Left{.Text = "Cell [A9] contains a 2 and 7 which conflicts with cells  [A2] [A5] "
                            "\ra naked pair in the same column containing the numbers 2 and 7",
                    .Title = "Conflict with naked pair",
                    .Selected = "A9",
                    .HintCells = "A2 A5",
                    .Domain = CellsOf("A"),
                    .Marks = "A1 A2 A5 A9",
                    .List = "A2 A5"}));
    EXPECT_EQ(Call(Naked(2), ModeTeaser, drawing),
              (Left{.Text = "There's a conflict with a naked pair.",
                    .Marks = "A1 A2 A5 A9",
                    .List = "A2 A5"}));
    EXPECT_EQ(Call(Naked(2), ModeTeaserPlace, drawing),
              (Left{.Text = "There's a conflict with a naked pair.\rIt's in a column.",
                    .Marks = "A1 A2 A5 A9",
                    .List = "A2 A5"}));
    EXPECT_EQ(Call(Naked(2), ModeFull, drawing),
              (Left{.Text = "Cell [A1] contains a 2 which conflicts with cells  [A2] [A5] \ra "
                            "naked pair in the same column containing the numbers 2 and 7",
                    .Title = "Conflict with naked pair",
                    .Selected = "A1",
                    .HintCells = "A2 A5",
                    .Domain = CellsOf("A"),
                    .Marks = "A1 A2 A5 A9",
                    .List = "A2 A5"}));
}

TEST_F(NakedGroups, NakedSingleInRowInAllModes)
{
    constexpr std::string_view drawing = R"(
        . .  .   .  . . . . .
        . 57 .   .  . . . . .
        . .  [5] 56 . 5 . . .
        . .  .   .  . . . . .
        . .  .   .  . . . . .
        . .  .   .  . . . . .
        . .  .   .  . . . . .
        . .  45  .  . . . . .
        . .  .   .  . . . . .
    )";
    EXPECT_EQ(Call(Naked(1), ModeChange, drawing),
              (Left{.Found = true,
                    .Changed = "B2 57>7 C8 45>4 D3 56>6 F3 5>.",
                    .Marks = "B2 C3 C8 D3 F3",
                    .List = "F3 F3"}));
    EXPECT_EQ(Call(Naked(1), ModeAlert, drawing),
              (Left{.Alerts = "B2 C8 D3 F3", .Marks = "B2 C3 C8 D3 F3", .List = "F3 F3"}));
    EXPECT_EQ(Call(Naked(1), ModeExplain, drawing, "F3"),
              (Left{.Text = "Cell [F3] conflicts with cell [C3] in the same row.\r",
                    .Title = "Conflict with naked single",
                    .Selected = "F3",
                    .HintCells = "C3",
                    .Domain = CellsOf("3"),
                    .Marks = "B2 C3 C8 D3 F3",
                    .List = "C3 F3"}));
    EXPECT_EQ(Call(Naked(1), ModeTeaser, drawing),
              (Left{.Text = "There's a conflict with a naked single.",
                    .Marks = "B2 C3 C8 D3 F3",
                    .List = "C3"}));
    EXPECT_EQ(Call(Naked(1), ModeTeaserPlace, drawing),
              (Left{.Text = "There's a conflict with a naked single.\rIt's in a column.",
                    .Marks = "B2 C3 C8 D3 F3",
                    .List = "C3"}));
    EXPECT_EQ(
        Call(Naked(1), ModeFull, drawing),
        (Left{.Text = "Cell [C8] contains a 5 which conflicts with cell [C3] in the same column.\r",
              .Title = "Conflict with naked single",
              .Selected = "C8",
              .HintCells = "C3",
              .Domain = CellsOf("C"),
              .Marks = "B2 C3 C8 D3 F3",
              .List = "C3"}));
}

TEST_F(NakedGroups, NakedTripleInBoxInAllModes)
{
    UseOtherNames();
    constexpr std::string_view drawing = R"(
        . . . .   .   .    . . .
        . . . .   .   .    . . .
        . . . .   .   .    . . .
        . . . 12  789 1456 . . .
        . . . 129 23  .    . . .
        . . . .   .   13   . . .
        . . . .   .   .    . . .
        . . . .   .   .    . . .
        . . . .   .   .    . . .
    )";
    EXPECT_EQ(Call(Naked(3), ModeChange, drawing), (Left{.Found = true,
                                                         .Changed = "D5 129>9 F4 1456>456",
                                                         .Marks = "D4 D5 E4 E5 F4 F6",
                                                         .List = "D5 E4 F6"}));
    EXPECT_EQ(Call(Naked(3), ModeAlert, drawing),
              (Left{.Alerts = "D5 F4", .Marks = "D4 D5 E4 E5 F4 F6", .List = "E4 D5 F6"}));
    EXPECT_EQ(
        Call(Naked(3), ModeExplain, drawing, "F4"),
        (Left{.Text = "Cell (R4,6) contains a 1 which conflicts with cells  (R4,4) (R5,5) (R6,6) "
                      "\ra naked triple in the same 3x3 box containing the numbers 1,2 and 3",
              .Title = "Conflict with naked triple",
              .Selected = "F4",
              .HintCells = "D4 E5 F6",
              .Domain = "D4 D5 D6 E4 E5 E6 F4 F5 F6",
              .Marks = "D4 D5 E4 E5 F4 F6",
              .List = "D4 E5 F6"}));
    EXPECT_EQ(Call(Naked(3), ModeTeaser, drawing),
              (Left{.Text = "There's a conflict with a naked triple.",
                    .Marks = "D4 D5 E4 E5 F4 F6",
                    .List = "D4 E5 F6"}));
    EXPECT_EQ(Call(Naked(3), ModeTeaserPlace, drawing),
              (Left{.Text = "There's a conflict with a naked triple.\rIt's in a 3x3 box.",
                    .Marks = "D4 D5 E4 E5 F4 F6",
                    .List = "D4 E5 F6"}));
    EXPECT_EQ(
        Call(Naked(3), ModeFull, drawing),
        (Left{.Text =
                  "Cell (R5,4) contains a 1 and 2 which conflicts with cells  (R4,4) (R5,5) (R6,6) "
                  "\ra naked triple in the same 3x3 box containing the numbers 1,2 and 3",
              .Title = "Conflict with naked triple",
              .Selected = "D5",
              .HintCells = "D4 E5 F6",
              .Domain = "D4 D5 D6 E4 E5 E6 F4 F5 F6",
              .Marks = "D4 D5 E4 E5 F4 F6",
              .List = "D4 E5 F6"}));
}

TEST_F(NakedGroups, NakedQuadInRowInAllModes)
{
    constexpr std::string_view drawing = R"(
        .  .  .  .  .     . . .   .
        .  .  .  .  .     . . .   .
        .  .  .  .  .     . . .   .
        .  .  .  .  .     . . .   .
        .  .  .  .  .     . . .   .
        12 23 34 14 12345 . . [4] 49
        .  .  .  .  .     . . .   .
        .  .  .  .  .     . . .   .
        .  .  .  .  .     . . .   .
    )";
    EXPECT_EQ(Call(Naked(4), ModeChange, drawing), (Left{.Found = true,
                                                         .Changed = "E6 12345>5 J6 49>9",
                                                         .Marks = "A6 B6 C6 D6 E6 J6",
                                                         .List = "J6 J6 J6 D6"}));
    EXPECT_EQ(Call(Naked(4), ModeAlert, drawing),
              (Left{.Alerts = "E6 J6", .Marks = "A6 B6 C6 D6 E6 J6", .List = "J6 J6 J6 D6"}));
    EXPECT_EQ(
        Call(Naked(4), ModeExplain, drawing, "J6"),
        (Left{.Text = "Cell [J6] contains a 4 which conflicts with cells  [A6] [B6] [C6] [D6] \ra "
                      "naked quad in the same row containing the numbers 1,2,3 and 4",
              .Title = "Conflict with naked quad",
              .Selected = "J6",
              .HintCells = "A6 B6 C6 D6",
              .Domain = CellsOf("6"),
              .Marks = "A6 B6 C6 D6 E6 J6",
              .List = "A6 B6 C6 D6"}));
    EXPECT_EQ(Call(Naked(4), ModeTeaser, drawing),
              (Left{.Text = "There's a conflict with a naked quad.",
                    .Marks = "A6 B6 C6 D6 E6 J6",
                    .List = "A6 B6 C6 D6"}));
    EXPECT_EQ(Call(Naked(4), ModeTeaserPlace, drawing),
              (Left{.Text = "There's a conflict with a naked quad.\rIt's in a row.",
                    .Marks = "A6 B6 C6 D6 E6 J6",
                    .List = "A6 B6 C6 D6"}));
    EXPECT_EQ(
        Call(Naked(4), ModeFull, drawing),
        (Left{.Text = "Cell [E6] contains a 1,2,3 and 4 which conflicts with cells  [A6] [B6] [C6] "
                      "[D6] \ra naked quad in the same row containing the numbers 1,2,3 and 4",
              .Title = "Conflict with naked quad",
              .Selected = "E6",
              .HintCells = "A6 B6 C6 D6",
              .Domain = CellsOf("6"),
              .Marks = "A6 B6 C6 D6 E6 J6",
              .List = "A6 B6 C6 D6"}));
}

TEST_F(NakedGroups, PlacedNumberIsNoMemberWithSinglesOff)
{
    constexpr std::string_view drawing = R"(
        5  . . . . . . . .
        .  . . . . . . . .
        57 . . . . . . . .
        .  . . . . . . . .
        79 . . . . . . . .
        .  . . . . . . . .
        .  . . . . . . . .
        .  . . . . . . . .
        .  . . . . . . . .
    )";
    const Left without = Call(Naked(2), ModeAlert, drawing);
    EXPECT_EQ(without.Alerts, "");
    EXPECT_EQ(without.Marks, "A3 A5");
    IncludeSingles = True;
    const Left with = Call(Naked(2), ModeAlert, drawing);
    EXPECT_EQ(with.Alerts, "A5");
    EXPECT_EQ(with.Marks, "A1 A3 A5");
}

TEST_F(NakedGroups, TwoEqualNumbersInAColumnAreBothTargets)
{
    constexpr std::string_view drawing = R"(
        .  . . . . . . . .
        4  . . . . . . . .
        .  . . . . . . . .
        .  . . . . . . . .
        .  . . . . . . . .
        .  . . . . . . . .
        .  . . . . . . . .
        4  . . . . . . . .
        .  . . . . . . . .
    )";
    EXPECT_EQ(Call(Naked(1), ModeAlert, drawing).Alerts, "A2 A8");
    EXPECT_EQ(Call(Naked(1), ModeExplain, drawing, "A2").Text,
              "Cell [A2] conflicts with cell [A8] in the same column.\r");
    EXPECT_EQ(Call(Naked(1), ModeExplain, drawing, "A8").Text,
              "Cell [A8] conflicts with cell [A2] in the same column.\r");
    // The first is emptied, and then nothing speaks against the second.
    EXPECT_EQ(Call(Naked(1), ModeChange, drawing).Changed, "A2 4>.");
}

TEST_F(NakedGroups, GivenIsMemberButNeverTarget)
{
    constexpr std::string_view drawing = R"(
        .   . .   . . . . . .
        [4] . .   . . . . . .
        .   . .   . . . . . .
        .   . .   . . . . . .
        .   . .   . . . . . .
        .   . .   . . . . . .
        .   . .   . . . . . .
        4   . .   . . . . . .
        46  . [4] . . . . . .
    )";
    const Left left = Call(Naked(1), ModeAlert, drawing);
    EXPECT_EQ(left.Alerts, "A8 A9");
    EXPECT_EQ(left.Marks, "A2 A8 A9 C9");
    EXPECT_EQ(Call(Naked(1), ModeExplain, drawing, "A2 C9").Text, "");
}

TEST_F(NakedGroups, PairsDoNotSpareGivens)
{
    constexpr std::string_view drawing = R"(
        12 . . . . . . . .
        .  . . . . . . . .
        .  . . . . . . . .
        .  . . . . . . . .
        12 . . . . . . . .
        .  . . . . . . . .
        .  . . . . . . . .
        .  . . . . . . . .
        [123] . . . . . . . .
    )";
    const Left left = Call(ApplyNakedPairs, ModeChange, drawing);
    EXPECT_TRUE(left.Found);
    EXPECT_EQ(left.Changed, "A9 123>3");
    EXPECT_EQ(left.List, "");
    EXPECT_EQ(left.Marks, "");
    EXPECT_EQ(Call(Naked(2), ModeChange, drawing).Changed, "");
}

TEST_F(NakedGroups, MarksOfTheStartHoldForTheWholeCall)
{
    // The pair in column A leaves a lone 3 in A3. It was marked with three candidates, and so it
    // still makes a pair with C3 in row 3, and then with what that pair leaves in G3.
    constexpr std::string_view drawing = R"(
        12  . .  . . . .  . .
        12  . .  . . . .  . .
        123 . 34 . . . 35 . .
        .   . .  . . . .  . .
        .   . .  . . . .  . .
        .   . .  . . . .  . .
        .   . .  . . . .  . .
        .   . .  . . . .  . .
        .   . .  . . . .  . .
    )";
    EXPECT_EQ(Call(Naked(2), ModeChange, drawing).Changed, "A3 123>3 C3 34>4 G3 35>5");
}

TEST_F(NakedGroups, GroupIsClearedFromAllTargetsOfTheHouse)
{
    constexpr std::string_view drawing = R"(
        .  . . . . . .  . .
        .  . . . . . .  . .
        .  . . . . . .  . .
        .  . . . . . .  . .
        18 . . . . . .  . .
        18 . . . . . .  . .
        .  . . . . . .  . .
        12 . . . . . .  . .
        89 . . . . . 92 . .
    )";
    EXPECT_EQ(Call(Naked(2), ModeChange, drawing).Changed, "A8 12>2 A9 89>9");
    EXPECT_EQ(Call(ApplyNakedPairs, ModeChange, drawing).Changed, "A8 12>2 A9 89>9");
}

TEST_F(NakedGroups, MoreCellsThanNumbersEmptyAllButTheLast)
{
    constexpr std::string_view drawing = R"(
        . . . 12 . 12 . 12 .
        . . . .  . .  . .  .
        . . . .  . .  . .  .
        . . . .  . .  . .  .
        . . . .  . .  . .  .
        . . . .  . .  . .  .
        . . . .  . .  . .  .
        . . . .  . .  . .  .
        . . . .  . .  . .  .
    )";
    EXPECT_EQ(Call(Naked(2), ModeAlert, drawing).Alerts, "D1 F1 H1");
    EXPECT_EQ(Call(Naked(2), ModeExplain, drawing, "F1").Text,
              "Cell [F1] contains a 1 and 2 which conflicts with cells  [D1] [H1] \r"
              "a naked pair in the same row containing the numbers 1 and 2");
    EXPECT_EQ(Call(Naked(2), ModeChange, drawing).Changed, "D1 12>. F1 12>.");
}

TEST_F(NakedGroups, PairsEmptyAThirdCellAndStop)
{
    constexpr std::string_view drawing = R"(
        . . . 12 . 12 . 12 .
        . . . .  . .  . .  .
        . . . .  . .  . .  .
        . . . .  . .  . .  .
        . . . .  . .  . .  .
        . . . .  . .  . .  .
        . . . .  . .  . .  .
        . . . .  . .  . .  .
        . . . .  . .  . .  .
    )";
    EXPECT_EQ(Call(ApplyNakedPairs, ModeChange, drawing).Changed, "H1 12>.");
}

TEST_F(NakedGroups, PairsSeeTheirOwnRemovals)
{
    // The pair in column A leaves another one there, and that one leaves a third in row 7.
    constexpr std::string_view drawing = R"(
        12  . .  . . . . . .
        12  . .  . . . . . .
        134 . .  . . . . . .
        34  . .  . . . . . .
        .   . .  . . . . . .
        .   . .  . . . . . .
        456 . 56 . 5 . . . .
        .   . .  . . . . . .
        .   . .  . . . . . .
    )";
    EXPECT_EQ(Call(ApplyNakedPairs, ModeChange, drawing).Changed, "A3 134>34 A7 456>56 E7 5>.");
}

TEST_F(NakedGroups, PairsActInModeZeroAlone)
{
    constexpr std::string_view drawing = R"(
        12  . . . . . . . .
        12  . . . . . . . .
        123 . . . . . . . .
        .   . . . . . . . .
        .   . . . . . . . .
        .   . . . . . . . .
        .   . . . . . . . .
        .   . . . . . . . .
        .   . . . . . . . .
    )";
    for (const std::int32_t mode :
         {ModeAlert, ModeExplain, ModeTeaser, ModeTeaserPlace, ModeFull}) {
        EXPECT_EQ(Call(ApplyNakedPairs, mode, drawing, "A3"), (Left{.Selected = "A3"}));
    }
    EXPECT_EQ(Call(ApplyNakedPairs, ModeChange, drawing).Changed, "A3 123>3");
}

TEST_F(NakedGroups, StaleMarksAreClearedInEveryMode)
{
    constexpr std::string_view drawing = R"(
        12 . . . . . . . .
        3  . . . . . . . .
        .  . . . . . . . .
        .  . . . . . . . .
        .  . . . . . . . .
        .  . . . . . . . .
        .  . . . . . . . .
        .  . . . . . . . .
        .  . . . . . . . .
    )";
    for (std::int32_t mode = ModeChange; mode <= ModeFull; ++mode) {
        SetPencilmarks(drawing);
        AddBits("A2 J9", ScratchMark2 | ScratchMark3);
        Flag found = False;
        FindNakedGroup(mode, found, 3);
        EXPECT_EQ(CellsWith(ScratchMark2), "A1");
        EXPECT_EQ(CellsWith(ScratchMark3), "A2 J9");
    }
}

TEST_F(NakedGroups, OtherSizesSearchAsQuadsUnderTheirOwnName)
{
    constexpr std::string_view drawing = R"(
        . . . . . . . . .
        . . . . . . . . .
        . . . . . . . . .
        . . . . . . . . .
        . . . . . . . . .
        12 23 34 14 .     . . .   45
        . . . . . . . . .
        . . . . . . . . .
        . . . . . . . . .
    )";
    EXPECT_EQ(Call(Naked(5), ModeChange, drawing).Changed, "J6 45>5");
    EXPECT_EQ(Call(Naked(5), ModeTeaser, drawing).Text,
              "There's a conflict with a naked 5-cell group.");
    const Left full = Call(Naked(5), ModeFull, drawing);
    EXPECT_EQ(full.Title, "Conflict with naked 5-cell group");
    EXPECT_EQ(full.Text, "Cell [J6] contains a 4 which conflicts with cells  [A6] [B6] [C6] [D6] \r"
                         "a 5-cell exclusive group in the same row containing the numbers "
                         "1,2,3 and 4");
}

} // namespace
} // namespace kelvarine::testing
