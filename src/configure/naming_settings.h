// What the Coordinates tab does to the names of cells.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace kelvarine {

// Captions by the index that each choice gives its setting.
extern const std::array<std::string_view, 5> ColumnCaptions;
extern const std::array<std::string_view, 5> RowCaptions;
extern const std::array<std::string_view, 4> SeparatorCaptions;
extern const std::array<std::string_view, 5> BracketCaptions;

// Sets the naming style of the columns, or of the rows, 0..4, and refreshes the window, whose
// labels follow it.
void SetColumnFormat(std::int32_t format);
void SetRowFormat(std::int32_t format);

// Sets the separator, 0..3, or the brackets, 0..4.
void SetCoordSeparator(std::int32_t separator);
void SetCoordBrackets(std::int32_t brackets);

// Lets the other coordinate stand first.
void SwitchCoordOrder();

} // namespace kelvarine
