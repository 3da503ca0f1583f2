// Whole looks at a click: the presets, each with its colours, textures, thicknesses and effects.
#pragma once

#include <cstdint>

namespace kelvarine {

// Presets that the tab offers, by their numbers 0..7. The table also holds 8, 9, 10 and 100, which
// no picture reaches.
inline constexpr std::int32_t OfferedPresets = 8;

// Loads a preset into the settings of the look and changes nothing else, so that a picture of it
// can be painted; false for a number that names none. The margin's thickness and the layout of the
// pencilmarks are no part of a preset.
bool LoadPreset(std::int32_t number);

// Loads a preset and shows it: lays the window out and paints it all. Nothing for a number that
// names none.
void ApplyPreset(std::int32_t number);

} // namespace kelvarine
