// A position as plain text: the framed nine-line drawing and the single line, written from Grid,
// and the two ways of reading cells out of almost any text.
#pragma once

#include "grid/cell_word.h"

#include <string>
#include <string_view>

namespace kelvarine {

// The grid format: nine framed lines, each cell with its digits in view or ".". Lines end with
// carriage return and line feed.
std::string GridFormatText();

// The form of a text file: as the grid format, but with "0" for an empty cell and lines as wide as
// all candidates want it, in view or not.
std::string TextFileText();

// The single-line format: a mark for each cell, parted by blanks only where two runs of digits
// would touch, with a line end.
std::string SingleLineText();

// Number of cells that a reader took from a text, 0..81; 81 when the data is complete. Text after
// the last cell is ignored. Both read into Grid, which the caller has cleared.

// Every digit and "." is one cell; digits 1..9 become givens. Other characters mean nothing.
int ReadByCharacters(std::string_view text);

// Every run of digits 1..9 is one cell: a given when the run has one digit, else a cell with these
// candidates. "." and "0" are empty cells. Other characters end a run.
int ReadByDigitRuns(std::string_view text);

// Clears Grid and reads a text in the way that its blanks and its number of cells call for.
// Returns the number of cells taken, 0..81. The cells of Grid before stand in History slot 102.
int ReadPosition(std::string_view text);

} // namespace kelvarine
