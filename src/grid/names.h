// How cells and houses are called in words, in the player's own coordinate style.
#pragma once

#include "grid/cell_word.h"
#include "grid/range.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace kelvarine {

// How a line is called: what stands before its sign, and the signs of the nine lines.
struct LineForm {
    std::string_view Prefix;
    std::string_view Signs;
};

inline constexpr std::string_view DigitSigns = "123456789";
// The letter I is left out on purpose: beside a digit it reads as a one.
inline constexpr std::string_view CapitalSigns = "ABCDEFGHJ";
inline constexpr std::string_view SmallSigns = "abcdefghj";

struct BracketForm {
    std::string_view Opening;
    std::string_view Closing;
};

// The choices, by the number that each has in its setting. They make the settings' ranges, too.
inline constexpr std::array ColumnForms{LineForm{"", DigitSigns}, LineForm{"", CapitalSigns},
                                        LineForm{"", SmallSigns}, LineForm{"C", DigitSigns},
                                        LineForm{"c", DigitSigns}};
inline constexpr std::array RowForms{LineForm{"", DigitSigns}, LineForm{"", CapitalSigns},
                                     LineForm{"", SmallSigns}, LineForm{"R", DigitSigns},
                                     LineForm{"r", DigitSigns}};
inline constexpr std::array<std::string_view, 4> SeparatorForms{"", ",", "-", "/"};
inline constexpr std::array BracketForms{BracketForm{"", ""}, BracketForm{"(", ")"},
                                         BracketForm{"{", "}"}, BracketForm{"[", "]"},
                                         BracketForm{"<", ">"}};

// Settings, kept in the configuration file: which of the forms is chosen. A value outside its range
// produces nothing for its element of a name.
inline constexpr Range ColumnFormatRange = IndicesOf(ColumnForms);
inline constexpr Range RowFormatRange = IndicesOf(RowForms);
inline constexpr Range CoordSeparatorRange = IndicesOf(SeparatorForms);
inline constexpr Range CoordBracketsRange = IndicesOf(BracketForms);
extern std::int32_t ColumnFormat;   // default 1
extern std::int32_t RowFormat;      // default 0
extern std::int32_t CoordSeparator; // default 0
extern std::int32_t CoordBrackets;  // default 3
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
