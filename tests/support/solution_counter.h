// Counts solutions by plain backtracking, independently of the program's own code.
#pragma once

#include <string_view>

namespace kelvarine::testing {

// Number of solutions, at most limit, of 81 marks row after row: a digit 1..9 or "." for empty.
int CountSolutionsOf(std::string_view marks, int limit);

} // namespace kelvarine::testing
