// Windows that come back to where they stood, on a screen that is there.
#pragma once

#include "game/screens.h"

class QWidget;

namespace kelvarine {

// Gives a window that is not shown yet its kept place and size, brought onto the screens that are
// there. A window that has never been placed keeps its own size, and the desktop places it.
void RestorePlace(QWidget &window, const WindowPlace &place);

// The place of a window, frame included, and its inner size.
WindowPlace PlaceOf(const QWidget &window);

} // namespace kelvarine
