// The chain searches and the hinge wings against their plain forms: same words, texts and lists.
#include "logic/chain_positions.h"
#include "logic/hinge_wings.h"
#include "logic/plain/hinge_wings.h"
#include "logic/plain/remote_pairs.h"
#include "logic/plain/singles_chains.h"
#include "logic/plain/xy_chains.h"
#include "logic/remote_pairs.h"
#include "logic/singles_chains.h"
#include "logic/technique_comparison.h"
#include "logic/xy_chains.h"
#include "support/outside_double.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

class ChainsYardstick : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

TEST_F(ChainsYardstick, RemotePairs)
{
    Random random(14);
    Findings findings{};
    constexpr std::array makers{chains::MakeMidGame, chains::MakePairRich, chains::MakeAbsurd};
    for (int k = 0; k < 12000 && !HasFailure(); ++k) {
        const int kind = Below(random, 3);
        makers[static_cast<std::size_t>(kind)](random);
        chains::AddMarks(random);
        MaxRPLinks = kind == 0 && Chance(random, 70) ? 81 : Below(random, kind == 2 ? 5 : 7);
        ComparePosition(random, plain::SearchRemotePairs, SearchRemotePairs, findings);
    }
    ExpectFindings(findings, 500);
}

TEST_F(ChainsYardstick, XYChains)
{
    Random random(15);
    Findings findings{};
    constexpr std::array makers{chains::MakeMidGame, chains::MakePairRich, chains::MakeAbsurd};
    for (int k = 0; k < 20000 && !HasFailure(); ++k) {
        const int kind = Below(random, 3);
        makers[static_cast<std::size_t>(kind)](random);
        chains::AddMarks(random);
        const int least = Below(random, 5);
        const int most = kind == 0 && Chance(random, 30) ? 10 : Below(random, 5);
        ComparePosition(
            random,
            [=](std::int32_t mode, Flag &found) {
                plain::SearchXYChains(mode, least, most, found);
            },
            [=](std::int32_t mode, Flag &found) { SearchXYChains(mode, least, most, found); },
            findings);
    }
    ExpectFindings(findings, 500);
}

TEST_F(ChainsYardstick, HingeWings)
{
    Random random(16);
    Findings findings{};
    constexpr std::array makers{chains::MakeMidGame, chains::MakePairRich, chains::MakeAbsurd};
    for (int k = 0; k < 20000 && !HasFailure(); ++k) {
        makers[static_cast<std::size_t>(Below(random, 3))](random);
        chains::AddMarks(random);
        const int size = Chance(random, 60) ? 3 : 3 + Below(random, 7);
        ComparePosition(
            random,
            [=](std::int32_t mode, Flag &found) { plain::SearchHingeWings(mode, found, size); },
            [=](std::int32_t mode, Flag &found) { SearchHingeWings(mode, found, size); }, findings);
    }
    ExpectFindings(findings, 500);
}

TEST_F(ChainsYardstick, SinglesChains)
{
    Random random(18);
    Findings findings{};
    constexpr std::array makers{chains::MakeMidGame, chains::MakePairRich, chains::MakeAbsurd,
                                chains::MakeOneNumber};
    constexpr std::array limits{0, 1, 2, 3, 4, 5, 6, 81, 81, 81};
    for (int k = 0; k < 20000 && !HasFailure(); ++k) {
        makers[static_cast<std::size_t>(Below(random, 4))](random);
        chains::AddMarks(random);
        MaxSinglesLinks = limits[random() % limits.size()];
        ComparePosition(random, plain::SearchSinglesChains, SearchSinglesChains, findings);
    }
    ExpectFindings(findings, 500);
}

} // namespace
} // namespace kelvarine::testing
