// The plain walks along chains end on every position, but on some that is further off than anyone
// could wait for. They count their steps, and a comparison gives up where they take too many.
#pragma once

#include <cstdint>
#include <limits>

namespace kelvarine::testing::plain {

// Thrown by a walk that has no step left.
struct OutOfSteps {};

inline std::int64_t StepsLeft = std::numeric_limits<std::int64_t>::max();

inline void TakeStep()
{
    if (StepsLeft == 0) {
        throw OutOfSteps{};
    }
    --StepsLeft;
}

} // namespace kelvarine::testing::plain
