// What play can reach is kept by the game file, and of it the text keeps what text can keep.
#include "files/game_file.h"
#include "game/assistance.h"
#include "game/clock.h"
#include "game/lifecycle.h"
#include "game/undo.h"
#include "generator/game_number.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "input/keys.h"
#include "input/mouse.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/random_positions.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <random>
#include <tuple>

namespace kelvarine::testing {
namespace {

constexpr std::uint32_t SinglesAlerts = 0x6;

class GameFileProperty : public ::testing::Test {
protected:
    // The same cases in every run; a seed set outside finds others.
    static void SetUpTestSuite()
    {
        ::setenv("RC_PARAMS", "seed=20240601", 0);
    }

    TemporaryFolder Folder;
};

// One act of a player: what, and with what.
using Act = std::tuple<std::uint8_t, std::uint8_t, std::uint8_t>;

void Perform(const Act &act)
{
    const auto [kind, what, how] = act;
    const auto shift = static_cast<std::int32_t>(how % 3);
    switch (kind % 8) {
    case 0:
    case 1:
    case 2:
        KeyDown(DigitCode + what % 10, shift);
        break;
    case 3:
        KeyDown(what % 2 == 0 ? PageUpCode : PageDownCode, 0);
        break;
    case 4:
        StepSelection(static_cast<Arrow>(what % 4), shift);
        break;
    case 5:
        KeyDown(what % 2 == 0 ? InsertCode : DeleteCode, shift);
        break;
    case 6:
        ClockTick();
        break;
    default:
        KeyDown(what, static_cast<std::int32_t>(how % 8));
    }
}

void PlayGame(const std::vector<Act> &acts)
{
    Restart();
    AlertMask = SinglesAlerts;
    StartSavedGame(EasyGame);
    for (const Act &act : acts) {
        Seen.YesNoAnswers = {true};
        Seen.SaveAnswers = {Answer::No};
        Seen.TextAnswers = {std::string(EasyGame)};
        Perform(act);
    }
}

// All that a game file holds, and each grid on a walk to the oldest level and back to the newest.
struct Kept {
    GridTable Board;
    std::vector<GridTable> Slots;
    std::array<std::int32_t, 5> Words;
    double Seconds;
    std::vector<GridTable> Walk;

    friend bool operator==(const Kept &, const Kept &) = default;
};

Kept KeptOfGame()
{
    Kept kept{Grid,
              {History.begin(), History.begin() + SnapshotSlot + 1},
              {GameNumber, StatsCounted, HistoryCount, HistoryPosition, SnapshotAvailable},
              SolveSeconds,
              {}};
    for (int step = 0; step < 100; ++step) {
        Undo();
        kept.Walk.push_back(Grid);
    }
    for (int step = 0; step < 100; ++step) {
        Redo();
        kept.Walk.push_back(Grid);
    }
    return kept;
}

void LeaveAllElse(std::mt19937 &random)
{
    Restart();
    AlertMask = SinglesAlerts;
    SetRandomPosition(random, PositionKind::Absurd, 40);
    StartGame(NewGame);
    mnuTakeSnapshot();
    SolveSeconds = 1e9;
}

TEST_F(GameFileProperty, WhatPlayReachesComesBackTheSame)
{
    std::mt19937 random(7);
    EXPECT_TRUE(rc::check([&](const std::vector<Act> &acts) {
        PlayGame(acts);
        const GridTable played = Grid;
        GameFilePath = Folder.Path("game.sdk");
        RC_ASSERT(WriteGameFile());
        StartGame(GameFromFile); // rates and scans, as reading does
        RC_ASSERT(SameCells(Grid, played, LastingFields));
        const Kept before = KeptOfGame();

        LeaveAllElse(random);
        RC_ASSERT(ReadGameFile(Folder.Path("game.sdk")));
        RC_ASSERT(KeptOfGame() == before);
    }));
}

TEST_F(GameFileProperty, AnyWordsComeBackTheSame)
{
    EXPECT_TRUE(rc::check([&](std::uint32_t seed, std::int32_t number, double seconds) {
        Restart();
        std::mt19937 random(seed);
        for (std::size_t slot = 0; slot <= SnapshotSlot; ++slot) {
            for (auto &column : History[slot]) {
                std::ranges::generate(column, std::ref(random));
            }
        }
        GameNumber = number;
        StatsCounted = static_cast<Flag>(random());
        SolveSeconds = seconds;
        HistoryCount = static_cast<std::int32_t>(random() % 101);
        HistoryPosition = static_cast<std::int32_t>(random() % (HistoryCount + 1U));
        GameFilePath = Folder.Path("game.sdk");
        RC_ASSERT(WriteGameFile());
        const std::string bytes = GameFileBytes();
        Restart();
        RC_ASSERT(ReadGameFile(Folder.Path("game.sdk")));
        Grid = {};
        RC_ASSERT(GameFileBytes() == bytes);
    }));
}

TEST_F(GameFileProperty, TextKeepsCandidatesAndTellsGivensByTheirOneDigit)
{
    EXPECT_TRUE(rc::check([&](std::uint32_t seed) {
        Restart();
        std::mt19937 random(seed);
        SetRandomPosition(random, PositionKinds[seed % 4], static_cast<int>(seed % 82));
        const GridTable written = Grid;
        GameFilePath = Folder.Path("game.txt");
        RC_ASSERT(WriteGameFile());
        RC_ASSERT(Grid == written);
        Restart();
        RC_ASSERT(ReadGameFile(Folder.Path("game.txt")));
        for (const Cell cell : Cells) {
            const CellWord candidates = written[cell.Column][cell.Row] & CandidateMask;
            const CellWord given = CandidatesIn(candidates) == 1 ? GivenBit : 0;
            RC_ASSERT((WordAt(cell) & LastingFields) == (candidates | given));
        }
    }));
}

TEST_F(GameFileProperty, AnyBytesReadOrLeaveTheGridAlone)
{
    EXPECT_TRUE(rc::check([&](const std::vector<std::uint8_t> &bytes) {
        Restart();
        StartSavedGame(EasyGame);
        const GridTable before = Grid;
        if (!ReadGame({reinterpret_cast<const char *>(bytes.data()), bytes.size()})) {
            RC_ASSERT(Grid == before);
        }
    }));
}

} // namespace
} // namespace kelvarine::testing
