#include "files/text_format.h"
#include "game/event_sound.h"
#include "game/lifecycle.h"
#include "game/undo.h"
#include "game/win_display.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "input/keys.h"
#include "input/keys_fixture.h"
#include "logic/driver.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"
#include "support/scenario.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

// ---- Single keys ---------------------------------------------------------------------------

TEST_F(Keys, CtrlShiftSNeitherSavesNorTakesASnapshot)
{
    SetScenario(AllInView);
    SnapshotAvailable = False;
    const std::string before = ProgramState();
    KeyDown('S', 3);
    EXPECT_EQ(ProgramState(), before);
    KeyDown('S', 0);
    EXPECT_EQ(Acts(), Texts{"sound: snapshot.wav"});
}

TEST_F(Keys, AltWithADigitEntersIt)
{
    SetScenario(AllInView);
    KeyDown('1', 4);
    EXPECT_EQ(Grid[3][1] & CandidateMask, BitTable[1]);
    EXPECT_EQ(Grid[4][1] & CandidateMask, BitTable[1]);
    EXPECT_EQ(NumberFilter, AllInView);
}

TEST_F(Keys, ShiftZSolvesAndPlainZDoesNothing)
{
    SetScenario(AllInView);
    KeyDown('Z', 0);
    EXPECT_EQ(IsGridSolved(), False);
    KeyDown('Z', 1);
    EXPECT_EQ(IsGridSolved(), True);
}

TEST_F(Keys, HintKeyWithCtrlShiftDoesNothing)
{
    SetScenario(AllInView);
    KeyDown('H', 3);
    EXPECT_EQ(Seen.Calls, Texts{});
}

TEST_F(Keys, CtrlDActsAsD)
{
    SetScenario(AllInView);
    const std::string before = ProgramState();
    KeyDown('D', 0);
    const std::string domain = ProgramState();
    EXPECT_NE(domain, before);
    SetScenario(AllInView);
    KeyDown('D', 2);
    EXPECT_EQ(ProgramState(), domain);
}

TEST_F(Keys, KeypadMinusCopiesTheLineAsTheMainMinusDoes)
{
    for (const std::int32_t code : {109, 189}) {
        SetScenario(AllInView);
        KeyDown(code, 2);
        EXPECT_EQ(Seen.Clipboard, SingleLineText());
    }
}

TEST_F(Keys, SnapshotKeyNeedsASnapshot)
{
    SetScenario(AllInView);
    SnapshotAvailable = False;
    const std::string before = ProgramState();
    KeyDown('U', 0);
    EXPECT_EQ(ProgramState(), before);
}

TEST_F(Keys, DeleteTakesTheNumbersInViewOrAll)
{
    SetScenario(OnlyThree);
    Grid[3][1] = SelectedBit | BitTable[3] | BitTable[4];
    KeyDown(46, 0);
    EXPECT_EQ(Grid[3][1] & CandidateMask, BitTable[4]);
    EXPECT_EQ(Grid[5][1] & CandidateMask, BitTable[7]) << "a given stays";
    ForgetRecord();
    KeyDown(46, 2);
    EXPECT_EQ(Seen.Calls, Texts{}) << "no repaint without a change";
    KeyDown(46, 1);
    EXPECT_EQ(Grid[3][1] & CandidateMask, 0U);
    EXPECT_EQ(Seen.Calls, (Texts{"board: ", "refresh: "}));
}

TEST_F(Keys, InsertAddsTheNumbersInViewOrAll)
{
    SetScenario(OnlyThree);
    Grid[3][1] = SelectedBit;
    KeyDown(45, 1);
    EXPECT_EQ(Grid[3][1] & CandidateMask, BitTable[3]);
    KeyDown(45, 2);
    EXPECT_EQ(Grid[3][1] & CandidateMask, CandidateMask);
    KeyDown(46, 0);
    EXPECT_EQ(Grid[3][1] & CandidateMask, CandidateMask & ~BitTable[3]);
}

TEST_F(Keys, ZeroWithModifiersConcernsAllNumbers)
{
    SetScenario(OnlyThree);
    KeyDown('0', 0);
    EXPECT_EQ(Grid[3][1] & CandidateMask, CandidateMask);
    KeyDown('0', 1);
    EXPECT_EQ(Grid[3][1] & CandidateMask, 0U);
    KeyDown('0', 2);
    EXPECT_EQ(Grid[3][1] & CandidateMask, CandidateMask);
    KeyDown('0', 3);
    EXPECT_EQ(NumberFilter, AllInView);
}

TEST_F(Keys, LastNumberWinsTheGame)
{
    SetGivens(EasySolution);
    Grid[1][1] = CandidateMask;
    StartGame(0);
    Grid[1][1] |= SelectedBit;
    WinFiles = {"", "tune.win"};
    WinSound = 1;
    ForgetRecord();
    KeyDown('5', 0);
    EXPECT_EQ(Acts(), (Texts{"sound loop: tune.win", "board: ", "refresh: "}));
    EXPECT_EQ(WinDisplayRunning, True);
    EXPECT_EQ(StatsCounted, True);
    EXPECT_EQ(HistoryCount, 2);
}

TEST_F(Keys, EntryIsFollowedByAScanForAlerts)
{
    SetGivens(EasySolution);
    Grid[1][1] = CandidateMask;
    Grid[5][5] = CandidateMask;
    StartGame(0);
    Grid[1][1] |= SelectedBit;
    AlertMask = 0x2;
    AlertFiles = {"", "new.alr"};
    AlertSound = 1;
    ForgetRecord();
    KeyDown('1', 1);
    EXPECT_EQ(CellsWith(AlertBit), "A1 E5");
    EXPECT_EQ(Acts(), (Texts{"sound: new.alr", "board: ", "refresh: "}));
}

// ---- First steps of every key --------------------------------------------------------------

TEST_F(Keys, KeyDuringTheWinDisplayStopsItAndThenActs)
{
    SetScenario(AllInView);
    StartWinDisplay();
    KeyDown('S', 0);
    EXPECT_EQ(WinDisplayRunning, False);
    EXPECT_EQ(Acts(), (Texts{"stop sound: ", "board: ", "sound: snapshot.wav"}));
}

TEST_F(Keys, EveryKeyStopsTheWinDisplay)
{
    for (const std::int32_t code : {7, 16, 17, 27, 33, 34, 48, 68, 83, 81, 112, 123}) {
        SetScenario(AllInView);
        StartWinDisplay();
        KeyDown(code, 0);
        EXPECT_EQ(WinDisplayRunning, False) << code;
        EXPECT_FALSE(Seen.WinTimerOn);
    }
}

TEST_F(Keys, KeyDuringAGameSearchOnlyBringsTheQuestion)
{
    for (const bool answer : {false, true}) {
        SetScenario(AllInView);
        StartWinDisplay();
        SearchActive = True;
        SearchKind = 1;
        Seen.YesNoAnswers = {answer};
        const GridTable before = Grid;
        KeyDown('5', 0);
        EXPECT_EQ(Seen.Calls,
                  (Texts{"stop sound: ", "question: Would you like to stop searching?"}));
        EXPECT_EQ(SearchActive, answer ? False : True);
        EXPECT_EQ(Grid, before);
        EXPECT_EQ(WinDisplayRunning, True);
    }
}

TEST_F(Keys, KeyDuringAnyOtherSearchDoesNothing)
{
    for (const std::int32_t kind : {0, 4}) {
        SetScenario(AllInView);
        SearchActive = True;
        SearchKind = kind;
        const std::string before = ProgramState();
        for (const std::int32_t code : {33, 45, 46, 48, 72, 83}) {
            KeyDown(code, 0);
        }
        EXPECT_EQ(ProgramState(), before);
        EXPECT_EQ(SearchActive, True);
    }
}

} // namespace
} // namespace kelvarine::testing
