#include "files/recovery_place.h"

#include "outside/folders.h"
#include "outside/machine_start.h"
#include "outside/whole_file.h"

#include <algorithm>
#include <filesystem>
#include <functional>
#include <optional>
#include <system_error>
#include <utility>

namespace kelvarine {

namespace {

using FileTime = std::filesystem::file_time_type;

std::string BeginningOf(int number)
{
    return DataFolder() + "recovery-" + std::to_string(number);
}

// A place that is only looked at.
RecoveryPlace PlaceOf(int number)
{
    return {BeginningOf(number) + ".sdk", BeginningOf(number) + ".fresh", nullptr, false};
}

const std::string &ThisStart()
{
    static const std::string start = MachineStart();
    return start;
}

// The game in a fresh file; nothing when there is none of this start of the machine.
std::optional<std::string> FreshGame(const RecoveryPlace &place)
{
    std::string bytes;
    std::string untold;
    if (ThisStart().empty() || !ReadWholeFile(place.FreshPath, bytes, untold) ||
        !bytes.ends_with(ThisStart())) {
        return std::nullopt;
    }
    bytes.resize(bytes.size() - ThisStart().size());
    return bytes;
}

// When the game that stands in a place came there.
std::optional<FileTime> TimeOfGame(const RecoveryPlace &place)
{
    std::error_code failure;
    const bool isFresh = FreshGame(place).has_value();
    const FileTime time =
        std::filesystem::last_write_time(isFresh ? place.FreshPath : place.Path, failure);
    return failure ? std::nullopt : std::optional(time);
}

} // namespace

RecoveryPlace HoldPlace(int number)
{
    RecoveryPlace place = PlaceOf(number);
    place.Lock = std::make_unique<FileLock>(BeginningOf(number) + ".lock", 0, LockFile::Goes);
    return place;
}

bool IsHeld(const RecoveryPlace &place)
{
    return place.Lock != nullptr && place.Lock->State() == LockState::Held;
}

bool GameStandsIn(const RecoveryPlace &place)
{
    return FileExists(place.Path) || FreshGame(place).has_value();
}

bool GameStandsAt(int number)
{
    return GameStandsIn(PlaceOf(number));
}

std::vector<int> PlacesOfGames()
{
    std::vector<std::pair<FileTime, int>> games;
    for (int number = 1; number <= MostPrograms; ++number) {
        if (const std::optional<FileTime> time = TimeOfGame(PlaceOf(number))) {
            games.emplace_back(*time, number);
        }
    }
    std::ranges::sort(games, std::greater());
    std::vector<int> numbers;
    numbers.reserve(games.size());
    for (const auto &[time, number] : games) {
        numbers.push_back(number);
    }
    return numbers;
}

std::string FreshBytes(const std::string &game)
{
    return ThisStart().empty() ? std::string() : game + ThisStart();
}

std::string GameIn(const RecoveryPlace &place)
{
    if (std::optional<std::string> game = FreshGame(place)) {
        return *std::move(game);
    }
    std::string bytes;
    std::string untold;
    ReadWholeFile(place.Path, bytes, untold);
    return bytes;
}

bool IsOnDisk(const RecoveryPlace &place)
{
    return !FreshGame(place);
}

bool BringToDisk(const RecoveryPlace &place)
{
    const std::optional<std::string> game = FreshGame(place);
    if (!game) {
        return true;
    }
    const std::optional<FileTime> time = TimeOfGame(place);
    std::string untold;
    if (!ReplaceWholeFile(place.Path, *game, untold)) {
        return false;
    }
    std::error_code unseen;
    if (time) {
        std::filesystem::last_write_time(place.Path, *time, unseen);
    }
    std::filesystem::remove(place.FreshPath, unseen);
    return true;
}

void RemoveFiles(const RecoveryPlace &place)
{
    std::error_code unseen;
    std::filesystem::remove(place.FreshPath, unseen);
    std::filesystem::remove(place.Path, unseen);
}

} // namespace kelvarine
