#include "input/spoken.h"

#include "board/look.h"
#include "game/clock.h"
#include "game/lifecycle.h"
#include "grid/colour_names.h"
#include "grid/grid.h"
#include "grid/names.h"
#include "input/number_keys.h"
#include "input/tool_tips.h"
#include "input/toolbar.h"
#include "logic/technique.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cassert>
#include <string_view>

namespace kelvarine {

namespace {

// Values of CellColour above the player's colours: hint marks that were made lasting.
constexpr std::size_t LastHighlight = 9;
constexpr std::size_t LastingHintDomain = 11;

bool IsSelected(Cell cell)
{
    return (WordAt(cell) & SelectedBit) != 0;
}

std::string NumbersIn(CellWord mask)
{
    std::string text;
    for (CellWord rest = mask; rest != 0; rest &= rest - 1) {
        text += (text.empty() ? "" : " ") + std::to_string(std::countr_zero(rest));
    }
    return text;
}

// Name of the colour that the player has given to a cell; empty for none.
std::string_view NameOfColour(CellWord word)
{
    const std::size_t colour = (word & CellColour) >> ColourShift;
    if (colour == 0 || colour > LastingHintDomain) {
        return {};
    }
    if (colour > LastHighlight) {
        return colour == LastingHintDomain ? "frozen hint area" : "frozen hint";
    }
    return ColourName(HighlightColours[colour]);
}

std::string_view NameOfHintMark(CellWord word)
{
    if ((word & HintCellBit) != 0) {
        return "hint";
    }
    return (word & HintDomainBit) != 0 ? "hint area" : "";
}

// The house whose cells are the selected ones, if there is one.
const House *SelectedHouse(std::int64_t count)
{
    if (count != 9) {
        return nullptr;
    }
    const auto *const found = std::ranges::find_if(
        Houses, [](const House &house) { return std::ranges::all_of(house.Cells, IsSelected); });
    return found == Houses.end() ? nullptr : found;
}

std::string_view WordOfSign()
{
    constexpr std::array<std::string_view, 3> words{"replace", "take away", "add"};
    assert(HasSign() && ToolSign >= Replace && ToolSign <= Add);
    return words[static_cast<std::size_t>(ToolSign)];
}

} // namespace

std::optional<Cell> SpokenPlace()
{
    if (CursorColumn != 0 && CursorRow != 0) {
        return MakeCell(CursorColumn, CursorRow);
    }
    const auto *const first = std::ranges::find_if(Cells, IsSelected);
    if (first == Cells.end() || std::any_of(first + 1, Cells.end(), IsSelected)) {
        return std::nullopt;
    }
    return *first;
}

std::string SpokenNumbers(Cell cell)
{
    if (IsPaused()) {
        return "hidden while the clock is paused";
    }
    const CellWord candidates = CandidatesOf(cell);
    const CellWord shown = candidates & NumberFilter;
    if (candidates == 0) {
        return "empty";
    }
    if (shown == 0) {
        return "nothing in view";
    }
    return (std::has_single_bit(candidates) ? "" : "pencilmarks ") + NumbersIn(shown);
}

std::string SpokenColour(Cell cell)
{
    return std::string(NameOfColour(WordAt(cell)));
}

std::string SpokenCell(Cell cell)
{
    const CellWord word = WordAt(cell);
    std::string text = SpokenNumbers(cell);
    for (const std::string_view more :
         {(word & GivenBit) != 0 ? std::string_view("given") : std::string_view(),
          NameOfColour(word),
          (word & AlertBit) != 0 ? std::string_view("alert") : std::string_view(),
          NameOfHintMark(word)}) {
        if (!more.empty()) {
            text += ", " + std::string(more);
        }
    }
    return text;
}

std::string SpokenWhere(Cell cell)
{
    const int column = cell.Column;
    const int row = cell.Row;
    return CellName(column, row) + ", row " + std::to_string(row) + " of 9, column " +
           std::to_string(column) + " of 9, " + BoxName(column, row) + " box";
}

std::string SpokenSelection()
{
    const auto count = std::ranges::count_if(Cells, IsSelected);
    if (count == 0) {
        return "no cells selected";
    }
    if (count == 1) {
        return NameOf(*std::ranges::find_if(Cells, IsSelected)) + " selected";
    }
    std::string text = std::to_string(count) + " cells selected";
    if (const House *house = SelectedHouse(count)) {
        text += ", " + HouseName(*house);
    }
    return text;
}

std::string SpokenTool(std::int32_t index)
{
    assert(index >= 0 && index < static_cast<std::int32_t>(ToolButtonCount));
    if (index > EscapeButton && index < AllButton) {
        return std::to_string(index);
    }
    if (index == SignButton && HasSign()) {
        return "+/- " + std::string(WordOfSign());
    }
    if (index == AllButton) {
        return "All";
    }
    return ToolButtons[static_cast<std::size_t>(index)].Caption;
}

std::string SpokenToolUse(std::int32_t index)
{
    if (index > SignButton) {
        return ModeButton(ToolMode) == index ? "what the numbers do now" : "";
    }
    std::string use = ToolTip(index, ToolMode, ToolSign);
    if (ToolMode == HighlightMode && index > EscapeButton && index < AllButton) {
        use += ": " + std::string(ColourName(HighlightColours[static_cast<std::size_t>(index)]));
    }
    return use;
}

} // namespace kelvarine
