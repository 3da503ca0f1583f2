// picColorpal: the picture of all colours from which a press picks one.
#pragma once

#include <QImage>

namespace kelvarine {

// A picture of the given size in pixels: greys from black to white on top, below them every hue
// from its dark to its light shades.
QImage PalettePicture(int width, int height);

} // namespace kelvarine
