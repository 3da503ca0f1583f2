#include "files/recovery.h"

#include "files/game_file.h"
#include "files/recovered_folder.h"
#include "game/clock.h"
#include "game/game_in_hand.h"
#include "game/lifecycle.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "logic/driver.h"
#include "outside/file_lock.h"
#include "outside/folders.h"
#include "outside/later_write.h"
#include "outside/messages.h"
#include "outside/whole_file.h"

#include <algorithm>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <system_error>
#include <utility>
#include <vector>

namespace kelvarine {

namespace {

// ---- The file: a game file, and behind it what such a file does not tell ---------------------

constexpr char OfAGame = 'G'; // what the game's own file holds
constexpr char OfAText = 'T';
constexpr char Running = 'R'; // the clock
constexpr char Paused = 'P';
constexpr std::size_t FileSign = GameFileSize;
constexpr std::size_t ClockSign = FileSign + 1;
constexpr std::size_t FilePath = ClockSign + 1; // to the end

std::string WithItsFile(const std::string &game)
{
    const char ofWhat = FileWasText != False ? OfAText : OfAGame;
    return game + ofWhat + (IsPaused() ? Paused : Running) + GameFilePath;
}

// What stands behind the game, of a game that has just been read.
void TakeItsFile(const std::string &bytes)
{
    FileWasText = bytes[FileSign] == OfAText ? True : False;
    GameFilePath = bytes.substr(FilePath);
    ShowTimeOfGame();
    if (bytes[ClockSign] == Paused && ClockRunning != False) {
        mnuPauseTime();
    }
}

// The game in hand, wherever it is kept at the moment; nothing while it cannot be told from what
// the logic does on the board.
std::optional<std::string> RecoveryBytes()
{
    if (GameAside != nullptr) {
        return WithItsFile(GameFileBytes(*GameAside));
    }
    if (SearchKind == ListingSolutions) {
        return WithItsFile(GameFileBytes(History[SolutionsCopySlot]));
    }
    if (RunUnderWay != False) {
        return std::nullopt;
    }
    return WithItsFile(GameFileBytes());
}

bool IsModified()
{
    return (GameAside != nullptr ? GameAside->Modified : GameModified) != False;
}

// ---- Places: each program has a number of its own --------------------------------------------

constexpr int MostPrograms = 100;

struct Place {
    std::string Path;
    std::unique_ptr<FileLock> Lock;
    bool IsWritten = false; // so that what stands there is this program's, whole or begun
};

std::string PathOf(int number)
{
    return DataFolder() + "recovery-" + std::to_string(number) + ".sdk";
}

// Takes a place that no program holds; not Held when it cannot be had.
Place Hold(int number)
{
    return {PathOf(number),
            std::make_unique<FileLock>(
                DataFolder() + "recovery-" + std::to_string(number) + ".lock", 0, LockFile::Goes),
            false};
}

bool IsHeld(const Place &place)
{
    return place.Lock != nullptr && place.Lock->State() == LockState::Held;
}

// The numbers of the recovery files that there are, the newest first.
std::vector<int> KeptGames()
{
    std::vector<std::pair<std::filesystem::file_time_type, int>> games;
    for (int number = 1; number <= MostPrograms; ++number) {
        std::error_code failure;
        const auto changed = std::filesystem::last_write_time(PathOf(number), failure);
        if (!failure) {
            games.emplace_back(changed, number);
        }
    }
    std::ranges::sort(games, std::greater());
    std::vector<int> numbers;
    numbers.reserve(games.size());
    for (const auto &[changed, number] : games) {
        numbers.push_back(number);
    }
    return numbers;
}

Place own;
Place lost;

// What stands in the own file, or is on its way there; empty when nothing does.
std::string kept;

// Set at the end of the program.
bool hasEnded = false;

// Set when the player knows that the game is not safe, until it is again.
bool failureTold = false;

void TellFailure(const std::string &words)
{
    kept.clear();
    if (!failureTold) {
        failureTold = true;
        ShowMessage("Unable to keep a copy of this game.\r\r" + words);
    }
}

// Finds a place of one's own. The words of a failure, or nothing.
std::string FindPlace()
{
    if (IsHeld(own) && !own.IsWritten && FileExists(own.Path)) {
        own = {}; // on a disk without locks another program may hold the same
    }
    for (int number = 1; !IsHeld(own) && number <= MostPrograms; ++number) {
        if (FileExists(PathOf(number))) {
            continue; // another program's, or one that is to be offered
        }
        own = Hold(number);
        if (own.Lock->State() == LockState::Failed) {
            return own.Lock->Error();
        }
        // It may have come between the look and the lock.
        if (IsHeld(own) && FileExists(own.Path)) {
            own = {};
        }
    }
    return IsHeld(own) ? std::string() : "Too many programs are running.";
}

void RemoveOwnFile()
{
    if (own.IsWritten) {
        std::error_code unseen;
        std::filesystem::remove(own.Path, unseen);
        own.IsWritten = false;
        kept.clear();
    }
}

void GiveUpPlace()
{
    EndWrite();
    RemoveOwnFile();
    own = {};
}

// ---- Writing ---------------------------------------------------------------------------------

// True when the clock alone has gone on since, which is written over where it stands: the disk
// takes the eight bytes or does not.
bool KeepTimeAlone(const std::string &bytes)
{
    if (kept.size() != bytes.size() || kept.compare(0, TimePlace, bytes, 0, TimePlace) != 0 ||
        kept.compare(TimePlace + TimeSize, std::string::npos, bytes, TimePlace + TimeSize) != 0) {
        return false;
    }
    return OverwritePart(own.Path, TimePlace, std::string_view(bytes).substr(TimePlace, TimeSize));
}

void Keep(const std::string &bytes)
{
    if (bytes == kept) {
        return;
    }
    if (!KeepTimeAlone(bytes)) {
        if (const std::string failure = FindPlace(); !failure.empty()) {
            TellFailure(failure);
            return;
        }
        own.IsWritten = true;
        BeginWrite(own.Path, bytes);
    }
    kept = bytes;
}

// True when nothing is being written any more, or never was. What has failed is told, and tried
// again the next time.
bool LastWriteIsDone()
{
    if (IsWriting()) {
        return false;
    }
    if (const std::string failure = EndWrite(); !failure.empty()) {
        TellFailure(failure);
        return false;
    }
    failureTold = failureTold && kept.empty();
    return true;
}

} // namespace

void SetRecoveryDefaults()
{
    EndWrite();
    hasEnded = false;
    own = {};
    lost = {};
    kept.clear();
    failureTold = false;
}

void RecoveryTick()
{
    if (!LastWriteIsDone()) {
        return;
    }
    if (!IsModified()) {
        RemoveOwnFile();
    } else if (const std::optional<std::string> bytes = RecoveryBytes()) {
        Keep(*bytes);
    }
}

bool WriteRecovery()
{
    if (hasEnded) {
        return true;
    }
    if (!EndWrite().empty()) {
        kept.clear();
    }
    if (!IsModified()) {
        RemoveOwnFile();
        return true;
    }
    const std::optional<std::string> bytes = RecoveryBytes();
    std::string error;
    if (!bytes || !FindPlace().empty()) {
        return false;
    }
    own.IsWritten = true;
    if (!ReplaceWholeFile(own.Path, *bytes, error)) {
        kept.clear(); // the new bytes may have come there before it failed
        return false;
    }
    kept = *bytes;
    return true;
}

void DropRecovery()
{
    EndWrite();
    RemoveOwnFile();
}

void EndRecovery(bool answered)
{
    hasEnded = true;
    EndWrite();
    if (answered) {
        GiveUpPlace();
    }
}

bool RecoveryHasEnded()
{
    return hasEnded;
}

// ---- Games of programs that have gone --------------------------------------------------------

bool FindLostGame()
{
    for (const int number : KeptGames()) {
        lost = Hold(number);
        if (IsHeld(lost) && FileExists(lost.Path)) {
            return true;
        }
    }
    lost = {};
    return false;
}

bool TakeLostGame()
{
    std::string bytes;
    std::string unread;
    if (!ReadWholeFile(lost.Path, bytes, unread) || bytes.size() < FilePath ||
        !IsWholeGame(bytes) || !ReadGame(bytes)) {
        return false;
    }
    GiveUpPlace();
    own = std::move(lost);
    own.IsWritten = true;
    kept = bytes;
    TakeItsFile(bytes);
    GameModified = True;
    return true;
}

bool PutLostGameAside()
{
    const bool moved = KeepRecoveredGame(lost.Path);
    lost = {};
    return moved;
}

} // namespace kelvarine
