// Any bytes as a game file, and then what a player does with the game: undo, redo, snapshot, a look
// at it, saving.
#include "files/game_file.h"
#include "fuzz/fuzz.h"
#include "game/clock.h"
#include "game/lifecycle.h"
#include "game/undo.h"
#include "generator/game_number.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "support/random_positions.h"

#include <random>

namespace kelvarine::testing {

namespace {

constexpr std::size_t CountersPlace = std::size_t{13} * 40; // of the record of the history

constexpr std::int32_t ShortChains = 6; // links

// The first bytes of a game file mean nothing, so they choose the settings that matter here.
void ChooseSettings(std::string_view file)
{
    std::uint32_t choice = 0;
    for (std::size_t place = 0; place < 4 && place < file.size(); ++place) {
        choice = choice << 8 | static_cast<std::uint8_t>(file[place]);
    }
    AlertMask = choice & 0x7FFFE;
    // Cells full of equal pairs have more chains than a scan without limits can walk.
    MaxSinglesLinks = ShortChains;
    MaxRPLinks = ShortChains;
    MaxXYLinks = ShortChains;
    IncludeSingles = (choice & 0x80000) != 0 ? True : False;
}

void WalkHistory()
{
    LookAtBoard();
    for (int step = 0; step <= OldestSlot; ++step) {
        Undo();
    }
    RequireSoundState();
    Require(HistoryPosition == HistoryCount, "undo comes to its end");
    LookAtBoard();
    for (int step = 0; step <= OldestSlot; ++step) {
        Redo();
    }
    Require(HistoryPosition <= 1, "redo comes to its end");
    LookAtBoard();
}

void PlayOn()
{
    Undo();
    if (SnapshotAvailable != False) {
        mnuUseSnapshot();
        RequireSoundState();
    }
    mnuTakeSnapshot();
    Undo();
    PushUndoState();
    RequireSoundState();
    ClockTick();
    mnuPauseTime();
    LookAtBoard();
    mnuPauseTime();
    SelectGameNumber("");
}

void SaveAndOpen()
{
    const std::string saved = GameFileBytes();
    Require(saved.size() == 41360, "a game file has its size");
    Require(ReadGame(saved), "what was saved can be opened");
    Require(std::string_view(GameFileBytes()).substr(CountersPlace) ==
                std::string_view(saved).substr(CountersPlace),
            "the history comes back the same");
}

} // namespace

std::vector<std::string> LongSeeds()
{
    std::vector<std::string> seeds;
    std::mt19937 random(1);
    for (const PositionKind kind : PositionKinds) {
        RestartWithBoard();
        for (int level = 0; level < 110; ++level) {
            SetRandomPosition(random, kind, 81 - level % 82);
            PushUndoState();
        }
        mnuTakeSnapshot();
        HistoryPosition = static_cast<std::int32_t>(1 + random() % 100);
        seeds.push_back(GameFileBytes());
    }
    return seeds;
}

} // namespace kelvarine::testing

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace kelvarine;
    using namespace kelvarine::testing;
    RestartWithBoard();
    ChooseSettings(TextOf(data, size));
    GameFilePath = "any.sdk";
    if (ReadGame(TextOf(data, size))) {
        RequireSoundState();
        WalkHistory();
        PlayOn();
        SaveAndOpen();
    }
    return 0;
}
