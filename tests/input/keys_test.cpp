#include "commands/file_commands.h"
#include "commands/new_games.h"
#include "commands/restart.h"
#include "commands/screen_commands.h"
#include "commands/text_commands.h"
#include "game/alert_scan.h"
#include "game/assistance.h"
#include "game/lifecycle.h"
#include "game/logic_report.h"
#include "game/transforms.h"
#include "game/undo.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "input/givens.h"
#include "input/keys.h"
#include "input/keys_fixture.h"
#include "input/mouse.h"
#include "input/number_keys.h"
#include "input/selection.h"
#include "input/toolbar.h"
#include "outside/board.h"
#include "outside/window.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/scenario.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace kelvarine::testing {
namespace {

using Command = std::function<void()>;

constexpr std::int32_t Any = -1;

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
const std::vector<ExpectedKey> SingleKeys{
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

// These, the arrows and the digits.
std::vector<ExpectedKey> ExpectedKeys()
{
    std::vector<ExpectedKey> keys = SingleKeys;
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

} // namespace
} // namespace kelvarine::testing
