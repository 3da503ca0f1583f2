// The counter and the ordered fillings against plain backtracking.
#include "grid/grid.h"
#include "logic/counter.h"
#include "logic/ordered_fillings.h"
#include "support/positions.h"
#include "support/quick_fields.h"
#include "support/random_fields.h"
#include "support/solution_counter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <string>

namespace kelvarine::testing {
namespace {

constexpr std::int64_t PlainSteps = 100'000;

Field FieldOfText(std::string_view text)
{
    return InScanOrder(FieldOf(text));
}

TEST(Counter, CountsFromNothingToTheLimit)
{
    const std::string empty(81, '.');
    EXPECT_EQ(CountFillings(FieldOfText(empty), 1), 1);
    EXPECT_EQ(CountFillings(FieldOfText(empty), 2), 2);
    EXPECT_EQ(CountFillings(FieldOfText(empty), 500), 500);
    EXPECT_EQ(CountFillings(FieldOfText("11" + std::string(79, '.')), 2), 0);
}

TEST(Counter, CellWithoutCandidatesAndNumberWithoutPlaceLeaveNothing)
{
    Field field = FieldOfText(std::string(81, '.'));
    field[40] = 0;
    EXPECT_EQ(CountFillings(field, 2), 0);
    field.fill(CandidateMask);
    for (std::size_t row = 0; row < 9; ++row) {
        field[row] &= ~BitOf(7);
    }
    EXPECT_EQ(CountFillings(field, 2), 0);
}

TEST(Counter, BitsBesideTheCandidatesDoNotCount)
{
    std::mt19937 random(3);
    for (int round = 0; round < 100; ++round) {
        Field field = InScanOrder(DrawField(random, FieldFamily::Dense));
        const std::int32_t count = CountFillings(field, 9);
        for (CellWord &word : field) {
            word |= static_cast<CellWord>(random()) & ~CandidateMask;
        }
        EXPECT_EQ(CountFillings(field, 9), count);
    }
}

// A search that decides badly once and never comes back looks at millions of boards here.
TEST(Counter, EndsWhereContradictionsLieDeep)
{
    constexpr std::array bitter{
        ".....5.8....6.1.43..........1.5........1.6...3.......553.....61........4.........",
        "...7.............6.8...6......8.3......2...6.6.............8...3..17...2....6....",
        ".......45......631.....4.........3.9...79...4....257........4......6.27..........",
    };
    for (const char *text : bitter) {
        EXPECT_EQ(CountFillings(FieldOfText(text), 2), 0) << text;
    }
}

TEST(Counter, AgreesWithPlainBacktracking)
{
    std::mt19937 random(7);
    std::map<FieldFamily, std::array<std::int64_t, 3>> counts; // of no, one and more fillings
    const std::int64_t fields = FieldsToCompare(100'000);
    for (std::int64_t round = 0; round < fields; ++round) {
        const FieldFamily family = FieldFamilies[static_cast<std::size_t>(round % 8)];
        const CandidateField field = DrawField(random, family);
        const std::size_t limit = round % 16 < 8 ? 2 : 2 + random() % 30;
        const auto plain = SolutionsWithin(PlainSteps, field, limit);
        if (plain.has_value()) {
            ++counts[family][std::min<std::size_t>(plain->size(), 2)];
            ASSERT_EQ(CountFillings(InScanOrder(field), static_cast<std::int32_t>(limit)),
                      static_cast<std::int32_t>(plain->size()))
                << "round " << round << " " << NameOf(family);
        }
    }
    for (const FieldFamily family : FieldFamilies) {
        const auto &[none, one, more] = counts[family];
        EXPECT_GT(none + one + more, fields / 9) << "plain backtracking ends, " << NameOf(family);
    }
}

// How the comparison of many fields went: the fields with no, one and more fillings, and those on
// which plain backtracking did not end.
struct Compared {
    std::array<std::int64_t, 3> Of{};
    std::int64_t Open = 0;
};

TEST(Counter, AgreesWithPlainBacktrackingOnFieldsOfEveryDensity)
{
    constexpr std::int64_t plainSteps = 1'000;
    QuickFields fields(17);
    Compared compared;
    const std::int64_t count = FieldsToCompare(100'000);
    for (std::int64_t round = 0; round < count; ++round) {
        const CandidateField &field = fields.Next();
        const std::size_t limit = round % 64 == 0 ? 20 : 2;
        const auto plain = CountWithin(plainSteps, field, limit);
        if (!plain.has_value()) {
            ++compared.Open;
            continue;
        }
        ++compared.Of[std::min<std::size_t>(*plain, 2)];
        ASSERT_EQ(CountFillings(InScanOrder(field), static_cast<std::int32_t>(limit)),
                  static_cast<std::int32_t>(*plain))
            << "round " << round;
    }
    EXPECT_LT(compared.Open, count / 20);
    for (const std::int64_t some : compared.Of) {
        EXPECT_GT(some, count / 10) << "no, one and more fillings";
    }
    RecordProperty("compared", std::to_string(count - compared.Open));
}

// The fillings of a field as texts in scan order, in the order in which they come.
std::vector<Field> FillingsInOrder(const Field &field, std::size_t most)
{
    std::vector<Field> found;
    OrderedFillings fillings(field);
    while (found.size() < most && fillings.Next()) {
        found.push_back(fillings.Filling());
    }
    return found;
}

TEST(OrderedFillings, AreAllOfThemInTheOrderOfTheScan)
{
    std::mt19937 random(11);
    std::int64_t several = 0;
    const std::int64_t fields = FieldsToCompare(4'000);
    for (std::int64_t round = 0; round < fields; ++round) {
        const FieldFamily family = FieldFamilies[static_cast<std::size_t>(round % 8)];
        const CandidateField field = DrawField(random, family);
        constexpr std::size_t most = 60;
        const auto plain = SolutionsWithin(PlainSteps, field, most + 1);
        if (!plain.has_value() || plain->size() > most) {
            continue;
        }
        std::vector<Field> expected;
        for (const Solution &solution : *plain) {
            CandidateField filled{};
            std::ranges::transform(solution, filled.begin(), [](std::uint8_t number) {
                return static_cast<std::uint16_t>(1U << number);
            });
            expected.push_back(InScanOrder(filled));
        }
        std::ranges::sort(expected);
        several += expected.size() > 1 ? 1 : 0;
        ASSERT_EQ(FillingsInOrder(InScanOrder(field), most + 1), expected) << "round " << round;
    }
    EXPECT_GT(several, fields / 20);
}

TEST(OrderedFillings, StartAtOnceWhereThereAreBillions)
{
    Field field{};
    field.fill(CandidateMask);
    const std::vector<Field> found = FillingsInOrder(field, 26);
    ASSERT_EQ(found.size(), 26U);
    EXPECT_TRUE(std::ranges::is_sorted(found));
    for (std::size_t row = 0; row < 9; ++row) {
        EXPECT_EQ(found.front()[row], BitOf(static_cast<std::int32_t>(row) + 1));
    }
}

} // namespace
} // namespace kelvarine::testing
