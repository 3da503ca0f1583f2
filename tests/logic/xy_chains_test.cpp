#include "grid/names.h"
#include "logic/technique_outcome.h"
#include "logic/technique_table.h"
#include "logic/xy_chains.h"
#include "support/outside_double.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

class XYChains : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

void Wings(std::int32_t mode, Flag &found)
{
    SearchXYChains(mode, 3, 3, found);
}

void AllChains(std::int32_t mode, Flag &found)
{
    SearchXYChains(mode, 0, 81, found);
}

// A1, A9, E9 and E5 are a chain on 1; A5 and E1 are the two crossings of its ends.
constexpr std::string_view Crossings = R"(
    12   .    .    .    167  .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    167  .    .    .    14   .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    23   .    .    .    34   .    .    .    .
)";

// A1, B3 and C1 are a wing on 1 with both ends in row 1 and one box.
constexpr std::string_view RowAndBox = R"(
    12   .    13   .    .    .    .    .    189
    .    156  .    .    .    .    .    .    .
    .    23   157  .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
)";

// A1 and A2 hold the same pair.
constexpr std::string_view SamePair = R"(
    46   .    .    .    .    .    .    .    .
    46   .    .    .    .    .    .    .    .
    .    .    67   .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    456  .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
)";

TEST_F(XYChains, BothCrossingsFallOneForEachEnd)
{
    const Outcome outcome = OutcomeOf(Crossings, AllChains, 0);
    EXPECT_EQ(outcome.Found, True);
    EXPECT_EQ(outcome.Changes, "A5=67 E1=67");
    EXPECT_EQ(outcome.Text, "");
    EXPECT_EQ(outcome.Title, "");
    EXPECT_EQ(outcome.Chain, "");
    // The cells that came down to two candidates are no links in this call.
    EXPECT_EQ(CellsWith(ScratchMark1), "A1 A9 E5 E9");
    EXPECT_EQ(CellsWith(ScratchMark0 | ScratchMark2 | ScratchMark3), "");
}

TEST_F(XYChains, CrossingInTheStartsColumnIsTakenAndTheOtherPassedOver)
{
    Outcome outcome = OutcomeOf(Crossings, AllChains, 5);
    EXPECT_EQ(outcome.Selected, "A5");
    outcome = OutcomeOf(Crossings, AllChains, 2, "A5");
    EXPECT_EQ(outcome.Chain, "A1 A9 E9 E5");
    outcome = OutcomeOf(Crossings, AllChains, 2, "E1");
    EXPECT_EQ(outcome.Chain, "E5 E9 A9 A1");
    EXPECT_EQ(outcome.Text, "Cell [E1] contains a 1 which conflicts with the ends of the following "
                            "chained cells:\r  [E5]  [E9]  [A9]  [A1]");
}

TEST_F(XYChains, AlertsMarkTheTargetsAndChangeNothing)
{
    const Outcome outcome = OutcomeOf(Crossings, AllChains, 1);
    EXPECT_EQ(outcome.Found, False);
    EXPECT_EQ(outcome.Alerts, "A5 E1");
    EXPECT_EQ(outcome.Changes, "");
    EXPECT_EQ(outcome.Text, "");
    EXPECT_EQ(CellsWith(ScratchMark1), "A1 A9 E5 E9");
    EXPECT_EQ(CellsWith(ScratchMark2), "");
}

TEST_F(XYChains, HintStagesOfALongChain)
{
    EXPECT_EQ(OutcomeOf(Crossings, AllChains, 3).Text, "There's a conflict with an XY-chain.");
    Outcome outcome = OutcomeOf(Crossings, AllChains, 4);
    EXPECT_EQ(outcome.Text, "There's a conflict with an XY-chain.\rIt involves the number 1");
    EXPECT_EQ(outcome.Title, "");
    EXPECT_EQ(outcome.Chain, "");
    EXPECT_EQ(outcome.Selected, "");
    outcome = OutcomeOf(Crossings, AllChains, 5);
    EXPECT_EQ(outcome.Title, "Conflict with XY-chain");
    EXPECT_EQ(outcome.Text, "Cell [A5] contains a 1 which conflicts with the ends of the following "
                            "chained cells:\r  [A1]  [A9]  [E9]  [E5]");
    EXPECT_EQ(outcome.ChainNumber, -1);
    EXPECT_EQ(outcome.Changes, "");
}

TEST_F(XYChains, FullReportMarksTheCellsAlternatelyFromDomainOn)
{
    const Outcome outcome = OutcomeOf(Crossings, AllChains, 5);
    EXPECT_EQ(outcome.HintDomain, "A1 E9");
    EXPECT_EQ(outcome.HintCells, "A9 E5");
}

TEST_F(XYChains, RowComesBeforeTheBox)
{
    const Outcome outcome = OutcomeOf(RowAndBox, Wings, 0);
    EXPECT_EQ(outcome.Found, True);
    EXPECT_EQ(outcome.Changes, "B2=56 C3=57 J1=89");
    EXPECT_EQ(OutcomeOf(RowAndBox, Wings, 1).Alerts, "B2 C3 J1");
    EXPECT_EQ(OutcomeOf(RowAndBox, Wings, 5).Selected, "J1");
}

TEST_F(XYChains, SelectedSecondTargetIsTheOneReported)
{
    const Outcome outcome = OutcomeOf(RowAndBox, Wings, 2, "C3");
    EXPECT_EQ(outcome.Title, "Conflict with XY-wing (XY-chain)");
    EXPECT_EQ(outcome.Text, "Cell [C3] contains a 1 which conflicts with the ends of the following "
                            "chained cells:\r  [A1]  [B3]  [C1]");
    EXPECT_EQ(outcome.Chain, "A1 B3 C1");
    EXPECT_EQ(outcome.ChainNumber, -1);
    EXPECT_EQ(outcome.HintDomain, "A1 C1");
    EXPECT_EQ(outcome.HintCells, "B3");
    EXPECT_EQ(outcome.Selected, "C3");
}

TEST_F(XYChains, WingIsCalledAChainInTheTeasers)
{
    EXPECT_EQ(OutcomeOf(RowAndBox, Wings, 3).Text, "There's a conflict with an XY-chain.");
    EXPECT_EQ(OutcomeOf(RowAndBox, Wings, 4).Text,
              "There's a conflict with an XY-chain.\rIt involves the number 1");
}

TEST_F(XYChains, ReportFollowsThePlayersNames)
{
    ColumnFormat = 2;
    RowFormat = 3;
    CoordSeparator = 2;
    CoordBrackets = 4;
    const Outcome outcome = OutcomeOf(RowAndBox, Wings, 5);
    EXPECT_EQ(outcome.Title, "Conflict with XY-wing (XY-chain)");
    EXPECT_EQ(outcome.Text,
              "Cell <j-R1> contains a 1 which conflicts with the ends of the following chained "
              "cells:\r  <a-R1>  <b-R3>  <c-R1>");
}

TEST_F(XYChains, PairOfPeersIsAChainForBothItsNumbers)
{
    const Outcome outcome = OutcomeOf(SamePair, AllChains, 0);
    EXPECT_EQ(outcome.Found, True);
    EXPECT_EQ(outcome.Changes, "A7=5 C3=7");
    // C3 was a link and lost a number.
    EXPECT_EQ(CellsWith(ScratchMark1), "A1 A2");
    EXPECT_EQ(OutcomeOf(SamePair, AllChains, 1).Alerts, "A7 C3");
}

TEST_F(XYChains, PairOfPeersInTheHintStages)
{
    EXPECT_EQ(OutcomeOf(SamePair, AllChains, 3).Text, "There's a conflict with an XY-chain.");
    EXPECT_EQ(OutcomeOf(SamePair, AllChains, 4).Text,
              "There's a conflict with an XY-chain.\rIt involves the number 4");
    const Outcome full = OutcomeOf(SamePair, AllChains, 5);
    EXPECT_EQ(full.Title, "Conflict with XY-chain");
    EXPECT_EQ(full.Text, "Cell [A7] contains a 4 which conflicts with the ends of the following "
                         "chained cells:\r  [A1]  [A2]");
    EXPECT_EQ(full.Chain, "A1 A2");
    EXPECT_EQ(full.ChainNumber, -4);
    const Outcome second = OutcomeOf(SamePair, AllChains, 2, "C3");
    EXPECT_EQ(second.Text, "Cell [C3] contains a 6 which conflicts with the ends of the following "
                           "chained cells:\r  [A1]  [A2]");
    EXPECT_EQ(second.ChainNumber, -6);
}

TEST_F(XYChains, ShortChainIsFollowedButNotEvaluated)
{
    const Outcome outcome = OutcomeOf(
        SamePair, [](std::int32_t mode, Flag &found) { SearchXYChains(mode, 3, 81, found); }, 0);
    EXPECT_EQ(outcome.Found, False);
    EXPECT_EQ(outcome.Changes, "");
}

TEST_F(XYChains, LimitBelowTwoLeavesTheGridAlone)
{
    for (const std::int32_t limit : {0, 1}) {
        MaxXYLinks = limit;
        const TechniqueRow *row = FindTechnique(15);
        SetPencilmarks(SamePair);
        Grid[5][5] |= ScratchMark3;
        const GridTable before = Grid;
        Flag found = False;
        row->Driver[0](0, found);
        row->DriverApply[0](0, found);
        row->AlertScan[0](1, found);
        row->AlertScan[0](5, found);
        EXPECT_EQ(found, False);
        EXPECT_EQ(Grid, before);
        EXPECT_EQ(HintText, "");
    }
}

TEST_F(XYChains, WingsRunWhateverTheLimit)
{
    MaxXYLinks = 0;
    const TechniqueRow *row = FindTechnique(13);
    EXPECT_EQ(OutcomeOf(RowAndBox, row->Driver[0], 0).Changes, "B2=56 C3=57 J1=89");
    EXPECT_EQ(OutcomeOf(RowAndBox, row->AlertScan[0], 1).Alerts, "B2 C3 J1");
    EXPECT_EQ(OutcomeOf(Crossings, row->Driver[0], 0).Changes, "");
}

TEST_F(XYChains, AlertScanTellsTheShortestChainFirst)
{
    // The chain of four starts in column A, the wing in column G.
    constexpr std::string_view drawing = R"(
        12   .    .    .    167  .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    89   589  .
        167  .    .    .    14   .    .    58   .
        .    .    .    .    .    .    .    .    59
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        23   .    .    .    34   .    .    .    .
    )";
    EXPECT_EQ(OutcomeOf(drawing, AllChains, 5).Chain, "A1 A9 E9 E5");
    const Outcome outcome = OutcomeOf(drawing, ScanXYChains, 5);
    EXPECT_EQ(outcome.Chain, "G4 J6 H5");
    EXPECT_EQ(outcome.Selected, "H4");
    EXPECT_EQ(outcome.ChainNumber, -8);
    EXPECT_EQ(OutcomeOf(drawing, ScanXYChains, 2, "A5").Chain, "A1 A9 E9 E5");
    EXPECT_EQ(OutcomeOf(drawing, ScanXYChains, 1).Alerts, "A5 E1 H4");
    MaxXYLinks = 3;
    EXPECT_EQ(OutcomeOf(drawing, ScanXYChains, 2, "A5").Text, "");
    EXPECT_EQ(OutcomeOf(drawing, ScanXYChains, 1).Alerts, "H4");
}

TEST_F(XYChains, MarksOfAReportAreClearedByTheNextCall)
{
    OutcomeOf(Crossings, AllChains, 5);
    EXPECT_EQ(CellsWith(ScratchMark2), "A1 A9 E5 E9");
    Flag found = False;
    AllChains(1, found);
    EXPECT_EQ(CellsWith(ScratchMark2), "");
    EXPECT_EQ(CellsWith(AlertBit), "A5 E1");
}

} // namespace
} // namespace kelvarine::testing
