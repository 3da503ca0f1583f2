// The fast singles against the plain ones: the same grid to the last bit, the same finding and the
// same words, on positions of every kind.

#include "grid/grid.h"
#include "logic/plain/singles.h"
#include "logic/singles.h"
#include "support/outside_double.h"
#include "support/positions.h"
#include "support/random_positions.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string>

namespace kelvarine::testing {
namespace {

using Operation = void (*)(std::int32_t, Flag &);

struct Outcome {
    GridTable Words{};
    Flag Found = False;
    std::string Text;
    std::string Title;

    friend bool operator==(const Outcome &, const Outcome &) = default;
};

Outcome OutcomeOf(Operation operation, std::int32_t mode, const GridTable &start)
{
    Grid = start;
    HintText.clear();
    HintTitle.clear();
    Outcome outcome;
    operation(mode, outcome.Found);
    outcome.Words = Grid;
    outcome.Text = HintText;
    outcome.Title = HintTitle;
    return outcome;
}

struct Pair {
    const char *Name;
    Operation Fast;
    Operation Plain;
    std::int32_t LastMode;
};

constexpr auto Pairs = std::to_array<Pair>({
    {"last candidate", FindUnplacedLastCandidate, plain::FindUnplacedLastCandidate, 5},
    {"naked single", FindUnplacedNakedSingle, plain::FindUnplacedNakedSingle, 5},
    {"hidden single", FindUnplacedHiddenSingle, plain::FindUnplacedHiddenSingle, 5},
    {"apply naked", ApplyNakedSingles, plain::ApplyNakedSingles, 0},
    {"apply hidden", ApplyHiddenSingles, plain::ApplyHiddenSingles, 0},
});

class SinglesYardstick : public ::testing::TestWithParam<Pair> {
protected:
    void SetUp() override
    {
        Restart();
    }
};

TEST_P(SinglesYardstick, FastFormDoesWhatThePlainOneDoes)
{
    const Pair &pair = GetParam();
    std::mt19937 random(20240611);
    int conclusions = 0;
    for (int round = 0; round < 5000; ++round) {
        for (const PositionKind kind : PositionKinds) {
            const auto open = static_cast<int>(random() % (round % 3 == 0 ? 82 : 20));
            SetRandomPosition(random, kind, open);
            const GridTable start = Grid;
            for (std::int32_t mode = 0; mode <= pair.LastMode; ++mode) {
                const Outcome plain = OutcomeOf(pair.Plain, mode, start);
                const Outcome fast = OutcomeOf(pair.Fast, mode, start);
                ASSERT_EQ(fast, plain)
                    << "mode " << mode << "\n"
                    << PencilmarksOf(start) << "plain: " << plain.Text << "\n"
                    << PencilmarksOf(plain.Words) << "fast: " << fast.Text << "\n"
                    << PencilmarksOf(fast.Words);
                conclusions += plain.Words == start ? 0 : 1;
            }
        }
    }
    // The positions are worth the comparison only when the operation finds something in many.
    EXPECT_GT(conclusions, 2000);
}

INSTANTIATE_TEST_SUITE_P(Singles, SinglesYardstick, ::testing::ValuesIn(Pairs),
                         [](const auto &tested) {
                             std::string name = tested.param.Name;
                             for (char &mark : name) {
                                 mark = mark == ' ' ? '_' : mark;
                             }
                             return name;
                         });

class SolvedYardstick : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

TEST_F(SolvedYardstick, SolvedIsWhatThePlainTestCallsSolved)
{
    std::mt19937 random(7);
    int solved = 0;
    for (int round = 0; round < 20000; ++round) {
        SetRandomPosition(random, PositionKinds[random() % 4], static_cast<int>(random() % 3));
        if (random() % 4 == 0) {
            // Exchange two cells: the numbers stay, the houses may not.
            std::swap(Grid[1 + random() % 9][1 + random() % 9],
                      Grid[1 + random() % 9][1 + random() % 9]);
        }
        const Flag expected = plain::IsGridSolved();
        ASSERT_EQ(IsGridSolved(), expected) << PencilmarksOf(Grid);
        solved += expected != False ? 1 : 0;
    }
    EXPECT_GT(solved, 1000);
    EXPECT_LT(solved, 19000);
}

} // namespace
} // namespace kelvarine::testing
