#include "files/recovery.h"

#include "files/game_file.h"
#include "files/recovered_folder.h"
#include "files/recovery_place.h"
#include "game/clock.h"
#include "game/game_in_hand.h"
#include "game/lifecycle.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "logic/driver.h"
#include "outside/events.h"
#include "outside/later_write.h"
#include "outside/messages.h"
#include "outside/timers.h"
#include "outside/whole_file.h"

#include <optional>
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

// ---- Places --------------------------------------------------------------------------------

RecoveryPlace own;
RecoveryPlace lost;

// What stands in the own file on the disk and in the fresh one, or is on its way there; empty when
// nothing does.
std::string kept;
std::string keptFresh;

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
    if (IsHeld(own) && !own.IsWritten && GameStandsIn(own)) {
        own = {}; // on a disk without locks another program may hold the same
    }
    for (int number = 1; !IsHeld(own) && number <= MostPrograms; ++number) {
        if (GameStandsAt(number)) {
            continue; // another program's, or one that is to be offered
        }
        own = HoldPlace(number);
        if (own.Lock->State() == LockState::Failed) {
            return own.Lock->Error();
        }
        // It may have come between the look and the lock.
        if (IsHeld(own) && GameStandsIn(own)) {
            own = {};
        }
    }
    return IsHeld(own) ? std::string() : "Too many programs are running.";
}

void RemoveOwnFiles()
{
    if (own.IsWritten) {
        RemoveFiles(own);
        own.IsWritten = false;
        kept.clear();
        keptFresh.clear();
    }
}

// Waits for what is on its way. The words of a failure, or nothing.
std::string EndWrites()
{
    if (!EndWrite(Reach::System).empty()) {
        keptFresh.clear(); // the disk may take it all the same
    }
    return EndWrite(Reach::Disk);
}

void GiveUpPlace()
{
    EndWrites();
    RemoveOwnFiles();
    own = {};
}

// ---- Writing ---------------------------------------------------------------------------------

// True when of what stands in a file the clock alone has gone on since, which is written over where
// it stands: the disk takes the eight bytes or does not.
bool KeepTimeAlone(const std::string &path, const std::string &there, const std::string &bytes)
{
    if (there.size() != bytes.size() || there.compare(0, TimePlace, bytes, 0, TimePlace) != 0 ||
        there.compare(TimePlace + TimeSize, std::string::npos, bytes, TimePlace + TimeSize) != 0) {
        return false;
    }
    return OverwritePart(path, TimePlace, std::string_view(bytes).substr(TimePlace, TimeSize));
}

// Adds the write that brings a game into the system's hands, so that the program may be killed;
// none where it is there, but for the time, or where nothing is safe there.
void AddFresh(std::vector<LaterWrite> &writes, const std::string &bytes)
{
    std::string fresh = FreshBytes(bytes);
    if (!fresh.empty() && bytes != keptFresh && !KeepTimeAlone(own.FreshPath, keptFresh, bytes)) {
        writes.push_back({own.FreshPath, std::move(fresh), Reach::System});
    }
    keptFresh = bytes;
}

void Begin(std::vector<LaterWrite> writes)
{
    if (!writes.empty()) {
        own.IsWritten = true;
        BeginWrite(std::move(writes));
    }
}

// While the disk is still at work on an earlier game.
void KeepMeanwhile(const std::string &bytes)
{
    std::vector<LaterWrite> writes;
    AddFresh(writes, bytes);
    Begin(std::move(writes));
}

void Keep(const std::string &bytes)
{
    if (bytes == kept) {
        return;
    }
    if (const std::string failure = FindPlace(); !failure.empty()) {
        TellFailure(failure);
        return;
    }
    std::vector<LaterWrite> writes;
    AddFresh(writes, bytes);
    if (!KeepTimeAlone(own.Path, kept, bytes)) {
        writes.push_back({own.Path, bytes, Reach::Disk});
    }
    Begin(std::move(writes));
    kept = bytes;
}

// True when nothing is being written any more, or never was. What has failed is told, and tried
// again the next time.
bool LastWriteIsDone()
{
    if (IsWriting()) {
        return false;
    }
    if (const std::string failure = EndWrites(); !failure.empty()) {
        TellFailure(failure);
        return false;
    }
    failureTold = failureTold && kept.empty();
    return true;
}

// The look that a run of the logic was in the way of; the next one comes an interval later.
void LookNow()
{
    if (!hasEnded) {
        SetRecoveryTimer(true, RecoveryInterval);
        RecoveryTick();
    }
}

} // namespace

void SetRecoveryDefaults()
{
    EndWrites();
    hasEnded = false;
    own = {};
    lost = {};
    kept.clear();
    keptFresh.clear();
    failureTold = false;
}

void RecoveryTick()
{
    const bool diskIsFree = LastWriteIsDone();
    if (!IsModified()) {
        if (diskIsFree) {
            RemoveOwnFiles();
        }
    } else if (const std::optional<std::string> bytes = RecoveryBytes()) {
        if (diskIsFree) {
            Keep(*bytes);
        } else if (own.IsWritten && !IsWriting(Reach::System)) {
            KeepMeanwhile(*bytes);
        }
    } else {
        CallFromEventLoop(LookNow); // which may still find the run there
    }
}

bool WriteRecovery()
{
    if (hasEnded) {
        return true;
    }
    if (!EndWrites().empty()) {
        kept.clear();
    }
    if (!IsModified()) {
        RemoveOwnFiles();
        return true;
    }
    const std::optional<std::string> bytes = RecoveryBytes();
    if (!bytes || !FindPlace().empty()) {
        return false;
    }
    std::vector<LaterWrite> writes;
    AddFresh(writes, *bytes);
    writes.push_back({own.Path, *bytes, Reach::Disk});
    Begin(std::move(writes));
    kept = *bytes;
    if (!EndWrites().empty()) {
        kept.clear(); // the new bytes may have come there before it failed
        return false;
    }
    return true;
}

void DropRecovery()
{
    EndWrites();
    RemoveOwnFiles();
}

void EndRecovery(bool answered)
{
    hasEnded = true;
    EndWrites();
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
    for (const int number : PlacesOfGames()) {
        lost = HoldPlace(number);
        if (IsHeld(lost) && GameStandsIn(lost)) {
            return true;
        }
    }
    lost = {};
    return false;
}

bool TakeLostGame()
{
    const std::string bytes = GameIn(lost);
    if (bytes.size() < FilePath || !IsWholeGame(bytes) || !ReadGame(bytes)) {
        return false;
    }
    GiveUpPlace();
    own = std::move(lost);
    own.IsWritten = true;
    (IsOnDisk(own) ? kept : keptFresh) = bytes;
    TakeItsFile(bytes);
    GameModified = True;
    return true;
}

bool PutLostGameAside()
{
    const bool moved = BringToDisk(lost) && KeepRecoveredGame(lost.Path);
    if (moved) {
        RemoveFiles(lost); // what is left of another start of the machine
    }
    lost = {};
    return moved;
}

} // namespace kelvarine
