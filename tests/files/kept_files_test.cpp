// Files that were written once and lie beside the tests: whatever becomes of the program, it goes
// on writing them byte for byte and reading what they hold.
#include "board/look.h"
#include "configure/configuration.h"
#include "files/game_file.h"
#include "game/clock.h"
#include "game/event_sound.h"
#include "game/lifecycle.h"
#include "game/screens.h"
#include "game/statistics.h"
#include "game/undo.h"
#include "generator/game_number.h"
#include "generator/generator.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "grid/names.h"
#include "input/keys.h"
#include "input/mouse.h"
#include "outside/whole_file.h"
#include "print/print_settings.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"
#include "support/settings_folder.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

std::string Kept(const std::string &name)
{
    std::string bytes;
    std::string error;
    EXPECT_TRUE(ReadWholeFile(TEST_DATA "/files/" + name, bytes, error, 100000)) << error;
    return bytes;
}

class KeptFiles : public ::testing::Test {
protected:
    void SetUp() override
    {
        Begin();
    }

    // A start that finds sound files.
    static void Begin()
    {
        Restart();
        AnnouncerFiles = {"", "a.ano"};
        AlertFiles = {"", "a.alr", "b.alr"};
        WinFiles = {"", "a.win", "b.win", "c.win"};
    }

    std::string Written(const std::string &name)
    {
        GameFilePath = Folder.Path(name);
        EXPECT_TRUE(WriteGameFile());
        return Folder.Read(name);
    }

    SettingsFolders Folders;
    TemporaryFolder Folder;
};

// ---- config.sdu ------------------------------------------------------------------------------

void SetLook()
{
    PrimaryThickness = 12;
    SecondaryThickness = 2;
    BorderThickness = 6;
    MarginThickness = 44;
    GivenCells3D = False;
    PrimaryGrid3D = True;
    PencilmarkLayout = 0;
    PencilmarkLines = True;
    GivenTexture = 3;
    UnknownTexture = 7;
    GridTexture = 12;
    for (std::uint32_t entry = 0; entry < ColourCount; ++entry) {
        ColourTable.at(entry) = 0x0A1422 * (entry + 1);
    }
    StrongLinkMode = 2;
    CoordinatesVisible = False;
    ToolTipsVisible = False;
}

void SetNamesAndGames()
{
    ColumnFormat = 3;
    RowFormat = 4;
    CoordSeparator = 1;
    CoordBrackets = 4;
    CoordRowFirst = True;
    RevealPattern = 8;
    FillOnStart = True;
    SolveOnStart = True;
    DifficultySelection = 0x1C;
    MinGivens = 24;
    MaxGivens = 29;
    SolveMask = 0x0007FFFE;
    AlertMask = 0x00001234;
    LevelTable = {0, 0x6, 0x218, 0xCD0, 0x7F100, 0x40000020, 0x8, 0, 0, 0};
    MaxSinglesLinks = 9;
    MaxRPLinks = 0;
    MaxXYLinks = 40;
    IncludeSingles = True;
}

void SetScreensPrintAndSound()
{
    CurrentTab = CoordinatesTab;
    SolutionsFormat = 0;
    MainMaximised = True;
    MainPlace = {120, 80, 900, 960};
    ConfigureOpen = True;
    ConfigurePlace = {1030, 90, 480, 610};
    SolutionsPlace = {-40, 300, 330, 580};
    FileDialogPlace = {200, 210, 640, 480};
    StatisticsOpen = True;
    StatisticsPlace = {77, 88, 0, 0};
    PrintAspect = False;
    PrintCentre = False;
    PrintFullPage = True;
    PrintWidth = 6.25;
    PrintHeight = 7.5;
    PrintLeft = -0.35;
    PrintTop = 1.1;
    PrintIncludeSolutions = False;
    AnnouncerSound = 1;
    AlertSound = 2;
    WinSound = 3;
    SoundVolumes = {0, 12800, 65280, 256};
    SoundDisabled = True;
    ReservedSetting = -5;
}

TEST_F(KeptFiles, SettingsAreWrittenByteForByte)
{
    SetLook();
    SetNamesAndGames();
    SetScreensPrintAndSound();
    WriteConfiguration();
    EXPECT_EQ(Folders.ReadSetting("config.sdu"), Kept("config.sdu"));
}

TEST_F(KeptFiles, SettingsAreReadAndWrittenAgain)
{
    Folders.PutSetting("config.sdu", Kept("config.sdu"));
    ReadConfiguration();
    EXPECT_EQ(CellName(2, 7), "<r7,C2>");
    EXPECT_EQ(ColourTable[MarginColour], 0x78F198U);
    EXPECT_EQ(ConfigurePlace, (WindowPlace{1030, 90, 480, 610}));
    EXPECT_EQ(PrintLeft, -0.35);
    EXPECT_EQ(WinSound, 3);
    Folders.PutSetting("config.sdu", "");
    WriteConfiguration();
    EXPECT_EQ(Folders.ReadSetting("config.sdu"), Kept("config.sdu"));
}

// ---- stats.sdu -------------------------------------------------------------------------------

const StatisticsRecord SolvedGames{
    {{0, 41, 95, 260}, {0, 7, 301, 655}, {2, 3, 4000, 86399}, {0, 0, 0, 0}, {0, 1, 7201, 7201}}};

TEST_F(KeptFiles, StatisticsAreWrittenByteForByte)
{
    EXPECT_EQ(StatisticsBytes(SolvedGames), Kept("stats.sdu"));
}

TEST_F(KeptFiles, StatisticsAreReadAndGoOn)
{
    Folders.PutData("stats.sdu", Kept("stats.sdu"));
    EXPECT_EQ(StatisticsFrom(Kept("stats.sdu")), SolvedGames);
    GameRating = 4;
    SolveSeconds = 1234;
    RecordSolvedGame();
    std::string bytes;
    std::string error;
    ASSERT_TRUE(ReadWholeFile(StatisticsFilePath(), bytes, error, StatisticsFileSize));
    StatisticsRecord expected = SolvedGames;
    expected[3] = {0, 1, 1234, 1234};
    EXPECT_EQ(StatisticsFrom(bytes), expected);
}

// ---- Games -----------------------------------------------------------------------------------

// A game in play: numbers placed and one taken back, pencilmarks, a snapshot and a time.
void PlayGame()
{
    StartSavedGame(EasyGame);
    GameNumber = 271828;
    SolveSeconds = 754.25;
    const auto type = [](std::size_t column, std::size_t row, std::int32_t number,
                         std::int32_t shift) {
        ClearCellBits(SelectedBit);
        Grid[column][row] |= SelectedBit;
        KeyDown(DigitCode + number, shift);
    };
    type(3, 1, 4, 0);
    type(4, 1, 6, 0);
    type(9, 9, 9, ShiftKey);
    mnuTakeSnapshot();
    type(2, 2, 7, 0);
    type(7, 1, 9, ShiftKey);
    KeyDown(PageUpCode, 0);
}

TEST_F(KeptFiles, GameIsWrittenByteForByte)
{
    PlayGame();
    const std::string kept = Kept("game.sdk");
    EXPECT_EQ(kept.size(), 41360U);
    EXPECT_TRUE(Written("game.sdk") == kept);
}

TEST_F(KeptFiles, GameIsReadAndWrittenAgain)
{
    ASSERT_TRUE(ReadGameFile(TEST_DATA "/files/game.sdk"));
    EXPECT_EQ(NumbersOf(Grid).substr(0, 9), "53467....");
    EXPECT_EQ(GameNumber, 271828);
    EXPECT_EQ(SolveSeconds, 754.25);
    EXPECT_EQ(SnapshotAvailable, True);
    EXPECT_TRUE(Written("again.sdk") == Kept("game.sdk"));
    EXPECT_EQ(CountCandidates(7, 1), 9);
    KeyDown(PageDownCode, 0);
    EXPECT_EQ(CountCandidates(7, 1), 8) << "what was taken back can be done again";
}

TEST_F(KeptFiles, PositionIsWrittenByteForByte)
{
    PlayGame();
    EXPECT_EQ(Written("game.txt"), Kept("game.txt"));
}

TEST_F(KeptFiles, PositionIsReadAndWrittenAgain)
{
    ASSERT_TRUE(ReadGameFile(TEST_DATA "/files/game.txt"));
    EXPECT_EQ(Written("again.txt"), Kept("game.txt"));
}

} // namespace
} // namespace kelvarine::testing
