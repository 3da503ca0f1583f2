// Colours of the engine as the toolkit's, and the other way round.
#pragma once

#include "grid/colour.h"

#include <QColor>

namespace kelvarine {

inline QColor ToolkitColour(Colour colour)
{
    return QColor::fromRgb(colour);
}

// The colour without its opacity.
inline Colour ColourOf(QRgb colour)
{
    return colour & RGB_MASK;
}

} // namespace kelvarine
