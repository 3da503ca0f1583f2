// Whatever settings there are, writing and reading them makes no difference.
#include "board/look.h"
#include "configure/configuration.h"
#include "configure/configuration_bytes.h"
#include "game/event_sound.h"
#include "game/screens.h"
#include "generator/generator.h"
#include "generator/patterns.h"
#include "grid/colour.h"
#include "grid/grid.h"
#include "grid/names.h"
#include "logic/technique_masks.h"
#include "print/print_settings.h"
#include "support/outside_double.h"
#include "support/settings_folder.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <cstdlib>
#include <tuple>

namespace kelvarine::testing {
namespace {

std::int32_t AnyOf(const Range &range)
{
    return *rc::gen::inRange(range.Least, range.Most + 1);
}

Flag AnyFlag()
{
    return *rc::gen::arbitrary<bool>() ? True : False;
}

WindowPlace AnyPlace()
{
    return {*rc::gen::inRange(-100000, 100000), *rc::gen::inRange(-100000, 100000),
            AnyOf(WindowSideRange), AnyOf(WindowSideRange)};
}

double AnyInches(const Range &hundredths)
{
    return AnyOf(hundredths) / 100.0;
}

void FillLook()
{
    for (std::int32_t *thickness : {&PrimaryThickness, &SecondaryThickness, &BorderThickness}) {
        *thickness = AnyOf(LineThicknessRange);
    }
    MarginThickness = AnyOf(MarginThicknessRange);
    for (std::int32_t *texture : {&GivenTexture, &UnknownTexture, &GridTexture}) {
        *texture = AnyOf(TextureRange);
    }
    for (Colour &colour : ColourTable) {
        colour = static_cast<Colour>(*rc::gen::inRange(0, 0x1000000));
    }
    for (Flag *flag :
         {&GivenCells3D, &UnknownCells3D, &SelectedCells3D, &PrimaryGrid3D, &SecondaryGrid3D,
          &PencilmarkLines, &ToolbarVisible, &ToolTipsVisible, &CoordinatesVisible}) {
        *flag = AnyFlag();
    }
    PencilmarkLayout = AnyOf(PencilmarkLayoutRange);
    StrongLinkMode = AnyOf(StrongLinkModeRange);
}

void FillNames()
{
    ColumnFormat = AnyOf(ColumnFormatRange);
    RowFormat = AnyOf(RowFormatRange);
    CoordSeparator = AnyOf(CoordSeparatorRange);
    CoordBrackets = AnyOf(CoordBracketsRange);
    CoordRowFirst = AnyFlag();
}

void FillLogic()
{
    SolveMask = *rc::gen::arbitrary<std::uint32_t>();
    AlertMask = *rc::gen::arbitrary<std::uint32_t>();
    LevelTable = {};
    for (std::size_t level = 1; level <= 6; ++level) {
        LevelTable.at(level) = *rc::gen::arbitrary<std::uint32_t>();
    }
    // As every table of the player's own.
    LevelTable.at(static_cast<std::size_t>(*rc::gen::inRange(1, 6))) |= BitTable[1];
    LevelTable.at(static_cast<std::size_t>(*rc::gen::inRange(1, 6))) |= BitTable[2];
    LevelTable[5] |= TrialBit;
    MaxSinglesLinks = AnyOf(LinkLimitRange);
    MaxRPLinks = AnyOf(LinkLimitRange);
    MaxXYLinks = AnyOf(LinkLimitRange);
    IncludeSingles = AnyFlag();
}

void FillGenerator()
{
    RevealPattern = AnyOf(RevealPatternRange);
    FillOnStart = AnyFlag();
    SolveOnStart = AnyFlag();
    DifficultySelection = *rc::gen::arbitrary<std::uint32_t>();
    MinGivens = *rc::gen::inRange(0, 100);
    MaxGivens = *rc::gen::inRange(0, 100);
}

void FillScreens()
{
    MainMaximised = AnyFlag();
    ConfigureOpen = AnyFlag();
    SolutionsOpen = AnyFlag();
    StatisticsOpen = AnyFlag();
    MainPlace = AnyPlace();
    ConfigurePlace = AnyPlace();
    SolutionsPlace = AnyPlace();
    FileDialogPlace = AnyPlace();
    StatisticsPlace = {*rc::gen::inRange(0, 5000), *rc::gen::inRange(0, 5000), 0, 0};
    CurrentTab = AnyOf(CurrentTabRange);
    SolutionsFormat = AnyOf(SolutionsFormatRange);
}

void FillPrint()
{
    PrintAspect = AnyFlag();
    PrintCentre = AnyFlag();
    PrintFullPage = AnyFlag();
    PrintIncludeSolutions = AnyFlag();
    PrintWidth = AnyInches(PrintSizeRange);
    PrintHeight = AnyInches(PrintSizeRange);
    PrintLeft = AnyInches(PrintPlaceRange);
    PrintTop = AnyInches(PrintPlaceRange);
}

void SetSoundLists()
{
    AnnouncerFiles = {"", "a.ano"};
    AlertFiles = {"", "a.alr", "b.alr"};
    WinFiles = {};
}

void FillSound()
{
    AnnouncerSound = AnyOf(IndicesOf(AnnouncerFiles));
    AlertSound = AnyOf(IndicesOf(AlertFiles));
    WinSound = 0;
    for (std::int32_t &volume : SoundVolumes) {
        volume = AnyOf(VolumeRange);
    }
    SoundDisabled = AnyFlag();
}

// All settings of the file, each by itself.
auto Settings()
{
    return std::tuple(
        std::tuple(PrimaryThickness, SecondaryThickness, BorderThickness, MarginThickness,
                   GivenTexture, UnknownTexture, GridTexture, ColourTable, GivenCells3D,
                   UnknownCells3D, SelectedCells3D, PrimaryGrid3D, SecondaryGrid3D, PencilmarkLines,
                   ToolbarVisible, ToolTipsVisible, CoordinatesVisible, PencilmarkLayout,
                   StrongLinkMode),
        std::tuple(ColumnFormat, RowFormat, CoordSeparator, CoordBrackets, CoordRowFirst),
        std::tuple(SolveMask, AlertMask, LevelTable, MaxSinglesLinks, MaxRPLinks, MaxXYLinks,
                   IncludeSingles),
        std::tuple(RevealPattern, FillOnStart, SolveOnStart, DifficultySelection, MinGivens,
                   MaxGivens),
        std::tuple(MainMaximised, ConfigureOpen, SolutionsOpen, StatisticsOpen, MainPlace,
                   ConfigurePlace, SolutionsPlace, FileDialogPlace, StatisticsPlace, CurrentTab,
                   SolutionsFormat),
        std::tuple(PrintAspect, PrintCentre, PrintFullPage, PrintIncludeSolutions, PrintWidth,
                   PrintHeight, PrintLeft, PrintTop),
        std::tuple(AnnouncerSound, AlertSound, WinSound, SoundVolumes, SoundDisabled,
                   ReservedSetting));
}

// The same settings at every run, unless the variable says otherwise.
class ConfigurationProperty : public ::testing::Test {
protected:
    static void SetUpTestSuite()
    {
        ::setenv("RC_PARAMS", "seed=440", 0);
    }
};

TEST_F(ConfigurationProperty, SettingsWrittenAndReadAreTheSame)
{
    const SettingsFolders folders;
    EXPECT_TRUE(rc::check("settings written and read are the same", [] {
        Restart();
        FillLook();
        FillNames();
        FillLogic();
        FillGenerator();
        FillScreens();
        FillPrint();
        SetSoundLists();
        FillSound();
        ReservedSetting = *rc::gen::arbitrary<std::int32_t>();
        const auto settings = Settings();
        WriteConfiguration();
        Restart();
        SetSoundLists();
        ReadConfiguration();
        RC_ASSERT(Settings() == settings);
    }));
}

TEST_F(ConfigurationProperty, WhatWasTakenFromAnyBytesIsWrittenAndReadTheSame)
{
    EXPECT_TRUE(rc::check("any bytes make settings that are kept", [] {
        Restart();
        SetSoundLists();
        FileWords words{};
        for (auto &record : words) {
            for (std::int32_t &word : record) {
                word =
                    *rc::gen::oneOf(rc::gen::arbitrary<std::int32_t>(), rc::gen::inRange(-1, 13));
            }
        }
        words[0][0] = 1;
        TakeConfiguration(BytesOf(words));
        const auto settings = Settings();
        const std::string bytes = ConfigurationBytes();
        Restart();
        SetSoundLists();
        TakeConfiguration(bytes);
        RC_ASSERT(Settings() == settings);
    }));
}

} // namespace
} // namespace kelvarine::testing
