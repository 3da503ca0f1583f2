// Runs without a walk against the walk: whatever can be seen afterwards is the same.
#include "grid/grid.h"
#include "grid/history.h"
#include "logic/driver.h"
#include "logic/driver_outcome.h"
#include "logic/filling_runs.h"
#include "logic/rating.h"
#include "logic/technique_masks.h"
#include "support/driver_games.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"
#include "support/quick_fields.h"
#include "support/random_fields.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace kelvarine::testing {
namespace {

constexpr int MostYields = 2'000; // of a walk that does not end

class FillingRuns : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }

    // Compares the three modes on the position in Grid; counts the walks that came to their end.
    void Compare(const std::string &what)
    {
        const GridTable start = Grid;
        for (const std::int32_t mode : {SolveForPlayer, CountSolutions, ListSolutions25}) {
            SolveMask = mode == ListSolutions25 ? ListingMask : CountingMask;
            RunOutcome walked = OutcomeOf(ApplyLogic, mode, start, MostYields);
            if (walked.Result == Stopped) {
                continue;
            }
            ++Ended;
            const RunOutcome filled = OutcomeOf(RunByFillings, mode, start, MostYields);
            walked.Used = filled.Used; // nothing, for no technique is used
            walked.Yields = filled.Yields;
            ASSERT_EQ(filled, walked) << what << ", " << mode;
        }
        Grid = start;
    }

    std::int64_t Ended = 0;
};

TEST_F(FillingRuns, LeaveWhatTheWalkLeaves)
{
    std::mt19937 random(5);
    const std::int64_t fields = FieldsToCompare(1'500);
    for (std::int64_t round = 0; round < fields; ++round) {
        const auto family = FieldFamilies[static_cast<std::size_t>(round) % GameFamilies];
        SetField(DrawField(random, family));
        // Everything else that a cell may carry, and fewer digits known than givens.
        for (const Cell cell : Cells) {
            WordAt(cell) |= static_cast<CellWord>(random()) & ~(GivenBit | CandidateMask);
        }
        Compare(std::string(NameOf(family)) + ", round " + std::to_string(round));
        if (HasFatalFailure()) {
            return;
        }
    }
    EXPECT_GT(Ended, 2 * fields);
}

// The count alone, on fields that are drawn quickly enough for millions.
TEST_F(FillingRuns, CountAsTheWalkOnFieldsOfEveryDensity)
{
    constexpr std::int64_t mostPasses = 200;
    QuickFields fields(29);
    const std::int64_t count = FieldsToCompare(100'000);
    for (std::int64_t round = 0; round < count; ++round) {
        SetField(fields.Next());
        const GridTable start = Grid;
        SolveMask = CountingMask;
        Seen.Yields = 0;
        ApplyLogicWithin(mostPasses, CountSolutions);
        if (Seen.Yields > mostPasses) {
            continue; // it has not come to its end
        }
        ++Ended;
        const std::int32_t walked = SolutionCount;
        const GridTable left = Grid;
        Grid = start;
        RunByFillings(CountSolutions);
        ASSERT_EQ(SolutionCount, walked) << "round " << round;
        ASSERT_EQ(Grid, left) << "round " << round;
    }
    EXPECT_GT(Ended, count / 2);
    RecordProperty("compared", std::to_string(Ended));
}

TEST_F(FillingRuns, AreTheWalkWhereItCountsWhatIsNoFilling)
{
    // A number that stands nowhere in a house is put back by the walk, allowed or not.
    SetGame(EasySolution);
    Grid[1][1] = BitOf(1) | BitOf(2);
    SolveMask = MaskOf({HiddenSingle}) | TrialBit;
    RunByFillings(CountSolutions);
    EXPECT_EQ(SolutionCount, 1);
    EXPECT_NE(UsedMask, 0U) << "it was walked";
}

TEST_F(FillingRuns, AreTheWalkWithoutTechniquesOrWithoutTrials)
{
    SetGame(HardGame);
    SolveMask = TrialBit;
    RunByFillings(CountSolutions);
    EXPECT_EQ(SolutionCount, 0) << "no technique leads to the pass that sees the solution";
    SolveMask = SinglesMask;
    RunByFillings(CountSolutions);
    EXPECT_EQ(SolutionCount, 0) << "no trial comes to it";
    SolveMask = SinglesMask | TrialBit;
    RunByFillings(CountSolutions);
    EXPECT_EQ(SolutionCount, 1);
}

TEST_F(FillingRuns, SolvedGridIsNoChange)
{
    SetGame(EasySolution);
    Compare("solved");
    EXPECT_EQ(RunByFillings(SolveForPlayer), Solved);
    EXPECT_EQ(HistoryCount, 0);
}

TEST_F(FillingRuns, CanBeStoppedBeforeAndWhileListing)
{
    SolveMask = ListingMask;
    for (const int yields : {1, 2, 7}) {
        SetGame(Dots(81));
        SolutionList.clear();
        Seen = {};
        Seen.OnYield = [=] {
            if (Seen.Yields == yields) {
                SearchActive = False;
            }
        };
        EXPECT_EQ(RunByFillings(ListSolutions25), Stopped);
        EXPECT_EQ(SolutionList.size(), static_cast<std::size_t>(yields - 1) * 81);
        EXPECT_EQ(SolutionCount, yields - 1);
    }
}

TEST_F(FillingRuns, RatingNeedsOneYieldOnATextOfDeepContradictions)
{
    SetGivens(".....5.8....6.1.43..........1.5........1.6...3.......553.....61........4.........");
    RateGame();
    EXPECT_EQ(GameRating, RatedImpossible);
    EXPECT_EQ(SolutionCount, 0);
    EXPECT_EQ(Seen.Yields, 1);
}

TEST_F(FillingRuns, LogicOfACountWithoutEndIsBrokenOff)
{
    // It has many solutions, but the walk is lost among trials that lead to none.
    SetGivens("......8...........5.3.....49...........3...........7..........5....8......97.....");
    RateGame();
    ASSERT_EQ(GameRating, RatedMultiple);
    const GridTable before = Grid;
    Seen = {};
    FindLogicOfCount();
    EXPECT_EQ(UsedMask, CountingMask);
    EXPECT_EQ(SolutionCount, 2);
    EXPECT_EQ(Grid, before);
    EXPECT_LE(Seen.Yields, 20'001);
}

} // namespace
} // namespace kelvarine::testing
