// What a call left on the grid and in the words, as text to compare with.
#pragma once

#include "grid/grid.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace kelvarine::testing {

// Everything that differs from the grid before a call, a line for each kind of trace, in this
// order: "found"; changed candidates, such as "A9 139 -> 9" with "." for none; then the cells with
// marks, such as "alert A1 B2", for "alert", "selected", "hint cell", "hint domain" and "other
// marks", whether they are new or not; then "title" and "text" when there are any. A line end in
// the words shows as "|".
std::string TracesSince(const GridTable &before, Flag found);

// Runs an operation of the form (mode, found) on a drawn position, in the form that SetPencilmarks
// reads, with one cell selected when it is given, and returns what it left.
std::string TracesOf(void (*operation)(std::int32_t, Flag &), std::int32_t mode,
                     std::string_view drawing, Cell selected = {});

} // namespace kelvarine::testing
