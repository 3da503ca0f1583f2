#include "logic/hidden_groups.h"
#include "logic/technique.h"
#include "support/outside_double.h"
#include "support/positions.h"
#include "support/technique_calls.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

class HiddenGroups : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

Technique Hidden(std::int32_t size)
{
    return [size](std::int32_t mode, Flag &found) {
        FindHiddenGroup(mode, found, size);
    };
}

TEST_F(HiddenGroups, HiddenPairInColumnInAllModes)
{
    constexpr std::string_view drawing = R"(
        3456789 * * * * * * * *
        3456789 * * * * * * * *
        1257    * * * * * * * *
        3456789 * * * * * * * *
        3456789 * * * * * * * *
        3456789 * * * * * * * *
        12      * * * * * * * *
        3456789 * * * * * * * *
        3456789 * * * * * * * *
    )";
    EXPECT_EQ(Call(Hidden(2), ModeChange, drawing),
              (Left{.Found = true, .Changed = "A3 1257>12", .List = "G7 G8 G9 H7 H8 H9 J7 J8 J9"}));
    EXPECT_EQ(Call(Hidden(2), ModeAlert, drawing),
              (Left{.Alerts = "A3", .List = "G7 G8 G9 H7 H8 H9 J7 J8 J9"}));
    EXPECT_EQ(
        Call(Hidden(2), ModeExplain, drawing, "A3"),
        (Left{.Text = "Cells  [A3] [A7]  form a hidden pair\r in column A containing the numbers 1 "
                      "and 2\r\rAll other numbers should be removed from these cells.\r",
              .Title = "Hidden pair",
              .Selected = "A3",
              .HintCells = "A3 A7",
              .Domain = CellsOf("A"),
              .List = "A3 A7"}));
    EXPECT_EQ(Call(Hidden(2), ModeTeaser, drawing),
              (Left{.Text = "There's a hidden pair.", .List = "A3 A7"}));
    EXPECT_EQ(Call(Hidden(2), ModeTeaserPlace, drawing),
              (Left{.Text = "There's a hidden pair.\rIt's in a column.", .List = "A3 A7"}));
    EXPECT_EQ(
        Call(Hidden(2), ModeFull, drawing),
        (Left{.Text = "Cells  [A3] [A7]  form a hidden pair\r in column A containing the numbers 1 "
                      "and 2\r\rAll other numbers should be removed from these cells.\r",
              .Title = "Hidden pair",
              .Selected = "A3",
              .HintCells = "A3 A7",
              .Domain = CellsOf("A"),
              .List = "A3 A7"}));
}

TEST_F(HiddenGroups, HiddenSingleInRowInAllModes)
{
    constexpr std::string_view drawing = R"(
        *        *        *        *    *        *        *        *        *
        *        *        *        *    *        *        *        *        *
        *        *        *        *    *        *        *        *        *
        12345679 12345679 12345679 1238 12345679 12345679 12345679 12345679 12345679
        *        *        *        *    *        *        *        *        *
        *        *        *        *    *        *        *        *        *
        *        *        *        *    *        *        *        *        *
        *        *        *        *    *        *        *        *        *
        *        *        *        *    *        *        *        *        *
    )";
    EXPECT_EQ(Call(Hidden(1), ModeChange, drawing),
              (Left{.Found = true, .Changed = "D4 1238>8", .List = "G7 G8 G9 H7 H8 H9 J7 J8 J9"}));
    EXPECT_EQ(Call(Hidden(1), ModeAlert, drawing),
              (Left{.Alerts = "D4", .List = "G7 G8 G9 H7 H8 H9 J7 J8 J9"}));
    EXPECT_EQ(Call(Hidden(1), ModeExplain, drawing, "D4"),
              (Left{.Text = "Cell [D4] is the only cell in row 4 containing the number 8\rAll "
                            "other numbers should be removed from this cell.\r",
                    .Title = "Hidden single",
                    .Selected = "D4",
                    .HintCells = "D4",
                    .Domain = CellsOf("4"),
                    .List = "D4 B3 C3 D3 E3 F3 G3 H3 J3"}));
    EXPECT_EQ(Call(Hidden(1), ModeTeaser, drawing),
              (Left{.Text = "There's a hidden single.", .List = "D4 B3 C3 D3 E3 F3 G3 H3 J3"}));
    EXPECT_EQ(Call(Hidden(1), ModeTeaserPlace, drawing),
              (Left{.Text = "There's a hidden single.\rIt's in a row.",
                    .List = "D4 B3 C3 D3 E3 F3 G3 H3 J3"}));
    EXPECT_EQ(Call(Hidden(1), ModeFull, drawing),
              (Left{.Text = "Cell [D4] is the only cell in row 4 containing the number 8\rAll "
                            "other numbers should be removed from this cell.\r",
                    .Title = "Hidden single",
                    .Selected = "D4",
                    .HintCells = "D4",
                    .Domain = CellsOf("4"),
                    .List = "D4 B3 C3 D3 E3 F3 G3 H3 J3"}));
}

TEST_F(HiddenGroups, HiddenTripleInBoxInAllModes)
{
    UseOtherNames();
    constexpr std::string_view drawing = R"(
        457    123789 123789 * * * * * *
        123789 568    123789 * * * * * *
        123789 123789 469    * * * * * *
        *      *      *      * * * * * *
        *      *      *      * * * * * *
        *      *      *      * * * * * *
        *      *      *      * * * * * *
        *      *      *      * * * * * *
        *      *      *      * * * * * *
    )";
    EXPECT_EQ(Call(Hidden(3), ModeChange, drawing),
              (Left{.Found = true,
                    .Changed = "A1 457>45 B2 568>56 C3 469>46",
                    .List = "G7 G8 G9 H7 H8 H9 J7 J8 J9"}));
    EXPECT_EQ(Call(Hidden(3), ModeAlert, drawing),
              (Left{.Alerts = "A1 B2 C3", .List = "G7 G8 G9 H7 H8 H9 J7 J8 J9"}));
    EXPECT_EQ(Call(Hidden(3), ModeExplain, drawing, "C3"),
              (Left{.Text = "Cells  (R1,1) (R2,2) (R3,3)  form a hidden triple\r in the upper-left "
                            "box containing the numbers 4,5 and 6\r\rAll other numbers should be "
                            "removed from these cells.\r",
                    .Title = "Hidden triple",
                    .Selected = "C3",
                    .HintCells = "A1 B2 C3",
                    .Domain = "A1 A2 A3 B1 B2 B3 C1 C2 C3",
                    .List = "A1 B2 C3 D9 E9 F9 G9 H9 J9"}));
    EXPECT_EQ(Call(Hidden(3), ModeTeaser, drawing),
              (Left{.Text = "There's a hidden triple.", .List = "A1 B2 C3 D9 E9 F9 G9 H9 J9"}));
    EXPECT_EQ(Call(Hidden(3), ModeTeaserPlace, drawing),
              (Left{.Text = "There's a hidden triple.\rIt's in a box.",
                    .List = "A1 B2 C3 D9 E9 F9 G9 H9 J9"}));
    EXPECT_EQ(Call(Hidden(3), ModeFull, drawing),
              (Left{.Text = "Cells  (R1,1) (R2,2) (R3,3)  form a hidden triple\r in the upper-left "
                            "box containing the numbers 4,5 and 6\r\rAll other numbers should be "
                            "removed from these cells.\r",
                    .Title = "Hidden triple",
                    .Selected = "A1",
                    .HintCells = "A1 B2 C3",
                    .Domain = "A1 A2 A3 B1 B2 B3 C1 C2 C3",
                    .List = "A1 B2 C3 D9 E9 F9 G9 H9 J9"}));
}

TEST_F(HiddenGroups, HiddenQuadInRowInAllModes)
{
    constexpr std::string_view drawing = R"(
        *     *  *     *   *     *    *     *    *
        *     *  *     *   *     *    *     *    *
        *     *  *     *   *     *    *     *    *
        *     *  *     *   *     *    *     *    *
        *     *  *     *   *     *    *     *    *
        *     *  *     *   *     *    *     *    *
        *     *  *     *   *     *    *     *    *
        *     *  *     *   *     *    *     *    *
        34567 12 34567 289 34567 1289 34567 1893 34567
    )";
    EXPECT_EQ(
        Call(Hidden(4), ModeChange, drawing),
        (Left{.Found = true, .Changed = "H9 1389>189", .List = "G7 G8 G9 H7 H8 H9 J7 J8 J9"}));
    EXPECT_EQ(Call(Hidden(4), ModeAlert, drawing),
              (Left{.Alerts = "H9", .List = "G7 G8 G9 H7 H8 H9 J7 J8 J9"}));
    EXPECT_EQ(
        Call(Hidden(4), ModeExplain, drawing, "H9"),
        (Left{.Text =
                  "Cells  [B9] [D9] [F9] [H9]  form a hidden quad\r in row 9 containing the "
                  "numbers 1,2,8 and 9\r\rAll other numbers should be removed from these cells.\r",
              .Title = "Hidden quad",
              .Selected = "H9",
              .HintCells = "B9 D9 F9 H9",
              .Domain = CellsOf("9"),
              .List = "B9 D9 F9 H9 E8 F8 G8 H8 J8"}));
    EXPECT_EQ(Call(Hidden(4), ModeTeaser, drawing),
              (Left{.Text = "There's a hidden quad.", .List = "B9 D9 F9 H9 E8 F8 G8 H8 J8"}));
    EXPECT_EQ(Call(Hidden(4), ModeTeaserPlace, drawing),
              (Left{.Text = "There's a hidden quad.\rIt's in a row.",
                    .List = "B9 D9 F9 H9 E8 F8 G8 H8 J8"}));
    EXPECT_EQ(
        Call(Hidden(4), ModeFull, drawing),
        (Left{.Text =
                  "Cells  [B9] [D9] [F9] [H9]  form a hidden quad\r in row 9 containing the "
                  "numbers 1,2,8 and 9\r\rAll other numbers should be removed from these cells.\r",
              .Title = "Hidden quad",
              .Selected = "H9",
              .HintCells = "B9 D9 F9 H9",
              .Domain = CellsOf("9"),
              .List = "B9 D9 F9 H9 E8 F8 G8 H8 J8"}));
}

TEST_F(HiddenGroups, PairWithoutOtherCandidatesIsNoFinding)
{
    constexpr std::string_view drawing = R"(
        3456789 * * * * * * * *
        3456789 * * * * * * * *
        12      * * * * * * * *
        3456789 * * * * * * * *
        3456789 * * * * * * * *
        3456789 * * * * * * * *
        12      * * * * * * * *
        3456789 * * * * * * * *
        3456789 * * * * * * * *
    )";
    const Left changed = Call(Hidden(2), ModeChange, drawing);
    EXPECT_FALSE(changed.Found);
    EXPECT_EQ(changed.Changed, "");
    EXPECT_EQ(Call(Hidden(2), ModeAlert, drawing).Alerts, "");
    EXPECT_EQ(Call(Hidden(2), ModeFull, drawing).Text, "");
}

TEST_F(HiddenGroups, CellWithOneNumberIsAMemberWithSinglesOn)
{
    constexpr std::string_view drawing = R"(
        3456789 * * * * * * * *
        3456789 * * * * * * * *
        12      * * * * * * * *
        3456789 * * * * * * * *
        3456789 * * * * * * * *
        3456789 * * * * * * * *
        29      * * * * * * * *
        3456789 * * * * * * * *
        3456789 * * * * * * * *
    )";
    EXPECT_EQ(Call(Hidden(2), ModeChange, drawing).Changed, "");
    IncludeSingles = True;
    EXPECT_EQ(Call(Hidden(2), ModeChange, drawing).Changed, "A7 29>2");
}

TEST_F(HiddenGroups, CellWithOneNumberStopsTheHouse)
{
    // A triple of 1, 2 and 3 but for A9, which has the 3 alone.
    constexpr std::string_view drawing = R"(
        1234   * * * * * * * *
        1235   * * * * * * * *
        456789 * * * * * * * *
        456789 * * * * * * * *
        456789 * * * * * * * *
        456789 * * * * * * * *
        456789 * * * * * * * *
        456789 * * * * * * * *
        3456   * * * * * * * *
    )";
    EXPECT_EQ(Call(Hidden(3), ModeChange, drawing).Changed, "");
    IncludeSingles = True;
    EXPECT_EQ(Call(Hidden(3), ModeChange, drawing).Changed, "A1 1234>123 A2 1235>123 A9 3456>3");
}

TEST_F(HiddenGroups, GivenGetsByWithOneNumberOfASmallSet)
{
    constexpr std::string_view pair = R"(
        [1]     * * * * * * * *
        12567   * * * * * * * *
        3456789 * * * * * * * *
        3456789 * * * * * * * *
        3456789 * * * * * * * *
        3456789 * * * * * * * *
        3456789 * * * * * * * *
        3456789 * * * * * * * *
        3456789 * * * * * * * *
    )";
    const Left left = Call(Hidden(2), ModeFull, pair);
    EXPECT_EQ(left.Selected, "A2");
    EXPECT_EQ(left.Text,
              "Cells  [A1] [A2]  form a hidden pair\r in column A containing the numbers "
              "1 and 2\r\rAll other numbers should be removed from these cells.\r");
    EXPECT_EQ(Call(Hidden(2), ModeChange, pair).Changed, "A2 12567>12");

    constexpr std::string_view quad = R"(
        [1]   * * * * * * * *
        12347 * * * * * * * *
        1234  * * * * * * * *
        1234  * * * * * * * *
        56789 * * * * * * * *
        56789 * * * * * * * *
        56789 * * * * * * * *
        56789 * * * * * * * *
        56789 * * * * * * * *
    )";
    // A set of four leaves no slot unused.
    EXPECT_EQ(Call(Hidden(4), ModeChange, quad).Changed, "");
    IncludeSingles = True;
    EXPECT_EQ(Call(Hidden(4), ModeChange, quad).Changed, "A2 12347>1234");
}

TEST_F(HiddenGroups, CellWithoutCandidatesSwitchesItsHousesOff)
{
    constexpr std::string_view column = R"(
        3456789 * * * * * * * *
        3456789 * * * * * * * *
        1257    * * * * * * * *
        3456789 * * * * * * * *
        3456789 * * * * * * * *
        3456789 * * * * * * * *
        12      * * * * * * * *
        3456789 * * * * * * * *
        .       * * * * * * * *
    )";
    for (std::int32_t size = 1; size <= 4; ++size) {
        EXPECT_EQ(Call(Hidden(size), ModeAlert, column).Alerts, "");
    }
}

TEST_F(HiddenGroups, GivenAloneIsTheOnlyMemberAndNoTarget)
{
    constexpr std::string_view drawing = R"(
        * *        * * * * *   * *
        * *        * * * * *   * *
        * *        * * * * *   * *
        * *        * * * * *   * *
        12345679 12345679 12345679 12345679 12345679 12345679 [8] 12345679 12345679
        * *        * * * * *   * *
        * *        * * * * *   * *
        * *        * * * * *   * *
        * *        * * * * *   * *
    )";
    EXPECT_EQ(Call(Hidden(1), ModeAlert, drawing).Alerts, "");
    EXPECT_EQ(Call(Hidden(1), ModeTeaser, drawing).Text, "");
    EXPECT_FALSE(Call(Hidden(1), ModeChange, drawing).Found);
}

TEST_F(HiddenGroups, SpoiledHouseLeavesTheMembersBeforeTheSpoiler)
{
    // Rows 2 to 9 and the columns end at a cell without candidates; row 1 ends at its third cell.
    constexpr std::string_view drawing = R"(
        12 12 13 12 . . . . .
        .  .  .  .  . . . . .
        .  .  .  .  . . . . .
        .  .  .  .  . . . . .
        .  .  .  .  . . . . .
        .  .  .  .  . . . . .
        .  .  .  .  . . . . .
        .  .  .  .  . . . . .
        .  .  .  .  . . . . .
    )";
    // Of all sets of two only 1 and 2 have members: A1 and B1 in row 1, then D1 in its box; 1 and
    // 3 have C1 in its column.
    EXPECT_EQ(Call(Hidden(2), ModeAlert, drawing).List, "C1 B1");
}

TEST_F(HiddenGroups, BoxIsNamedInTheText)
{
    constexpr std::string_view drawing = R"(
        * * * * * * * *  *
        * * * * * * * *  *
        * * * * * * * *  *
        * * * 12345678 12345678 12345678 * *  *
        * * * 12345678 689      12345678 * *  *
        * * * 12345678 12345678 12345678 * *  *
        * * * * * * * *  *
        * * * * * * * *  *
        * * * * * * * *  *
    )";
    const Left left = Call(Hidden(1), ModeFull, drawing);
    EXPECT_EQ(left.Text, "Cell [E5] is the only cell in the center box containing the number 9\r"
                         "All other numbers should be removed from this cell.\r");
    EXPECT_EQ(left.Domain, CellsOf("E5"));
    EXPECT_EQ(left.HintCells, "E5");
}

} // namespace
} // namespace kelvarine::testing
