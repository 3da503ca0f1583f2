#include "board/look.h"
#include "configure/configuration.h"
#include "configure/configuration_fixture.h"
#include "game/event_sound.h"
#include "game/screens.h"
#include "generator/generator.h"
#include "generator/patterns.h"
#include "grid/grid.h"
#include "grid/names.h"
#include "print/print_settings.h"
#include "support/outside_double.h"
#include "support/settings_folder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <fstream>
#include <limits>
#include <sys/resource.h>
#include <sys/stat.h>
#include <utility>
#include <vector>

namespace kelvarine::testing {
namespace {

// ---- The file ------------------------------------------------------------------------------

TEST_F(Configuration, DefaultsAreTheseBytes)
{
    EXPECT_EQ(ConfigurationBytes(), BytesOf(DefaultWords));
    EXPECT_EQ(ConfigurationBytes().size(), 440U);
}

TEST_F(Configuration, DefaultsWithoutSoundFilesHaveNoIndex)
{
    Restart();
    FileWords words = DefaultWords;
    words[10][0] = words[10][1] = words[10][2] = 0;
    EXPECT_EQ(ConfigurationBytes(), BytesOf(words));
}

TEST_F(Configuration, IsWrittenIntoTheFolderOfSettings)
{
    WriteConfiguration();
    EXPECT_EQ(Folders.ReadSetting("config.sdu"), BytesOf(DefaultWords));
    EXPECT_TRUE(Seen.Messages.empty());
}

TEST_F(Configuration, NothingOfALongerFileSurvivesWriting)
{
    Folders.PutSetting("config.sdu", std::string(5000, 'x'));
    WriteConfiguration();
    EXPECT_EQ(Folders.ReadSetting("config.sdu"), BytesOf(DefaultWords));
}

// A value of its own for every setting, record by record.
void ChangeTheLook()
{
    PrimaryThickness = 11;
    SecondaryThickness = 12;
    BorderThickness = 13;
    MarginThickness = 14;
    GivenCells3D = False;
    UnknownCells3D = False;
    SelectedCells3D = False;
    ColumnFormat = 4;
    RowFormat = 3;
    SolutionsFormat = 0;
    PencilmarkLines = True;
    PencilmarkLayout = 0;
    ReservedSetting = 77;
    CurrentTab = LogicTab;
    PrimaryGrid3D = True;
    SecondaryGrid3D = True;
    GivenTexture = 10;
    UnknownTexture = 11;
    GridTexture = 12;
    for (std::uint32_t entry = 0; entry < 12; ++entry) {
        ColourTable.at(entry) = 0x010203U * (entry + 1);
    }
}

void ChangeNewGamesAndPlaces()
{
    RevealPattern = 9;
    FillOnStart = True;
    SolveOnStart = True;
    DifficultySelection = 0x3E;
    IncludeSingles = True;
    MinGivens = 22;
    MaxGivens = 33;
    MainMaximised = True;
    MainPlace = {1, 2, 300, 400};
    ConfigureOpen = True;
    ConfigurePlace = {3, 4, 301, 401};
    SolutionsOpen = True;
    SolutionsPlace = {5, 6, 302, 402};
    FileDialogPlace = {7, 8, 303, 403};
    StatisticsOpen = True;
    StatisticsPlace = {9, 10, 304, 404};
}

void ChangeLogicPrintingViewAndSound()
{
    SolveMask = 0x7FFFE;
    AlertMask = 0x80000001;
    PrintAspect = False;
    PrintCentre = False;
    PrintFullPage = True;
    PrintWidth = 1.25;
    PrintHeight = 2.5;
    PrintLeft = -0.1;
    PrintTop = 0.35;
    PrintIncludeSolutions = False;
    CoordinatesVisible = False;
    StrongLinkMode = 2;
    ToolbarVisible = False;
    ToolTipsVisible = False;
    CoordSeparator = 3;
    CoordBrackets = 4;
    CoordRowFirst = True;
    LevelTable = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9};
    MaxSinglesLinks = 10;
    MaxRPLinks = 20;
    MaxXYLinks = 30;
    AnnouncerSound = 3;
    AlertSound = 2;
    WinSound = 0;
    SoundVolumes = {0, 256, 4096, 65280};
    SoundDisabled = True;
}

TEST_F(Configuration, EveryElementStandsAtItsPlace)
{
    ChangeTheLook();
    ChangeNewGamesAndPlaces();
    ChangeLogicPrintingViewAndSound();
    const auto colour = [](std::int32_t times) {
        return FileColour(1 * times, 2 * times, 3 * times);
    };
    EXPECT_EQ(ConfigurationBytes(), BytesOf({{
                                        {1, 11, 12, 13, 14, 0, 0, 0, 4, 3},
                                        {0, -1, 0, 77, 3, -1, -1, 10, 11, 12},
                                        {colour(1), colour(2), colour(3), colour(4), colour(5),
                                         colour(6), colour(7), colour(8), colour(9), colour(10)},
                                        {colour(11), colour(12), 9, -1, -1, 0x3E, -1, 22, 33, 0},
                                        {2, 15, 30, 4500, 6000, 0, 0, 0, 0, 0},
                                        {-1, 45, 60, 4515, 6015, -1, 75, 90, 4530, 6030},
                                        {0, 105, 120, 4545, 6045, -1, 135, 150, 0, 0},
                                        {0x7FFFE, -0x7FFFFFFF, 0, 0, -1, 125, 250, -10, 35, 0},
                                        {0, 2, 0, 0, 3, 4, -1, 0, 0, 0},
                                        {1, 2, 3, 4, 5, 6, 10, 20, 30, 0},
                                        {3, 2, 0, 0, 0, 256, 4096, 65280, -1, 0},
                                    }}));
}

TEST_F(Configuration, ElementsThatHaveNoMeaningAreNotRead)
{
    FileWords words = DefaultWords;
    for (const auto &[record, element] :
         std::initializer_list<std::pair<std::size_t, std::size_t>>{{4, 9},
                                                                    {5, 5},
                                                                    {5, 6},
                                                                    {5, 7},
                                                                    {5, 8},
                                                                    {5, 9},
                                                                    {7, 0},
                                                                    {7, 8},
                                                                    {7, 9},
                                                                    {9, 7},
                                                                    {9, 8},
                                                                    {9, 9},
                                                                    {10, 9},
                                                                    {11, 3},
                                                                    {11, 9}}) {
        words.at(record - 1).at(element) = -1234567;
    }
    TakeConfiguration(BytesOf(words));
    EXPECT_EQ(ConfigurationBytes(), BytesOf(DefaultWords));
}

TEST_F(Configuration, ReservedElementIsKept)
{
    StartWith(2, 3, -987654321);
    EXPECT_EQ(ConfigurationBytes(), DefaultsWith(2, 3, -987654321));
}

// ---- No file, or none of ours --------------------------------------------------------------

TEST_F(Configuration, NoFileLeavesTheDefaults)
{
    ReadConfiguration();
    EXPECT_EQ(RevealPatterns.at(static_cast<std::size_t>(RevealPattern)).Caption,
              " Horizontal && vertical reflection");
    EXPECT_EQ(MinGivens, 17);
    EXPECT_EQ(MaxGivens, 40);
    EXPECT_EQ(DifficultySelection, BitTable[1]);
    EXPECT_EQ(SolveMask, 0U);
    EXPECT_EQ(AlertMask, 0U);
    EXPECT_EQ(ConfigurationBytes(), BytesOf(DefaultWords));
    EXPECT_TRUE(Seen.Calls.empty());
}

TEST_F(Configuration, FileIsReadFromTheFolderOfSettings)
{
    Folders.PutSetting("config.sdu", DefaultsWith(1, 1, 20));
    ReadConfiguration();
    EXPECT_EQ(PrimaryThickness, 20);
}

TEST_F(Configuration, OtherVersionsLeaveEveryDefault)
{
    for (const std::int32_t version : {2, 0, -1, 0x101, 0x10001, 0x1000001, Least}) {
        FileWords words;
        for (auto &record : words) {
            record.fill(3);
        }
        words[0][0] = version;
        TakeConfiguration(BytesOf(words));
        EXPECT_EQ(ConfigurationBytes(), BytesOf(DefaultWords)) << version;
    }
}

TEST_F(Configuration, OfAFileCutShortTheWholeRecordsCount)
{
    FileWords words;
    for (auto &record : words) {
        record.fill(3);
    }
    words[0][0] = 1;
    const std::string bytes = BytesOf(words);
    for (std::size_t length = 0; length < bytes.size(); ++length) {
        RestartWithSounds();
        TakeConfiguration(bytes.substr(0, length));
        EXPECT_EQ(PrimaryThickness, length >= 40 ? 3 : 8) << length;
        EXPECT_EQ(CurrentTab, length >= 80 ? 3 : 0) << length;
        EXPECT_EQ(SolveMask, length >= 320 ? 3U : 0U) << length;
        EXPECT_EQ(WinSound, 1) << length;
        EXPECT_EQ(SoundVolumes[3], 32000) << length;
    }
}

TEST_F(Configuration, BytesAfterTheLastRecordMeanNothing)
{
    Folders.PutSetting("config.sdu", DefaultsWith(11, 8, -1) + std::string(100000, '\xFF'));
    ReadConfiguration();
    EXPECT_EQ(ConfigurationBytes(), DefaultsWith(11, 8, -1));
}

TEST_F(Configuration, WhatIsNoFileLeavesTheDefaults)
{
    std::filesystem::create_directories(Folders.Settings() / "config.sdu");
    ReadConfiguration();
    EXPECT_EQ(ConfigurationBytes(), BytesOf(DefaultWords));

    std::filesystem::remove(Folders.Settings() / "config.sdu");
    ASSERT_EQ(::mkfifo((Folders.Settings() / "config.sdu").c_str(), 0600), 0);
    ReadConfiguration();
    EXPECT_EQ(ConfigurationBytes(), BytesOf(DefaultWords));

    std::filesystem::remove(Folders.Settings() / "config.sdu");
    std::filesystem::create_symlink("config.sdu", Folders.Settings() / "config.sdu");
    ReadConfiguration();
    EXPECT_EQ(ConfigurationBytes(), BytesOf(DefaultWords));
    EXPECT_TRUE(Seen.Calls.empty());
}

// ---- Writing that fails --------------------------------------------------------------------

TEST_F(Configuration, WritingThatFailsIsToldInTheSystemsWords)
{
    std::filesystem::create_directories(Folders.Settings() / "config.sdu");
    WriteConfiguration();
    EXPECT_EQ(Seen.Messages,
              std::vector<std::string>{"Unable to save settings.\r\rIs a directory"});
    EXPECT_TRUE(std::filesystem::is_directory(Folders.Settings() / "config.sdu"));
}

TEST_F(Configuration, FolderInNoFoldersPlaceIsToldInTheSystemsWords)
{
    std::filesystem::create_directories(Folders.Settings().parent_path());
    std::ofstream(Folders.Settings()) << "a file where the folder should be";
    WriteConfiguration();
    EXPECT_EQ(Seen.Messages,
              std::vector<std::string>{"Unable to save settings.\r\rNot a directory"});
}

TEST_F(Configuration, FullDiskLeavesTheOldFileWhole)
{
    Folders.PutSetting("config.sdu", DefaultsWith(1, 1, 20));
    struct rlimit before {};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    struct rlimit small = before;
    small.rlim_cur = 100;
    // The signal would end the program before the error is seen.
    auto *const handler = ::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    WriteConfiguration();
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &before), 0);
    ::signal(SIGXFSZ, handler);
    EXPECT_EQ(Seen.Messages,
              std::vector<std::string>{"Unable to save settings.\r\rFile too large"});
    EXPECT_EQ(Folders.ReadSetting("config.sdu"), DefaultsWith(1, 1, 20));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(Folders.Settings()), {}), 1);
}

// ---- What is not kept ----------------------------------------------------------------------

TEST_F(Configuration, SettingsOfABatchAreBackAtTheirDefaults)
{
    PrintMode = PrintNewGames;
    PrintGreyScale = True;
    PrintGamesPerPage = 6;
    PrintPages = 9;
    WriteConfiguration();
    Restart();
    ReadConfiguration();
    EXPECT_EQ(PrintMode, PrintCurrent);
    EXPECT_EQ(PrintGreyScale, False);
    EXPECT_EQ(PrintGamesPerPage, 0);
    EXPECT_EQ(PrintPages, 1);
}

} // namespace
} // namespace kelvarine::testing
