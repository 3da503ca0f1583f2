#include "grid/grid.h"
#include "logic/chain_positions.h"
#include "logic/chain_ways.h"
#include "logic/technique.h"
#include "logic/technique_masks.h"
#include "logic/technique_table.h"
#include "support/outside_double.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>

namespace kelvarine::testing {
namespace {

using chains::Below;
using chains::Chance;
using chains::Random;

// A cell and the number by which a chain leaves it.
using Place = std::pair<int, int>;

// The fewest cells behind the start with which a chain comes to each place, by trying all chains.
class AllChains {
public:
    AllChains(const ChainLinks &links, CellSet free, int most)
        : links_(links), free_(free), most_(most)
    {
    }

    std::map<Place, int> From(int cell, int number, int cells = 0)
    {
        const auto known = fewest_.find({cell, number});
        if (known == fewest_.end() || known->second > cells) {
            fewest_[{cell, number}] = cells;
        }
        for (int next = 0; next < 81 && cells < most_; ++next) {
            const auto n = static_cast<std::size_t>(number);
            if (free_.Has(next) && links_.With[n].Has(next) &&
                ArePeers(Cells[static_cast<std::size_t>(cell)],
                         Cells[static_cast<std::size_t>(next)])) {
                free_.Remove(next);
                From(next, links_.Other(next, number), cells + 1);
                free_.Add(next);
            }
        }
        return fewest_;
    }

private:
    const ChainLinks &links_;
    CellSet free_;
    int most_;
    std::map<Place, int> fewest_;
};

// Some cells, close together, with two of the numbers 1 up to a highest one.
ChainLinks RandomLinks(Random &random)
{
    ChainLinks links{};
    const int highest = 2 + Below(random, 4);
    const int size = 3 + Below(random, 4);
    for (int count = 4 + Below(random, 8); count > 0; --count) {
        const int cell = CellIndex(1 + Below(random, size), 1 + Below(random, size));
        const int one = 1 + Below(random, highest);
        const int other = 1 + (one + Below(random, highest - 1)) % highest;
        if (links.All.Has(cell)) {
            continue;
        }
        links.All.Add(cell);
        links.With[static_cast<std::size_t>(one)].Add(cell);
        links.With[static_cast<std::size_t>(other)].Add(cell);
        links.NumberSum[static_cast<std::size_t>(cell)] = static_cast<std::uint8_t>(one + other);
    }
    return links;
}

// Whether the cells of a way, the last first, are a chain from a start to a place.
bool IsChain(const ChainLinks &links, Place place, CellSet free, const CellRun &way, Place end)
{
    for (int k = way.Count - 1; k >= 0; --k) {
        const int cell = way.Items[static_cast<std::size_t>(k)];
        if (!free.Has(cell) || !links.With[static_cast<std::size_t>(place.second)].Has(cell) ||
            !ArePeers(Cells[static_cast<std::size_t>(cell)],
                      Cells[static_cast<std::size_t>(place.first)])) {
            return false;
        }
        free.Remove(cell);
        place = {cell, links.Other(cell, place.second)};
    }
    return place == end;
}

// Holds what FindWays finds from a place against all chains.
void CompareWays(const ChainLinks &links, Place start, CellSet free, int most)
{
    Ways ways;
    FindWays(ways, links, start.first, start.second, free, most);
    std::map<Place, int> found;
    for (int number = 1; number <= 9; ++number) {
        for (CellSet out = ways.Out[static_cast<std::size_t>(number)]; out.Any(); out.DropFirst()) {
            const Place end{out.First(), number};
            const int cells = ways.CellsTo(end.first, number);
            if (cells > most) {
                continue; // a way is known, but it is too long
            }
            found[end] = cells;
            const CellRun way = TraceWay(ways, links, start.first, end.first, number);
            ASSERT_EQ(way.Count, cells);
            ASSERT_TRUE(IsChain(links, start, free, way, end));
        }
    }
    ASSERT_EQ(found, AllChains(links, free, most).From(start.first, start.second));
}

TEST(ChainWays, AreTheShortestOfAllChains)
{
    Random random(1);
    for (int round = 0; round < 3000 && !::testing::Test::HasFatalFailure(); ++round) {
        const ChainLinks links = RandomLinks(random);
        const int most = Chance(random, 70) ? 80 : Below(random, 7);
        for (CellSet starts = links.All; starts.Any(); starts.DropFirst()) {
            const int start = starts.First();
            for (int number = 1; number <= 9; ++number) {
                if (links.With[static_cast<std::size_t>(number)].Has(start)) {
                    CompareWays(links, {start, number}, links.All.Without(CellSet::Of(start)),
                                most);
                }
            }
        }
    }
}

// The most searches for ways that a call of some work takes on positions with many chains.
std::int64_t MostSearches(void (*make)(Random &random), const std::function<void()> &work)
{
    Random random(2);
    std::int64_t most = 0;
    for (int round = 0; round < 60; ++round) {
        make(random);
        WordAt(Cells[random() % 81]) |= SelectedBit;
        HintText.clear();
        const std::int64_t before = SearchesForWays;
        work();
        most = std::max(most, SearchesForWays - before);
    }
    return most;
}

// With all the chains of these positions walked along one by one, no call would ever end.
TEST(ChainWays, FewSearchesSettleAnyTechniqueInAnyMode)
{
    Restart();
    for (const std::int32_t number : {RemotePairs, XYChain}) {
        const TechniqueRow &row = *FindTechnique(number);
        std::int64_t most = 0;
        for (std::int32_t mode = ModeChange; mode <= ModeFull; ++mode) {
            const Operation operation = (mode == ModeChange ? row.Driver : row.AlertScan)[0];
            for (const auto make : {chains::MakeContradictoryPairs, chains::MakeTwoSolutions}) {
                most = std::max(most, MostSearches(make, [=] {
                                    Flag found = False;
                                    operation(mode, found);
                                }));
            }
        }
        EXPECT_GT(most, 80) << row.ReportName;
        EXPECT_LT(most, 2000) << row.ReportName;
    }
}

} // namespace
} // namespace kelvarine::testing
