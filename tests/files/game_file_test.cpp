#include "files/game_file_fixture.h"
#include "game/clock.h"
#include "game/lifecycle.h"
#include "game/undo.h"
#include "generator/game_number.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

namespace kelvarine::testing {
namespace {

// ---- A file laid out by hand ---------------------------------------------------------------

// A word that tells where it belongs, with bits in all four bytes.
CellWord MarkedWord(std::size_t slot, std::size_t column, std::size_t row)
{
    return static_cast<CellWord>(0xA5000000 + slot * 0x1000 + column * 0x10 + row);
}

constexpr std::size_t GridMark = 0x300; // in the place of a slot

void MarkGrid(GridTable &grid, std::size_t slot)
{
    for (std::size_t column = 0; column < 10; ++column) {
        for (std::size_t row = 0; row < 10; ++row) {
            grid[column][row] = MarkedWord(slot, column, row);
        }
    }
}

std::string GoldenFile()
{
    std::string file(41360, '\0');
    file.replace(8, 32, PaddedHeader);
    PutWord(file, 2, 0, 123456789);
    PutWord(file, 2, 1, 0xFFFFFFFF);
    file.replace(80, 8, std::string("\0\0\0\0\0\x17\xAD\x40", 8)); // 3723.5
    file.replace(88, 32, PaddedHeader);
    for (std::size_t column = 0; column <= 9; ++column) {
        for (std::size_t row = 0; row <= 9; ++row) {
            PutWord(file, 4 + column, row, MarkedWord(GridMark, column, row));
        }
    }
    PutWord(file, 14, 1, 77);
    PutWord(file, 14, 2, 5);
    PutWord(file, 14, 3, 0xFFFFFFFF);
    std::size_t record = 15;
    for (std::size_t slot = 0; slot <= 101; ++slot) {
        for (std::size_t column = 0; column <= 9; ++column, ++record) {
            for (std::size_t row = 0; row <= 9; ++row) {
                PutWord(file, record, row, MarkedWord(slot, column, row));
            }
        }
    }
    EXPECT_EQ(record, 1035U);
    return file;
}

// The game that GoldenFile holds.
void SetGoldenGame()
{
    GameNumber = 123456789;
    StatsCounted = True;
    SolveSeconds = 3723.5;
    MarkGrid(Grid, GridMark);
    HistoryCount = 77;
    HistoryPosition = 5;
    SnapshotAvailable = True;
    for (std::size_t slot = 0; slot < History.size(); ++slot) {
        MarkGrid(History[slot], slot);
    }
}

// First byte in which two files differ, or their common length.
std::size_t FirstDifference(std::string_view one, std::string_view other)
{
    return static_cast<std::size_t>(
        std::distance(one.begin(), std::ranges::mismatch(one, other).in1));
}

TEST_F(GameFile, IsWrittenByteForByte)
{
    SetGoldenGame();
    const std::string written = Written();
    EXPECT_EQ(written.size(), 41360U);
    EXPECT_EQ(FirstDifference(written, GoldenFile()), 41360U);
}

TEST_F(GameFile, IsReadByteForByte)
{
    SetGoldenGame();
    StartGame(GameFromFile); // what reading ends in
    const GridTable grid = Grid;
    Restart();
    ASSERT_TRUE(Open(GoldenFile()));
    EXPECT_EQ(GameNumber, 123456789);
    EXPECT_EQ(StatsCounted, True);
    EXPECT_EQ(SolveSeconds, 3723.5);
    EXPECT_EQ(Grid, grid);
    EXPECT_EQ(HistoryCount, 77);
    EXPECT_EQ(HistoryPosition, 5);
    EXPECT_EQ(SnapshotAvailable, True);
    for (std::size_t slot = 0; slot <= 101; ++slot) {
        for (std::size_t column = 0; column <= 9; ++column) {
            for (std::size_t row = 0; row <= 9; ++row) {
                ASSERT_EQ(History[slot][column][row], MarkedWord(slot, column, row)) << slot;
            }
        }
    }
}

TEST_F(GameFile, ScratchSlotsAreNeitherWrittenNorRead)
{
    MarkGrid(History[103], 103);
    ASSERT_TRUE(Open(GoldenFile()));
    EXPECT_EQ(History[103][9][9], MarkedWord(103, 9, 9));
    EXPECT_EQ(History[104], GridTable{});
}

TEST_F(GameFile, FieldsWithoutMeaningAreZerosAndNotLookedAt)
{
    SetGoldenGame();
    const std::string clean = Written();
    std::string filled = clean;
    filled.replace(0, 8, "\xFF\xFF\xFF\xFF\xFF\xFF\xFF\x7F");
    for (std::size_t element = 2; element <= 9; ++element) {
        PutWord(filled, 2, element, 0xFFFFFFFF);
    }
    for (const std::size_t element : {0, 4, 5, 6, 7, 8, 9}) {
        PutWord(filled, 14, element, 0xFFFFFFFF);
    }
    Restart();
    ASSERT_TRUE(Open(filled));
    MarkGrid(Grid, GridMark);
    EXPECT_EQ(FirstDifference(Written(), clean), clean.size());
}

TEST_F(GameFile, OtherSpellingIsReadAndTheOneSpellingIsWritten)
{
    std::string file = GoldenFile();
    file.replace(8, 32, "Kelva Rine game file v1.0       ");
    file.replace(88, 32, "Kelva Rine game file v1.0       ");
    ASSERT_TRUE(Open(file));
    EXPECT_EQ(SolveSeconds, 3723.5);
    const std::string written = Written();
    EXPECT_EQ(written.substr(8, 32), PaddedHeader);
    EXPECT_EQ(written.substr(88, 32), PaddedHeader);
}

TEST_F(GameFile, BlanksRoundTheHeaderDoNotCountButItsLettersDo)
{
    std::string file = BareFile();
    file.replace(8, 32, "    Kelvarine game file v1.0    ");
    EXPECT_TRUE(Open(file));
    for (const std::string_view wrong :
         {"kelvarine game file v1.0        ", "Kelvarine game file v1.1        ",
          "KelvaRine game file v1.0        ", "Kelvarine game file v1.0       x",
          "\tKelvarine game file v1.0       "}) {
        file.replace(8, 32, wrong);
        EXPECT_FALSE(Open(file)) << wrong;
    }
}

TEST_F(GameFile, SecondHeaderIsNotLookedAt)
{
    std::string file = GoldenFile();
    file.replace(88, 32, 32, '?');
    EXPECT_TRUE(Open(file));
}

TEST_F(GameFile, HeaderCutShortIsJudgedByWhatIsThere)
{
    const std::string file = GoldenFile();
    EXPECT_FALSE(Open(file.substr(0, 31)));
    EXPECT_TRUE(Open(file.substr(0, 32)));
    EXPECT_TRUE(Open(file.substr(0, 35)));
    EXPECT_FALSE(Open(file.substr(0, 8)));
    EXPECT_FALSE(Open(""));
}

TEST_F(GameFile, WhatIsCutOffReadsAsZeros)
{
    SetGame(EasyGame);
    StartGame(NewGame);
    SolveSeconds = 12;
    // Two bytes of the game's number are left.
    ASSERT_TRUE(Open(GoldenFile().substr(0, 42)));
    EXPECT_EQ(GameNumber, 123456789 % 65536);
    EXPECT_EQ(StatsCounted, False);
    EXPECT_EQ(SolveSeconds, 0);
    EXPECT_EQ(Grid, GridTable{});
    EXPECT_EQ(HistoryCount, 0);
    EXPECT_EQ(History[0], GridTable{});
    EXPECT_EQ(History[101], GridTable{});
}

TEST_F(GameFile, SurplusAtTheEndIsIgnored)
{
    const std::string file = GoldenFile();
    ASSERT_TRUE(Open(file + std::string(1000, 'x')));
    MarkGrid(Grid, GridMark);
    EXPECT_EQ(FirstDifference(Written(), file), file.size());
}

// ---- Values of any kind --------------------------------------------------------------------

TEST_F(GameFile, FlagsAreKeptAsTheyStandAndWrittenBackSo)
{
    std::string file = BareFile();
    PutWord(file, 2, 1, 7);
    PutWord(file, 14, 3, 0x80000000);
    ASSERT_TRUE(Open(file));
    EXPECT_EQ(StatsCounted, 7);
    EXPECT_NE(SnapshotAvailable, False);
    const std::string written = Written();
    EXPECT_EQ(WordOf(written, 2, 1), 7U);
    EXPECT_EQ(WordOf(written, 14, 3), 0x80000000U);
}

TEST_F(GameFile, CountersAreBroughtIntoTheTable)
{
    struct Row {
        std::int32_t Count;
        std::int32_t Position;
        std::int32_t CountKept;
        std::int32_t PositionKept;
    };
    constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();
    constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
    for (const Row &row : {Row{100, 100, 100, 100},
                           {101, 101, 100, 100},
                           {most, most, 100, 100},
                           {most, least, 100, 0},
                           {least, most, 0, 0},
                           {-1, -1, 0, 0},
                           {5, 50, 5, 5},
                           {0, 0, 0, 0}}) {
        std::string file = BareFile();
        PutWord(file, 14, 1, static_cast<std::uint32_t>(row.Count));
        PutWord(file, 14, 2, static_cast<std::uint32_t>(row.Position));
        ASSERT_TRUE(Open(file));
        EXPECT_EQ(HistoryCount, row.CountKept) << row.Count;
        EXPECT_EQ(HistoryPosition, row.PositionKept) << row.Position;
        for (int step = 0; step < 102; ++step) {
            Undo();
        }
        PushUndoState();
        EXPECT_GE(HistoryCount, 1);
        EXPECT_LE(HistoryCount, 100);
        for (int step = 0; step < 102; ++step) {
            Redo();
        }
        EXPECT_EQ(HistoryPosition, 1);
    }
}

TEST_F(GameFile, TimesOfAnyKindAreHarmless)
{
    for (const double seconds :
         {std::nan(""), -std::nan(""), std::numeric_limits<double>::infinity(),
          -std::numeric_limits<double>::infinity(), std::numeric_limits<double>::max(),
          std::numeric_limits<double>::denorm_min(), -1.0, 1e18}) {
        std::string file = BareFile();
        const auto bits = std::bit_cast<std::uint64_t>(seconds);
        PutWord(file, 3, 0, static_cast<std::uint32_t>(bits));
        PutWord(file, 3, 1, static_cast<std::uint32_t>(bits >> 32U));
        ASSERT_TRUE(Open(file));
        EXPECT_EQ(std::bit_cast<std::uint64_t>(SolveSeconds), bits);
        EXPECT_EQ(WordOf(Written(), 3, 1), static_cast<std::uint32_t>(bits >> 32U));
        ClockTick();
        EXPECT_FALSE(TimeCaption.empty());
        mnuPauseTime();
        mnuPauseTime();
    }
}

TEST_F(GameFile, GameNumbersOfAnyKindSeedTheStream)
{
    for (const std::uint32_t number : {0x80000000U, 0xFFFFFFFFU, 0x7FFFFFFFU}) {
        std::string file = BareFile();
        PutWord(file, 2, 0, number);
        ASSERT_TRUE(Open(file));
        EXPECT_TRUE(SelectGameNumber(""));
        EXPECT_EQ(GameNumber, static_cast<std::int32_t>(number));
    }
}

TEST_F(GameFile, MarksOfAReadGameStayUntilTheNextScan)
{
    const CellWord marks = SelectedBit | HintCellBit | HintDomainBit | 12U << ColourShift;
    std::string file = BareFile();
    PutWord(file, 4 + 3, 7, 0x3FE | marks);
    ASSERT_TRUE(Open(file));
    EXPECT_EQ(WordAt({3, 7}), 0x3FE | marks);
}

} // namespace
} // namespace kelvarine::testing
