// The driver in its plainest form, numbered step by numbered step, as a yardstick for the fast one.
// The operations are those of the table of techniques.
#pragma once

#include "logic/driver.h"

#include <cstdint>

namespace kelvarine::testing::plain {

// Works on Grid and leaves what the driver leaves, with the same calls outward.
std::int32_t ApplyLogic(std::int32_t mode);

} // namespace kelvarine::testing::plain
