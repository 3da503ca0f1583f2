#include "board/geometry.h"
#include "commands/file_commands.h"
#include "commands/new_games.h"
#include "commands/restart.h"
#include "commands/screen_commands.h"
#include "commands/text_commands.h"
#include "files/text_format.h"
#include "game/alert_scan.h"
#include "game/assistance.h"
#include "game/check_state.h"
#include "game/clock.h"
#include "game/event_sound.h"
#include "game/lifecycle.h"
#include "game/logic_report.h"
#include "game/transforms.h"
#include "game/undo.h"
#include "game/win_display.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "input/givens.h"
#include "input/keys.h"
#include "input/mouse.h"
#include "input/number_keys.h"
#include "input/selection.h"
#include "input/toolbar.h"
#include "logic/driver.h"
#include "outside/board.h"
#include "outside/messages.h"
#include "outside/window.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"
#include "support/scenario.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;
using Command = std::function<void()>;

constexpr std::int32_t Any = -1;
constexpr CellWord AllInView = 0x3FE;
constexpr CellWord OnlyThree = 0x8;

class Keys : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

// ---- What the keys do, told anew -----------------------------------------------------------

void Tail()
{
    ScanAlerts(1);
    if (IsGridSolved() != False) {
        UpdateStatistics();
    }
    DrawBoard();
    RefreshWindow();
}

// Clears and sets bits in the selected cells that are no givens, as Delete and Insert do.
void ChangeSelection(CellWord clear, CellWord set)
{
    const GridTable before = Grid;
    for (const Cell cell : Cells) {
        if ((WordAt(cell) & SelectedBit) != 0 && (WordAt(cell) & GivenBit) == 0) {
            WordAt(cell) = (WordAt(cell) & ~clear) | set;
        }
    }
    if (Grid != before) {
        PushUndoState();
        Tail();
    }
}

void Type(std::int32_t digit, std::int32_t mode, std::int32_t sign)
{
    Flag update = False;
    ProcessNumKey(digit, mode, sign, update);
    if (update != False) {
        Tail();
    }
}

struct ExpectedKey {
    std::int32_t Code;
    std::int32_t Shift;
    std::string Name;
    Command Act;
};

Command Arrows(Arrow arrow, std::int32_t shift)
{
    return [=] {
        StepSelection(arrow, shift);
    };
}

// Mode and sign of a digit by the modifier sum 0..7.
constexpr std::array<std::pair<std::int32_t, std::int32_t>, 8> DigitMeanings{
    {{0, 0}, {0, 1}, {0, 2}, {20, 0}, {0, 0}, {20, 1}, {20, 2}, {0, 0}}};

void Nothing()
{
}

// Exact modifiers stand before those for any other.
std::vector<ExpectedKey> ExpectedKeys()
{
    std::vector<ExpectedKey> keys{
        {33, Any, "undo", Undo},
        {34, Any, "redo", Redo},
        {46, 1, "delete all",
         [] {
             ChangeSelection(0x3FF, 0);
         }},
        {46, Any, "delete",
         [] {
             ChangeSelection(NumberFilter, 0);
         }},
        {45, 2, "insert all",
         [] {
             ChangeSelection(0, 0x3FE);
         }},
        {45, Any, "insert",
         [] {
             ChangeSelection(0, NumberFilter);
         }},
        {16, Any, "sign of Shift", ShowSignOfShift},
        {17, Any, "sign of Ctrl", ShowSignOfCtrl},
        {27, Any, "escape",
         [] {
             ProcessToolbar(0);
         }},
        {70, 1, "flip", mnuFlipGrid},
        {71, 2, "make given", mnuMakeGiven},
        {72, 0, "hint", mnuHint},
        {72, 1, "hide all", mnuHideSelectedCellsForce},
        {72, 2, "hide some", mnuHideSelectedCellsConditional},
        {65, 2, "save as", mnuSaveAs},
        {65, Any, "reason", mnuShowAlertReason},
        {66, 2, "blank grid", mnuGameBlankGrid},
        {66, Any, "box", mnuSelectBox},
        {67, 2, "copy grid", mnuCopyGridFormat},
        {67, Any, "column", mnuSelectColumn},
        {68, Any, "domain", mnuSelectDomain},
        {73, Any, "intersection", mnuSelectIntersection},
        {76, 1, "rotate left", mnuRotateGrid90Left},
        {76, 2, "apply logic", mnuApplyLogic},
        {76, Any, "logic needed", mnuShowLogicNeeded},
        {77, 1, "mirror", mnuMirrorGrid},
        {78, 2, "random game", mnuGameRandom},
        {79, 2, "open", mnuOpen},
        {80, 2, "print", mnuPrint},
        {80, Any, "peers", mnuSelectPeers},
        {82, 1, "rotate right", mnuRotateGrid90Right},
        {82, 2, "restart", mnuRestartSameGame},
        {82, Any, "row", mnuSelectRow},
        {83, 2, "save", mnuSave},
        {83, 3, "", Nothing},
        {83, Any, "take snapshot", mnuTakeSnapshot},
        {84, 2, "text string", mnuGameTextString},
        {85, Any, "use snapshot", mnuUseSnapshot},
        {86, 2, "clipboard", mnuGameClipboard},
        {87, Any, "whole grid", mnuSelectWholeGrid},
        {88, 2, "expose", mnuExposeSelectedCells},
        {89, 2, "redo", Redo},
        {90, 1, "solve", mnuSolveGame},
        {90, 2, "undo", Undo},
        {109, 2, "copy line", mnuCopySingleLineFormat},
        {189, 2, "copy line", mnuCopySingleLineFormat},
    };
    for (std::int32_t shift = 0; shift <= 7; ++shift) {
        keys.push_back({37, shift, "left", Arrows(Arrow::Left, shift)});
        keys.push_back({38, shift, "up", Arrows(Arrow::Up, shift)});
        keys.push_back({39, shift, "right", Arrows(Arrow::Right, shift)});
        keys.push_back({40, shift, "down", Arrows(Arrow::Down, shift)});
        const auto [mode, sign] = DigitMeanings[static_cast<std::size_t>(shift)];
        for (std::int32_t digit = 0; digit <= 9; ++digit) {
            const std::string name = "digit " + std::to_string(digit);
            const Command act = [=, m = mode, s = sign] {
                Type(digit, m, s);
            };
            keys.push_back({48 + digit, shift, name, act});
            keys.push_back({96 + digit, shift, name, act});
        }
    }
    return keys;
}

const ExpectedKey *FindExpected(const std::vector<ExpectedKey> &keys, std::int32_t code,
                                std::int32_t shift)
{
    for (const ExpectedKey &key : keys) {
        if (key.Code == code && (key.Shift == shift || key.Shift == Any)) {
            return &key;
        }
    }
    return nullptr;
}

// ---- The table -----------------------------------------------------------------------------

TEST_F(Keys, EveryKeyWithEveryModifierDoesItsThingOrNothing)
{
    const std::vector<ExpectedKey> keys = ExpectedKeys();
    for (const CellWord filter : {AllInView, OnlyThree}) {
        const std::string untouched = StateAfter(Nothing, filter);
        for (std::int32_t code = -3; code <= 260; ++code) {
            for (std::int32_t shift = 0; shift <= 7; ++shift) {
                const ExpectedKey *expected = FindExpected(keys, code, shift);
                std::string state = untouched;
                if (expected != nullptr) {
                    state = StateAfter(expected->Act, filter);
                    SetScenario(filter);
                }
                KeyDown(code, shift);
                ASSERT_EQ(ProgramState(), state) << "code " << code << " shift " << shift;
                if (expected != nullptr) {
                    SetScenario(filter);
                }
            }
        }
    }
}

TEST_F(Keys, ScenarioTellsTheCommandsApart)
{
    std::map<std::string, std::string> nameOfState;
    nameOfState[StateAfter(Nothing, OnlyThree)] = "";
    std::map<std::string, std::string> stateOfName;
    for (const ExpectedKey &key : ExpectedKeys()) {
        if (key.Name.starts_with("digit") || (key.Shift > 0 && key.Code >= 37 && key.Code <= 40)) {
            continue;
        }
        const std::string state = StateAfter(key.Act, OnlyThree);
        const std::string other = nameOfState.emplace(state, key.Name).first->second;
        EXPECT_EQ(other, key.Name);
        const std::string same = stateOfName.emplace(key.Name, state).first->second;
        EXPECT_EQ(same, state) << key.Name;
    }
}

TEST_F(Keys, CodesStandForTheirKeys)
{
    EXPECT_EQ(ShiftCode, 16);
    EXPECT_EQ(CtrlCode, 17);
    EXPECT_EQ(EscapeCode, 27);
    EXPECT_EQ(PageUpCode, 33);
    EXPECT_EQ(PageDownCode, 34);
    EXPECT_EQ(LeftCode, 37);
    EXPECT_EQ(UpCode, 38);
    EXPECT_EQ(RightCode, 39);
    EXPECT_EQ(DownCode, 40);
    EXPECT_EQ(InsertCode, 45);
    EXPECT_EQ(DeleteCode, 46);
    EXPECT_EQ(DigitCode, 48);
    EXPECT_EQ(KeypadCode, 96);
    EXPECT_EQ(KeypadMinusCode, 109);
    EXPECT_EQ(MinusCode, 189);
}

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

// ---- Random play ---------------------------------------------------------------------------

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
