#include "generator/patterns.h"

#include <gtest/gtest.h>

#include <set>
#include <utility>

namespace kelvarine::testing {
namespace {

using Places = std::set<std::pair<int, int>>;

Places PartnersAt(std::int32_t pattern, int column, int row)
{
    Places places;
    for (const Cell cell : PartnersOf(pattern, MakeCell(column, row))) {
        places.emplace(cell.Column, cell.Row);
    }
    return places;
}

TEST(Patterns, PartnersStandWhereThePatternSays)
{
    EXPECT_EQ(PartnersAt(0, 2, 4), Places{});
    EXPECT_EQ(PartnersAt(1, 2, 4), (Places{{8, 6}}));
    EXPECT_EQ(PartnersAt(2, 2, 4), (Places{{4, 2}}));
    EXPECT_EQ(PartnersAt(3, 2, 4), (Places{{4, 2}, {6, 8}, {8, 6}}));
    EXPECT_EQ(PartnersAt(4, 2, 4), (Places{{8, 4}}));
    EXPECT_EQ(PartnersAt(5, 2, 4), (Places{{8, 4}, {2, 6}, {8, 6}}));
    EXPECT_EQ(PartnersAt(6, 8, 4), (Places{{2, 4}, {5, 4}}));
    EXPECT_EQ(PartnersAt(7, 2, 4),
              (Places{{2, 1}, {2, 7}, {5, 1}, {5, 4}, {5, 7}, {8, 1}, {8, 4}, {8, 7}}));
    EXPECT_EQ(PartnersAt(8, 2, 4), Places{});
    EXPECT_EQ(PartnersAt(9, 2, 4), (Places{{4, 8}, {8, 6}, {6, 2}}));
}

TEST(Patterns, CellsOnAnAxisHaveFewerPartners)
{
    EXPECT_EQ(PartnersAt(1, 5, 5), Places{});
    EXPECT_EQ(PartnersAt(2, 3, 3), Places{});
    EXPECT_EQ(PartnersAt(3, 3, 3), (Places{{7, 7}}));
    EXPECT_EQ(PartnersAt(3, 3, 7), (Places{{7, 3}}));
    EXPECT_EQ(PartnersAt(3, 5, 5), Places{});
    EXPECT_EQ(PartnersAt(4, 5, 2), Places{});
    EXPECT_EQ(PartnersAt(5, 5, 2), (Places{{5, 8}}));
    EXPECT_EQ(PartnersAt(5, 2, 5), (Places{{8, 5}}));
    EXPECT_EQ(PartnersAt(5, 5, 5), Places{});
    EXPECT_EQ(PartnersAt(9, 5, 5), Places{});
    EXPECT_EQ(PartnersAt(9, 5, 2), (Places{{2, 5}, {5, 8}, {8, 5}}));
}

TEST(Patterns, PartnersOfAPartnerAreTheSameGroup)
{
    for (std::int32_t pattern = 0; pattern < PatternCount; ++pattern) {
        for (const Cell cell : Cells) {
            Places group = PartnersAt(pattern, cell.Column, cell.Row);
            group.emplace(cell.Column, cell.Row);
            for (const auto &[column, row] : group) {
                Places other = PartnersAt(pattern, column, row);
                other.emplace(column, row);
                EXPECT_EQ(other, group) << "pattern " << pattern;
            }
        }
    }
}

} // namespace
} // namespace kelvarine::testing
