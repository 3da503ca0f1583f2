// What the Colors and the Grid tab do to the look of the board. Every change shows on the board at
// once.
#pragma once

#include "board/look.h"
#include "grid/colour.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace kelvarine {

// Captions of the twelve colours in the order of ColourTable.
extern const std::array<std::string_view, ColourCount> ColourCaptions;

// Sets a colour, 0..11, and paints the board; that of the margin refreshes the window, too.
void SetColour(std::size_t index, Colour colour);

// The texture that goes with a colour, 0..11, or null. Both kinds of grid lines share one.
std::int32_t *TextureOf(std::size_t index);

// Sets the texture that goes with a colour to a tile and paints the board; nothing for a colour
// without texture.
void SetTexture(std::size_t index, std::int32_t tile);

// Sets one of the thicknesses and lays the window out anew.
void SetThickness(std::int32_t &thickness, std::int32_t pixels);

// Sets one of the flags of the look and paints the board.
void SetLookFlag(Flag &flag, bool on);

// Captions of the layouts of the pencilmarks.
extern const std::array<std::string_view, CountOf(PencilmarkLayoutRange)> LayoutCaptions;

// Sets PencilmarkLayout and paints the board.
void SetPencilmarkLayout(std::int32_t layout);

} // namespace kelvarine
