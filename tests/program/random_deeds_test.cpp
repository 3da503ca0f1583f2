// Whatever a player does in whatever order, the state stays sound.
#include "board/geometry.h"
#include "commands/file_commands.h"
#include "files/recovery.h"
#include "game/check_state.h"
#include "game/clock.h"
#include "game/lifecycle.h"
#include "game/screens.h"
#include "game/search.h"
#include "game/win_display.h"
#include "generator/generator.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "input/keys.h"
#include "input/menu_table.h"
#include "input/mouse.h"
#include "input/toolbar.h"
#include "logic/driver.h"
#include "outside/later_write.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <malloc.h>
#include <random>

#if defined(__SANITIZE_ADDRESS__)
// The sanitizer's own count; its header does not come with every compiler.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace kelvarine::testing {
namespace {

class RandomDeeds : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        LayoutBoard(600, 700, 0);
        StartSavedGame(EasyGame);
        // A search for a game, or through trials, is stopped after some passes.
        Seen.OnYield = [this] {
            if (++passes_ % 200 == 0) {
                SearchActive = False;
                StopRequested = True;
            }
        };
    }

    std::int32_t Draw(std::int32_t count)
    {
        return static_cast<std::int32_t>(random_() % static_cast<std::uint32_t>(count));
    }

    void PressKey()
    {
        if (Draw(3) == 0) {
            KeyDown(DigitCode + Draw(10), Draw(8));
            return;
        }
        const KeyRow &row =
            KeyTable[static_cast<std::size_t>(Draw(static_cast<std::int32_t>(KeyTable.size())))];
        KeyDown(row.Code, row.Shift == AnyShift ? Draw(8) : row.Shift);
    }

    void PressBoard()
    {
        const int x = Draw(620) - 10;
        const int y = Draw(720) - 10;
        BoardPressed(1 + Draw(2), Draw(8), x, y);
        if (Draw(3) == 0) {
            BoardDoubleClicked();
        }
        if (Draw(3) == 0) {
            BoardMoved(1, Draw(8), Draw(600), Draw(700));
        }
    }

    void ChooseFromMenu()
    {
        const MenuRow &row =
            MenuTable[static_cast<std::size_t>(Draw(static_cast<std::int32_t>(MenuTable.size())))];
        if (row.Run != nullptr && ReadyForCommand()) {
            row.Run(1 + Draw(9));
        }
    }

    void ChangeSettings()
    {
        SolveMask = random_() & 0x7FE;
        AlertMask = random_() & 0x7FE;
        IncludeSingles = Draw(2) == 0 ? True : False;
        SolveOnStart = Draw(2) == 0 ? True : False;
    }

    void LetTimePass()
    {
        ClockTick();
        if (WinDisplayRunning != False) {
            WinDisplayTick();
        }
    }

    // One deed of the player's, with answers to whatever is asked on the way.
    void Act()
    {
        Seen.YesNoAnswers = {Draw(2) == 0, Draw(2) == 0, Draw(2) == 0};
        Seen.SaveAnswers = {Draw(4) == 0 ? Answer::Cancel : Answer::No};
        Seen.TextAnswers = {std::to_string(Draw(1000)), Dots(static_cast<std::size_t>(Draw(81)))};
        Seen.Clipboard = std::string(EasyGame);
        constexpr std::array deeds{&RandomDeeds::PressKey,       &RandomDeeds::PressKey,
                                   &RandomDeeds::PressBoard,     &RandomDeeds::PressTool,
                                   &RandomDeeds::ChooseFromMenu, &RandomDeeds::LetTimePass};
        (this->*deeds[static_cast<std::size_t>(Draw(static_cast<std::int32_t>(deeds.size())))])();
        ForgetRecord();
    }

    void PressTool()
    {
        ToolPressed(Draw(15));
    }

    std::mt19937 random_{2026};

private:
    int passes_ = 0;
};

TEST_F(RandomDeeds, StateStaysSound)
{
    for (int deed = 0; deed < 6000; ++deed) {
        if (deed % 50 == 0) {
            ChangeSettings();
        }
        Act();
        ASSERT_EQ(CheckState(), "") << "after deed " << deed;
    }
}

// ---- Hours of play ---------------------------------------------------------------------------

// Bytes of the heap that are in use.
std::size_t HeapInUse()
{
#if defined(__SANITIZE_ADDRESS__)
    return __sanitizer_get_current_allocated_bytes();
#else
    return ::mallinfo2().uordblks;
#endif
}

std::ptrdiff_t OpenDescriptors()
{
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

// Twenty minutes, or as many hours as a variable says, second by second.
int SecondsOfPlay()
{
    const char *hours = std::getenv("KELVARINE_SOAK_HOURS");
    return hours != nullptr ? std::atoi(hours) * 60 * 60 : 20 * 60;
}

class HoursOfPlay : public RandomDeeds {
protected:
    void SetUp() override
    {
        RandomDeeds::SetUp();
        GameFilePath = Folder.Path("game.sdk");
    }

    // A second of the player's, at whose end the timers come.
    void PlayASecond(int second)
    {
        Act();
        if (Draw(20) == 0) {
            GameFilePath = Folder.Path(Draw(4) == 0 ? "game.txt" : "game.sdk");
            mnuSave();
            ForgetRecord();
        }
        if (second * 1000 % RecoveryInterval == 0) {
            RecoveryTick();
            EXPECT_EQ(EndWrite(Reach::System), "");
            EXPECT_EQ(EndWrite(Reach::Disk), "");
        }
    }

    TemporaryFolder Folder;
};

TEST_F(HoursOfPlay, LeaveMemoryAndDescriptorsAsTheyWere)
{
    const int seconds = SecondsOfPlay();
    const int settled = seconds / 10; // by then everything has been used once
    std::size_t memory = 0;
    std::ptrdiff_t descriptors = 0;
    for (int second = 0; second < seconds; ++second) {
        PlayASecond(second);
        ASSERT_EQ(CheckState(), "") << "after second " << second;
        if (second == settled) {
            memory = HeapInUse();
            descriptors = OpenDescriptors();
        }
    }
    constexpr std::size_t texts = 100'000; // of the game, of solutions, of what was recorded last
    EXPECT_LT(HeapInUse(), memory + texts);
    EXPECT_LE(OpenDescriptors(), descriptors);
    EndRecovery(true);
    EXPECT_LE(Folder.Entries(), 2) << "the two games and nothing else";
}

// ---- What the check sees -------------------------------------------------------------------

class StateCheck : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        StartSavedGame(EasyGame);
    }
};

TEST_F(StateCheck, GameAtItsStartIsSound)
{
    EXPECT_EQ(CheckState(), "");
}

TEST_F(StateCheck, TellsEachBrokenPromise)
{
    struct Fault {
        void (*Break)();
        std::string_view Told;
    };
    const std::vector<Fault> faults{
        {[] { HistoryCount = 101; }, "a counter is out of range"},
        {[] { HistoryPosition = HistoryCount + 1; }, "a counter is out of range"},
        {[] { GameRating = 8; }, "a counter is out of range"},
        {[] { ++GivenCount; }, "GivenCount is not the number of givens"},
        {[] { ChainColumns[0] = 82; }, "the chain leaves its lists or the grid"},
        {[] {
             ChainColumns[0] = 1;
             ChainColumns[1] = 10;
         },
         "the chain leaves its lists or the grid"},
        {[] {
             ChainColumns[0] = 81;
             ChainColumns.fill(9);
             ChainColumns[0] = 81;
             ChainRows.fill(9);
             ChainRows[81] = 0;
         },
         "the chain leaves its lists or the grid"},
        {[] { ChainRows[0] = 10; }, "the chain leaves its lists or the grid"},
        {[] { ChainRows[0] = -10; }, "the chain leaves its lists or the grid"},
        {[] { CurrentTab = 10; }, "a counter is out of range"},
        {[] { WinStage = 8; }, "a counter is out of range"},
        {[] { SolutionCount = MostSolutionsListed + 2; }, "a counter is out of range"},
        {[] { AnchorColumn = 10; }, "the pointer is neither on a cell nor on none"},
        {[] { CursorColumn = -1; }, "the pointer is neither on a cell nor on none"},
        {[] { CursorRow = 10; }, "the pointer is neither on a cell nor on none"},
        {[] { AnchorRow = AnchorColumn == 0 ? 1 : 0; },
         "the pointer is neither on a cell nor on none"},
        {[] { NumberFilter = 1; }, "a mask holds bits that mean nothing"},
        {[] { UsedMask = 1; }, "a mask holds bits that mean nothing"},
        {[] { SearchActive = True; }, "a run of the driver goes on"},
        {[] { PauseCaption = "Stop"; }, "the clock is neither running nor paused"},
        {[] { Grid[5][5] |= 0x800000; }, "a cell holds bits that mean nothing"},
        {[] { Grid[1][1] |= CandidateMask; }, "a given is no number"},
    };
    for (const Fault &fault : faults) {
        SetUp();
        fault.Break();
        EXPECT_EQ(CheckState(), fault.Told);
    }
}

TEST_F(StateCheck, BoundsOfEveryRangeAreSound)
{
    HistoryCount = OldestSlot;
    HistoryPosition = OldestSlot;
    GameRating = 7;
    SolutionCount = MostSolutionsListed + 1;
    CurrentTab = 9;
    WinStage = 7;
    ChainColumns.fill(9);
    ChainColumns[0] = 81;
    ChainRows.fill(9);
    AnchorColumn = AnchorRow = CursorColumn = CursorRow = 9;
    EXPECT_EQ(CheckState(), "");
    HistoryCount = HistoryPosition = 0;
    GameRating = SolutionCount = CurrentTab = WinStage = 0;
    ChainColumns[0] = 0;
    ChainRows[0] = -9;
    AnchorColumn = AnchorRow = CursorColumn = CursorRow = 0;
    EXPECT_EQ(CheckState(), "");
    AnchorColumn = AnchorRow = CursorColumn = CursorRow = 1;
    ChainColumns[0] = 1;
    ChainColumns[1] = ChainRows[1] = 1;
    EXPECT_EQ(CheckState(), "");
}

TEST_F(StateCheck, CellsOfAFileAreTakenAsTheyStand)
{
    Grid[5][5] |= 0x800000;
    Grid[1][1] |= CandidateMask;
    GameFilePath = "such.sdk";
    EXPECT_EQ(CheckState(), "");
}

} // namespace
} // namespace kelvarine::testing
