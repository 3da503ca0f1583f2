#include "input/spoken.h"

#include "game/clock.h"
#include "game/lifecycle.h"
#include "grid/grid.h"
#include "grid/names.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace kelvarine {

namespace {

std::string NumbersIn(CellWord mask)
{
    std::string text;
    for (CellWord rest = mask; rest != 0; rest &= rest - 1) {
        text += (text.empty() ? "" : " ") + std::to_string(std::countr_zero(rest));
    }
    return text;
}

std::string SpokenNumbers(CellWord word)
{
    if (IsPaused()) {
        return "hidden while the clock is paused";
    }
    const CellWord candidates = word & CandidateMask;
    const CellWord shown = candidates & NumberFilter;
    if (candidates == 0) {
        return "empty";
    }
    if (shown == 0) {
        return "nothing in view";
    }
    return (std::has_single_bit(candidates) ? "" : "pencilmarks ") + NumbersIn(shown);
}

} // namespace

std::optional<Cell> SpokenPlace()
{
    if (CursorColumn != 0 && CursorRow != 0) {
        return MakeCell(CursorColumn, CursorRow);
    }
    const auto isSelected = [](Cell cell) {
        return (WordAt(cell) & SelectedBit) != 0;
    };
    const auto *const first = std::ranges::find_if(Cells, isSelected);
    if (first == Cells.end() || std::any_of(first + 1, Cells.end(), isSelected)) {
        return std::nullopt;
    }
    return *first;
}

std::string SpokenCell(Cell cell)
{
    const CellWord word = WordAt(cell);
    std::string text = CellName(cell.Column, cell.Row) + ": " + SpokenNumbers(word);
    if ((word & GivenBit) != 0) {
        text += ", given";
    }
    if ((word & AlertBit) != 0) {
        text += ", alert";
    }
    return text;
}

SpokenChange NextSpokenChange()
{
    static std::optional<Cell> lastPlace;
    static std::string lastText;
    const std::optional<Cell> place = SpokenPlace();
    std::string text = place ? SpokenCell(*place) : std::string();
    SpokenChange change = SpokenChange::None;
    if (place && place != lastPlace) {
        change = SpokenChange::Place;
    } else if (place && text != lastText) {
        change = SpokenChange::Text;
    }
    lastPlace = place;
    lastText = std::move(text);
    return change;
}

} // namespace kelvarine
