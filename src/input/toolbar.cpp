#include "input/toolbar.h"

#include "board/look.h"
#include "game/alert_scan.h"
#include "game/check_state.h"
#include "game/lifecycle.h"
#include "game/search.h"
#include "grid/colour.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "input/number_keys.h"
#include "input/selection.h"
#include "input/tool_tips.h"
#include "logic/technique.h"
#include "outside/board.h"
#include "outside/window.h"

#include <algorithm>
#include <cassert>

namespace kelvarine {

std::array<ToolButton, ToolButtonCount> ToolButtons;
std::int32_t ToolMode;
std::int32_t ToolSign;

namespace {

// Modes that the select and the edit button go back to.
std::int32_t selectTag;
std::int32_t editTag;

constexpr Colour IdleColour = Rgb(192, 192, 192);

// What the button of a mode shows while the mode is on.
struct ModeLook {
    std::int32_t Mode;
    std::int32_t Button;
    std::string_view Caption;
    Colour Background;
};

constexpr std::array ModeLooks{
    ModeLook{EditMode, EditButton, "Edit", Rgb(50, 163, 255)},
    ModeLook{HighlightMode, EditButton, "Highlight", Rgb(0, 255, 255)},
    ModeLook{SelectSinglesMode, SelectButton, "Select singles", Rgb(0, 255, 0)},
    ModeLook{SelectDomainsMode, SelectButton, "Select singles + domain", Rgb(255, 255, 0)},
    ModeLook{SelectCountMode, SelectButton, "Select # of digits", Rgb(192, 192, 0)},
    ModeLook{SelectContainingMode, SelectButton, "Select cells containing a #", Rgb(255, 173, 90)},
    ModeLook{ViewMode, ViewButton, "View", Rgb(255, 64, 65)},
};

const ModeLook &LookOf(std::int32_t mode)
{
    const auto *found = std::ranges::find(ModeLooks, mode, &ModeLook::Mode);
    return found != ModeLooks.end() ? *found : ModeLooks.front();
}

ToolButton &Button(std::int32_t index)
{
    return ToolButtons[static_cast<std::size_t>(index)];
}

std::string_view CaptionOfAll()
{
    return ToolMode == SelectCountMode ? "0" : "All";
}

std::string Signed(std::string_view caption)
{
    constexpr std::array<std::string_view, 3> signs{"", "- ", "+ "};
    return std::string(signs[static_cast<std::size_t>(ToolSign)]) + std::string(caption);
}

void SetNumberCaptions()
{
    for (std::int32_t number = 1; number <= 9; ++number) {
        Button(number).Caption = Signed(std::to_string(number));
    }
    Button(AllButton).Caption = ToolMode == ViewMode ? std::string("All") : Signed(CaptionOfAll());
}

void ShowButtons()
{
    UpdateToolTips();
    UpdateToolbar();
}

// ---- The mode buttons ----------------------------------------------------------------------

void ShowHighlightColours()
{
    for (std::int32_t number = 1; number <= AllButton; ++number) {
        Button(number).Background = HighlightColours[static_cast<std::size_t>(number)];
        Button(number).Caption.clear();
    }
    Button(AllButton).Caption = "Clr";
}

// Brings all buttons in line with ToolMode.
void ShowMode()
{
    for (const std::int32_t button : {SelectButton, EditButton, ViewButton}) {
        Button(button).Background = IdleColour;
    }
    const ModeLook &look = LookOf(ToolMode);
    Button(look.Button).Caption = look.Caption;
    Button(look.Button).Background = look.Background;
    Button(SignButton).Caption = ToolMode == HighlightMode ? "Frz" : "+/-";
    ToolSign = Replace;
    if (ToolMode == HighlightMode) {
        ShowHighlightColours();
        return;
    }
    for (std::int32_t number = 1; number <= AllButton; ++number) {
        Button(number).Background = look.Background;
    }
    SetNumberCaptions();
}

// The first press goes back to the mode that a button had last; only a further one moves on to the
// next mode of the button, from the last to the first.
void StepMode(bool isOn, std::int32_t &tag, std::int32_t first, std::int32_t last)
{
    if (!isOn) {
        ToolMode = tag;
        return;
    }
    ToolMode = ToolMode >= last ? first : ToolMode + 1;
    tag = ToolMode;
}

void PressModeButton(std::int32_t index)
{
    switch (index) {
    case SelectButton:
        StepMode(ToolMode >= SelectSinglesMode && ToolMode < ViewMode, selectTag, SelectSinglesMode,
                 SelectContainingMode);
        break;
    case EditButton:
        StepMode(ToolMode < SelectSinglesMode, editTag, EditMode, HighlightMode);
        break;
    default:
        ToolMode = ViewMode;
        break;
    }
    ShowMode();
    ShowButtons();
    FocusBoard();
}

// ---- The other buttons ---------------------------------------------------------------------

// What follows a number button. Only in edit mode can it have finished the game.
void FinishButton(Flag update)
{
    if (update != False) {
        if (ToolMode == EditMode) {
            if (IsGridSolved() != False) {
                UpdateStatistics();
            } else {
                ScanAlerts(ModeAlert);
            }
        }
        DrawBoard();
    }
    FocusBoard();
}

void PressNumber(std::int32_t number)
{
    Flag update = False;
    ProcessNumKey(number, ToolMode, ToolSign, update);
    FinishButton(update);
}

// All numbers in view, all cells selected, no colours and hint marks.
void PressEscape()
{
    Flag viewChange = False; // a change of the view alone leaves no undo state
    ProcessNumKey(0, ViewMode, Replace, viewChange);
    const GridTable before = Grid;
    ClearCellBits(CellColour | HintCellBit | HintDomainBit);
    const bool changed = Grid != before;
    mnuSelectWholeGrid();
    if (changed) {
        PushUndoState();
        FinishButton(True);
    } else {
        FocusBoard();
    }
}

// The marks of a hint become colours of the player's own, which stay when the next scan clears the
// marks.
void FreezeHighlights()
{
    constexpr CellWord frozenCell = 10U << ColourShift;
    constexpr CellWord frozenDomain = 11U << ColourShift;
    bool changed = false;
    for (const Cell cell : Cells) {
        CellWord &word = WordAt(cell);
        const CellWord before = word;
        if ((word & HintCellBit) != 0) {
            word = (word & ~CellColour) | frozenCell;
        } else if ((word & HintDomainBit) != 0) {
            word = (word & ~CellColour) | frozenDomain;
        }
        changed = changed || word != before;
    }
    if (changed) {
        PushUndoState();
    }
}

void StepSign()
{
    ToolSign = ToolSign <= 0 ? Add : ToolSign - 1;
    SetNumberCaptions();
    ShowButtons();
}

void PressSign()
{
    if (ToolMode == SelectDomainsMode) {
        return;
    }
    if (ToolMode == HighlightMode) {
        FreezeHighlights();
        return;
    }
    StepSign();
    FocusBoard();
}

void ShowSign(std::int32_t sign)
{
    if (ToolMode != HighlightMode) {
        ToolSign = sign;
        ProcessToolbar(SignButton);
    }
}

} // namespace

bool HasSign()
{
    return ToolMode != HighlightMode && ToolMode != SelectDomainsMode;
}

std::int32_t ModeButton(std::int32_t mode)
{
    return LookOf(mode).Button;
}

void SetToolbarDefaults()
{
    ToolButtons = {};
    ToolMode = EditMode;
    selectTag = SelectSinglesMode;
    editTag = EditMode;
    for (ToolButton &button : ToolButtons) {
        button.Background = IdleColour;
    }
    Button(EscapeButton).Caption = "Esc";
    for (const std::int32_t mode : {SelectSinglesMode, EditMode, ViewMode}) {
        const ModeLook &look = LookOf(mode);
        Button(look.Button).Caption = look.Caption;
    }
    ShowMode();
    UpdateToolTips();
}

void ToolPressed(std::int32_t index)
{
    if (ReadyForCommand()) {
        ProcessToolbar(index);
        AssertStateIsSound();
    }
}

void ProcessToolbar(std::int32_t index)
{
    assert(index >= 0 && index <= 14);
    if (index == EscapeButton) {
        PressEscape();
    } else if (index <= AllButton) {
        PressNumber(index % AllButton);
    } else if (index == SignButton) {
        PressSign();
    } else {
        PressModeButton(index);
    }
}

void UpdateToolTips()
{
    for (std::int32_t index = EscapeButton; index <= SignButton; ++index) {
        Button(index).Tip =
            ToolTipsVisible == False ? std::string() : ToolTip(index, ToolMode, ToolSign);
    }
}

// The toggle steps the sign down by one from what is set here.
void ShowSignOfShift()
{
    ShowSign(TakeAway + 1);
}

void ShowSignOfCtrl()
{
    ShowSign(Add + 1);
}

void ShowPlainSign()
{
    ToolSign = Replace + 1;
    ShowSign(ToolSign);
}

void LetSignGo()
{
    ToolSign = Replace + 1;
    if (HasSign()) {
        StepSign();
    }
}

void LayoutToolbar(int width)
{
    constexpr int narrowest = 40;
    constexpr int widestGap = 6;
    int button = std::max(width / 12, narrowest);
    int gap = 0;
    while (button > narrowest && gap < widestGap) {
        --button;
        ++gap;
    }
    const int offset = (width - 12 * button - 11 * gap) / 2;
    for (std::int32_t index = 0; index <= SignButton; ++index) {
        Button(index).Place = {offset + index * (button + gap), 3, button, 26};
    }
    for (const std::int32_t index : {SelectButton, EditButton, ViewButton}) {
        const int above = (index - SelectButton) * 4;
        Button(index).Place = {Button(above).Place.X, 32, 4 * button + 3 * gap, 18};
    }
}

std::optional<std::int32_t> ToolUnderFinger(int x, int y)
{
    constexpr int secondRow = 30; // pixels from the top
    const bool modes = y >= secondRow;
    const std::int32_t first = modes ? SelectButton : EscapeButton;
    const std::int32_t last = modes ? ViewButton : SignButton;
    const Rectangle &end = Button(last).Place;
    if (y < 0 || y >= ToolbarHeight || x < Button(first).Place.X || x >= end.X + end.Width) {
        return std::nullopt;
    }
    for (std::int32_t index = first; index < last; ++index) {
        const Rectangle &place = Button(index).Place;
        if (2 * x < place.X + place.Width + Button(index + 1).Place.X) {
            return index;
        }
    }
    return last;
}

void SlideToolbar(int px, int width)
{
    constexpr int reach = 10;
    const Rectangle &last = Button(SignButton).Place;
    const int rightEnd = last.X + last.Width;
    const int left = Button(EscapeButton).Place.X;
    int shift = 0;
    if (px > width - reach) {
        shift = rightEnd > width ? -(rightEnd - width + 1) : 0;
    } else if (px < reach && left < 1) {
        shift = 1 - left;
    }
    if (shift != 0) {
        for (ToolButton &button : ToolButtons) {
            button.Place.X += shift;
        }
        UpdateToolbar();
    }
}

} // namespace kelvarine
