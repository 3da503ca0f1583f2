// The fast searches for groups, intersections and fish against their plain forms: the same grid,
// words, marks, work lists and result, in all modes, on positions drawn at random.

#include "logic/fish.h"
#include "logic/hidden_groups.h"
#include "logic/intersections.h"
#include "logic/naked_groups.h"
#include "logic/plain/fish.h"
#include "logic/plain/hidden_groups.h"
#include "logic/plain/intersections.h"
#include "logic/plain/naked_groups.h"
#include "support/outside_double.h"
#include "support/positions.h"
#include "support/random_grids.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <tuple>
#include <vector>

namespace kelvarine::testing {
namespace {

using SizedSearch = void (*)(std::int32_t mode, Flag &found, std::int32_t size);

struct Pair {
    std::string Name;
    SizedSearch Fast;
    SizedSearch Plain;
    std::vector<std::int32_t> Sizes; // taken in turn
};

const std::vector<Pair> &Pairs()
{
    static const std::vector<Pair> pairs{
        {"ApplyNakedPairs",
         [](std::int32_t mode, Flag &found, std::int32_t) { ApplyNakedPairs(mode, found); },
         [](std::int32_t mode, Flag &found, std::int32_t) { plain::ApplyNakedPairs(mode, found); },
         {2}},
        {"FindNakedGroup",
         FindNakedGroup,
         plain::FindNakedGroup,
         {1, 2, 3, 4, 1, 2, 3, 4, 5, 0, -3}},
        {"FindHiddenGroup",
         FindHiddenGroup,
         plain::FindHiddenGroup,
         {1, 2, 3, 4, 1, 2, 3, 4, 5, 0, -3}},
        {"FindIntersections",
         [](std::int32_t mode, Flag &found, std::int32_t) { FindIntersections(mode, found); },
         [](std::int32_t mode, Flag &found, std::int32_t) {
             plain::FindIntersections(mode, found);
         },
         {0}},
        {"SearchFishColumns",
         SearchFishColumns,
         plain::SearchFishColumns,
         {2, 3, 4, 2, 3, 4, 1, 5, 0}},
        {"SearchFishRows", SearchFishRows, plain::SearchFishRows, {2, 3, 4, 2, 3, 4, 1, 5, 0}},
    };
    return pairs;
}

// Everything that a call can leave.
struct Outcome {
    GridTable Words;
    Flag Found;
    std::string Text;
    std::string Title;
    std::array<std::int32_t, 82> Columns;
    std::array<std::int32_t, 82> Rows;

    friend bool operator==(const Outcome &, const Outcome &) = default;
};

Outcome Run(SizedSearch search, const GridTable &start, std::int32_t mode, std::int32_t size)
{
    Grid = start;
    HintText = "text before";
    HintTitle = "title before";
    for (int k = 0; k < 82; ++k) {
        ChainColumns[static_cast<std::size_t>(k)] = 100 + k;
        ChainRows[static_cast<std::size_t>(k)] = 200 + k;
    }
    Flag found = False;
    search(mode, found, size);
    return {Grid, found, HintText, HintTitle, ChainColumns, ChainRows};
}

// What a run of comparisons met, so that a test can tell that it compared something.
struct Met {
    std::uint32_t Calls = 0;
    std::uint32_t Changes = 0;
    std::uint32_t Texts = 0;
};

void Compare(const Pair &pair, std::int32_t mode, std::int32_t size, const GridTable &start,
             Met &met)
{
    const Outcome fast = Run(pair.Fast, start, mode, size);
    const Outcome plain = Run(pair.Plain, start, mode, size);
    ++met.Calls;
    met.Changes += plain.Found != False ? 1U : 0U;
    met.Texts += plain.Text != "text before" ? 1U : 0U;
    ASSERT_EQ(plain.Text, fast.Text) << PencilmarksOf(start);
    ASSERT_TRUE(fast == plain) << pair.Name << " mode " << mode << " size " << size << "\n"
                               << PencilmarksOf(start);
}

class GroupsYardstick : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }

    // Compares all searches, each with a mode and a size that go round from position to position.
    void CompareOnPositions(std::uint32_t count, const std::function<void()> &draw)
    {
        for (std::uint32_t k = 0; k < count; ++k) {
            IncludeSingles = k % 4 == 1 ? True : False;
            CoordRowFirst = k % 5 == 2 ? True : False;
            RowFormat = k % 5 == 2 ? 3 : 0;
            draw();
            ScatterBits(Random, SelectedBit, 1 + k % 30);
            const GridTable start = Grid;
            for (const Pair &pair : Pairs()) {
                const auto mode = static_cast<std::int32_t>(Random() % 6);
                Compare(pair, mode, pair.Sizes[k % pair.Sizes.size()], start, Encountered);
                ASSERT_FALSE(HasFatalFailure());
            }
        }
        EXPECT_EQ(Encountered.Calls, count * Pairs().size());
        EXPECT_GT(Encountered.Changes, count / 10);
        EXPECT_GT(Encountered.Texts, count / 10);
    }

    std::mt19937 Random{20};
    Met Encountered;
};

TEST_F(GroupsYardstick, SameOnSoundPositions)
{
    CompareOnPositions(10000, [&] { SetSoundPosition(Random, Pencilmarks::Clean); });
}

TEST_F(GroupsYardstick, SameOnStalePencilmarks)
{
    CompareOnPositions(10000, [&] { SetSoundPosition(Random, Pencilmarks::Stale); });
}

TEST_F(GroupsYardstick, SameOnAbsurdPositions)
{
    CompareOnPositions(20000, [&] { SetAbsurdPosition(Random); });
}

} // namespace
} // namespace kelvarine::testing
