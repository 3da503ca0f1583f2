// Painting the board, as the rest of the program sees it: one call that repaints everything, and
// banners over it.
#pragma once

#include <cstdint>
#include <string_view>

namespace kelvarine {

// Paints the whole board anew from Grid and the look settings and shows it. Reads the state and
// changes none of it. Does nothing while SearchActive.
void DrawBoard();

// Shows a text in a box in the middle of the visible board, until the board is painted next.
void DrawBanner(std::string_view text);

// Shows that a game is being searched for, and how many were screened so far.
void DrawSearchBanner(std::int32_t count);

} // namespace kelvarine
