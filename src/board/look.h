// The look of the board: colours, textures, thicknesses and effects, all of them the player's
// settings and kept in the configuration file.
#pragma once

#include "grid/cell_word.h"
#include "grid/colour.h"
#include "grid/range.h"

#include <array>
#include <cstdint>

namespace kelvarine {

// Entries of ColourTable.
inline constexpr std::size_t GivenCellColour = 0;
inline constexpr std::size_t UnknownCellColour = 1;
inline constexpr std::size_t SelectedCellColour = 2;
inline constexpr std::size_t GivenNumberColour = 3;
inline constexpr std::size_t UnknownNumberColour = 4;
inline constexpr std::size_t PrimaryLineColour = 5;
inline constexpr std::size_t SecondaryLineColour = 6;
inline constexpr std::size_t PencilmarkLineColour = 7;
inline constexpr std::size_t HintCellColour = 8;
inline constexpr std::size_t HintDomainColour = 9;
inline constexpr std::size_t AlertColour = 10; // also links and chains
inline constexpr std::size_t MarginColour = 11;

inline constexpr std::size_t ColourCount = 12;
extern std::array<Colour, ColourCount> ColourTable;
extern std::array<Colour, 11> HighlightColours; // 1..10 used

inline constexpr Range TextureRange{0, 12}; // tile numbers, 0 for none
extern std::int32_t GivenTexture;
extern std::int32_t UnknownTexture;
extern std::int32_t GridTexture;

inline constexpr Range LineThicknessRange{0, 50}; // pixels, of lines and border
inline constexpr Range MarginThicknessRange{0, 100};
extern std::int32_t PrimaryThickness;   // lines between boxes, pixels; default 8
extern std::int32_t SecondaryThickness; // lines inside a box; default 0
extern std::int32_t BorderThickness;    // 3D border round the grid; default 10
extern std::int32_t MarginThickness;    // margin of the window; default 30

extern Flag PrimaryGrid3D; // default false
extern Flag SecondaryGrid3D;
extern Flag GivenCells3D; // default true
extern Flag UnknownCells3D;
extern Flag SelectedCells3D;

inline constexpr Range PencilmarkLayoutRange{0, 1};
inline constexpr Range StrongLinkModeRange{0, 2};
extern std::int32_t PencilmarkLayout; // 0 variable, 1 three by three; default 1
extern Flag PencilmarkLines;          // dividing lines in cells; default false
extern std::int32_t StrongLinkMode;   // 0 never, 1 in isolated views, 2 always; default 1

extern Flag ToolbarVisible; // default true
extern Flag ToolTipsVisible;
extern Flag CoordinatesVisible;

// Puts the part of the look that a preset holds to its default: the twelve colours, the textures,
// the thicknesses of lines and border, and the effects.
void SetDefaultLook();

// Puts every setting above to its default.
void SetLookDefaults();

} // namespace kelvarine
