#include "configure/window_places.h"

#include <algorithm>

namespace kelvarine {

WindowPlace BroughtOnScreen(WindowPlace place, const WindowPlace &screen)
{
    place.Width = std::min(place.Width, screen.Width);
    place.Height = std::min(place.Height, screen.Height);
    const std::int32_t lastLeft = screen.Left + screen.Width - place.Width;
    const std::int32_t lastTop = screen.Top + screen.Height - place.Height;
    place.Left = std::max(std::min(place.Left, lastLeft), screen.Left);
    place.Top = std::max(std::min(place.Top, lastTop), screen.Top);
    return place;
}

WindowPlace PlaceBeside(const WindowPlace &window, std::int32_t width, std::int32_t height,
                        const WindowPlace &screen)
{
    const std::int32_t right = window.Left + window.Width;
    const bool roomAtRight = right + width <= screen.Left + screen.Width;
    const bool roomAtLeft = window.Left - width >= screen.Left;
    const std::int32_t left = !roomAtRight && roomAtLeft ? window.Left - width : right;
    return BroughtOnScreen({left, window.Top, width, height}, screen);
}

} // namespace kelvarine
