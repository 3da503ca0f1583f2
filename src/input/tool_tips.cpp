#include "input/tool_tips.h"

#include "input/number_keys.h"
#include "input/toolbar.h"

#include <algorithm>
#include <array>
#include <cassert>

namespace kelvarine {

namespace {

using Words = std::array<std::string_view, 3>; // by sign: plain, minus, plus

// In the words of a number % stands for it and ~ for the plural ending where it is above 1.
struct TipRow {
    std::int32_t Mode;
    Words Number;
    Words All;
};

constexpr std::array TipRows{
    TipRow{
        EditMode,
        {"Set selected cells to #%", "Remove #% from selected cells", "Add #% to selected cells"},
        {"Enter all numbers in selected cells", "Remove all numbers from selected cells",
         "Add all numbers to selected cells"}},
    TipRow{HighlightMode,
           {"Highlight selected cells with this color", "Highlight selected cells with this color",
            "Highlight selected cells with this color"},
           {"Clear all highlights from selected cells", "Clear all highlights from selected cells",
            "Clear all highlights from selected cells"}},
    TipRow{SelectSinglesMode,
           {"Select cells containing single %'s", "De-select cells containing single %'s",
            "Add cells containing single %'s to selection"},
           {"Select all cells containing singles", "De-select all cells containing singles",
            "Add all cells containing singles to selection"}},
    TipRow{SelectDomainsMode,
           {"Select %'s + domains", "Select %'s + domains", "Select %'s + domains"},
           {"Select all singles + domains", "Select all singles + domains",
            "Select all singles + domains"}},
    TipRow{SelectCountMode,
           {"Select cells containing % digit~", "De-select cells containing % digit~",
            "Add cells containing % digit~ to selection"},
           {"Select empty cells", "De-select empty cells", "Add empty cells to selection"}},
    TipRow{SelectContainingMode,
           {"Select cells containing %'s", "De-select cells containing %'s",
            "Add cells containing %'s to selection"},
           {"Select all cells containing #'s", "De-select all cells containing #'s",
            "Add all cells containing #'s to selection"}},
    TipRow{ViewMode,
           {"View isolated %'s", "Remove %'s from view", "Add %'s to view"},
           {"View all #'s", "View all #'s", "View all #'s"}},
};

// % becomes the number, ~ the plural ending.
std::string Filled(std::string_view words, std::int32_t number)
{
    std::string text;
    for (const char mark : words) {
        if (mark == '%') {
            text += std::to_string(number);
        } else if (mark != '~') {
            text += mark;
        } else if (number > 1) {
            text += 's';
        }
    }
    return text;
}

std::string SignTip(std::int32_t mode)
{
    switch (mode) {
    case HighlightMode:
        return "Freeze displayed alert highlights";
    case SelectDomainsMode:
        return "Inop";
    default:
        return "Toggle buttons to set, add, or remove";
    }
}

} // namespace

std::string ToolTip(std::int32_t index, std::int32_t mode, std::int32_t sign)
{
    assert(index >= 0 && index <= 11);
    if (index == EscapeButton) {
        return "View all, select all, & clear all highlights";
    }
    if (index == SignButton) {
        return SignTip(mode);
    }
    const auto *row = std::ranges::find(TipRows, mode, &TipRow::Mode);
    if (row == TipRows.end()) {
        return {};
    }
    const auto k = static_cast<std::size_t>(std::clamp(sign, 0, 2));
    return index == AllButton ? std::string(row->All[k]) : Filled(row->Number[k], index);
}

} // namespace kelvarine
