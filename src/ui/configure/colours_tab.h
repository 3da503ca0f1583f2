// picTabTableColors: the twelve colours of the board with their swatches, the bars and the palette
// that set them, and the block of textures.
#pragma once

#include <cstddef>

class QWidget;

namespace kelvarine {

// Row of ColourTable that is being edited, 0..11; the first when the screen opens.
extern std::size_t ColourIndex;

// Makes the panel, filled from the state.
QWidget *MakeColoursTab(QWidget *parent);

// Moves the three bars to the colour that is being edited, without writing it back. Call when the
// tab comes up, and whenever that colour changes by another way.
void SetColorScrollbars();

} // namespace kelvarine
