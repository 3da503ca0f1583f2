#include "grid/names.h"
#include "logic/remote_pairs.h"
#include "logic/technique_outcome.h"
#include "support/outside_double.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

class RemotePairs : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

// A1 and A2 are a chain of two; A3, A9 and B3 see both.
constexpr std::string_view TwoCells = R"(
    12   .    .    .    .    .    .    .    .
    12   .    .    .    .    .    .    .    .
    123  15   .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    25   .    .    .    .    .    .    .    .
)";

// A1, B2, B6 and F6 are a chain of four; A6 sees A1 in the column and F6 in the row. It sees B6 and
// F6 as well, but the chain that starts in A1 comes first.
constexpr std::string_view FourCells = R"(
    47   .    .    .    .    .    .    .    .
    .    47   .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    78   47   .    .    .    47   .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
)";

// B1 comes before B2 in the box, but B2 lies in the row of A2.
constexpr std::string_view RowAndBox = R"(
    38   38   .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    89   .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
    .    .    .    .    .    .    .    .    .
)";

TEST_F(RemotePairs, TwoPeersWithOnePairClearBothNumbersAsANakedPair)
{
    const Outcome outcome = OutcomeOf(TwoCells, SearchRemotePairs, 0);
    EXPECT_EQ(outcome.Found, True);
    EXPECT_EQ(outcome.Changes, "A3=3 A9=5 B3=5");
    EXPECT_EQ(outcome.Text, "");
    EXPECT_EQ(outcome.Title, "");
    EXPECT_EQ(outcome.Alerts, "");
    EXPECT_EQ(outcome.Chain, "");
    EXPECT_EQ(CellsWith(ScratchMark0), "A1 A2 A9 B3");
    EXPECT_EQ(CellsWith(ScratchMark1 | ScratchMark2 | ScratchMark3), "");
}

TEST_F(RemotePairs, AlertsMarkAllThatSeeBothEnds)
{
    const Outcome outcome = OutcomeOf(TwoCells, SearchRemotePairs, 1);
    EXPECT_EQ(outcome.Found, False);
    EXPECT_EQ(outcome.Changes, "");
    EXPECT_EQ(outcome.Alerts, "A3 A9 B3");
    EXPECT_EQ(outcome.Text, "");
    EXPECT_EQ(CellsWith(ScratchMark0), "A1 A2 A9 B3");
    EXPECT_EQ(CellsWith(ScratchMark1 | ScratchMark2 | ScratchMark3), "");
}

TEST_F(RemotePairs, TargetWithBothNumbersNamesThemLowerFirst)
{
    const Outcome outcome = OutcomeOf(TwoCells, SearchRemotePairs, 2, "A3");
    EXPECT_EQ(outcome.Title, "Conflict with remote pair");
    EXPECT_EQ(outcome.Text, "Cell [A3] contains a 1 and a 2 which conflicts with the following "
                            "chain of remote pairs:\r  [A1]  [A2]");
    EXPECT_EQ(outcome.HintDomain, "A1");
    EXPECT_EQ(outcome.HintCells, "A2");
    EXPECT_EQ(outcome.Chain, "A1 A2");
    EXPECT_EQ(outcome.ChainNumber, 0);
    EXPECT_EQ(outcome.Changes, "");
    EXPECT_EQ(CellsWith(ScratchMark1), "A1 A2");
    EXPECT_EQ(CellsWith(ScratchMark2),
              "A2 A3 A4 A5 A6 A7 A8 A9 B1 B2 B3 C1 C2 C3 D1 E1 F1 G1 H1 J1");
}

TEST_F(RemotePairs, TargetWithOneNumberNamesThatAlone)
{
    EXPECT_EQ(OutcomeOf(TwoCells, SearchRemotePairs, 2, "A9").Text,
              "Cell [A9] contains a 2 which conflicts with the following chain of remote "
              "pairs:\r  [A1]  [A2]");
    EXPECT_EQ(OutcomeOf(TwoCells, SearchRemotePairs, 2, "B3").Text,
              "Cell [B3] contains a 1 which conflicts with the following chain of remote "
              "pairs:\r  [A1]  [A2]");
}

TEST_F(RemotePairs, CellThatIsNoTargetHasNoExplanation)
{
    const Outcome outcome = OutcomeOf(TwoCells, SearchRemotePairs, 2, "A1");
    EXPECT_EQ(outcome.Text, "");
    EXPECT_EQ(outcome.Title, "");
    EXPECT_EQ(outcome.HintCells + outcome.HintDomain, "");
}

TEST_F(RemotePairs, HintStagesTellOfTheFirstTarget)
{
    Outcome outcome = OutcomeOf(TwoCells, SearchRemotePairs, 3);
    EXPECT_EQ(outcome.Text, "There's a conflict with a Remote Pair.");
    EXPECT_EQ(outcome.Title, "");
    EXPECT_EQ(outcome.Selected, "");
    // A3 holds both numbers, and only the lower one is named.
    outcome = OutcomeOf(TwoCells, SearchRemotePairs, 4);
    EXPECT_EQ(outcome.Text, "There's a conflict with a Remote Pair.\rIt involves the number 1");
    EXPECT_EQ(outcome.Chain, "");
    outcome = OutcomeOf(TwoCells, SearchRemotePairs, 5);
    EXPECT_EQ(outcome.Selected, "A3");
    EXPECT_EQ(outcome.Title, "Conflict with remote pair");
    EXPECT_EQ(outcome.Text, "Cell [A3] contains a 1 and a 2 which conflicts with the following "
                            "chain of remote pairs:\r  [A1]  [A2]");
    EXPECT_EQ(outcome.Chain, "A1 A2");
}

TEST_F(RemotePairs, FullReportIsAppendedAndATeaserReplaces)
{
    Flag found = False;
    SetPencilmarks(TwoCells);
    HintText = "Before. ";
    SearchRemotePairs(5, found);
    EXPECT_EQ(HintText.substr(0, 17), "Before. Cell [A3]");
    SearchRemotePairs(3, found);
    EXPECT_EQ(HintText, "There's a conflict with a Remote Pair.");
}

TEST_F(RemotePairs, ChainOfThreeIsPassedThroughToFour)
{
    // A1, A5, E5 and F6; F1 sees A1 and F6 alone. E1 sees A1 and E5, the ends of a chain of three.
    constexpr std::string_view drawing = R"(
        47   .    .    .    79   48   .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        47   .    .    .    47   .    .    .    .
        .    .    .    .    .    47   .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
    )";
    MaxRPLinks = 3;
    EXPECT_EQ(OutcomeOf(drawing, SearchRemotePairs, 1).Alerts, "");
    MaxRPLinks = 4;
    EXPECT_EQ(OutcomeOf(drawing, SearchRemotePairs, 1).Alerts, "F1");
    const Outcome outcome = OutcomeOf(drawing, SearchRemotePairs, 0);
    EXPECT_EQ(outcome.Found, True);
    EXPECT_EQ(outcome.Changes, "F1=8");
    EXPECT_EQ(OutcomeOf(drawing, SearchRemotePairs, 4).Text,
              "There's a conflict with a Remote Pair.\rIt involves the number 4");
    EXPECT_EQ(OutcomeOf(drawing, SearchRemotePairs, 5).Chain, "A1 A5 E5 F6");
}

TEST_F(RemotePairs, RowScanSaysNumbersForOneNumber)
{
    EXPECT_EQ(OutcomeOf(FourCells, SearchRemotePairs, 3).Text,
              "There's a conflict with a Remote Pair.");
    EXPECT_EQ(OutcomeOf(FourCells, SearchRemotePairs, 4).Text,
              "There's a conflict with a Remote Pair.\rIt involves the numbers 7");
}

TEST_F(RemotePairs, ReportFollowsThePlayersNames)
{
    ColumnFormat = 3;
    RowFormat = 4;
    CoordRowFirst = True;
    CoordSeparator = 1;
    CoordBrackets = 1;
    for (const std::int32_t mode : {2, 5}) {
        const Outcome outcome = OutcomeOf(FourCells, SearchRemotePairs, mode, "A6");
        EXPECT_EQ(outcome.Title, "Conflict with remote pair");
        EXPECT_EQ(outcome.Text, "Cell (r6,C1) contains a 7 which conflicts with the following "
                                "chain of remote pairs:\r  (r1,C1)  (r2,C2)  (r6,C2)  (r6,C6)");
        EXPECT_EQ(outcome.HintDomain, "A1 B6");
        EXPECT_EQ(outcome.HintCells, "B2 F6");
        EXPECT_EQ(outcome.Chain, "A1 B2 B6 F6");
        EXPECT_EQ(outcome.ChainNumber, 0);
        EXPECT_EQ(outcome.Selected, "A6");
    }
}

TEST_F(RemotePairs, BoxScanSaysNumbersForOneNumber)
{
    const Outcome teaser = OutcomeOf(RowAndBox, SearchRemotePairs, 4);
    EXPECT_EQ(teaser.Text, "There's a conflict with a Remote Pair.\rIt involves the numbers 8");
    EXPECT_EQ(OutcomeOf(RowAndBox, SearchRemotePairs, 0).Changes, "A3=9");
    EXPECT_EQ(OutcomeOf(RowAndBox, SearchRemotePairs, 1).Alerts, "A3");
    EXPECT_EQ(OutcomeOf(RowAndBox, SearchRemotePairs, 3).Text,
              "There's a conflict with a Remote Pair.");
    const Outcome full = OutcomeOf(RowAndBox, SearchRemotePairs, 5);
    EXPECT_EQ(full.Selected, "A3");
    // The caller makes "an 8" of it.
    EXPECT_EQ(full.Text, "Cell [A3] contains a 8 which conflicts with the following chain of "
                         "remote pairs:\r  [A1]  [B1]");
    EXPECT_EQ(full.Chain, "A1 B1");
}

TEST_F(RemotePairs, CellInRowAndBoxOfTheEndComesWithTheRow)
{
    constexpr std::string_view drawing = R"(
        12   13   .    .    .    .    .    .    .
        12   14   .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
    )";
    EXPECT_EQ(OutcomeOf(drawing, SearchRemotePairs, 5).Selected, "B2");
    EXPECT_EQ(OutcomeOf(drawing, SearchRemotePairs, 0).Changes, "B1=3 B2=4");
}

TEST_F(RemotePairs, LimitOfNothingSearchesNothing)
{
    MaxRPLinks = 0;
    SetPencilmarks(TwoCells);
    Grid[5][5] |= ScratchMark2;
    const GridTable before = Grid;
    Flag found = False;
    SearchRemotePairs(0, found);
    EXPECT_EQ(found, False);
    EXPECT_EQ(Grid, before);
}

TEST_F(RemotePairs, LimitOfOneStopsAtTheStartCell)
{
    MaxRPLinks = 1;
    const Outcome outcome = OutcomeOf(TwoCells, SearchRemotePairs, 0);
    EXPECT_EQ(outcome.Found, False);
    EXPECT_EQ(outcome.Changes, "");
    EXPECT_EQ(CellsWith(ScratchMark0), "A1 A2 A9 B3");
}

TEST_F(RemotePairs, CellOfTheChainIsATargetLikeAnyOther)
{
    constexpr std::string_view drawing = R"(
        12   .    .    .    .    .    .    .    .
        12   .    .    .    .    .    .    .    .
        12   .    .    .    .    .    .    .    .
        12   .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
        .    .    .    .    .    .    .    .    .
    )";
    // A1 and A2 empty the other two without a word.
    EXPECT_EQ(OutcomeOf(drawing, SearchRemotePairs, 0).Changes, "A3=. A4=.");
    EXPECT_EQ(OutcomeOf(drawing, SearchRemotePairs, 1).Alerts, "A1 A2 A3 A4");
}

} // namespace
} // namespace kelvarine::testing
