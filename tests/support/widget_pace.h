// The pace of long work in a test that has to act in the middle of it.
#pragma once

#include "ui/outside/yield_pace.h"

#include <chrono>
#include <utility>

namespace kelvarine::testing {

// While it lives the event loop has a turn at every yield, so that how fast the machine works does
// not decide what happens during a run.
class TurnAtEveryYield {
public:
    TurnAtEveryYield() = default;
    TurnAtEveryYield(const TurnAtEveryYield &) = delete;
    TurnAtEveryYield &operator=(const TurnAtEveryYield &) = delete;
    ~TurnAtEveryYield()
    {
        YieldInterval = before_;
    }

private:
    const std::chrono::milliseconds before_ = std::exchange(YieldInterval, {});
};

} // namespace kelvarine::testing
