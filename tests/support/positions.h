// Positions drawn as text, so that a reader of a test sees them.
#pragma once

#include "grid/grid.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace kelvarine::testing {

// Reads 81 marks, blanks and line ends between them ignored: a digit is a given, "." an empty
// cell without candidates. Replaces Grid.
void SetGivens(std::string_view drawing);

// As SetGivens, then all nine pencilmarks in every cell that is not a given.
void SetGame(std::string_view drawing);

// Reads 81 cells parted by blanks and line ends: a run of digits is the cell's candidates, "."
// none; a run in brackets, such as [5], is a given. Replaces Grid.
void SetPencilmarks(std::string_view drawing);

// The candidates of a grid as text in the form that SetPencilmarks reads, nine lines of nine.
std::string PencilmarksOf(const GridTable &grid);

// The grid as 81 marks in a line: the number of a cell with one candidate, "." for any other.
std::string NumbersOf(const GridTable &grid);

// The candidates of a word as digits, "." for none.
std::string DigitsOf(CellWord word);

// Name of a cell, such as "J9", its column as a letter without I and its row as a digit whatever
// the naming settings are, and the cell of a name.
std::string PlainName(std::int32_t column, std::int32_t row);
std::string PlainName(Cell cell);
Cell CellNamed(std::string_view name);

// The cells whose word holds any of the bits, in scan order, such as "A1 A2 J9".
std::string CellsWith(CellWord bits);

} // namespace kelvarine::testing
