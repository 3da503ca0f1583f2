#include "logic/intersections.h"
#include "logic/technique.h"
#include "support/outside_double.h"
#include "support/positions.h"
#include "support/technique_calls.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

class Intersections : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

TEST_F(Intersections, ColumnInBoxInAllModes)
{
    constexpr std::string_view drawing = R"(
        *        * * * * * * * *
        *        * * * * * * * *
        23456789 * * * * * * * *
        23456789 * * * * * * * *
        23456789 * * * * * * * *
        23456789 * * * * * * * *
        23456789 * * * * * * * *
        23456789 * * * * * * * *
        23456789 * * * * * * * *
    )";
    EXPECT_EQ(Call(FindIntersections, ModeChange, drawing),
              (Left{.Found = true,
                    .Changed = "B1 123456789>23456789 B2 123456789>23456789 B3 123456789>23456789 "
                               "C1 123456789>23456789 C2 123456789>23456789 C3 123456789>23456789",
                    .List = "G7 G8 G9 H7"}));
    EXPECT_EQ(Call(FindIntersections, ModeAlert, drawing),
              (Left{.Alerts = "B1 B2 B3 C1 C2 C3", .List = "G7 G8 G9 H7"}));
    EXPECT_EQ(Call(FindIntersections, ModeExplain, drawing, "C2"),
              (Left{.Text = "Cell [C2] contains a 1 which conflicts with cells [A1] [A2] \rwhere "
                            "the 1 must appear due to column requirements.\r",
                    .Title = "Conflict with column/box intersection",
                    .Selected = "C2",
                    .HintCells = "A1 A2",
                    .Domain = "A1 A2 A3 A4 A5 A6 A7 A8 A9 B1 B2 B3 C1 C2 C3",
                    .List = "A1 A2"}));
    EXPECT_EQ(
        Call(FindIntersections, ModeTeaser, drawing),
        (Left{.Text = "There's a conflict with a column/box intersection.", .List = "A1 A2"}));
    EXPECT_EQ(
        Call(FindIntersections, ModeTeaserPlace, drawing),
        (Left{.Text =
                  "There's a conflict with a column/box intersection.\rIt involves the number 1",
              .List = "A1 A2"}));
    EXPECT_EQ(Call(FindIntersections, ModeFull, drawing),
              (Left{.Text = "Cell [B1] contains a 1 which conflicts with cells [A1] [A2] \rwhere "
                            "the 1 must appear due to column requirements.\r",
                    .Title = "Conflict with column/box intersection",
                    .Selected = "B1",
                    .HintCells = "A1 A2",
                    .Domain = "A1 A2 A3 A4 A5 A6 A7 A8 A9 B1 B2 B3 C1 C2 C3",
                    .List = "A1 A2"}));
}

TEST_F(Intersections, LonePlaceInRowInAllModes)
{
    constexpr std::string_view drawing = R"(
        *        *        *        *        * *        *        *        *
        *        *        *        *        * *        *        *        *
        *        *        *        *        * *        *        *        *
        *        *        *        *        * *        *        *        *
        12345678 12345678 12345678 12345678 * 12345678 12345678 12345678 12345678
        *        *        *        *        * *        *        *        *
        *        *        *        *        * *        *        *        *
        *        *        *        *        * *        *        *        *
        *        *        *        *        * *        *        *        *
    )";
    EXPECT_EQ(Call(FindIntersections, ModeChange, drawing),
              (Left{.Found = true,
                    .Changed = "D4 123456789>12345678 D6 123456789>12345678 E1 123456789>12345678 "
                               "E2 123456789>12345678 E3 123456789>12345678 E4 123456789>12345678 "
                               "E6 123456789>12345678 E7 123456789>12345678 E8 123456789>12345678 "
                               "E9 123456789>12345678 F4 123456789>12345678 F6 123456789>12345678",
                    .List = "G7 G8 G9 H7"}));
    EXPECT_EQ(Call(FindIntersections, ModeAlert, drawing),
              (Left{.Alerts = "D4 D6 E1 E2 E3 E4 E6 E7 E8 E9 F4 F6", .List = "G7 G8 G9 H7"}));
    EXPECT_EQ(Call(FindIntersections, ModeExplain, drawing, "D6"),
              (Left{.Text = "Cell [D6] contains a 9 which conflicts with cells [E5] \rwhere the 9 "
                            "must appear due to row requirements.\r",
                    .Title = "Conflict with row/box intersection",
                    .Selected = "D6",
                    .HintCells = "E5",
                    .Domain = "A5 B5 C5 D4 D5 D6 E4 E5 E6 F4 F5 F6 G5 H5 J5",
                    .List = "E5 B4 C4 D4"}));
    EXPECT_EQ(Call(FindIntersections, ModeTeaser, drawing),
              (Left{.Text = "There's a conflict with a row/column intersection.",
                    .List = "E5 B4 C4 D4"}));
    EXPECT_EQ(
        Call(FindIntersections, ModeTeaserPlace, drawing),
        (Left{.Text =
                  "There's a conflict with a row/column intersection.\rIt involves the number 9",
              .List = "E5 B4 C4 D4"}));
    EXPECT_EQ(Call(FindIntersections, ModeFull, drawing),
              (Left{.Text = "Cell [E1] contains a 9 which conflicts with cell [E5]\r where the 9 "
                            "must appear due to row requirements.\r",
                    .Title = "Conflict with row/column intersection",
                    .Selected = "E1",
                    .HintCells = "E5",
                    .Domain = "A5 B5 C5 D5 E1 E2 E3 E4 E5 E6 E7 E8 E9 F5 G5 H5 J5",
                    .List = "E5 B4 C4 D4"}));
}

TEST_F(Intersections, BoxInRowInAllModes)
{
    UseOtherNames();
    constexpr std::string_view drawing = R"(
        * * * * * * *        *        *
        * * * * * * *        *        *
        * * * * * * *        *        *
        * * * * * * *        *        *
        * * * * * * *        *        *
        * * * * * * *        *        *
        * * * * * * 12456789 12456789 12456789
        * * * * * * *        *        12456789
        * * * * * * 12456789 12456789 12456789
    )";
    EXPECT_EQ(Call(FindIntersections, ModeChange, drawing),
              (Left{.Found = true,
                    .Changed = "A8 123456789>12456789 B8 123456789>12456789 C8 123456789>12456789 "
                               "D8 123456789>12456789 E8 123456789>12456789 F8 123456789>12456789",
                    .List = "G7 G8 G9 H7"}));
    EXPECT_EQ(Call(FindIntersections, ModeAlert, drawing),
              (Left{.Alerts = "A8 B8 C8 D8 E8 F8", .List = "G7 G8 G9 H7"}));
    EXPECT_EQ(Call(FindIntersections, ModeExplain, drawing, "B8"),
              (Left{.Text = "Cell (R8,2) contains a 3 which conflicts with cells (R8,7) (R8,8) "
                            "\rwhere the 3 must appear due to box requirements.\r",
                    .Title = "Conflict with box/row intersection",
                    .Selected = "B8",
                    .HintCells = "G8 H8",
                    .Domain = "A8 B8 C8 D8 E8 F8 G7 G8 G9 H7 H8 H9 J7 J8 J9",
                    .List = "G8 H8 G6 H4"}));
    EXPECT_EQ(
        Call(FindIntersections, ModeTeaser, drawing),
        (Left{.Text = "There's a conflict with a box/row intersection.", .List = "G8 H8 G6 H4"}));
    EXPECT_EQ(
        Call(FindIntersections, ModeTeaserPlace, drawing),
        (Left{.Text = "There's a conflict with a box/row intersection.\rIt involves the number 3",
              .List = "G8 H8 G6 H4"}));
    EXPECT_EQ(Call(FindIntersections, ModeFull, drawing),
              (Left{.Text = "Cell (R8,1) contains a 3 which conflicts with cells (R8,7) (R8,8) "
                            "\rwhere the 3 must appear due to box requirements.\r",
                    .Title = "Conflict with box/row intersection",
                    .Selected = "A8",
                    .HintCells = "G8 H8",
                    .Domain = "A8 B8 C8 D8 E8 F8 G7 G8 G9 H7 H8 H9 J7 J8 J9",
                    .List = "G8 H8 G6 H4"}));
}

TEST_F(Intersections, LonePlaceInBoxInAllModes)
{
    constexpr std::string_view drawing = R"(
        12345789 12345789 12345789 * * * * * *
        12345789 *        12345789 * * * * * *
        12345789 12345789 12345789 * * * * * *
        *        *        *        * * * * * *
        *        *        *        * * * * * *
        *        *        *        * * * * * *
        *        *        *        * * * * * *
        *        *        *        * * * * * *
        *        *        *        * * * * * *
    )";
    EXPECT_EQ(Call(FindIntersections, ModeChange, drawing),
              (Left{.Found = true,
                    .Changed = "B4 123456789>12345789 B5 123456789>12345789 B6 123456789>12345789 "
                               "B7 123456789>12345789 B8 123456789>12345789 B9 123456789>12345789 "
                               "D2 123456789>12345789 E2 123456789>12345789 F2 123456789>12345789 "
                               "G2 123456789>12345789 H2 123456789>12345789 J2 123456789>12345789",
                    .List = "G7 G8 G9 H7"}));
    EXPECT_EQ(Call(FindIntersections, ModeAlert, drawing),
              (Left{.Alerts = "B4 B5 B6 B7 B8 B9 D2 E2 F2 G2 H2 J2", .List = "G7 G8 G9 H7"}));
    EXPECT_EQ(Call(FindIntersections, ModeExplain, drawing, "J2"),
              (Left{.Text = "Cell [J2] contains a 6 which conflicts with cell [B2]\r where the 6 "
                            "must appear due to box requirements.\r",
                    .Title = "Conflict with box/row intersection",
                    .Selected = "J2",
                    .HintCells = "B2",
                    .Domain = "A1 A2 A3 B1 B2 B3 C1 C2 C3 D2 E2 F2 G2 H2 J2",
                    .List = "B2 B9 C9 D9"}));
    EXPECT_EQ(Call(FindIntersections, ModeTeaser, drawing),
              (Left{.Text = "There's a conflict with a box/column intersection.",
                    .List = "B2 B9 C9 D9"}));
    EXPECT_EQ(
        Call(FindIntersections, ModeTeaserPlace, drawing),
        (Left{.Text =
                  "There's a conflict with a box/column intersection.\rIt involves the number 6",
              .List = "B2 B9 C9 D9"}));
    EXPECT_EQ(Call(FindIntersections, ModeFull, drawing),
              (Left{.Text = "Cell [B4] contains a 6 which conflicts with cell [B2]\r where the 6 "
                            "must appear due to box requirements.\r",
                    .Title = "Conflict with box/column intersection",
                    .Selected = "B4",
                    .HintCells = "B2",
                    .Domain = "A1 A2 A3 B1 B2 B3 B4 B5 B6 B7 B8 B9 C1 C2 C3",
                    .List = "B2 B9 C9 D9"}));
}

TEST_F(Intersections, ThreePlacesOfAColumnInOneBoxClearTheRestOfTheBoxAlone)
{
    constexpr std::string_view drawing = R"(
        * * * * *        * * * *
        * * * * 12345678 * * * *
        * * * * 12345678 * * * *
        * * * * 12345678 * * * *
        * * * * 12345678 * * * *
        * * * * 12345678 * * * *
        * * * * *        * * * *
        * * * * *        * * * *
        * * * * *        * * * *
    )";
    // E1 makes four places in two boxes.
    EXPECT_EQ(Call(FindIntersections, ModeAlert, drawing).Alerts, "");

    constexpr std::string_view locked = R"(
        * * * * 12345678 * * * *
        * * * * 12345678 * * * *
        * * * * 12345678 * * * *
        * * * * 12345678 * * * *
        * * * * 12345678 * * * *
        * * * * 12345678 * * * *
        * * * * *        * * * *
        * * * * *        * * * *
        * * * * *        * * * *
    )";
    EXPECT_EQ(Call(FindIntersections, ModeAlert, locked).Alerts, "D7 D8 D9 F7 F8 F9");
    const Left left = Call(FindIntersections, ModeFull, locked);
    EXPECT_EQ(left.List, "E7 E8 E9 D4");
    EXPECT_EQ(left.Text, "Cell [D7] contains a 9 which conflicts with cells [E7] [E8] [E9] \r"
                         "where the 9 must appear due to column requirements.\r");
}

TEST_F(Intersections, HouseWithACellWithoutCandidatesYieldsNothing)
{
    constexpr std::string_view drawing = R"(
        * * * * 12345678 * * * *
        * * * * 12345678 * * * *
        * * * * 12345678 * * * *
        * * * * 12345678 * * * *
        * * * * 12345678 * * * *
        * * * * .        * * * *
        * * * * *        * * * *
        * * * * *        * * * *
        * * * * *        * * * *
    )";
    EXPECT_EQ(Call(FindIntersections, ModeAlert, drawing).Alerts, "");
    EXPECT_FALSE(Call(FindIntersections, ModeChange, drawing).Found);
}

TEST_F(Intersections, ColumnWithFourPlacesYieldsNothingWhileARowOfABoxMay)
{
    constexpr std::string_view drawing = R"(
        * * * * * * 1        12346789 12346789
        * * * * * * *        *        *
        * * * * * * 12346789 12346789 12346789
        * * * * * * *        *        *
        * * * * * * *        *        *
        * * * * * * 12346789 *        *
        * * * * * * 12346789 *        *
        * * * * * * 12346789 *        *
        * * * * * * 12346789 *        *
    )";
    // The 5 has three places in column G and all those of its box in row 2.
    const Left left = Call(FindIntersections, ModeTeaserPlace, drawing);
    EXPECT_EQ(left.Text,
              "There's a conflict with a box/row intersection.\rIt involves the number 5");
    EXPECT_EQ(Call(FindIntersections, ModeExplain, drawing, "B2").Text,
              "Cell [B2] contains a 5 which conflicts with cells [G2] [H2] [J2] \r"
              "where the 5 must appear due to box requirements.\r");
}

TEST_F(Intersections, GivensAreNeverTargets)
{
    constexpr std::string_view drawing = R"(
        *        [1] * * * * * * *
        *        *   * * * * * * *
        23456789 *   * * * * * * *
        23456789 *   * * * * * * *
        23456789 *   * * * * * * *
        23456789 *   * * * * * * *
        23456789 *   * * * * * * *
        23456789 *   * * * * * * *
        23456789 *   * * * * * * *
    )";
    const Left left = Call(FindIntersections, ModeAlert, drawing);
    EXPECT_EQ(left.Alerts, "B2 B3 C1 C2 C3");
    EXPECT_EQ(Call(FindIntersections, ModeExplain, drawing, "B1").Text, "");
}

TEST_F(Intersections, LoneCellInAColumnIsToldInThePluralForItsBox)
{
    constexpr std::string_view drawing = R"(
        *        * * * * * * * *
        23456789 * * * * * * * *
        23456789 * * * * * * * *
        23456789 * * * * * * * *
        23456789 * * * * * * * *
        23456789 * * * * * * * *
        23456789 * * * * * * * *
        23456789 * * * * * * * *
        23456789 * * * * * * * *
    )";
    const Left row = Call(FindIntersections, ModeExplain, drawing, "G1");
    EXPECT_EQ(row.Title, "Conflict with column/row intersection");
    EXPECT_EQ(row.Text, "Cell [G1] contains a 1 which conflicts with cell [A1]\r"
                        " where the 1 must appear due to column requirements.\r");
    EXPECT_EQ(row.Domain, CellsOf("A 1"));
    const Left box = Call(FindIntersections, ModeExplain, drawing, "B2");
    EXPECT_EQ(box.Title, "Conflict with column/box intersection");
    EXPECT_EQ(box.Text, "Cell [B2] contains a 1 which conflicts with cells [A1] \r"
                        "where the 1 must appear due to column requirements.\r");
    EXPECT_EQ(box.Domain, CellsOf("A A1"));
}

TEST_F(Intersections, LonePlaceOfABoxIsLookedAtInItsColumnAndRowByTurns)
{
    // In the order of the scan D2 stands before B5 and after B4.
    constexpr std::string_view drawing = R"(
        12345789 12345789 12345789 *        * * * * *
        12345789 *        12345789 *        * * * * *
        12345789 12345789 12345789 *        * * * * *
        *        12345789 *        *        * * * * *
        *        *        *        *        * * * * *
        *        *        *        *        * * * * *
        *        *        *        *        * * * * *
        *        *        *        *        * * * * *
        *        *        *        *        * * * * *
    )";
    EXPECT_EQ(Call(FindIntersections, ModeFull, drawing).Selected, "D2");
    EXPECT_EQ(Call(FindIntersections, ModeFull, drawing).Title,
              "Conflict with box/row intersection");
    EXPECT_EQ(Call(FindIntersections, ModeExplain, drawing, "B5 E2").Title,
              "Conflict with box/column intersection");
}

TEST_F(Intersections, BoxInColumn)
{
    constexpr std::string_view drawing = R"(
        * * * *        *        *        * * *
        * * * *        *        *        * * *
        * * * *        *        *        * * *
        * * * *        13456789 13456789 * * *
        * * * *        13456789 13456789 * * *
        * * * 13456789 13456789 13456789 * * *
        * * * *        *        *        * * *
        * * * *        *        *        * * *
        * * * *        *        *        * * *
    )";
    const Left left = Call(FindIntersections, ModeFull, drawing);
    EXPECT_EQ(left.Title, "Conflict with box/column intersection");
    EXPECT_EQ(left.Text, "Cell [D1] contains a 2 which conflicts with cells [D4] [D5] \r"
                         "where the 2 must appear due to box requirements.\r");
    EXPECT_EQ(left.Domain, CellsOf("D D4"));
    EXPECT_EQ(Call(FindIntersections, ModeAlert, drawing).Alerts, "D1 D2 D3 D7 D8 D9");
}

TEST_F(Intersections, BoxOfARowIsLookedAtRowByRow)
{
    constexpr std::string_view drawing = R"(
        *        *        * *        *        *        *        *        *
        12345678 *        * 12345678 12345678 12345678 12345678 12345678 12345678
        12345678 *        * *        *        *        *        *        *
        *        *        * *        *        *        *        *        *
        *        *        * *        *        *        *        *        *
        *        *        * *        *        *        *        *        *
        *        *        * *        *        *        *        *        *
        *        *        * *        *        *        *        *        *
        *        *        * *        *        *        *        *        *
    )";
    // The 9 of row 2 is locked in B2 and C2. A1 comes first either way, but C1 before B3.
    EXPECT_EQ(Call(FindIntersections, ModeFull, drawing).Selected, "A1");
    EXPECT_EQ(Call(FindIntersections, ModeExplain, drawing, "C1 B3").Text,
              "Cell [C1] contains a 9 which conflicts with cells [B2] [C2] \r"
              "where the 9 must appear due to row requirements.\r");
}

TEST_F(Intersections, SecondLookAtALoneCellOfABoxFindsNothingLeft)
{
    constexpr std::string_view drawing = R"(
        12345789 12345789 12345789 * * * * * *
        12345789 *        12345789 * * * * * *
        12345789 12345789 12345789 * * * * * *
        *        *        *        * * * * * *
        *        *        *        * * * * * *
        *        *        *        * * * * * *
        *        *        *        * * * * * *
        *        *        *        * * * * * *
        *        *        *        * * * * * *
    )";
    // A selection elsewhere is passed over by both looks.
    const Left left = Call(FindIntersections, ModeExplain, drawing, "J9");
    EXPECT_EQ(left, (Left{.Selected = "J9", .List = "G7 G8 G9 H7"}));
}

} // namespace
} // namespace kelvarine::testing
