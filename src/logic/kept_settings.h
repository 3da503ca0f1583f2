// The player's settings of the logic, kept while an operation works with its own.
#pragma once

#include "grid/grid.h"

#include <cstdint>

namespace kelvarine {

// Puts SolveMask and the three link limits back to what they were, however the scope is left. In
// between the operation sets them as it likes.
class KeptSettings {
public:
    KeptSettings() = default;
    KeptSettings(const KeptSettings &) = delete;
    KeptSettings &operator=(const KeptSettings &) = delete;

    ~KeptSettings()
    {
        SolveMask = mask_;
        MaxSinglesLinks = singlesLinks_;
        MaxRPLinks = rpLinks_;
        MaxXYLinks = xyLinks_;
    }

private:
    std::uint32_t mask_ = SolveMask;
    std::int32_t singlesLinks_ = MaxSinglesLinks;
    std::int32_t rpLinks_ = MaxRPLinks;
    std::int32_t xyLinks_ = MaxXYLinks;
};

} // namespace kelvarine
