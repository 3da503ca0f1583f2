// The driver against its plain form, run by run: grid, result, counts, lists, undo states, messages
// and yields must be the same on positions of every kind.

#include "game/solutions.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "logic/driver.h"
#include "logic/driver_outcome.h"
#include "logic/plain/driver.h"
#include "logic/technique_masks.h"
#include "support/outside_double.h"
#include "support/positions.h"
#include "support/random_positions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace kelvarine::testing {
namespace {

class DriverYardstick : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }

    // Puts the cheap techniques into the levels in any order, some into two and some into none.
    static void DrawLevels(std::mt19937 &random)
    {
        LevelTable.fill(0);
        for (std::size_t level = 1; level <= 4; ++level) {
            LevelTable[level] = static_cast<std::uint32_t>(random() & random()) & 0x20E;
        }
        LevelTable[1 + random() % 5] |= 0x2;
        LevelTable[6] = 0x20E;
    }

    static bool AnyTechniqueInUse()
    {
        return std::any_of(LevelTable.begin() + 1, LevelTable.begin() + 6,
                           [](std::uint32_t level) { return (level & SolveMask) != 0; });
    }

    void Compare(std::int32_t mode, const GridTable &start, int mostYields)
    {
        // Without techniques the driver knows the end of the walk, which goes on and yields for
        // long.
        const bool isWalked = AnyTechniqueInUse();
        const int most = isWalked ? mostYields : std::numeric_limits<int>::max();
        RunOutcome plain = OutcomeOf(plain::ApplyLogic, mode, start, most);
        const RunOutcome fast = OutcomeOf(ApplyLogic, mode, start, most);
        plain.Yields = isWalked ? plain.Yields : fast.Yields;
        ASSERT_EQ(fast, plain) << "mode " << mode << ", mask " << std::hex << SolveMask << "\n"
                               << PencilmarksOf(start) << "plain " << plain.Result << ", "
                               << plain.Yields << " yields\n"
                               << PencilmarksOf(plain.Words) << "fast " << fast.Result << ", "
                               << fast.Yields << " yields\n"
                               << PencilmarksOf(fast.Words);
        Results[plain.Result + 2] += 1;
        Trials += (plain.Used & TrialBit) != 0 ? 1 : 0;
        Stops += plain.Yields == mostYields ? 1 : 0;
        Longest = std::max(Longest, plain.Yields);
    }

    std::array<int, 3> Results{}; // stopped, solved at -1, not solved
    int Trials = 0;
    int Stops = 0;
    int Longest = 0;
};

TEST_F(DriverYardstick, TechniquesAloneOnEveryKindOfPosition)
{
    std::mt19937 random(31);
    for (int round = 0; round < 2500; ++round) {
        for (const PositionKind kind : PositionKinds) {
            SetRandomPosition(random, kind, static_cast<int>(random() % 82));
            const GridTable start = Grid;
            SolveMask = static_cast<std::uint32_t>(random() | random()) & ~TrialBit;
            DrawLevels(random);
            for (std::int32_t mode = 0; mode <= 4; ++mode) {
                Compare(mode, start, 400);
            }
        }
    }
    EXPECT_GT(Results[1], 500);
    EXPECT_GT(Results[2], 5000);
    EXPECT_EQ(Stops, 0) << "a run without trials ends by itself";
}

TEST_F(DriverYardstick, TrialsOnNearlyFullGridsOfEveryKind)
{
    constexpr std::array masks{CountingMask,    ListingMask,     RatingMask,
                               TrialBit | 0x2U, TrialBit | 0x4U, TrialBit};
    std::mt19937 random(32);
    for (int round = 0; round < 2500; ++round) {
        for (const PositionKind kind : PositionKinds) {
            SolveMask = masks[random() % 6];
            DrawLevels(random);
            // Where no technique follows a trial up, the walk multiplies with every open cell.
            const unsigned most = (SolveMask & 0x2) != 0 ? 14 : 5;
            SetRandomPosition(random, kind, static_cast<int>(random() % most));
            const GridTable start = Grid;
            for (std::int32_t mode = 0; mode <= 4; ++mode) {
                Compare(mode, start, 60);
            }
        }
    }
    EXPECT_GT(Trials, 3000);
    EXPECT_GT(Results[1], 5000);
}

TEST_F(DriverYardstick, TrialsOnOpenPositions)
{
    constexpr std::array masks{CountingMask, ListingMask, TrialBit | 0x2U};
    std::mt19937 random(35);
    for (int round = 0; round < 1500; ++round) {
        SolveMask = masks[random() % 3];
        DrawLevels(random);
        const PositionKind kind = round % 2 == 0 ? PositionKind::Sound : PositionKind::Stale;
        SetRandomPosition(random, kind, 20 + static_cast<int>(random() % 50));
        const GridTable start = Grid;
        for (std::int32_t mode = 0; mode <= 4; ++mode) {
            Compare(mode, start, 150);
        }
    }
    EXPECT_GT(Trials, 3000);
    EXPECT_GT(Stops, 100);
}

TEST_F(DriverYardstick, WholeGames)
{
    std::mt19937 random(33);
    for (int round = 0; round < 400; ++round) {
        LevelTable = {0, 0x6, 0x208, 0, 0, 0, 0, 0, 0, 0};
        SetGame(DrawGame(random, 24 + static_cast<int>(random() % 30)));
        const GridTable start = Grid;
        SolveMask = random() % 2 == 0 ? CountingMask : ListingMask;
        for (std::int32_t mode = 0; mode <= 4; ++mode) {
            Compare(mode, start, 300);
        }
    }
    EXPECT_GT(Results[1], 200);
    EXPECT_GT(Trials, 100);
}

} // namespace
} // namespace kelvarine::testing
