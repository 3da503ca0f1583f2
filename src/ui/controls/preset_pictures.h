// Small pictures of the presets, painted with the presets themselves by the painter of the board,
// so that they show what the board will look like.
#pragma once

#include <QImage>

#include <cstdint>

namespace kelvarine {

// Picture of a preset, side by side logical pixels, on a sample position. All state is as before
// afterwards. Kept for the next call with the same device pixel ratio.
const QImage &PresetPicture(std::int32_t number, int side, double ratio);

} // namespace kelvarine
