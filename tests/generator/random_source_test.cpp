#include "generator/random_source.h"

#include <gtest/gtest.h>

#include <array>

namespace kelvarine::testing {
namespace {

// The published stream for the seed 5489, and its ten-thousandth number as the language's standard
// states it.
TEST(RandomSource, GivesThePublishedStream)
{
    constexpr std::array<std::uint32_t, 5> published{3499211612U, 581869302U, 3890346734U,
                                                     3586334585U, 545404204U};
    init_genrand(5489);
    for (const std::uint32_t number : published) {
        EXPECT_EQ(genrand_int31(), static_cast<std::int32_t>(number >> 1));
    }
    init_genrand(5489);
    for (int k = 1; k < 10000; ++k) {
        genrand_int31();
    }
    EXPECT_EQ(genrand_int31(), static_cast<std::int32_t>(4123659995U >> 1));
}

TEST(RandomSource, RealsAreTheSameStreamOverTwoToThe32)
{
    init_genrand(5489);
    EXPECT_EQ(genrand_real2(), 3499211612.0 / 4294967296.0);
    EXPECT_EQ(genrand_real2(), 581869302.0 / 4294967296.0);
}

TEST(RandomSource, DrawsStayInTheirRangesAndReachBothEnds)
{
    init_genrand(7);
    std::array<int, 20> seen{};
    for (int k = 0; k < 2000; ++k) {
        const int index = DrawIndex();
        const int bit = DrawDigitBit();
        ASSERT_GE(index, 1);
        ASSERT_LE(index, 9);
        ASSERT_GE(bit, 11);
        ASSERT_LE(bit, 19);
        ++seen[static_cast<std::size_t>(index)];
        ++seen[static_cast<std::size_t>(bit)];
    }
    EXPECT_GT(seen[1], 0);
    EXPECT_GT(seen[9], 0);
    EXPECT_GT(seen[11], 0);
    EXPECT_GT(seen[19], 0);
}

TEST(RandomSource, DrawIsTheWholePartOfNineTimesTheReal)
{
    init_genrand(5489);
    EXPECT_EQ(DrawIndex(), static_cast<int>(3499211612.0 / 4294967296.0 * 9.0) + 1);
    EXPECT_EQ(DrawDigitBit(), static_cast<int>(581869302.0 / 4294967296.0 * 9.0) + 11);
}

TEST(RandomSource, StartSeedCountsYearsFrom2000)
{
    // 2026-11-21: (11 * 30 + 21) * 26 = 9126 hundred thousands.
    EXPECT_EQ(StartSeed(2026, 11, 21, 100.0), 912600100U);
    // 1990 is as far away as 2010.
    EXPECT_EQ(StartSeed(1990, 1, 1, 0), StartSeed(2010, 1, 1, 0));
}

TEST(RandomSource, YearTwoThousandCountsAsOne)
{
    EXPECT_EQ(StartSeed(2000, 1, 1, 5.0), 3100005U);
}

TEST(RandomSource, StartSeedRoundsTiesToTheEvenNumber)
{
    EXPECT_EQ(StartSeed(2000, 1, 1, 0.5), 3100000U);
    EXPECT_EQ(StartSeed(2000, 1, 1, 1.5), 3100002U);
    EXPECT_EQ(StartSeed(2000, 1, 1, 1.4), 3100001U);
}

TEST(RandomSource, StartSeedStaysWithin32BitsInLateYears)
{
    // (12 * 30 + 31) * 99 * 100000 = 3870900000, above the signed range.
    EXPECT_EQ(StartSeed(2099, 12, 31, 0), 3870900000U);
    EXPECT_EQ(StartSeed(2200, 12, 31, 0), static_cast<std::uint32_t>(391LL * 200 * 100000));
}

} // namespace
} // namespace kelvarine::testing
