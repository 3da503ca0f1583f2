#include "logic/fish.h"
#include "logic/technique.h"
#include "support/outside_double.h"
#include "support/positions.h"
#include "support/technique_calls.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

class Fish : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

Technique ByColumns(std::int32_t size)
{
    return [size](std::int32_t mode, Flag &found) {
        SearchFishColumns(mode, found, size);
    };
}

Technique ByRows(std::int32_t size)
{
    return [size](std::int32_t mode, Flag &found) {
        SearchFishRows(mode, found, size);
    };
}

TEST_F(Fish, XWingInColumnsInAllModes)
{
    constexpr std::string_view drawing = R"(
        .  .  . . . . .  . .
        .  .  . . . . .  . .
        45 45 . . . . 48 . .
        .  .  . . . . .  . .
        .  .  . . . . .  . .
        .  .  . . . . .  . .
        .  46 . . . . 41 4 [4]
        .  .  . . . . .  . .
        .  .  . . . . .  . .
    )";
    EXPECT_EQ(Call(ByColumns(2), ModeChange, drawing),
              (Left{.Found = true, .Changed = "A3 45>5 H7 4>."}));
    EXPECT_EQ(Call(ByColumns(2), ModeAlert, drawing), (Left{.Alerts = "A3 H7"}));
    EXPECT_EQ(Call(ByColumns(2), ModeExplain, drawing, "H7"),
              (Left{.Text = "Cell [H7] contains a 4 which conflicts with a 2-column/2-row "
                            "intersection \rColumns: BG    Rows: 37",
                    .Title = "Conflict with X-wing",
                    .Selected = "H7",
                    .HintCells = "B3 B7 G3 G7",
                    .Domain = "B1 B2 B4 B5 B6 B8 B9 G1 G2 G4 G5 G6 G8 G9"}));
    EXPECT_EQ(Call(ByColumns(2), ModeTeaser, drawing),
              (Left{.Text = "There's a conflict with an X-wing."}));
    EXPECT_EQ(Call(ByColumns(2), ModeTeaserPlace, drawing),
              (Left{.Text = "There's a conflict with an X-wing.\rIt involves the number 4"}));
    EXPECT_EQ(Call(ByColumns(2), ModeFull, drawing),
              (Left{.Text = "Cell [A3] contains a 4 which conflicts with a 2-column/2-row "
                            "intersection \rColumns: BG    Rows: 37",
                    .Title = "Conflict with X-wing",
                    .Selected = "A3",
                    .HintCells = "B3 B7 G3 G7",
                    .Domain = "B1 B2 B4 B5 B6 B8 B9 G1 G2 G4 G5 G6 G8 G9"}));
}

TEST_F(Fish, XWingInRowsInAllModes)
{
    constexpr std::string_view drawing = R"(
        . . .  . . . . 7  .
        . . 78 . . . . 67 .
        . . .  . . . . .  .
        . . .  . . . . .  .
        . . 17 . . . . .  .
        . . .  . . . . .  .
        . . .  . . . . .  .
        . . .  . . . . .  .
        . . 57 . . . . 79 .
    )";
    EXPECT_EQ(Call(ByRows(2), ModeChange, drawing),
              (Left{.Found = true, .Changed = "C5 17>1 H1 7>."}));
    EXPECT_EQ(Call(ByRows(2), ModeAlert, drawing), (Left{.Alerts = "C5 H1"}));
    EXPECT_EQ(Call(ByRows(2), ModeExplain, drawing, "H1"),
              (Left{.Text = "Cell [H1] contains a 7 which conflicts with a 2-column/2-row "
                            "exclusive intersection. \rRows: 29    Columns: CH",
                    .Title = "Conflict with X-wing",
                    .Selected = "H1",
                    .HintCells = "C2 C9 H2 H9",
                    .Domain = "A2 A9 B2 B9 D2 D9 E2 E9 F2 F9 G2 G9 J2 J9"}));
    EXPECT_EQ(Call(ByRows(2), ModeTeaser, drawing),
              (Left{.Text = "There's a conflict with an X-wing."}));
    EXPECT_EQ(Call(ByRows(2), ModeTeaserPlace, drawing),
              (Left{.Text = "There's a conflict with an X-wing.\rIt involves the number 7"}));
    EXPECT_EQ(Call(ByRows(2), ModeFull, drawing),
              (Left{.Text = "Cell [C5] contains a 7 which conflicts with a 2-column/2-row "
                            "exclusive intersection. \rRows: 29    Columns: CH",
                    .Title = "Conflict with X-wing",
                    .Selected = "C5",
                    .HintCells = "C2 C9 H2 H9",
                    .Domain = "A2 A9 B2 B9 D2 D9 E2 E9 F2 F9 G2 G9 J2 J9"}));
}

TEST_F(Fish, SwordfishInColumnsInAllModes)
{
    UseOtherNames();
    constexpr std::string_view drawing = R"(
        19 .  . .  . . 59 . 89
        29 .  . 39 . . .  . .
        .  89 . 49 . . 69 . .
        .  .  . .  . . .  . .
        .  .  . .  . . .  . .
        .  .  . .  . . .  . .
        .  .  . .  . . .  . .
        .  .  . .  . . .  . .
        .  .  . .  . . .  . .
    )";
    EXPECT_EQ(Call(ByColumns(3), ModeChange, drawing),
              (Left{.Found = true, .Changed = "B3 89>8 J1 89>8"}));
    EXPECT_EQ(Call(ByColumns(3), ModeAlert, drawing), (Left{.Alerts = "B3 J1"}));
    EXPECT_EQ(Call(ByColumns(3), ModeExplain, drawing, "B3"),
              (Left{.Text = "Cell (R3,2) contains a 9 which conflicts with a 3-column/3-row "
                            "intersection \rColumns: 147    Rows: R1R2R3",
                    .Title = "Conflict with Swordfish",
                    .Selected = "B3",
                    .HintCells = "A1 A2 D2 D3 G1 G3",
                    .Domain = "A3 A4 A5 A6 A7 A8 A9 D1 D4 D5 D6 D7 D8 D9 G2 G4 G5 G6 G7 G8 G9"}));
    EXPECT_EQ(Call(ByColumns(3), ModeTeaser, drawing),
              (Left{.Text = "There's a conflict with a Swordfish."}));
    EXPECT_EQ(Call(ByColumns(3), ModeTeaserPlace, drawing),
              (Left{.Text = "There's a conflict with a Swordfish.\rIt involves the number 9"}));
    EXPECT_EQ(Call(ByColumns(3), ModeFull, drawing),
              (Left{.Text = "Cell (R1,9) contains a 9 which conflicts with a 3-column/3-row "
                            "intersection \rColumns: 147    Rows: R1R2R3",
                    .Title = "Conflict with Swordfish",
                    .Selected = "J1",
                    .HintCells = "A1 A2 D2 D3 G1 G3",
                    .Domain = "A3 A4 A5 A6 A7 A8 A9 D1 D4 D5 D6 D7 D8 D9 G2 G4 G5 G6 G7 G8 G9"}));
}

TEST_F(Fish, JellyfishInRowsInAllModes)
{
    constexpr std::string_view drawing = R"(
        25 23 . .  .  . .  . .
        .  .  . .  .  . .  . .
        .  .  . .  .  . 23 . .
        .  24 . 12 56 . .  . .
        .  .  . .  .  . .  . .
        .  .  . 27 .  . 28 . .
        .  .  . .  .  . .  . .
        29 .  . .  .  . 26 . .
        2  .  . .  .  . .  . .
    )";
    EXPECT_EQ(Call(ByRows(4), ModeChange, drawing),
              (Left{.Found = true, .Changed = "A9 2>. G3 23>3"}));
    EXPECT_EQ(Call(ByRows(4), ModeAlert, drawing), (Left{.Alerts = "A9 G3"}));
    EXPECT_EQ(Call(ByRows(4), ModeExplain, drawing, "A9"),
              (Left{.Text = "Cell [A9] contains a 2 which conflicts with a 4-column/4-row "
                            "exclusive intersection. \rRows: 1468    Columns: ABDG",
                    .Title = "Conflict with Jellyfish",
                    .Selected = "A9",
                    .HintCells = "A1 A8 B1 B4 D4 D6 G6 G8",
                    .Domain = "A4 A6 B6 B8 C1 C4 C6 C8 D1 D8 E1 E4 E6 E8 F1 F4 F6 F8 G1 G4 H1 H4 "
                              "H6 H8 J1 J4 J6 J8"}));
    EXPECT_EQ(Call(ByRows(4), ModeTeaser, drawing),
              (Left{.Text = "There's a conflict with a Jellyfish."}));
    EXPECT_EQ(Call(ByRows(4), ModeTeaserPlace, drawing),
              (Left{.Text = "There's a conflict with a Jellyfish.\rIt involves the number 2"}));
    EXPECT_EQ(Call(ByRows(4), ModeFull, drawing),
              (Left{.Text = "Cell [A9] contains a 2 which conflicts with a 4-column/4-row "
                            "exclusive intersection. \rRows: 1468    Columns: ABDG",
                    .Title = "Conflict with Jellyfish",
                    .Selected = "A9",
                    .HintCells = "A1 A8 B1 B4 D4 D6 G6 G8",
                    .Domain = "A4 A6 B6 B8 C1 C4 C6 C8 D1 D8 E1 E4 E6 E8 F1 F4 F6 F8 G1 G4 H1 H4 "
                              "H6 H8 J1 J4 J6 J8"}));
}

TEST_F(Fish, OneCallTakesTheFishOfAllNumbers)
{
    constexpr std::string_view drawing = R"(
        . 48 . . . . 48 . .
        . .  . . . . .  . .
        . 4  . . . . 4  9 .
        . .  . . . . .  . .
        . 8  . . . . 8  . .
        . .  . . . . .  . .
        . .  . . . . .  . .
        . .  . . . . .  . .
        . .  . . . . .  . .
    )";
    // X-wings of 4 and of 8 in columns B and G, with nothing else in their rows.
    EXPECT_FALSE(Call(ByColumns(2), ModeChange, drawing).Found);
    constexpr std::string_view both = R"(
        . 48 . . 89 . 48 . .
        . .  . . .  . .  . .
        . 4  . . .  . 4  49 .
        . .  . . .  . .  . .
        . 8  . . .  . 8  . .
        . .  . . .  . .  . .
        . .  . . .  . .  . .
        . .  . . .  . .  . .
        . .  . . .  . .  . .
    )";
    const Left left = Call(ByColumns(2), ModeChange, both);
    EXPECT_TRUE(left.Found);
    EXPECT_EQ(left.Changed, "E1 89>9 H3 49>9");
}

TEST_F(Fish, ThirdColumnLosesTheNumberInACoverRow)
{
    constexpr std::string_view drawing = R"(
        . .  . . . . .  . .
        . 12 . . . . 13 . 14
        . .  . . . . .  . .
        . .  . . . . .  . .
        . .  . . . . .  . .
        . 15 . . . . 16 . .
        . .  . . . . .  . .
        . .  . . . . .  . .
        . .  . . . . .  . 17
    )";
    EXPECT_EQ(Call(ByColumns(2), ModeChange, drawing).Changed, "J2 14>4");
}

TEST_F(Fish, RejectsCoverLineSeenOnce)
{
    // Three columns and three rows, but row 3 holds the 9 in column G alone.
    constexpr std::string_view drawing = R"(
        19 . . 39 . . 59 . .
        29 . . 49 . . .  . .
        .  . . .  . . 69 8 89
        .  . . .  . . .  . .
        .  . . .  . . .  . .
        .  . . .  . . .  . .
        .  . . .  . . .  . .
        .  . . .  . . .  . .
        .  . . .  . . .  . .
    )";
    EXPECT_EQ(Call(ByColumns(3), ModeAlert, drawing).Alerts, "");
    EXPECT_EQ(Call(ByColumns(3), ModeTeaser, drawing).Text, "");
}

TEST_F(Fish, GivenInACoverLineIsNoTargetInAnyMode)
{
    constexpr std::string_view drawing = R"(
        .   .  . . . . .  . .
        [1] 12 . . . . 13 . .
        .   .  . . . . .  . .
        .   .  . . . . .  . .
        .   .  . . . . .  . .
        .   15 . . . . 16 . .
        .   .  . . . . .  . .
        .   .  . . . . .  . .
        .   .  . . . . .  . .
    )";
    for (std::int32_t mode = ModeChange; mode <= ModeFull; ++mode) {
        EXPECT_EQ(Call(ByColumns(2), mode, drawing, "A2"), (Left{.Selected = "A2"}));
    }
}

TEST_F(Fish, ExplainGoesOnToAFishWithTheSelectedCell)
{
    constexpr std::string_view drawing = R"(
        .  1 . . . . 1  . .
        .  2 . . . . 2  . 27
        .  . . . . . .  . .
        .  2 . . . . 2  . .
        .  . . . . . .  . .
        16 1 . . . . 1  . .
        .  . . . . . .  . .
        .  . . . . . .  . .
        .  . . . . . .  . .
    )";
    EXPECT_EQ(Call(ByColumns(2), ModeExplain, drawing, "J2").Text,
              "Cell [J2] contains a 2 which conflicts with a 2-column/2-row intersection \r"
              "Columns: BG    Rows: 24");
    EXPECT_EQ(Call(ByColumns(2), ModeExplain, drawing, "J9"), (Left{.Selected = "J9"}));
}

TEST_F(Fish, ShortTextIsTheSameInBothForms)
{
    constexpr std::string_view columns = R"(
        . .  . . . . .  . .
        . 12 . . . . 13 . 14
        . .  . . . . .  . .
        . .  . . . . .  . .
        . .  . . . . .  . .
        . 15 . . . . 16 . .
        . .  . . . . .  . .
        . .  . . . . .  . .
        . .  . . . . .  . .
    )";
    constexpr std::string_view rows = R"(
        . 14 . . . . .  . .
        . 12 . . . . 13 . .
        . .  . . . . .  . .
        . .  . . . . .  . .
        . .  . . . . .  . .
        . 15 . . . . 16 . .
        . .  . . . . .  . .
        . .  . . . . .  . .
        . .  . . . . .  . .
    )";
    EXPECT_EQ(Call(ByColumns(2), ModeTeaser, columns).Text, "There's a conflict with an X-wing.");
    EXPECT_EQ(Call(ByRows(2), ModeTeaser, rows).Text, "There's a conflict with an X-wing.");
    EXPECT_EQ(Call(ByRows(2), ModeTeaser, columns).Text, "");
    EXPECT_EQ(Call(ByColumns(2), ModeTeaser, rows).Text, "");
}

TEST_F(Fish, ShortTextReplacesAndTheReportIsAppended)
{
    constexpr std::string_view drawing = R"(
        . .  . . . . .  . .
        . 12 . . . . 13 . 14
        . .  . . . . .  . .
        . .  . . . . .  . .
        . .  . . . . .  . .
        . 15 . . . . 16 . .
        . .  . . . . .  . .
        . .  . . . . .  . .
        . .  . . . . .  . .
    )";
    Flag found = False;
    SetPencilmarks(drawing);
    HintText = "Before. ";
    HintTitle = "Title before";
    SearchFishColumns(ModeTeaser, found, 2);
    EXPECT_EQ(HintText, "There's a conflict with an X-wing.");
    EXPECT_EQ(HintTitle, "Title before");
    HintText = "Before. ";
    SearchFishColumns(ModeFull, found, 2);
    EXPECT_EQ(HintText, "Before. Cell [J2] contains a 1 which conflicts with a 2-column/2-row "
                        "intersection \rColumns: BG    Rows: 26");
    EXPECT_EQ(HintTitle, "Conflict with X-wing");
}

TEST_F(Fish, AlertsAllTargetsAndLeavesTheirCandidates)
{
    constexpr std::string_view drawing = R"(
        .  .  . . .  . .  . .
        18 12 . . 19 . 13 . 14
        .  .  . . .  . .  . .
        .  .  . . .  . .  . .
        .  .  . . .  . .  . .
        .  15 . . 17 . 16 . .
        .  .  . . .  . .  . .
        1  .  . . 1  . .  . .
        .  .  . . .  . .  . .
    )";
    EXPECT_EQ(Call(ByColumns(2), ModeAlert, drawing), (Left{.Alerts = "A2 E2 E6 J2"}));
}

TEST_F(Fish, OtherSizesFindNothing)
{
    constexpr std::string_view drawing = R"(
        12 12 12 12 12 . . . .
        12 12 12 12 12 . . . .
        12 12 12 12 12 . . . .
        12 12 12 12 12 . . . .
        12 12 12 12 12 . . . 1
        .  .  .  .  .  . . . .
        .  .  .  .  .  . . . .
        .  .  .  .  .  . . . .
        .  .  .  .  .  . . . .
    )";
    for (const std::int32_t size : {-1, 0, 1, 5, 6, 2000000000}) {
        EXPECT_EQ(Call(ByColumns(size), ModeFull, drawing), Left{});
        EXPECT_EQ(Call(ByRows(size), ModeFull, drawing), Left{});
    }
}

TEST_F(Fish, NumberInOneColumnIsNoFish)
{
    constexpr std::string_view drawing = R"(
        . . . 5 . . . . .
        . . . 5 . . . . .
        . . . 5 . . . . .
        . . . . . . . . .
        . . . 5 . . . . .
        . . . . . . . . .
        . . . . . . . . .
        . . . . . . . . .
        . . . . . . . . .
    )";
    for (std::int32_t size = 2; size <= 4; ++size) {
        EXPECT_EQ(Call(ByColumns(size), ModeFull, drawing), Left{});
        EXPECT_EQ(Call(ByRows(size), ModeFull, drawing), Left{});
    }
}

} // namespace
} // namespace kelvarine::testing
