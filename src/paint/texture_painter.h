// The grey tiles that grain the colours beneath them, as if painted on linen, wood or stone.
#pragma once

#include "board/look.h"
#include "paint/pixel_painter.h"

namespace kelvarine {

inline constexpr int TileSide = 56;                     // logical pixels
inline constexpr int TileCount = TextureRange.Most + 1; // of the strip, with the white one

// Covers a rectangle with tiles from its top left corner on, each pixel combined with the one
// beneath by a bitwise AND. Nothing for the white tile 0 and for a number that is no tile.
void TextureRectangle(const Canvas &canvas, const Rectangle &rectangle, std::int32_t texture);

// Fills a rectangle with a colour that is textured as above, in one pass.
void FillTextured(const Canvas &canvas, const Rectangle &rectangle, Colour colour,
                  std::int32_t texture);

} // namespace kelvarine
