// Keys, mouse and clock at random: what no order of them may break.
#include "game/check_state.h"
#include "game/clock.h"
#include "game/win_display.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "input/keys.h"
#include "input/keys_fixture.h"
#include "input/mouse.h"
#include "outside/messages.h"
#include "support/outside_double.h"
#include "support/play.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string>

namespace kelvarine::testing {
namespace {

class RandomPlay : public Keys {
protected:
    std::mt19937 random{20240};

    std::uint32_t Below(std::uint32_t limit)
    {
        return static_cast<std::uint32_t>(random() % limit);
    }

    template <std::size_t N>
    std::int32_t OneOf(const std::array<std::int32_t, N> &codes)
    {
        return codes[Below(N)];
    }

    void PressAnyKey()
    {
        constexpr std::array<std::int32_t, 8> edits{45, 46, 33, 34, 37, 38, 39, 40};
        switch (Below(6)) {
        case 0:
            KeyDown(static_cast<std::int32_t>(Below(256)), static_cast<std::int32_t>(Below(8)));
            break;
        case 1:
        case 2:
            KeyDown(OneOf(edits), static_cast<std::int32_t>(Below(4)));
            break;
        default:
            KeyDown(48 + static_cast<std::int32_t>(Below(10)), static_cast<std::int32_t>(Below(3)));
        }
    }

    void UseTheMouse()
    {
        const int x = static_cast<int>(Below(700)) - 50;
        const int y = static_cast<int>(Below(750)) - 50;
        const auto shift = static_cast<std::int32_t>(Below(8));
        if (Below(3) == 0) {
            BoardPressed(static_cast<std::int32_t>(Below(4)), shift, x, y);
        } else {
            BoardMoved(static_cast<std::int32_t>(Below(3)), shift, x, y);
        }
    }

    void AnswerAnyhow()
    {
        const std::array<std::string, 5> texts{std::string(EasyGame), "", "5 12 9",
                                               std::string(80, '3'), std::string(EasySolution)};
        Seen.YesNoAnswers = {Below(2) == 0, Below(2) == 0};
        Seen.SaveAnswers = {static_cast<Answer>(Below(3))};
        Seen.Clipboard = texts[Below(5)];
        Seen.TextAnswers = {texts[Below(5)]};
        SolveMask = Below(2) == 0 ? 0 : 0x6;
        AlertMask = Below(2) == 0 ? 0 : 0x6;
    }

    static void ExpectSoundHistory(int step)
    {
        ASSERT_GE(HistoryPosition, 1) << step;
        ASSERT_LE(HistoryPosition, HistoryCount) << step;
        ASSERT_LE(HistoryCount, 100) << step;
        ASSERT_TRUE(SameCells(Grid, Level(HistoryPosition), LastingFields)) << step;
    }
};

TEST_F(RandomPlay, NeverBreaksTheHistory)
{
    StartSavedGame(EasyGame);
    for (int step = 0; step < 6000; ++step) {
        AnswerAnyhow();
        switch (Below(8)) {
        case 0:
        case 1:
            UseTheMouse();
            break;
        case 2:
            Seen.Now += 1;
            ClockTick();
            if (WinDisplayRunning != False) {
                WinDisplayTick();
            }
            break;
        default:
            PressAnyKey();
        }
        ASSERT_NO_FATAL_FAILURE(ExpectSoundHistory(step));
        ASSERT_EQ(CheckState(), "") << "after step " << step;
        ForgetRecord();
    }
}

TEST_F(RandomPlay, UndoThenRedoIsIdentity)
{
    StartSavedGame(EasyGame);
    int undone = 0;
    for (int step = 0; step < 1500; ++step) {
        UseTheMouse();
        PressAnyKey();
        const std::int32_t position = HistoryPosition;
        const GridTable before = Grid;
        if (position < HistoryCount) {
            KeyDown(33, 0);
            ASSERT_EQ(HistoryPosition, position + 1);
            KeyDown(34, 0);
            ++undone;
        }
        ASSERT_EQ(HistoryPosition, position);
        ASSERT_TRUE(SameCells(Grid, before, LastingFields | CellColour));
        ForgetRecord();
    }
    EXPECT_GT(undone, 500);
}

} // namespace
} // namespace kelvarine::testing
