// The table of the configuration file, row by row: what must hold of every setting in it.
#include "board/look.h"
#include "configure/configuration_fixture.h"
#include "configure/setting_table.h"
#include "game/screens.h"
#include "generator/generator.h"
#include "grid/grid.h"
#include "input/menu_table.h"

#include <gtest/gtest.h>

#include <set>
#include <utility>

namespace kelvarine::testing {
namespace {

class SettingTableTest : public Configuration {};

std::string Place(const SettingRow &row)
{
    return std::to_string(row.Record) + "/" + std::to_string(row.Element);
}

std::int32_t DefaultWord(const SettingRow &row)
{
    return DefaultWords.at(row.Record - 1).at(row.Element);
}

// Words of the file at both ends of a setting's range, and those beside it; nothing for a setting
// that any word is a value of.
struct Ends {
    std::vector<std::int32_t> Inside;
    std::vector<std::int32_t> Outside;
};

Ends EndsOf(const Range &range, std::int32_t scale)
{
    if (range == AnyNumber) {
        return {{Least / scale * scale, Most / scale * scale}, {}};
    }
    return {{range.Least * scale, range.Most * scale},
            {(range.Least - 1) * scale, (range.Most + 1) * scale}};
}

Ends EndsOf(const Setting &setting)
{
    if (const auto *number = std::get_if<Number>(&setting)) {
        return EndsOf(number->Values, 1);
    }
    if (const auto *corrected = std::get_if<CorrectedNumber>(&setting)) {
        return EndsOf(corrected->Values, 1);
    }
    if (const auto *pixels = std::get_if<Pixels>(&setting)) {
        return EndsOf(pixels->Values, TwipsPerPixel);
    }
    if (const auto *inches = std::get_if<Inches>(&setting)) {
        return EndsOf(inches->Values, 1);
    }
    if (const auto *sound = std::get_if<SoundIndex>(&setting)) {
        return EndsOf(IndicesOf(*sound->Files), 1);
    }
    return {};
}

TEST_F(SettingTableTest, EveryPlaceAndEverySettingStandsOnce)
{
    std::set<std::pair<std::size_t, std::size_t>> places;
    std::set<const void *> settings;
    for (const SettingRow &row : SettingTable) {
        EXPECT_TRUE(row.Record >= 1 && row.Record <= ConfigurationRecords) << Place(row);
        EXPECT_LT(row.Element, WordsInRecord) << Place(row);
        EXPECT_TRUE(places.insert({row.Record, row.Element}).second) << Place(row);
        const void *target = std::visit(
            [](const auto &kind) -> const void * {
                if constexpr (requires { kind.Setting; }) {
                    return kind.Setting;
                } else if constexpr (requires { kind.Maximised; }) {
                    return kind.Maximised;
                } else {
                    return &kind; // the version
                }
            },
            row.Target);
        EXPECT_TRUE(settings.insert(target).second) << Place(row);
    }
}

TEST_F(SettingTableTest, EveryDefaultIsWrittenAndReadAsItIs)
{
    for (const SettingRow &row : SettingTable) {
        RestartWithSounds();
        const std::uint32_t word = WordOfSetting(row.Target);
        EXPECT_EQ(static_cast<std::int32_t>(word), DefaultWord(row)) << Place(row);
        TakeSetting(row.Target, word);
        EXPECT_EQ(WordOfSetting(row.Target), word) << Place(row);
    }
}

TEST_F(SettingTableTest, BothEndsOfEveryRangeAreKept)
{
    for (const SettingRow &row : SettingTable) {
        for (const std::int32_t word : EndsOf(row.Target).Inside) {
            StartWith(row.Record, row.Element, word);
            EXPECT_EQ(ConfigurationBytes(), DefaultsWith(row.Record, row.Element, word))
                << Place(row) << " " << word;
        }
    }
}

TEST_F(SettingTableTest, WhatIsBesideARangeIsNotKept)
{
    for (const SettingRow &row : SettingTable) {
        for (const std::int32_t word : EndsOf(row.Target).Outside) {
            StartWith(row.Record, row.Element, word);
            const std::string bytes = ConfigurationBytes();
            EXPECT_NE(bytes, DefaultsWith(row.Record, row.Element, word))
                << Place(row) << " " << word;
            RestartWithSounds();
            TakeConfiguration(bytes);
            EXPECT_EQ(ConfigurationBytes(), bytes) << Place(row) << " " << word;
        }
    }
}

// Numbers that a control counts or chooses have a range; any other number would reach the painters.
TEST_F(SettingTableTest, OnlyNumbersThatNothingIndexesHaveNoRange)
{
    std::set<const std::int32_t *> without;
    for (const SettingRow &row : SettingTable) {
        const auto *number = std::get_if<Number>(&row.Target);
        if (number != nullptr && number->Values == AnyNumber) {
            without.insert(number->Setting);
        }
    }
    EXPECT_EQ(without, (std::set<const std::int32_t *>{&ReservedSetting, &MinGivens, &MaxGivens}));
}

TEST_F(SettingTableTest, MenuOffersEveryModeOfTheStrongLinks)
{
    std::int32_t mode = StrongLinkModeRange.Least;
    for (const MenuRow &row : MenuTable) {
        if (row.Name == "mnuStrongLinks") {
            EXPECT_EQ(row.First, mode);
            EXPECT_EQ(row.Last, mode);
            ++mode;
        }
    }
    EXPECT_EQ(mode, StrongLinkModeRange.Most + 1);
}

} // namespace
} // namespace kelvarine::testing
