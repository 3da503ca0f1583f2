// The alert scan as the player meets it, with its sound.
#pragma once

#include <cstdint>

namespace kelvarine {

// Runs the alert scan in a mode 1..5 of logic/technique.h, and plays the alert sound when a cell is
// newly marked.
void ScanAlerts(std::int32_t mode);

} // namespace kelvarine
