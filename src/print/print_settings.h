// The settings of printing: what goes on paper, where and how large. The print tab edits them, and
// the configuration file keeps those of a single picture.
#pragma once

#include "grid/cell_word.h"

#include <cstdint>

namespace kelvarine {

// What is printed; back at its default at each start.
inline constexpr std::int32_t PrintCurrentGame = 0;
inline constexpr std::int32_t PrintNewGames = 1;
extern std::int32_t PrintMode; // default PrintCurrentGame

// The place and size of the picture of the current game.
extern Flag PrintAspect;   // width and height keep the board's proportion; default true
extern Flag PrintCentre;   // left and top follow from the page; default true
extern Flag PrintFullPage; // the picture takes the printable area; default false
extern double PrintWidth;  // inches, all four; default 5
extern double PrintHeight; // default 5
extern double PrintLeft;   // default 0
extern double PrintTop;    // default 0

extern Flag PrintIncludeSolutions; // a batch ends with its solutions; default true

// The rest of a batch; back at its default at each start.
extern Flag PrintGreyScale;            // kept, and read by no drawing; default false
extern std::int32_t PrintGamesPerPage; // entry of the list of layouts, 0..6; default 0
extern std::int32_t PrintPages;        // default 1

// Puts all of this to its defaults.
void SetPrintDefaults();

} // namespace kelvarine
