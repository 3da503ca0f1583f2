// What the Coordinates tab does to the names of cells.
#pragma once

#include "grid/names.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace kelvarine {

// Captions by the index that each choice gives its setting, one for each form of names.h.
extern const std::array<std::string_view, ColumnForms.size()> ColumnCaptions;
extern const std::array<std::string_view, RowForms.size()> RowCaptions;
extern const std::array<std::string_view, SeparatorForms.size()> SeparatorCaptions;
extern const std::array<std::string_view, BracketForms.size()> BracketCaptions;

// Sets the naming style of the columns, or of the rows, and refreshes the window, whose labels
// follow it.
void SetColumnFormat(std::int32_t format);
void SetRowFormat(std::int32_t format);

// Sets the separator or the brackets.
void SetCoordSeparator(std::int32_t separator);
void SetCoordBrackets(std::int32_t brackets);

// Lets the other coordinate stand first.
void SwitchCoordOrder();

} // namespace kelvarine
