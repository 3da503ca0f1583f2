// The texts on the margin of the window, which are the coordinates, the rating and the number of
// givens: what they say, in which colour, and whether they fit.
#pragma once

#include "board/look.h"
#include "grid/colour.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace kelvarine {

inline constexpr std::int32_t LeastTextMargin = 28; // no text on a thinner margin
inline constexpr double LargestMarginFont = 12;     // points

extern Colour CoordinateTextColour; // of all text on the margin

// Picks the state above for the present look, and forgets the rating shown. Call after
// SetLookDefaults.
void SetMarginDefaults();

// Sets CoordinateTextColour to what is readable on the margin. Called at the start and whenever
// the colour of the margin changes.
void PickMarginTextColour();

// Labels over a column and beside a row, 1..9: as the cells are named, but without the letter
// that some forms put in front of a number. Empty for an unknown format.
std::string ColumnLabel(int column);
std::string RowLabel(int row);

// Word for GameRating; a value that has none leaves the word of the previous call.
std::string_view MarginRatingWord();

// The number of givens in words.
std::string GivenCountText();

// True when a rating word and the given count, of these widths in pixels, both fit under the
// board.
bool GivenCountFits(int ratingWidth, int countWidth);

} // namespace kelvarine
