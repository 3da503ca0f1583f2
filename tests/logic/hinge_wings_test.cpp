#include "grid/names.h"
#include "logic/driver.h"
#include "logic/hinge_wings.h"
#include "logic/technique_outcome.h"
#include "logic/technique_table.h"
#include "support/outside_double.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

class HingeWings : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

template <std::int32_t Size>
void Wings(std::int32_t mode, Flag &found)
{
    SearchHingeWings(mode, found, Size);
}

// Hinge E5, a wing in its box and one in its column outside the box.
constexpr std::string_view BoxAndColumn = R"(
    .    .    .    .    19   .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    12   17   16   .    .    .
    .    .    .    .    123  .    .    .    .
    .    .    .    .    18   .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    13   .    .    .    .
)";

// Hinge E5 with both wings in its column and its box.
constexpr std::string_view ColumnInBox = R"(
    .    .    .    .    19   .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    18   12   .    .    .    .
    .    .    .    .    123  .    .    .    .
    .    .    .    .    13   17   .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
)";

// Hinge E5 with both wings in its row outside the box.
constexpr std::string_view RowOutside = R"(
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    12   .    19   .    123  .    .    .    13
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
)";

// The same, with the hinge's column for its row.
constexpr std::string_view ColumnOutside = R"(
    .    .    .    .    12   .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    19   .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    123  .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    13   .    .    .    .
)";

constexpr std::string_view FourNumbers = R"(
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    25   45   29   .    2345 .    .    .    23
    .    .    .    .    .    24   .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
)";

std::string WingList(std::size_t count)
{
    std::string text;
    for (std::size_t i = 1; i <= count; ++i) {
        text += i > 1 ? " " : "";
        text += PlainName(ChainColumns[i], ChainRows[i]);
    }
    return text;
}

TEST_F(HingeWings, WingsInBoxAndOuterColumnReachTheColumnInsideTheBox)
{
    const Outcome outcome = OutcomeOf(BoxAndColumn, Wings<3>, 0);
    EXPECT_EQ(outcome.Found, True);
    EXPECT_EQ(outcome.Changes, "E4=7 E6=8");
    EXPECT_EQ(outcome.Text, "");
    EXPECT_EQ(outcome.Chain, "");
    EXPECT_EQ(WingList(2), "D4 E9");
    EXPECT_EQ(ChainColumns[3], 0);
    // Wings of numbers below 9 keep their mark, the hinge does not.
    EXPECT_EQ(CellsWith(ScratchMark2), "D4 E9");
}

TEST_F(HingeWings, AlertsMarkTheTargetsAndChangeNothing)
{
    const Outcome outcome = OutcomeOf(BoxAndColumn, Wings<3>, 1);
    EXPECT_EQ(outcome.Found, False);
    EXPECT_EQ(outcome.Alerts, "E4 E6");
    EXPECT_EQ(outcome.Changes, "");
    EXPECT_EQ(outcome.Text, "");
    EXPECT_EQ(outcome.Title, "");
}

TEST_F(HingeWings, ReportNamesHingeAndWings)
{
    Outcome outcome = OutcomeOf(BoxAndColumn, Wings<3>, 5);
    EXPECT_EQ(outcome.Selected, "E4");
    EXPECT_EQ(outcome.Title, "XYZ-Wing");
    EXPECT_EQ(outcome.Text, "Cell [E4] contains a 1 which conflicts with:\r"
                            "     hinge cell [E5] and \r     wing cells [D4] [E9] ");
    EXPECT_EQ(outcome.HintDomain, "D4 E9");
    EXPECT_EQ(outcome.HintCells, "E5");
    EXPECT_EQ(ChainColumns[0], 0);
    EXPECT_EQ(ChainRows[0], 0);
    EXPECT_EQ(WingList(2), "D4 E9");
    EXPECT_EQ(CellsWith(ScratchMark2), "D4 E5 E9");
    outcome = OutcomeOf(BoxAndColumn, Wings<3>, 2, "E6");
    EXPECT_EQ(outcome.Text, "Cell [E6] contains a 1 which conflicts with:\r"
                            "     hinge cell [E5] and \r     wing cells [D4] [E9] ");
    EXPECT_EQ(OutcomeOf(BoxAndColumn, Wings<3>, 2, "E1").Text, "");
}

TEST_F(HingeWings, ReportReplacesWhatStands)
{
    SetPencilmarks(BoxAndColumn);
    HintText = "Before.";
    Flag found = False;
    SearchHingeWings(5, found, 3);
    EXPECT_EQ(HintText.substr(0, 9), "Cell [E4]");
}

TEST_F(HingeWings, TeasersNameTheHinge)
{
    EXPECT_EQ(OutcomeOf(BoxAndColumn, Wings<3>, 3).Text, "There's a conflict with an XYZ-Wing.");
    const Outcome outcome = OutcomeOf(BoxAndColumn, Wings<3>, 4);
    EXPECT_EQ(outcome.Text, "There's a conflict with an XYZ-Wing.\r\rThe hinge cell is [E5]");
    EXPECT_EQ(outcome.Title, "");
    EXPECT_EQ(outcome.HintCells + outcome.HintDomain + outcome.Selected, "");
}

TEST_F(HingeWings, WingsInColumnInsideTheBoxReachColumnAndThenBox)
{
    EXPECT_EQ(OutcomeOf(ColumnInBox, Wings<3>, 0).Changes, "D4=8 E1=9 F6=7");
    EXPECT_EQ(OutcomeOf(ColumnInBox, Wings<3>, 1).Alerts, "D4 E1 F6");
    const Outcome outcome = OutcomeOf(ColumnInBox, Wings<3>, 5);
    EXPECT_EQ(outcome.Selected, "E1");
    EXPECT_EQ(outcome.Text, "Cell [E1] contains a 1 which conflicts with:\r"
                            "     hinge cell [E5] and \r     wing cells [E4] [E6] ");
    EXPECT_EQ(OutcomeOf(ColumnInBox, Wings<3>, 3).Text, "There's a conflict with an XYZ-Wing.");
    EXPECT_EQ(OutcomeOf(ColumnInBox, Wings<3>, 4).Text,
              "There's a conflict with an XYZ-Wing.\r\rThe hinge cell is [E5]");
}

TEST_F(HingeWings, OuterRowAloneHasItsOwnTeaser)
{
    EXPECT_EQ(OutcomeOf(RowOutside, Wings<3>, 3).Text, "There's an XYZ-Wing.");
    EXPECT_EQ(OutcomeOf(RowOutside, Wings<3>, 4).Text,
              "There's an XYZ-Wing.\r\rThe hinge cell is [E5]");
    EXPECT_EQ(OutcomeOf(ColumnOutside, Wings<3>, 3).Text, "There's a conflict with an XYZ-Wing.");
    EXPECT_EQ(OutcomeOf(ColumnOutside, Wings<3>, 4).Text,
              "There's a conflict with an XYZ-Wing.\r\rThe hinge cell is [E5]");
    EXPECT_EQ(OutcomeOf(RowOutside, Wings<3>, 0).Changes, "C5=9");
    EXPECT_EQ(OutcomeOf(ColumnOutside, Wings<3>, 0).Changes, "E3=9");
}

TEST_F(HingeWings, OuterRowReportInThePlayersNames)
{
    ColumnFormat = 0;
    RowFormat = 2;
    CoordRowFirst = True;
    CoordSeparator = 3;
    CoordBrackets = 2;
    const Outcome outcome = OutcomeOf(RowOutside, Wings<3>, 5);
    EXPECT_EQ(outcome.Title, "XYZ-Wing");
    EXPECT_EQ(outcome.Text, "Cell {e/3} contains a 1 which conflicts with:\r"
                            "     hinge cell {e/5} and \r     wing cells {e/1} {e/9} ");
    EXPECT_EQ(OutcomeOf(RowOutside, Wings<3>, 4).Text,
              "There's an XYZ-Wing.\r\rThe hinge cell is {e/5}");
    EXPECT_EQ(outcome.HintDomain, "A5 J5");
    EXPECT_EQ(outcome.HintCells, "E5");
}

TEST_F(HingeWings, FourNumbersAreAWXYZWing)
{
    // Wings A5 and J5 lie outside the box, F6 in it, so only the row inside the box is left, and
    // C5 is no target.
    Outcome outcome = OutcomeOf(FourNumbers, Wings<4>, 1);
    EXPECT_EQ(outcome.Alerts, "");
    SetPencilmarks(FourNumbers);
    Grid[4][5] = BitTable[2] | BitTable[8];
    const std::string drawing = PencilmarksOf(Grid);
    EXPECT_EQ(OutcomeOf(drawing, Wings<4>, 1).Alerts, "D5");
    EXPECT_EQ(OutcomeOf(drawing, Wings<4>, 0).Changes, "D5=8");
    EXPECT_EQ(OutcomeOf(drawing, Wings<4>, 3).Text, "There's a conflict with a WXYZ-Wing.");
    EXPECT_EQ(OutcomeOf(drawing, Wings<4>, 4).Text,
              "There's a conflict with a WXYZ-Wing.\r\rThe hinge cell is [E5]");
    outcome = OutcomeOf(drawing, Wings<4>, 5);
    EXPECT_EQ(outcome.Title, "WXYZ-Wing");
    EXPECT_EQ(outcome.Text, "Cell [D5] contains a 2 which conflicts with:\r"
                            "     hinge cell [E5] and \r     wing cells [J5] [F6] [A5] ");
    EXPECT_EQ(outcome.HintDomain, "A5 F6 J5");
    EXPECT_EQ(OutcomeOf(drawing, Wings<3>, 1).Alerts, "");
    EXPECT_EQ(OutcomeOf(drawing, Wings<5>, 1).Alerts, "");
}

TEST_F(HingeWings, LargerSizesAreHingeWings)
{
    constexpr std::string_view row = R"(
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        12   13   14   78   12345 16  15   .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
    )";
    EXPECT_EQ(OutcomeOf(row, Wings<5>, 3).Text, "There's a Hinge-Wing.");
    EXPECT_EQ(OutcomeOf(row, Wings<5>, 4).Text, "There's a Hinge-Wing.\r\rThe hinge cell is [E5]");
    const Outcome outcome = OutcomeOf(row, Wings<5>, 5);
    EXPECT_EQ(outcome.Title, "Hinge-Wing");
    EXPECT_EQ(outcome.Text, "Cell [F5] contains a 1 which conflicts with:\r"
                            "     hinge cell [E5] and \r     wing cells [A5] [B5] [C5] [G5] ");
    EXPECT_EQ(OutcomeOf(row, Wings<5>, 0).Changes, "F5=6");
    constexpr std::string_view column = R"(
        .    .    .    .    12   .    .    .    .
        .    .    .    .    13   .    .    .    .
        .    .    .    .    14   .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    12345 .   .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    15   .    .    .    .
        .    .    .    .    16   .    .    .    .
        .    .    .    .    .    .    .    .    .
    )";
    EXPECT_EQ(OutcomeOf(column, Wings<5>, 3).Text, "There's a conflict with a Hinge-Wing.");
}

TEST_F(HingeWings, FourNumbersInTheOuterRowHaveTheirOwnTeaser)
{
    constexpr std::string_view drawing = R"(
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        25   .    29   .    2345 .    24   .    23
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
    )";
    EXPECT_EQ(OutcomeOf(drawing, Wings<4>, 3).Text, "There's a WXYZ-Wing.");
}

TEST_F(HingeWings, WingForOneCandidateAloneStaysMarkedAndDoesNothing)
{
    constexpr std::string_view drawing = R"(
        .    .    .    .    12   .    .    .    .
        .    .    .    .    19   .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    123  .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
    )";
    const Outcome outcome = OutcomeOf(drawing, Wings<3>, 0);
    EXPECT_EQ(outcome.Found, False);
    EXPECT_EQ(outcome.Changes, "");
    EXPECT_EQ(CellsWith(ScratchMark2), "E1");
    EXPECT_EQ(WingList(1), "E1");
}

TEST_F(HingeWings, ColumnIsSearchedBeforeTheBox)
{
    constexpr std::string_view drawing = R"(
        .    .    .    .    13   .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    17   .    .    .    .
        .    .    .    12   .    .    .    .    .
        .    .    .    .    123  .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    12   .    .    .    .
    )";
    const Outcome outcome = OutcomeOf(drawing, Wings<3>, 5);
    EXPECT_EQ(outcome.Text, "Cell [E3] contains a 1 which conflicts with:\r"
                            "     hinge cell [E5] and \r     wing cells [E9] [E1] ");
}

TEST_F(HingeWings, FirstOfTwoEqualPairsIsTheWingAndTheOtherATarget)
{
    constexpr std::string_view drawing = R"(
        .    .    .    .    .    .    .    .    .
        .    .    .    .    12   .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    123  .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    12   .    .    .    .
        .    .    .    .    13   .    .    .    .
    )";
    const Outcome outcome = OutcomeOf(drawing, Wings<3>, 5);
    EXPECT_EQ(outcome.Text, "Cell [E8] contains a 1 which conflicts with:\r"
                            "     hinge cell [E5] and \r     wing cells [E2] [E9] ");
    EXPECT_EQ(OutcomeOf(drawing, Wings<3>, 0).Changes, "E8=2");
}

TEST_F(HingeWings, WingOfAnEarlierHingeIsNoTargetOfALaterOne)
{
    // Hinge A5 has one wing, A9, for 2 and 3. Hinge B8 has C7 and C9 and sees A9.
    constexpr std::string_view drawing = R"(
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        234  .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    25   .    .    .    .    .    .
        .    256  .    .    .    .    .    .    .
        23   27   26   .    .    .    .    .    .
    )";
    EXPECT_EQ(OutcomeOf(drawing, Wings<3>, 1).Alerts, "B9");
    SetPencilmarks(drawing);
    Grid[1][5] = 0;
    EXPECT_EQ(OutcomeOf(PencilmarksOf(Grid), Wings<3>, 1).Alerts, "A9 B9");
}

TEST_F(HingeWings, WingsOfNumberNineLoseTheirMark)
{
    constexpr std::string_view drawing = R"(
        .    .    .    .    79   .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    59   .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    789  .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    89   .    .    .    .
    )";
    EXPECT_EQ(OutcomeOf(drawing, Wings<3>, 0).Changes, "E3=5");
    EXPECT_EQ(CellsWith(ScratchMark2), "");
}

TEST_F(HingeWings, MarksOfAnEarlierSearchCount)
{
    SetPencilmarks(ColumnOutside);
    Grid[5][3] |= ScratchMark2;
    Flag found = False;
    SearchHingeWings(0, found, 3);
    EXPECT_EQ(found, False);
    EXPECT_EQ(Grid[5][3] & CandidateMask, BitTable[1] | BitTable[9]);
}

TEST_F(HingeWings, GivenIsNoHinge)
{
    SetPencilmarks(ColumnOutside);
    Grid[5][5] |= GivenBit;
    EXPECT_EQ(OutcomeOf(PencilmarksOf(Grid), Wings<3>, 1).Alerts, "");
}

TEST_F(HingeWings, DriverStopsAtTheFirstSizeThatFindsSomething)
{
    // A wing of four numbers in row 5 and one of five in row 1.
    SetPencilmarks(R"(
        12   13   14   78   12345 16  15   .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        25   .    29   .    2367 .    26   27   23
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
    )");
    SolveMask = BitTable[17];
    int passes = 0;
    Seen.OnYield = [&] {
        SearchActive = ++passes < 2 ? True : False;
    };
    EXPECT_EQ(ApplyLogic(SolveAsPlayer), Stopped);
    EXPECT_EQ(UsedMask, BitTable[17]);
    EXPECT_EQ(Grid[1][5] & CandidateMask, BitTable[5]);
    EXPECT_EQ(Grid[3][5] & CandidateMask, BitTable[9]);
    EXPECT_EQ(Grid[6][1] & CandidateMask, BitTable[1] | BitTable[6]);
    Seen.OnYield = nullptr;
    ApplyLogic(SolveAsPlayer);
    EXPECT_EQ(Grid[6][1] & CandidateMask, BitTable[6]);
}

} // namespace
} // namespace kelvarine::testing
