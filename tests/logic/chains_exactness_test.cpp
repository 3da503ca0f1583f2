// The chain searches against their plain walks on positions with many chains, wherever the plain
// walk ends: same words, texts and lists. A longer run by hand, each round with a seed of its own:
// engine_tests --gtest_filter=ChainsExactness.* --gtest_shuffle --gtest_repeat=100
#include "logic/chain_positions.h"
#include "logic/plain/forms.h"
#include "logic/plain/remote_pairs.h"
#include "logic/plain/singles_chains.h"
#include "logic/plain/xy_chains.h"
#include "logic/remote_pairs.h"
#include "logic/singles_chains.h"
#include "logic/technique.h"
#include "logic/technique_comparison.h"
#include "logic/technique_masks.h"
#include "logic/technique_table.h"
#include "logic/xy_chains.h"
#include "support/outside_double.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

constexpr std::int64_t MostSteps = 8000;

class ChainsExactness : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

int RandomLimit(Random &random)
{
    constexpr std::array limits{2, 3, 4, 5, 6, 7, 8, 10, 14, 81, 81, 81, 81, 81};
    return limits[random() % limits.size()];
}

// Compares two searches on many positions and under limits drawn at random.
void Compare(std::uint32_t seed, int rounds, const Search &plain, const Search &search)
{
    // Not 0 when the tests are shuffled.
    const auto run = static_cast<std::uint32_t>(::testing::UnitTest::GetInstance()->random_seed());
    Random random(seed + 100 * run);
    Findings findings{};
    int compared = 0;
    constexpr std::array makers{chains::MakeContradictoryPairs, chains::MakeContradictoryPairs,
                                chains::MakeTwoSolutions, chains::MakePairRich,
                                chains::MakeMidGame};
    for (int k = 0; k < rounds && !::testing::Test::HasFailure(); ++k) {
        makers[static_cast<std::size_t>(Below(random, makers.size()))](random);
        chains::AddMarks(random);
        MaxRPLinks = RandomLimit(random);
        MaxXYLinks = RandomLimit(random);
        MaxSinglesLinks = RandomLimit(random);
        compared += ComparePosition(random, plain, search, findings, MostSteps);
    }
    ::testing::Test::RecordProperty("compared", compared);
    EXPECT_GT(compared, rounds * 3) << "the plain walk ends on enough of them";
    ExpectFindings(findings, rounds / 20);
}

TEST_F(ChainsExactness, RemotePairs)
{
    Compare(1, 5000, plain::SearchRemotePairs, SearchRemotePairs);
}

TEST_F(ChainsExactness, XYChainsInOneSearch)
{
    Compare(
        2, 5000,
        [](std::int32_t mode, Flag &found) { plain::SearchXYChains(mode, 0, MaxXYLinks, found); },
        [](std::int32_t mode, Flag &found) { SearchXYChains(mode, 0, MaxXYLinks, found); });
}

TEST_F(ChainsExactness, XYChainsShortestFirst)
{
    // The scan changes nothing; in mode 0 the driver's operation stands for it.
    const auto run = [](const auto &technique) {
        return [&technique](std::int32_t mode, Flag &found) {
            HintText.clear();
            (mode == ModeChange ? technique.Driver : technique.AlertScan)[0](mode, found);
        };
    };
    Compare(3, 5000, run(*plain::FindForm(XYChain)), run(*FindTechnique(XYChain)));
}

TEST_F(ChainsExactness, SinglesChains)
{
    Compare(4, 5000, plain::SearchSinglesChains, SearchSinglesChains);
}

} // namespace
} // namespace kelvarine::testing
