// The count of the games that the player has solved, by level: of this run in memory, of all runs
// in a file, and the words of the screen that shows both.
#pragma once

#include "grid/rating_words.h"
#include "logic/driver.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace kelvarine {

struct LevelRecord {
    std::int32_t Played = 0; // nothing ever raises it
    std::int32_t Solved = 0;
    std::int32_t BestTime = 0; // in seconds; 0 when there is none
    std::int32_t AvgTime = 0;

    friend constexpr bool operator==(const LevelRecord &, const LevelRecord &) = default;
};

// Levels 1 to 5, easy to extreme.
using StatisticsRecord = std::array<LevelRecord, 5>;

extern StatisticsRecord SessionStats;

// How long a program that is changing the file is waited for, in milliseconds.
inline constexpr int UsualStatisticsPatience = 1000;
extern int StatisticsPatience;

// ---- The file ------------------------------------------------------------------------------

// One record of so many bytes: the words of the levels one after the other, little-endian.
inline constexpr std::size_t StatisticsFileSize = 80;

std::string StatisticsFilePath();

std::string StatisticsBytes(const StatisticsRecord &record);

// Reads the bytes of a file. What is missing at the end counts as zeros, what is too much is
// ignored.
StatisticsRecord StatisticsFrom(std::string_view bytes);

// ---- The tables on the screen --------------------------------------------------------------

inline constexpr std::size_t SessionTable = 0;
inline constexpr std::size_t AllSessionsTable = 1;
inline constexpr std::size_t TotalRow = 5;

struct StatisticsColumn {
    std::string_view Heading;
    bool Visible;
};

inline constexpr std::array<std::string_view, 2> StatisticsTitles{"This session", "All Sessions"};
inline constexpr std::array<std::string_view, 6> StatisticsRowNames{
    RatingWords[RatedEasy].Title,     RatingWords[RatedMedium].Title,  RatingWords[RatedHard].Title,
    RatingWords[RatedVeryHard].Title, RatingWords[RatedExtreme].Title, "Total"};
inline constexpr std::array<StatisticsColumn, 6> StatisticsColumns{{{"Games", true},
                                                                    {"Played", false},
                                                                    {"Solved", true},
                                                                    {"Best Time", true},
                                                                    {"Avg Time", true},
                                                                    {"%", false}}};

// Texts of the labels by row and column.
using StatisticsTable = std::array<std::array<std::string, 6>, 6>;

// The two tables as they stand; they outlast the screen. All columns but the first start at "0".
extern std::array<StatisticsTable, 2> StatisticsLabels;

// How a percentage is written when it is below zero; above, it has one decimal at most.
enum class PercentFormat : std::uint8_t { OneDecimal, WholeBelowZero };

// A time as hours, minutes and seconds with a blank behind it. Any 32-bit number will do.
std::string StatisticsTime(std::int32_t seconds);

// solved in hundredths of played, which is above 0. There is no sign below zero.
std::string PercentText(std::int32_t solved, std::int32_t played, PercentFormat format);

// Writes a record into the labels of a table. A label without a time to show keeps its text.
void FillStatisticsTable(StatisticsTable &table, const StatisticsRecord &record,
                         PercentFormat format);

// ---- Commands ------------------------------------------------------------------------------

// Puts all of the above to its defaults: nothing counted in this session.
void SetStatisticsDefaults();

// Counts a solved game of the level GameRating, 1..5, in SolveSeconds: in this session and in the
// file. When the file fails, the player is told once, and the session counts all the same.
void RecordSolvedGame();

// Brings the tables up to date, unless there is no file yet, and the screen with them.
void LoadStatisticsScreen();

// Opens the statistics screen.
void mnuStatistics();

// Asks, and then clears both tables and the session and deletes the file.
void cmdClearStats();

} // namespace kelvarine
