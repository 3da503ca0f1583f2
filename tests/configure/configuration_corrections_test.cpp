// What the reader of settings does to values that are not what they should be.
#include "board/look.h"
#include "board/margin.h"
#include "configure/configuration.h"
#include "configure/configuration_fixture.h"
#include "game/event_sound.h"
#include "game/lifecycle.h"
#include "game/screens.h"
#include "generator/generator.h"
#include "generator/patterns.h"
#include "grid/grid.h"
#include "grid/names.h"
#include "logic/technique_masks.h"
#include "print/print_settings.h"

#include <gtest/gtest.h>

#include <array>
#include <numeric>
#include <random>
#include <utility>
#include <vector>

namespace kelvarine::testing {
namespace {

class ConfigurationCorrections : public Configuration {};

// ---- Corrections ---------------------------------------------------------------------------

TEST_F(ConfigurationCorrections, LinkLimitAbove81ReadsAs81AndNoneStaysNone)
{
    const std::vector<std::pair<std::int32_t, std::int32_t>> cases{
        {82, 81}, {-1, 81}, {Most, 81}, {Least, 81}, {0, 0}, {1, 1}, {80, 80}, {81, 81}};
    for (const auto &[stored, read] : cases) {
        StartWith(10, 6, stored);
        EXPECT_EQ(MaxSinglesLinks, read) << stored;
        StartWith(10, 7, stored);
        EXPECT_EQ(MaxRPLinks, read) << stored;
        StartWith(10, 8, stored);
        EXPECT_EQ(MaxXYLinks, read) << stored;
    }
}

TEST_F(ConfigurationCorrections, LevelFiveWithoutTechniquesGetsTrialAndErrorBack)
{
    StartWith(10, 4, 0);
    EXPECT_EQ(LevelTable[5], 0xFF000000U);
    EXPECT_NE(LevelTable[5] & TrialBit, 0U);
    StartWith(10, 4, 1);
    EXPECT_EQ(LevelTable[5], 1U);
    StartWith(10, 3, 0);
    EXPECT_EQ(LevelTable[4], 0U);
}

TEST_F(ConfigurationCorrections, SinglesAlwaysStandInALevel)
{
    FileWords words = DefaultWords;
    words[9] = {0, 8, 0, 0, 0x40, -1, 81, 81, 81, 0};
    TakeConfiguration(BytesOf(words));
    EXPECT_EQ(LevelTable, (decltype(LevelTable){0, 0x6, 8, 0, 0, 0x40, 0xFFFFFFFF, 0, 0, 0}));
    StartGame(NewGame);
    EXPECT_EQ(GameRating, 6);

    words[9] = {8, 0, 2, 0, 4, 0, 81, 81, 81, 0};
    TakeConfiguration(BytesOf(words));
    EXPECT_EQ(LevelTable, (decltype(LevelTable){0, 8, 0, 2, 0, 4, 0, 0, 0, 0}));
}

TEST_F(ConfigurationCorrections, StrongLinksOutsideTheirModesAreNever)
{
    for (const std::int32_t mode : {-1, 3, 1000000, Least, Most}) {
        StartWith(9, 1, mode);
        EXPECT_EQ(StrongLinkMode, 0) << mode;
    }
    for (const std::int32_t mode : {0, 1, 2}) {
        StartWith(9, 1, mode);
        EXPECT_EQ(StrongLinkMode, mode);
    }
}

TEST_F(ConfigurationCorrections, SoundIndexAboveTheListKeepsTheOneOfTheStart)
{
    const std::vector<std::pair<std::int32_t, std::int32_t>> cases{
        {4, 1}, {Most, 1}, {0, 0}, {1, 1}, {2, 2}, {3, 3}, {-1, 0}, {Least, 0}};
    for (const auto &[stored, read] : cases) {
        StartWith(11, 0, stored);
        EXPECT_EQ(AnnouncerSound, read) << stored;
        StartWith(11, 1, stored);
        EXPECT_EQ(AlertSound, read) << stored;
        StartWith(11, 2, stored);
        EXPECT_EQ(WinSound, read) << stored;
    }
}

TEST_F(ConfigurationCorrections, SoundIndexIntoAnEmptyListIsNone)
{
    Restart();
    TakeConfiguration(DefaultsWith(11, 1, 1));
    EXPECT_EQ(AlertSound, 0);
}

TEST_F(ConfigurationCorrections, PrintMeasuresAreHundredthsOfInches)
{
    StartWith(8, 5, 837);
    EXPECT_DOUBLE_EQ(PrintWidth, 8.37);
    PrintWidth = 8.3749;
    EXPECT_EQ(ConfigurationBytes(), DefaultsWith(8, 5, 837));
    PrintWidth = 8.3751;
    EXPECT_EQ(ConfigurationBytes(), DefaultsWith(8, 5, 838));
}

TEST_F(ConfigurationCorrections, OnlyTwoIsMaximised)
{
    for (const std::int32_t state : {0, 1, 3, -1, Most}) {
        StartWith(5, 0, state);
        EXPECT_EQ(MainMaximised, False) << state;
    }
    StartWith(5, 0, 2);
    EXPECT_EQ(MainMaximised, True);
}

TEST_F(ConfigurationCorrections, MarginTextFollowsTheColourRead)
{
    StartWith(4, 1, FileWhite);
    EXPECT_EQ(ColourTable[MarginColour], 0xFFFFFFU);
    EXPECT_EQ(CoordinateTextColour, 0x000000U);
    StartWith(4, 1, 0);
    EXPECT_EQ(CoordinateTextColour, 0xFFFFFFU);
}

TEST_F(ConfigurationCorrections, ColoursAreRedGreenBlueFromTheLowestByte)
{
    StartWith(3, 2, FileColour(1, 2, 3));
    EXPECT_EQ(ColourTable[SelectedCellColour], 0x010203U);
}

TEST_F(ConfigurationCorrections, FourthByteOfAColourMeansNothing)
{
    StartWith(3, 2, FileColour(1, 2, 3) | Least);
    EXPECT_EQ(ColourTable[SelectedCellColour], 0x010203U);
}

TEST_F(ConfigurationCorrections, FlagsAreAllBitsOrNone)
{
    for (const std::int32_t stored : {-1, 1, 2, Least}) {
        StartWith(2, 1, stored);
        EXPECT_EQ(PencilmarkLines, True) << stored;
        StartWith(9, 6, stored);
        EXPECT_EQ(CoordRowFirst, True) << stored;
        StartWith(6, 0, stored);
        EXPECT_EQ(ConfigureOpen, True) << stored;
    }
    StartWith(9, 2, 0);
    EXPECT_EQ(ToolbarVisible, False);
}

// ---- Values that would break the program ---------------------------------------------------

// A setting with a range, where it stands and what it is without a file.
struct RangeCase {
    std::size_t Record;
    std::size_t Element;
    std::int32_t *Setting;
    Range Values;
    std::int32_t Default;
};

const std::array RangeCases{
    RangeCase{1, 1, &PrimaryThickness, LineThicknessRange, 8},
    RangeCase{1, 2, &SecondaryThickness, LineThicknessRange, 0},
    RangeCase{1, 3, &BorderThickness, LineThicknessRange, 10},
    RangeCase{1, 4, &MarginThickness, MarginThicknessRange, 30},
    RangeCase{1, 8, &ColumnFormat, ColumnFormatRange, 1},
    RangeCase{1, 9, &RowFormat, RowFormatRange, 0},
    RangeCase{2, 0, &SolutionsFormat, SolutionsFormatRange, 1},
    RangeCase{2, 2, &PencilmarkLayout, PencilmarkLayoutRange, 1},
    RangeCase{2, 4, &CurrentTab, CurrentTabRange, 0},
    RangeCase{2, 7, &GivenTexture, TextureRange, 0},
    RangeCase{2, 8, &UnknownTexture, TextureRange, 0},
    RangeCase{2, 9, &GridTexture, TextureRange, 0},
    RangeCase{4, 2, &RevealPattern, RevealPatternRange, 5},
    RangeCase{4, 7, &MinGivens, Range{Least, Most}, 17},
    RangeCase{4, 8, &MaxGivens, Range{Least, Most}, 40},
    RangeCase{9, 4, &CoordSeparator, CoordSeparatorRange, 0},
    RangeCase{9, 5, &CoordBrackets, CoordBracketsRange, 3},
    RangeCase{11, 4, &SoundVolumes[0], VolumeRange, 32000},
    RangeCase{11, 5, &SoundVolumes[1], VolumeRange, 32000},
    RangeCase{11, 6, &SoundVolumes[2], VolumeRange, 32000},
    RangeCase{11, 7, &SoundVolumes[3], VolumeRange, 32000},
};

TEST_F(ConfigurationCorrections, NumbersInTheirRangeAreTakenAndOthersAreNot)
{
    for (const RangeCase &range : RangeCases) {
        const auto place = [&] {
            return std::to_string(range.Record) + "/" + std::to_string(range.Element);
        };
        for (const std::int32_t inside : {range.Values.Least, range.Values.Most,
                                          std::midpoint(range.Values.Least, range.Values.Most)}) {
            StartWith(range.Record, range.Element, inside);
            EXPECT_EQ(*range.Setting, inside) << place();
        }
        std::vector<std::int64_t> outside{std::int64_t{range.Values.Least} - 1,
                                          std::int64_t{range.Values.Most} + 1, 1000000, Least,
                                          Most};
        for (const std::int64_t value : outside) {
            if (value < Least || value > Most ||
                (value >= range.Values.Least && value <= range.Values.Most)) {
                continue;
            }
            StartWith(range.Record, range.Element, static_cast<std::int32_t>(value));
            EXPECT_EQ(*range.Setting, range.Default) << place() << " " << value;
        }
    }
}

TEST_F(ConfigurationCorrections, WindowsThatNobodyCouldHaveMadeWereNeverPlaced)
{
    const std::vector<std::pair<std::size_t, WindowPlace *>> sides{{5, &MainPlace},
                                                                   {6, &ConfigurePlace}};
    for (const auto &[record, place] : sides) {
        for (const std::int32_t twips : {-15, (8192 + 1) * 15, Most, Least}) {
            StartWith(record, 3, twips);
            EXPECT_EQ(place->Width, 0) << twips;
            StartWith(record, 4, twips);
            EXPECT_EQ(place->Height, 0) << twips;
        }
        StartWith(record, 3, 8192 * 15);
        EXPECT_EQ(place->Width, 8192);
    }
    StartWith(5, 1, Least);
    EXPECT_EQ(MainPlace.Left, Least / 15);
}

TEST_F(ConfigurationCorrections, PrintMeasuresBeyondAnyPaperAreNotTaken)
{
    for (const std::int32_t hundredths : {-1, 100001, Most, Least}) {
        StartWith(8, 5, hundredths);
        EXPECT_EQ(PrintWidth, 5.0) << hundredths;
        StartWith(8, 6, hundredths);
        EXPECT_EQ(PrintHeight, 5.0) << hundredths;
    }
    for (const std::int32_t hundredths : {-100001, 100001, Most, Least}) {
        StartWith(8, 7, hundredths);
        EXPECT_EQ(PrintLeft, 0.0) << hundredths;
        StartWith(8, 8, hundredths);
        EXPECT_EQ(PrintTop, 0.0) << hundredths;
    }
    StartWith(8, 8, -250);
    EXPECT_EQ(PrintTop, -2.5);
}

TEST_F(ConfigurationCorrections, MeasuresThatAreNoNumbersAreWrittenAllTheSame)
{
    PrintWidth = std::numeric_limits<double>::infinity();
    PrintHeight = std::numeric_limits<double>::quiet_NaN();
    PrintLeft = -1e300;
    FileWords words = DefaultWords;
    words[7][5] = 100000;
    words[7][6] = 0;
    words[7][7] = -100000;
    EXPECT_EQ(ConfigurationBytes(), BytesOf(words));
}

TEST_F(ConfigurationCorrections, RandomBytesNeverHarmAStart)
{
    std::mt19937 random(6);
    for (int round = 0; round < 200; ++round) {
        RestartWithSounds();
        std::string bytes(440, '\0');
        for (char &byte : bytes) {
            byte = static_cast<char>(random());
        }
        bytes.replace(0, 4, std::string("\1\0\0\0", 4));
        Folders.PutSetting("config.sdu", bytes);
        ReadConfiguration();
        StartGame(NewGame);
        EXPECT_EQ(GameRating, 6);
        for (const RangeCase &range : RangeCases) {
            EXPECT_GE(*range.Setting, range.Values.Least);
            EXPECT_LE(*range.Setting, range.Values.Most);
        }
        const std::string taken = ConfigurationBytes();
        RestartWithSounds();
        TakeConfiguration(taken);
        EXPECT_EQ(ConfigurationBytes(), taken);
    }
}

} // namespace
} // namespace kelvarine::testing
