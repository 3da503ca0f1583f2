// The settings of printing: what is printed, where and how large, and how a batch is laid out.
#pragma once

#include "grid/cell_word.h"
#include "grid/range.h"

#include <cstdint>

namespace kelvarine {

// Values of PrintMode.
inline constexpr std::int32_t PrintCurrent = 0;  // the game on the board
inline constexpr std::int32_t PrintNewGames = 1; // a batch of new games

extern std::int32_t PrintMode; // optPrintGame; default PrintCurrent

extern Flag PrintAspect;   // width and height keep the board's proportions; default true
extern Flag PrintCentre;   // left and top are worked out; default true
extern Flag PrintFullPage; // the picture takes the printable area; default false

// The picture's size and its place from the corner of the printable area, in inches.
// Their ranges are hundredths of inches: no paper is so large, but a picture that is larger than
// its page stands beyond the page's edge when it is centred.
inline constexpr Range PrintSizeRange{0, 100000};
inline constexpr Range PrintPlaceRange{-100000, 100000};
extern double PrintWidth; // default 5
extern double PrintHeight;
extern double PrintLeft; // default 0
extern double PrintTop;

extern Flag PrintIncludeSolutions; // a batch ends with its solutions; default true

// These three do not outlast a run of the program.
extern Flag PrintGreyScale;            // kept, but nothing that is drawn depends on it
extern std::int32_t PrintGamesPerPage; // index 0..6 of the layouts; default 0
extern std::int32_t PrintPages;        // pages of a batch, 0..99; default 1

// Puts every setting above to its default.
void SetPrintDefaults();

} // namespace kelvarine
