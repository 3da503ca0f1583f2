#include "board/look.h"
#include "board/margin.h"
#include "configure/configuration.h"
#include "configure/configuration_bytes.h"
#include "game/lifecycle.h"
#include "game/screens.h"
#include "generator/generator.h"
#include "generator/patterns.h"
#include "grid/grid.h"
#include "grid/names.h"
#include "logic/event_sound.h"
#include "print/print_settings.h"
#include "support/presentation_double.h"
#include "support/settings_folder.h"

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <fstream>
#include <limits>
#include <numeric>
#include <random>
#include <sys/resource.h>
#include <sys/stat.h>
#include <utility>
#include <vector>

namespace kelvarine::testing {
namespace {

constexpr std::int32_t Least = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t Most = std::numeric_limits<std::int32_t>::max();

class Configuration : public ::testing::Test {
protected:
    void SetUp() override
    {
        RestartWithSounds();
    }

    // The start of a program that finds three files of each kind.
    static void RestartWithSounds()
    {
        Restart();
        AnnouncerFiles = {"", "a.ano", "b.ano", "c.ano"};
        AlertFiles = {"", "a.alr", "b.alr", "c.alr"};
        WinFiles = {"", "a.win", "b.win", "c.win"};
        AnnouncerSound = 1;
        AlertSound = 1;
        WinSound = 1;
    }

    // What one element does to a start with all other elements at their defaults.
    static void StartWith(std::size_t record, std::size_t element, std::int32_t value)
    {
        RestartWithSounds();
        TakeConfiguration(DefaultsWith(record, element, value));
    }

    SettingsFolders Folders;
};

// ---- The file ------------------------------------------------------------------------------

TEST_F(Configuration, DefaultsAreTheStatedBytes)
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

TEST_F(Configuration, EveryElementStandsAtItsPlace)
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
    EXPECT_EQ(Seen.Messages, std::vector<std::string>{"Is a directory"});
    EXPECT_TRUE(std::filesystem::is_directory(Folders.Settings() / "config.sdu"));
}

TEST_F(Configuration, FolderInNoFoldersPlaceIsToldInTheSystemsWords)
{
    std::filesystem::create_directories(Folders.Settings().parent_path());
    std::ofstream(Folders.Settings()) << "a file where the folder should be";
    WriteConfiguration();
    EXPECT_EQ(Seen.Messages, std::vector<std::string>{"Not a directory"});
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
    EXPECT_EQ(Seen.Messages, std::vector<std::string>{"File too large"});
    EXPECT_EQ(Folders.ReadSetting("config.sdu"), DefaultsWith(1, 1, 20));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(Folders.Settings()), {}), 1);
}

// ---- Stated corrections --------------------------------------------------------------------

TEST_F(Configuration, LinkLimitAbove81ReadsAs81AndNoneStaysNone)
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

TEST_F(Configuration, LevelFiveWithoutTechniquesGetsTrialAndErrorBack)
{
    StartWith(10, 4, 0);
    EXPECT_EQ(LevelTable[5], 0xFF000000U);
    EXPECT_NE(LevelTable[5] & TrialBit, 0U);
    StartWith(10, 4, 1);
    EXPECT_EQ(LevelTable[5], 1U);
    StartWith(10, 3, 0);
    EXPECT_EQ(LevelTable[4], 0U);
}

TEST_F(Configuration, SinglesAlwaysStandInALevel)
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

TEST_F(Configuration, StrongLinksOutsideTheirModesAreNever)
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

TEST_F(Configuration, SoundIndexAboveTheListKeepsTheOneOfTheStart)
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

TEST_F(Configuration, SoundIndexIntoAnEmptyListIsNone)
{
    Restart();
    TakeConfiguration(DefaultsWith(11, 1, 1));
    EXPECT_EQ(AlertSound, 0);
}

TEST_F(Configuration, PrintMeasuresAreHundredthsOfInches)
{
    StartWith(8, 5, 837);
    EXPECT_DOUBLE_EQ(PrintWidth, 8.37);
    PrintWidth = 8.3749;
    EXPECT_EQ(ConfigurationBytes(), DefaultsWith(8, 5, 837));
    PrintWidth = 8.3751;
    EXPECT_EQ(ConfigurationBytes(), DefaultsWith(8, 5, 838));
}

TEST_F(Configuration, OnlyTwoIsMaximised)
{
    for (const std::int32_t state : {0, 1, 3, -1, Most}) {
        StartWith(5, 0, state);
        EXPECT_EQ(MainMaximised, False) << state;
    }
    StartWith(5, 0, 2);
    EXPECT_EQ(MainMaximised, True);
}

TEST_F(Configuration, MarginTextFollowsTheColourRead)
{
    StartWith(4, 1, FileWhite);
    EXPECT_EQ(ColourTable[MarginColour], 0xFFFFFFU);
    EXPECT_EQ(CoordinateTextColour, 0x000000U);
    StartWith(4, 1, 0);
    EXPECT_EQ(CoordinateTextColour, 0xFFFFFFU);
}

TEST_F(Configuration, ColoursAreRedGreenBlueFromTheLowestByte)
{
    StartWith(3, 2, FileColour(1, 2, 3));
    EXPECT_EQ(ColourTable[SelectedCellColour], 0x010203U);
}

TEST_F(Configuration, FourthByteOfAColourMeansNothing)
{
    StartWith(3, 2, FileColour(1, 2, 3) | Least);
    EXPECT_EQ(ColourTable[SelectedCellColour], 0x010203U);
}

TEST_F(Configuration, FlagsAreAllBitsOrNone)
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
    std::int32_t Lowest;
    std::int32_t Highest;
    std::int32_t Default;
};

const std::array RangeCases{
    RangeCase{1, 1, &PrimaryThickness, 0, 50, 8},
    RangeCase{1, 2, &SecondaryThickness, 0, 50, 0},
    RangeCase{1, 3, &BorderThickness, 0, 50, 10},
    RangeCase{1, 4, &MarginThickness, 0, 100, 30},
    RangeCase{1, 8, &ColumnFormat, 0, 4, 1},
    RangeCase{1, 9, &RowFormat, 0, 4, 0},
    RangeCase{2, 0, &SolutionsFormat, 0, 1, 1},
    RangeCase{2, 2, &PencilmarkLayout, 0, 1, 1},
    RangeCase{2, 4, &CurrentTab, 0, 9, 0},
    RangeCase{2, 7, &GivenTexture, 0, 12, 0},
    RangeCase{2, 8, &UnknownTexture, 0, 12, 0},
    RangeCase{2, 9, &GridTexture, 0, 12, 0},
    RangeCase{4, 2, &RevealPattern, 0, 9, 5},
    RangeCase{4, 7, &MinGivens, Least, Most, 17},
    RangeCase{4, 8, &MaxGivens, Least, Most, 40},
    RangeCase{9, 4, &CoordSeparator, 0, 3, 0},
    RangeCase{9, 5, &CoordBrackets, 0, 4, 3},
    RangeCase{11, 4, &SoundVolumes[0], 0, 65280, 32000},
    RangeCase{11, 5, &SoundVolumes[1], 0, 65280, 32000},
    RangeCase{11, 6, &SoundVolumes[2], 0, 65280, 32000},
    RangeCase{11, 7, &SoundVolumes[3], 0, 65280, 32000},
};

TEST_F(Configuration, NumbersInTheirRangeAreTakenAndOthersAreNot)
{
    for (const RangeCase &range : RangeCases) {
        const auto place = [&] {
            return std::to_string(range.Record) + "/" + std::to_string(range.Element);
        };
        for (const std::int32_t inside :
             {range.Lowest, range.Highest, std::midpoint(range.Lowest, range.Highest)}) {
            StartWith(range.Record, range.Element, inside);
            EXPECT_EQ(*range.Setting, inside) << place();
        }
        std::vector<std::int64_t> outside{std::int64_t{range.Lowest} - 1,
                                          std::int64_t{range.Highest} + 1, 1000000, Least, Most};
        for (const std::int64_t value : outside) {
            if (value < Least || value > Most ||
                (value >= range.Lowest && value <= range.Highest)) {
                continue;
            }
            StartWith(range.Record, range.Element, static_cast<std::int32_t>(value));
            EXPECT_EQ(*range.Setting, range.Default) << place() << " " << value;
        }
    }
}

TEST_F(Configuration, WindowsThatNobodyCouldHaveMadeWereNeverPlaced)
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

TEST_F(Configuration, PrintMeasuresBeyondAnyPaperAreNotTaken)
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

TEST_F(Configuration, MeasuresThatAreNoNumbersAreWrittenAllTheSame)
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

TEST_F(Configuration, RandomBytesNeverHarmAStart)
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
            EXPECT_GE(*range.Setting, range.Lowest);
            EXPECT_LE(*range.Setting, range.Highest);
        }
        const std::string taken = ConfigurationBytes();
        RestartWithSounds();
        TakeConfiguration(taken);
        EXPECT_EQ(ConfigurationBytes(), taken);
    }
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
