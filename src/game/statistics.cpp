#include "game/statistics.h"

#include "game/clock.h"
#include "game/screens.h"
#include "grid/digits.h"
#include "grid/grid.h"
#include "grid/little_endian.h"
#include "grid/rounding.h"
#include "logic/driver.h"
#include "outside/file_lock.h"
#include "outside/folders.h"
#include "outside/messages.h"
#include "outside/screens.h"
#include "outside/whole_file.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <limits>
#include <system_error>

namespace kelvarine {

StatisticsRecord SessionStats;
int StatisticsPatience = UsualStatisticsPatience;
std::array<StatisticsTable, 2> StatisticsLabels;

namespace {

constexpr std::size_t WordsPerLevel = 4;
constexpr std::size_t BytesPerWord = 4;
static_assert(StatisticsRecord().size() * WordsPerLevel * BytesPerWord == StatisticsFileSize);

// Columns of the tables that the text of a record goes to.
constexpr std::size_t PlayedColumn = 1;
constexpr std::size_t SolvedColumn = 2;
constexpr std::size_t BestColumn = 3;
constexpr std::size_t AvgColumn = 4;
constexpr std::size_t PercentColumn = 5;

// Set when the player knows that the file cannot be read or written, until that works again.
bool failureTold = false;

std::array<std::int32_t, WordsPerLevel> WordsOf(const LevelRecord &level)
{
    return {level.Played, level.Solved, level.BestTime, level.AvgTime};
}

// The nearest whole number that a word can hold; 0 for what is no number.
std::int32_t ToWord(double value)
{
    using Limits = std::numeric_limits<std::int32_t>;
    if (std::isnan(value)) {
        return 0;
    }
    return static_cast<std::int32_t>(
        std::clamp<double>(RoundHalfEven(value), Limits::min(), Limits::max()));
}

void AddSolvedGame(LevelRecord &level, double seconds)
{
    level.Solved = ToWord(level.Solved + 1.0);
    if (level.BestTime == 0 || seconds < level.BestTime) {
        level.BestTime = ToWord(seconds);
    }
    // A count of -1 can only come out of a damaged file.
    if (level.Solved != 0) {
        level.AvgTime = ToWord(((level.Solved - 1.0) * level.AvgTime + seconds) / level.Solved);
    }
}

// Tells the words of a failure, which are none when all went well.
void Tell(const std::string &failure)
{
    if (!failure.empty() && !failureTold) {
        failureTold = true;
        ShowMessage("Unable to save statistics.\r\r" + failure);
    }
}

// The words of a failure when the file is there and cannot be read; it must not be written over
// then.
std::string ReadStatistics(StatisticsRecord &record)
{
    std::string bytes;
    std::string error;
    const std::string path = StatisticsFilePath();
    if (!FileExists(path) || ReadWholeFile(path, bytes, error, StatisticsFileSize)) {
        record = StatisticsFrom(bytes);
    }
    return error;
}

std::string LockPath()
{
    return DataFolder() + "stats.lock";
}

// Why a lock is not held, in words.
std::string LockFailure(const FileLock &lock)
{
    return lock.State() == LockState::Busy ? "Another program is using them." : lock.Error();
}

// Counts a game in the file, into which no other program may come meanwhile. The words of a
// failure, or nothing; the lock is free by the time that they are told.
std::string RecordInFile(std::size_t level)
{
    const FileLock lock(LockPath(), StatisticsPatience);
    if (lock.State() != LockState::Held) {
        return LockFailure(lock);
    }
    StatisticsRecord all;
    std::string failure = ReadStatistics(all);
    if (failure.empty()) {
        AddSolvedGame(all[level], SolveSeconds);
        ReplaceWholeFile(StatisticsFilePath(), StatisticsBytes(all), failure);
    }
    return failure;
}

// The words of a failure, or nothing.
std::string DeleteFile()
{
    if (!FileExists(StatisticsFilePath())) {
        return {};
    }
    const FileLock lock(LockPath(), StatisticsPatience);
    if (lock.State() != LockState::Held) {
        return LockFailure(lock);
    }
    std::error_code failure;
    std::filesystem::remove(StatisticsFilePath(), failure);
    return failure ? failure.message() : std::string();
}

void ShowTime(std::string &label, std::int32_t seconds)
{
    if (seconds > 0) {
        label = StatisticsTime(seconds);
    }
}

void FillTotalRow(StatisticsTable &table, const StatisticsRecord &record)
{
    std::int64_t played = 0;
    std::int64_t solved = 0;
    std::int32_t best = 0;
    double time = 0;
    for (const LevelRecord &level : record) {
        played += level.Played;
        solved += level.Solved;
        time += static_cast<double>(level.AvgTime) * level.Solved;
        if (level.BestTime > 0 && (best == 0 || level.BestTime < best)) {
            best = level.BestTime;
        }
    }
    auto &row = table[TotalRow];
    row[PlayedColumn] = std::to_string(played);
    row[SolvedColumn] = std::to_string(solved);
    ShowTime(row[BestColumn], best);
    // Unlike the other times this one is shown at 0 too, and the percentage never is; intended.
    if (solved != 0) {
        row[AvgColumn] = StatisticsTime(ToWord(time / static_cast<double>(solved)));
    }
}

void ZeroLabels()
{
    for (StatisticsTable &table : StatisticsLabels) {
        for (std::size_t row = 0; row < table.size(); ++row) {
            table[row].fill("0");
            table[row][0] = StatisticsRowNames[row];
        }
    }
}

} // namespace

std::string StatisticsFilePath()
{
    return DataFolder() + "stats.sdu";
}

std::string StatisticsBytes(const StatisticsRecord &record)
{
    std::string bytes(StatisticsFileSize, '\0');
    std::size_t place = 0;
    for (const LevelRecord &level : record) {
        for (const std::int32_t word : WordsOf(level)) {
            PutNumber(bytes, place, static_cast<std::uint32_t>(word));
            place += BytesPerWord;
        }
    }
    return bytes;
}

StatisticsRecord StatisticsFrom(std::string_view bytes)
{
    std::string whole(bytes.substr(0, StatisticsFileSize));
    whole.resize(StatisticsFileSize, '\0');
    std::size_t place = 0;
    const auto next = [&] {
        const auto word = NumberAt<std::uint32_t>(whole, place);
        place += BytesPerWord;
        return static_cast<std::int32_t>(word);
    };
    StatisticsRecord record;
    for (LevelRecord &level : record) {
        level = {next(), next(), next(), next()};
    }
    return record;
}

std::string StatisticsTime(std::int32_t seconds)
{
    const std::int64_t size = std::abs(std::int64_t{seconds});
    return (seconds < 0 ? "-" : "") + std::to_string(size / 3600) + ":" +
           TwoDigits(size / 60 % 60) + ":" + TwoDigits(size % 60) + " ";
}

std::string PercentText(std::int32_t solved, std::int32_t played, PercentFormat format)
{
    const std::int64_t size = std::abs(std::int64_t{solved});
    const std::int64_t whole = played;
    if (solved < 0 && format == PercentFormat::WholeBelowZero) {
        return std::to_string((size * 200 + whole) / (2 * whole));
    }
    const std::int64_t tenths = (size * 2000 + whole) / (2 * whole);
    const std::string text = std::to_string(tenths / 10);
    return tenths % 10 == 0 ? text : text + "." + std::to_string(tenths % 10);
}

void FillStatisticsTable(StatisticsTable &table, const StatisticsRecord &record,
                         PercentFormat format)
{
    for (std::size_t k = 0; k < record.size(); ++k) {
        const LevelRecord &level = record[k];
        auto &row = table[k];
        row[PlayedColumn] = std::to_string(level.Played);
        row[SolvedColumn] = std::to_string(level.Solved);
        ShowTime(row[BestColumn], level.BestTime);
        ShowTime(row[AvgColumn], level.AvgTime);
        if (level.Played > 0) {
            row[PercentColumn] = PercentText(level.Solved, level.Played, format);
        }
    }
    FillTotalRow(table, record);
}

void SetStatisticsDefaults()
{
    SessionStats = {};
    StatisticsPatience = UsualStatisticsPatience;
    failureTold = false;
    ZeroLabels();
}

void RecordSolvedGame()
{
    const auto level = static_cast<std::size_t>(GameRating - RatedEasy);
    AddSolvedGame(SessionStats[level], SolveSeconds);
    const std::string failure = RecordInFile(level);
    failureTold = failureTold && !failure.empty();
    Tell(failure);
}

void LoadStatisticsScreen()
{
    StatisticsRecord all;
    if (FileExists(StatisticsFilePath())) {
        FillStatisticsTable(StatisticsLabels[SessionTable], SessionStats,
                            PercentFormat::OneDecimal);
        const std::string failure = ReadStatistics(all);
        if (failure.empty()) {
            FillStatisticsTable(StatisticsLabels[AllSessionsTable], all,
                                PercentFormat::WholeBelowZero);
        }
        Tell(failure);
    }
    RefreshStatisticsScreen();
}

void mnuStatistics()
{
    StatisticsOpen = True;
    ShowStatisticsScreen();
    LoadStatisticsScreen();
}

void cmdClearStats()
{
    if (SearchActive != False || !AskYesNo("Are you sure you want to clear your statistics?")) {
        return;
    }
    ZeroLabels();
    SessionStats = {};
    const std::string failure = DeleteFile();
    RefreshStatisticsScreen();
    if (!failure.empty()) {
        ShowMessage(failure);
    }
}

} // namespace kelvarine
