#include "files/game_file.h"

#include "files/player_file.h"
#include "files/recovery.h"
#include "files/text_case.h"
#include "files/text_format.h"
#include "game/clock.h"
#include "game/game_in_hand.h"
#include "game/lifecycle.h"
#include "game/undo.h"
#include "generator/game_number.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "grid/little_endian.h"
#include "outside/whole_file.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>

namespace kelvarine {

namespace {

// ---- Layout: records of ten little-endian words, numbered from 1 -----------------------------

constexpr std::size_t WordSize = 4;
constexpr std::size_t RecordWords = 10;
constexpr std::size_t RecordSize = RecordWords * WordSize;

constexpr std::size_t HeaderRecord = 1;
constexpr std::size_t NumberRecord = 2;
constexpr std::size_t NumberElement = 0;
constexpr std::size_t TimeRecord = 3; // a 64-bit float, then the header once more
constexpr std::size_t GridRecord = 4;
constexpr std::size_t HistoryWords = 14; // its counters
constexpr std::size_t HistoryCountElement = 1;
constexpr std::size_t HistoryPositionElement = 2;
constexpr std::size_t HistoryRecord = 15;
constexpr std::size_t SavedSlots = SnapshotSlot + 1; // the slots above are scratch
constexpr std::size_t LastRecord = HistoryRecord + SavedSlots * RecordWords - 1;
static_assert(LastRecord == 1034 && GameFileSize == LastRecord * RecordSize);
static_assert(TimePlace == (TimeRecord - 1) * RecordSize && TimeSize == sizeof(SolveSeconds));

// The single words; all others outside the grids mean nothing and are written as zeros.
struct WordField {
    std::size_t Record;
    std::size_t Element;
    std::int32_t *Value;
};

constexpr std::array WordFields{
    WordField{NumberRecord, NumberElement, &GameNumber},
    WordField{NumberRecord, 1, &StatsCounted},
    WordField{HistoryWords, HistoryCountElement, &HistoryCount},
    WordField{HistoryWords, HistoryPositionElement, &HistoryPosition},
    WordField{HistoryWords, 3, &SnapshotAvailable},
};

constexpr std::size_t HeaderStart = 8; // within its record
constexpr std::size_t HeaderSize = 32;
constexpr std::string_view Header = "Kelvarine game file v1.0";
constexpr std::string_view OtherHeader = "Kelva Rine game file v1.0"; // read, never written

constexpr int AllCells = 81;

// Place of an element of a word record in the file.
constexpr std::size_t PlaceOf(std::size_t record, std::size_t element = 0)
{
    return (record - 1) * RecordSize + element * WordSize;
}

// ---- Grids to bytes and back --------------------------------------------------------------------

// A grid takes ten records, one for each column, line 0 included.
void PutGrid(std::string &bytes, std::size_t record, const GridTable &grid)
{
    for (std::size_t column = 0; column < grid.size(); ++column) {
        for (std::size_t row = 0; row < RecordWords; ++row) {
            PutNumber(bytes, PlaceOf(record + column, row), grid[column][row]);
        }
    }
}

void PutHistory(std::string &bytes, const std::array<GridTable, HistorySlots> &history)
{
    for (std::size_t slot = 0; slot < SavedSlots; ++slot) {
        PutGrid(bytes, HistoryRecord + slot * RecordWords, history[slot]);
    }
}

void TakeGrid(std::string_view bytes, std::size_t record, GridTable &grid)
{
    for (std::size_t column = 0; column < grid.size(); ++column) {
        for (std::size_t row = 0; row < RecordWords; ++row) {
            grid[column][row] = NumberAt<CellWord>(bytes, PlaceOf(record + column, row));
        }
    }
}

// ---- A whole game ----------------------------------------------------------------------------

void PutHeader(std::string &bytes, std::size_t record)
{
    const std::size_t place = PlaceOf(record) + HeaderStart;
    bytes.replace(place, HeaderSize, HeaderSize, ' ');
    bytes.replace(place, Header.size(), Header);
}

// The values are taken as they stand but for the counters, which lead into the table: a file may
// hold anything.
void BringCountersIntoRange()
{
    HistoryCount = std::clamp(HistoryCount, 0, OldestSlot);
    HistoryPosition = std::clamp(HistoryPosition, 0, HistoryCount);
}

// What is missing at the end reads as zeros.
std::string WithFullLength(std::string_view contents)
{
    std::string bytes(contents.substr(0, GameFileSize));
    bytes.resize(GameFileSize, '\0');
    return bytes;
}

double TimeIn(std::string_view bytes)
{
    return std::bit_cast<double>(NumberAt<std::uint64_t>(bytes, PlaceOf(TimeRecord)));
}

void TakeGame(std::string_view contents)
{
    const std::string bytes = WithFullLength(contents);
    for (const WordField &field : WordFields) {
        *field.Value = static_cast<std::int32_t>(
            NumberAt<std::uint32_t>(bytes, PlaceOf(field.Record, field.Element)));
    }
    BringCountersIntoRange();
    SolveSeconds = TimeIn(bytes);
    TakeGrid(bytes, GridRecord, Grid);
    for (std::size_t slot = 0; slot < SavedSlots; ++slot) {
        TakeGrid(bytes, HistoryRecord + slot * RecordWords, History[slot]);
    }
}

// ---- A position as text ----------------------------------------------------------------------

// First by runs of digits; where that does not fill the grid, by characters, which understands 81
// digits with nothing between them.
bool TakeText(std::string_view contents)
{
    History[SafeCopySlot] = Grid;
    Grid = {};
    if (ReadByDigitRuns(contents) == AllCells) {
        return true;
    }
    Grid = {};
    if (ReadByCharacters(contents) == AllCells) {
        return true;
    }
    Grid = History[SafeCopySlot];
    return false;
}

} // namespace

std::string GameFileBytes()
{
    return GameFileBytes(Grid);
}

std::string GameFileBytes(const GameInHand &game)
{
    std::string bytes = GameFileBytes(game.Cells);
    PutNumber(bytes, PlaceOf(NumberRecord, NumberElement), static_cast<std::uint32_t>(game.Number));
    PutNumber(bytes, PlaceOf(HistoryWords, HistoryCountElement),
              static_cast<std::uint32_t>(game.Count));
    PutNumber(bytes, PlaceOf(HistoryWords, HistoryPositionElement),
              static_cast<std::uint32_t>(game.Position));
    PutHistory(bytes, game.Levels);
    return bytes;
}

std::string GameFileBytes(const GridTable &cells)
{
    std::string bytes(GameFileSize, '\0');
    PutHeader(bytes, HeaderRecord);
    PutHeader(bytes, TimeRecord);
    PutNumber(bytes, PlaceOf(TimeRecord), std::bit_cast<std::uint64_t>(SolveSeconds));
    for (const WordField &field : WordFields) {
        PutNumber(bytes, PlaceOf(field.Record, field.Element),
                  static_cast<std::uint32_t>(*field.Value));
    }
    PutGrid(bytes, GridRecord, cells);
    PutHistory(bytes, History);
    return bytes;
}

bool WriteGameFile()
{
    if (GameFilePath.empty()) {
        return false;
    }
    const bool asText = GameFilePath.ends_with(TextExtension);
    if (!SavePlayerFile(GameFilePath, asText ? TextFileText() : GameFileBytes())) {
        return false;
    }
    FileWasText = False;
    // A text keeps but a part of the game, so the game stays modified.
    if (!asText) {
        GameModified = False;
        DropRecovery();
    }
    return true;
}

// A header that the end of the file cuts short is judged by what is there.
bool IsWholeGame(std::string_view contents)
{
    if (contents.size() <= HeaderStart) {
        return false;
    }
    const std::string_view header = WithoutOuterBlanks(contents.substr(HeaderStart, HeaderSize));
    return header == Header || header == OtherHeader;
}

bool ReadCells(std::string_view contents, double &seconds)
{
    if (!IsWholeGame(contents)) {
        seconds = -1;
        return TakeText(contents);
    }
    const std::string bytes = WithFullLength(contents);
    seconds = TimeIn(bytes);
    TakeGrid(bytes, GridRecord, Grid);
    return true;
}

bool ReadGame(std::string_view contents)
{
    const bool whole = IsWholeGame(contents);
    if (whole) {
        TakeGame(contents);
    } else if (!TakeText(contents)) {
        return false;
    }
    FileWasText = whole ? False : True;
    StartGame(GameFromFile);
    return true;
}

bool ReadGameFile(const std::string &path)
{
    std::string contents;
    std::string error;
    return !path.empty() && ReadWholeFile(path, contents, error) && ReadGame(contents);
}

} // namespace kelvarine
