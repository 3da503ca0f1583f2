// Finds the solutions of a sudoku by plain backtracking, apart from everything that is tested with
// it: it includes nothing of the program.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace kelvarine::testing {

// What each of the 81 cells may hold, row by row: bit n stands for number n, 1..9.
using CandidateField = std::array<std::uint16_t, 81>;

// The numbers 1..9 of the 81 cells, row by row.
using Solution = std::array<std::uint8_t, 81>;

// Any number in a cell.
inline constexpr std::uint16_t AnyNumber = 0x3FE;

// The field of a game drawn as 81 marks: a digit 1..9 is a given, any other mark an open cell.
CandidateField FieldOf(std::string_view line);

// The solutions of a field in the order of the search, at most limit of them.
std::vector<Solution> SolutionsOf(const CandidateField &field, std::size_t limit);

// The same, or nothing when it would take more than so many steps.
std::optional<std::vector<Solution>>
SolutionsWithin(std::int64_t steps, const CandidateField &field, std::size_t limit);

// The number of them, at most limit, or nothing as above.
std::optional<std::size_t> CountWithin(std::int64_t steps, const CandidateField &field,
                                       std::size_t limit);

} // namespace kelvarine::testing
