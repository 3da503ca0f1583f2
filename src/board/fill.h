// What a cell is filled with, as colour and texture: by its marks in play, by moving patterns
// during the display after a win.
#pragma once

#include "board/look.h"
#include "grid/colour.h"
#include "grid/houses.h"

#include <array>
#include <cstdint>
#include <optional>

namespace kelvarine {

inline constexpr std::int32_t NoTexture = 0; // the white tile, which leaves a colour as it is

struct CellFill {
    std::optional<Colour> Paint; // nothing: the cell shows what lay there
    std::int32_t Texture = NoTexture;
};

// Fill of a cell of Grid. Where the win display asks for random colours each call draws one.
CellFill FillOf(Cell cell);

// Fills of all cells of Grid, in scan order, each asked for once.
using CellFills = std::array<CellFill, Cells.size()>;
CellFills FillsOfCells();

} // namespace kelvarine
