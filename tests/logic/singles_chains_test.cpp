#include "grid/names.h"
#include "logic/plain/singles_chains.h"
#include "logic/singles_chains.h"
#include "logic/technique_outcome.h"
#include "support/outside_double.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

class SinglesChains : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

// Column A leaves A1 and A2 for 5; B3 and C3 are further cells of their box.
constexpr std::string_view ColumnAndBox = R"(
    58   .    .    .    .    .    .    .    .
    58   .    .    .    .    .    .    .    .
    .    56   57   .    .    .    .    .    51
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
)";

// Links on 3: A1 and E1 by row, E1 and F2 by box, F2 and F8 by column. A8 crosses A1 and F8.
constexpr std::string_view Crossing = R"(
    34   .    .    .    34   .    .    .    .
    .    .    .    .    .    34   .    .    .
    .    .    .    .    .    .    .    .    .
    31   .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    39   .    .    .    .    34   .    31   .
    .    .    .    .    .    .    .    .    .
)";

// Links on 7: A1, A5, C4, F4 and F1 in a chain of five whose ends share row 1.
constexpr std::string_view Within = R"(
    71   .    .    .    .    73   .    .    74
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    76   .    .    72   .    .    .
    75   .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
)";

TEST_F(SinglesChains, ChainInColumnAndBoxReachesTheBoxAlone)
{
    const Outcome outcome = OutcomeOf(ColumnAndBox, SearchSinglesChains, 0);
    EXPECT_EQ(outcome.Found, True);
    EXPECT_EQ(outcome.Changes, "B3=6 C3=7");
    EXPECT_EQ(outcome.Text, "");
    EXPECT_EQ(outcome.Title, "");
    EXPECT_EQ(outcome.Chain, "");
    EXPECT_EQ(CellsWith(ScratchMarks), "");
}

TEST_F(SinglesChains, AlertsMarkTheTargetsAndChangeNothing)
{
    const Outcome outcome = OutcomeOf(ColumnAndBox, SearchSinglesChains, 1);
    EXPECT_EQ(outcome.Found, False);
    EXPECT_EQ(outcome.Alerts, "B3 C3");
    EXPECT_EQ(outcome.Changes, "");
    EXPECT_EQ(outcome.Text, "");
    EXPECT_EQ(CellsWith(ScratchMarks), "");
}

TEST_F(SinglesChains, HintStagesOfAConflictWithAChain)
{
    EXPECT_EQ(OutcomeOf(ColumnAndBox, SearchSinglesChains, 3).Text,
              "There's a conflict with a singles chain.");
    Outcome outcome = OutcomeOf(ColumnAndBox, SearchSinglesChains, 4);
    EXPECT_EQ(outcome.Text, "There's a conflict with a singles chain.\rIt involves the number 5");
    EXPECT_EQ(outcome.Title, "");
    EXPECT_EQ(outcome.Chain, "");
    outcome = OutcomeOf(ColumnAndBox, SearchSinglesChains, 5);
    EXPECT_EQ(outcome.Selected, "B3");
    EXPECT_EQ(outcome.Title, "Conflict with singles chain");
    EXPECT_EQ(outcome.Text, "Cell [B3] contains a 5 which conflicts with the ends of the following "
                            "chained cells:\r  [A1]  [A2]");
    EXPECT_EQ(outcome.Chain, "A1 A2");
    EXPECT_EQ(outcome.ChainNumber, 5);
    EXPECT_EQ(outcome.HintCells, "A1");
    EXPECT_EQ(outcome.HintDomain, "A2");
    EXPECT_EQ(CellsWith(ScratchMark0), "A1 A2");
}

TEST_F(SinglesChains, SelectedTargetIsExplained)
{
    EXPECT_EQ(OutcomeOf(ColumnAndBox, SearchSinglesChains, 2, "C3").Text,
              "Cell [C3] contains a 5 which conflicts with the ends of the following chained "
              "cells:\r  [A1]  [A2]");
    EXPECT_EQ(OutcomeOf(ColumnAndBox, SearchSinglesChains, 2, "J3").Text, "");
}

TEST_F(SinglesChains, CrossingOfAChainOfFour)
{
    EXPECT_EQ(OutcomeOf(Crossing, SearchSinglesChains, 0).Changes, "A8=9");
    EXPECT_EQ(OutcomeOf(Crossing, SearchSinglesChains, 1).Alerts, "A8");
    MaxSinglesLinks = 3;
    EXPECT_EQ(OutcomeOf(Crossing, SearchSinglesChains, 1).Alerts, "");
}

TEST_F(SinglesChains, ReportFollowsThePlayersNames)
{
    ColumnFormat = 4;
    RowFormat = 0;
    CoordBrackets = 0;
    CoordSeparator = 3;
    const Outcome outcome = OutcomeOf(Crossing, SearchSinglesChains, 5);
    EXPECT_EQ(outcome.Title, "Conflict with singles chain");
    EXPECT_EQ(outcome.Text, "Cell c1/8 contains a 3 which conflicts with the ends of the following "
                            "chained cells:\r  c1/1  c5/1  c6/2  c6/8");
    EXPECT_EQ(outcome.Chain, "A1 E1 F2 F8");
    EXPECT_EQ(outcome.ChainNumber, 3);
    EXPECT_EQ(outcome.HintCells, "A1 F2");
    EXPECT_EQ(outcome.HintDomain, "E1 F8");
    EXPECT_EQ(OutcomeOf(Crossing, SearchSinglesChains, 4).Text,
              "There's a conflict with a singles chain.\rIt involves the number 3");
}

TEST_F(SinglesChains, EndsThatShareAHouseClearTheOddCells)
{
    const Outcome outcome = OutcomeOf(Within, SearchSinglesChains, 0);
    EXPECT_EQ(outcome.Found, True);
    EXPECT_EQ(outcome.Changes, "A1=1 C4=6 F1=3");
    EXPECT_EQ(outcome.Text, "");
    EXPECT_EQ(CellsWith(ScratchMarks), "");
}

TEST_F(SinglesChains, HintStagesOfAConflictWithinAChain)
{
    EXPECT_EQ(OutcomeOf(Within, SearchSinglesChains, 3).Text,
              "There's a conflict in a singles chain.");
    EXPECT_EQ(OutcomeOf(Within, SearchSinglesChains, 4).Text,
              "There's a conflict in a singles chain.\rIt involves the number 7");
    const Outcome outcome = OutcomeOf(Within, SearchSinglesChains, 5);
    EXPECT_EQ(outcome.Selected, "A1");
    EXPECT_EQ(outcome.Title, "Conflict in singles chain");
    EXPECT_EQ(outcome.Text, "Cell [A1] is a link in the following chain of 7's which conflict with "
                            "each other:\r  [A1]  [A5]  [C4]  [F4]  [F1]\r\r"
                            "The 7's in these links can be removed:\r  [A1]  [C4]  [F1]");
    EXPECT_EQ(outcome.Chain, "A1 A5 C4 F4 F1");
    EXPECT_EQ(outcome.ChainNumber, 7);
    EXPECT_EQ(outcome.HintCells, "A1 C4 F1");
    EXPECT_EQ(outcome.HintDomain, "A5 F4");
    EXPECT_EQ(CellsWith(ScratchMark0), "A1 A5 C4 F1 F4");
}

TEST_F(SinglesChains, OnlyOddCellsOfAChainInConflictAreExplained)
{
    const Outcome odd = OutcomeOf(Within, SearchSinglesChains, 2, "C4");
    EXPECT_EQ(odd.Text, "Cell [C4] is a link in the following chain of 7's which conflict with "
                        "each other:\r  [A1]  [A5]  [C4]  [F4]  [F1]\r\r"
                        "The 7's in these links can be removed:\r  [A1]  [C4]  [F1]");
    const Outcome even = OutcomeOf(Within, SearchSinglesChains, 2, "A5");
    EXPECT_EQ(even.Text, "");
    EXPECT_EQ(even.Title, "");
}

TEST_F(SinglesChains, AlertsOfAConflictWithinGoOnBeyondTheChain)
{
    // As above, with F1 linked on to D2 by box. Beyond the chain of five, A1 and D2 are the ends
    // of one of six, and B2 sees both. C2 crosses C4 and D2, the ends of one of four.
    constexpr std::string_view drawing = R"(
        71   .    .    .    .    73   .    .    74
        .    78   79   78   .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    76   .    .    72   .    .    .
        75   .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    71   .    .    .    .    .    .
    )";
    MaxSinglesLinks = 5;
    EXPECT_EQ(OutcomeOf(drawing, SearchSinglesChains, 1).Alerts, "A1 C2 C4 F1");
    MaxSinglesLinks = 6;
    const Outcome outcome = OutcomeOf(drawing, SearchSinglesChains, 1);
    EXPECT_EQ(outcome.Alerts, "A1 B2 C2 C4 F1");
    EXPECT_EQ(outcome.Changes, "");
    EXPECT_EQ(outcome.Found, False);
}

TEST_F(SinglesChains, LimitOfNothingSearchesNothing)
{
    MaxSinglesLinks = 0;
    SetPencilmarks(ColumnAndBox);
    Grid[5][5] |= ScratchMark0;
    const GridTable before = Grid;
    Flag found = False;
    SearchSinglesChains(0, found);
    EXPECT_EQ(found, False);
    EXPECT_EQ(Grid, before);
}

TEST_F(SinglesChains, LimitOfOneStopsAtTheStartCell)
{
    MaxSinglesLinks = 1;
    const Outcome outcome = OutcomeOf(ColumnAndBox, SearchSinglesChains, 0);
    EXPECT_EQ(outcome.Found, False);
    EXPECT_EQ(outcome.Changes, "");
    MaxSinglesLinks = 2;
    EXPECT_EQ(OutcomeOf(ColumnAndBox, SearchSinglesChains, 0).Changes, "B3=6 C3=7");
}

TEST_F(SinglesChains, EntryClearsItsOwnMarkAlone)
{
    SetPencilmarks("");
    Grid[2][2] |= ScratchMarks;
    Flag found = False;
    SearchSinglesChains(1, found);
    EXPECT_EQ(Grid[2][2], ScratchMarks & ~ScratchMark0);
}

TEST_F(SinglesChains, GivenEndsTheStageOfItsHouse)
{
    SetPencilmarks(ColumnAndBox);
    Grid[1][2] |= GivenBit;
    EXPECT_EQ(OutcomeOf(PencilmarksOf(Grid), SearchSinglesChains, 1).Alerts, "");
    // A third cell, with the given first, is no link either.
    SetPencilmarks(ColumnAndBox);
    Grid[1][9] = BitTable[5] | GivenBit;
    EXPECT_EQ(OutcomeOf(PencilmarksOf(Grid), SearchSinglesChains, 1).Alerts, "");
}

TEST_F(SinglesChains, BoxLeadsBackToNoCellOfTheChain)
{
    // A1 and A2 are linked by column and by box; A1 never becomes the end of its own chain.
    constexpr std::string_view drawing = R"(
        58   .    .    .    .    .    .    .    .
        58   .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
    )";
    for (std::int32_t mode = 0; mode <= 5; ++mode) {
        const Outcome outcome = OutcomeOf(drawing, SearchSinglesChains, mode);
        EXPECT_EQ(outcome.Changes + outcome.Alerts + outcome.Text + outcome.Selected, "");
    }
}

TEST_F(SinglesChains, CornerOfTheEndIsPassedOverAndItsCounterpartTaken)
{
    // A1, B3, B9, H9, H2 and F2 are a chain of six. F1 sees both ends: it lies in the column of F2
    // and the row of A1. Only the chain that starts in F2 takes it.
    constexpr std::string_view drawing = R"(
        68   .    .    .    .    68   .    .    68
        .    .    .    .    .    68   .    68   .
        .    68   .    .    68   .    68   .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    68   .    .    .
        .    .    .    .    .    .    .    .    .
        .    68   .    .    .    .    .    68   .
    )";
    const Outcome outcome = OutcomeOf(drawing, SearchSinglesChains, 2, "F1");
    EXPECT_EQ(outcome.Chain, "F2 H2 H9 B9 B3 A1");
    EXPECT_EQ(outcome.ChainNumber, 6);
}

// Two 7s are left in columns 1 and 2 and rows 1 and 2 once A1 has lost its own.
constexpr std::string_view DepthZero = R"(
    71   72   .    .    .    73   .    .    74
    .    78   .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    76   .    .    72   .    .    .
    75   .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    79   .    .    .    .    .    .    .
)";

TEST_F(SinglesChains, WalkFromDepthZeroTakesTheLaterOfTwoCells)
{
    EXPECT_EQ(OutcomeOf(DepthZero, SearchSinglesChains, 0).Changes, "A1=1 B2=8 C4=6 F1=3");
    // No other mode ends a walk in that way.
    EXPECT_EQ(OutcomeOf(DepthZero, SearchSinglesChains, 1).Alerts, "A1 C4 F1");
    EXPECT_EQ(OutcomeOf(DepthZero, SearchSinglesChains, 2, "B2").Text, "");
}

TEST_F(SinglesChains, WalkFromDepthZeroSparesACellOfTheChain)
{
    // A1 and B2 are the two cells, and B2 stands on the chain in conflict with itself.
    constexpr std::string_view drawing = R"(
        12   .    .    .    .    .    .    .    13
        .    14   .    .    .    .    .    15   .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    16   .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    17   .    .    18   .    .    .    .
        .    .    19   12   .    .    13   .    14
        .    .    .    .    .    .    .    .    .
    )";
    const Outcome outcome = OutcomeOf(drawing, SearchSinglesChains, 0);
    EXPECT_EQ(outcome.Changes, "B7=7 C8=9 D8=2 H2=5 J8=4");
    EXPECT_EQ(OutcomeOf(drawing, plain::SearchSinglesChains, 0).Changes, outcome.Changes);
}

TEST_F(SinglesChains, WalkFromDepthZeroStopsAtAGiven)
{
    SetPencilmarks(DepthZero);
    Grid[2][1] |= GivenBit;
    // Row 1 now has a given, but links none of the chain.
    EXPECT_EQ(OutcomeOf(PencilmarksOf(Grid), SearchSinglesChains, 0).Changes, "A1=1 C4=6 F1=3");
}

} // namespace
} // namespace kelvarine::testing
