// How cells and houses are called in words, in the player's own coordinate style.
#pragma once

#include "grid/cell_word.h"

#include <cstdint>
#include <string>

namespace kelvarine {

// Settings, kept in the configuration file. A value outside its range produces nothing for its
// element of a name.
extern std::int32_t ColumnFormat;   // 0 digit, 1 "A", 2 "a", 3 "C1", 4 "c1"; default 1
extern std::int32_t RowFormat;      // 0 digit, 1 "A", 2 "a", 3 "R1", 4 "r1"; default 0
extern std::int32_t CoordSeparator; // 0 none, 1 ",", 2 "-", 3 "/"; default 0
extern std::int32_t CoordBrackets;  // 0 none, 1 "()", 2 "{}", 3 "[]", 4 "<>"; default 3
extern Flag CoordRowFirst;          // whether the row part stands first; default false

// Puts the settings above to their defaults.
void SetNamingDefaults();

// Name of a column, 1..9, such as "A" or "C1".
std::string ColumnName(int column);

// Name of a row, 1..9, such as "1" or "r1".
std::string RowName(int row);

// Name of a cell with brackets and separator, such as "[A1]". Column and row are 1..9.
std::string CellName(int column, int row);

// Name in words of the box that holds a cell, such as "upper-left" or "center"; the settings do
// not matter. Column and row are 1..9.
std::string BoxName(int column, int row);

} // namespace kelvarine
