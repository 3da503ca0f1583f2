#include "input/keys.h"

#include "commands/file_commands.h"
#include "commands/new_games.h"
#include "commands/restart.h"
#include "commands/screen_commands.h"
#include "commands/text_commands.h"
#include "game/assistance.h"
#include "game/check_state.h"
#include "game/lifecycle.h"
#include "game/logic_report.h"
#include "game/search.h"
#include "game/transforms.h"
#include "game/undo.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "input/givens.h"
#include "input/mouse.h"
#include "input/number_keys.h"
#include "input/selected_cells.h"
#include "input/selection.h"
#include "input/toolbar.h"

#include <array>
#include <cassert>

namespace kelvarine {

namespace {

// A command that does not look at the modifiers.
template <auto Command>
void Plain(std::int32_t /*shift*/)
{
    Command();
}

template <Arrow Direction>
void Step(std::int32_t shift)
{
    StepSelection(Direction, shift);
}

// Changes the selected cells that are no givens; a change is recorded and followed up.
template <typename Change>
void ChangeSelected(const Change &change)
{
    if (ChangeSelectedCells(change)) {
        PushUndoState();
        FinishChange();
    }
}

// Delete and Insert concern the numbers in view, or all of them with a modifier of their own.
CellWord NumbersConcerned(std::int32_t shift, std::int32_t allShift)
{
    return shift == allShift ? CandidateMask : NumberFilter;
}

void DeleteNumbers(std::int32_t shift)
{
    const CellWord numbers = NumbersConcerned(shift, ShiftKey);
    ChangeSelected([=](CellWord word) { return word & ~numbers; });
}

void InsertNumbers(std::int32_t shift)
{
    const CellWord numbers = NumbersConcerned(shift, CtrlKey);
    ChangeSelected([=](CellWord word) { return word | numbers; });
}

void Escape()
{
    ProcessToolbar(EscapeButton);
}

void UseSnapshot()
{
    if (SnapshotAvailable != False) {
        mnuUseSnapshot();
    }
}

constexpr std::array Rows{
    KeyRow{ShiftCode, AnyShift, Plain<ShowSignOfShift>},
    KeyRow{CtrlCode, AnyShift, Plain<ShowSignOfCtrl>},
    KeyRow{EscapeCode, AnyShift, Plain<Escape>},
    KeyRow{PageUpCode, AnyShift, Plain<Undo>},
    KeyRow{PageDownCode, AnyShift, Plain<Redo>},
    KeyRow{DeleteCode, AnyShift, DeleteNumbers},
    KeyRow{InsertCode, AnyShift, InsertNumbers},
    KeyRow{LeftCode, AnyShift, Step<Arrow::Left>},
    KeyRow{UpCode, AnyShift, Step<Arrow::Up>},
    KeyRow{RightCode, AnyShift, Step<Arrow::Right>},
    KeyRow{DownCode, AnyShift, Step<Arrow::Down>},
    KeyRow{'A', CtrlKey, Plain<mnuSaveAs>},
    KeyRow{'A', AnyShift, Plain<mnuShowAlertReason>},
    KeyRow{'B', CtrlKey, Plain<mnuGameBlankGrid>},
    KeyRow{'B', AnyShift, Plain<mnuSelectBox>},
    KeyRow{'C', CtrlKey, Plain<mnuCopyGridFormat>},
    KeyRow{'C', AnyShift, Plain<mnuSelectColumn>},
    KeyRow{'D', AnyShift, Plain<mnuSelectDomain>},
    KeyRow{'F', ShiftKey, Plain<mnuFlipGrid>},
    KeyRow{'G', CtrlKey, Plain<mnuMakeGiven>},
    KeyRow{'H', 0, Plain<mnuHint>},
    KeyRow{'H', ShiftKey, Plain<mnuHideSelectedCellsForce>},
    KeyRow{'H', CtrlKey, Plain<mnuHideSelectedCellsConditional>},
    KeyRow{'I', AnyShift, Plain<mnuSelectIntersection>},
    KeyRow{'L', ShiftKey, Plain<mnuRotateGrid90Left>},
    KeyRow{'L', CtrlKey, Plain<mnuApplyLogic>},
    KeyRow{'L', AnyShift, Plain<mnuShowLogicNeeded>},
    KeyRow{'M', ShiftKey, Plain<mnuMirrorGrid>},
    KeyRow{'N', CtrlKey, Plain<mnuGameRandom>},
    KeyRow{'O', CtrlKey, Plain<mnuOpen>},
    KeyRow{'P', CtrlKey, Plain<mnuPrint>},
    KeyRow{'P', AnyShift, Plain<mnuSelectPeers>},
    KeyRow{'R', ShiftKey, Plain<mnuRotateGrid90Right>},
    KeyRow{'R', CtrlKey, Plain<mnuRestartSameGame>},
    KeyRow{'R', AnyShift, Plain<mnuSelectRow>},
    KeyRow{'S', CtrlKey, Plain<mnuSave>},
    KeyRow{'S', ShiftKey | CtrlKey, nullptr},
    KeyRow{'S', AnyShift, Plain<mnuTakeSnapshot>},
    KeyRow{'T', CtrlKey, Plain<mnuGameTextString>},
    KeyRow{'U', AnyShift, Plain<UseSnapshot>},
    KeyRow{'V', CtrlKey, Plain<mnuGameClipboard>},
    KeyRow{'W', AnyShift, Plain<mnuSelectWholeGrid>},
    KeyRow{'X', CtrlKey, Plain<mnuExposeSelectedCells>},
    KeyRow{'Y', CtrlKey, Plain<Redo>},
    KeyRow{'Z', ShiftKey, Plain<mnuSolveGame>},
    KeyRow{'Z', CtrlKey, Plain<Undo>},
    KeyRow{KeypadMinusCode, CtrlKey, Plain<mnuCopySingleLineFormat>},
    KeyRow{MinusCode, CtrlKey, Plain<mnuCopySingleLineFormat>},
};

// Mode and sign of a typed digit by its modifiers.
void TypeDigit(std::int32_t digit, std::int32_t shift)
{
    struct DigitMeaning {
        std::int32_t Shift;
        std::int32_t Mode;
        std::int32_t Sign;
    };
    constexpr std::array meanings{
        DigitMeaning{ShiftKey, EditMode, TakeAway},
        DigitMeaning{CtrlKey, EditMode, Add},
        DigitMeaning{ShiftKey | CtrlKey, ViewMode, Replace},
        DigitMeaning{ShiftKey | AltKey, ViewMode, TakeAway},
        DigitMeaning{CtrlKey | AltKey, ViewMode, Add},
    };
    DigitMeaning meaning{shift, EditMode, Replace};
    for (const DigitMeaning &row : meanings) {
        if (row.Shift == shift) {
            meaning = row;
        }
    }
    Flag update = False;
    ProcessNumKey(digit, meaning.Mode, meaning.Sign, update);
    if (update != False) {
        FinishChange();
    }
}

} // namespace

const std::span<const KeyRow> KeyTable(Rows);

namespace {

void RunKey(std::int32_t code, std::int32_t shift)
{
    if (code >= KeypadCode && code <= KeypadCode + 9) {
        code += DigitCode - KeypadCode;
    }
    if (code >= DigitCode && code <= DigitCode + 9) {
        TypeDigit(code - DigitCode, shift);
        return;
    }
    for (const KeyRow &row : KeyTable) {
        if (row.Code == code && (row.Shift == AnyShift || row.Shift == shift)) {
            if (row.Run != nullptr) {
                row.Run(shift);
            }
            return;
        }
    }
}

} // namespace

void KeyDown(std::int32_t code, std::int32_t shift)
{
    assert(shift >= 0 && shift <= 7);
    if (ReadyForCommand()) {
        RunKey(code, shift);
        AssertStateIsSound();
    }
}

void KeyUp(std::int32_t code)
{
    if (code == ShiftCode || code == CtrlCode) {
        ShowPlainSign();
    }
}

} // namespace kelvarine
