// One number for everything that the logic concludes on a fixed set of positions.
#pragma once

#include <cstdint>

namespace kelvarine::testing {

// Runs some hundred positions, sound and absurd, through driver, alert scan, hints and rating and
// sums words, masks, texts and ratings up. The same on every machine and at every call.
std::uint64_t LogicSignature();

} // namespace kelvarine::testing
