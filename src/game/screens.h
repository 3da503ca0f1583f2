// Where the program's windows stand and which of them are open: state that the configuration file
// keeps, and that the commands of the game ask for.
#pragma once

#include "grid/cell_word.h"
#include "grid/range.h"

#include <cstdint>

namespace kelvarine {

// A length in a file is in twips, so many to the pixel.
inline constexpr std::int32_t TwipsPerPixel = 15;

// A window's place in pixels. A width of 0 means that the window has never been placed.
struct WindowPlace {
    std::int32_t Left = 0;
    std::int32_t Top = 0;
    std::int32_t Width = 0;
    std::int32_t Height = 0;

    friend constexpr bool operator==(const WindowPlace &, const WindowPlace &) = default;
};

// A side that is longer than this was never the player's.
inline constexpr Range WindowSideRange{0, 8192};

extern WindowPlace MainPlace;
extern Flag MainMaximised;

extern WindowPlace ConfigurePlace;
extern Flag ConfigureOpen;

extern WindowPlace SolutionsPlace;
extern Flag SolutionsOpen;

extern WindowPlace FileDialogPlace;

extern WindowPlace StatisticsPlace; // only left and top outlast a run
extern Flag StatisticsOpen;

// Tab of the configuration screen; 8 and 9 are kept, but name none.
inline constexpr std::int32_t NewGamesTab = 0;
inline constexpr std::int32_t SoundTab = 1;
inline constexpr std::int32_t PrintTab = 2;
inline constexpr std::int32_t LogicTab = 3;
inline constexpr std::int32_t PresetGridsTab = 4;
inline constexpr std::int32_t GridTab = 5;
inline constexpr std::int32_t ColoursTab = 6;
inline constexpr std::int32_t CoordinatesTab = 7;
inline constexpr Range CurrentTabRange{0, 9};
extern std::int32_t CurrentTab;

// Format of the listed solutions: 0 in lines of 81 digits, 1 as frames; default 1.
inline constexpr Range SolutionsFormatRange{0, 1};
extern std::int32_t SolutionsFormat;

// A window's place brought back into reach of a screen of a size in pixels: where it would lie
// beyond the screen to the right, left, bottom or top it moves near the screen's top left corner,
// each direction by itself. Its size stays.
WindowPlace ReachablePlace(WindowPlace place, std::int32_t screenWidth, std::int32_t screenHeight);

// Puts all of this to its defaults: nothing placed, nothing open.
void SetScreenDefaults();

} // namespace kelvarine
