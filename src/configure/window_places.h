// Where a window opens: beside another one where the screen has room, and never off the screen.
#pragma once

#include "game/screens.h"

namespace kelvarine {

// The place brought wholly onto a screen; a window larger than the screen becomes as large as it.
WindowPlace BroughtOnScreen(WindowPlace place, const WindowPlace &screen);

// A place of a size beside another window: at its right, else at its left where there is room,
// else as far to the right as the screen goes.
WindowPlace PlaceBeside(const WindowPlace &window, std::int32_t width, std::int32_t height,
                        const WindowPlace &screen);

} // namespace kelvarine
