// The player's settings of the logic, kept while an operation works with its own.
#pragma once

#include "grid/grid.h"

#include <cstdint>
#include <utility>

namespace kelvarine {

// Puts SolveMask and the three link limits back to what they were, however the scope is left. In
// between the operation sets them as it likes.
class KeptSettings {
public:
    KeptSettings()
    {
        if (outermost == nullptr) {
            outermost = this;
        }
    }
    KeptSettings(const KeptSettings &) = delete;
    KeptSettings &operator=(const KeptSettings &) = delete;

    ~KeptSettings()
    {
        Swap();
        if (outermost == this) {
            outermost = nullptr;
        }
    }

private:
    friend class PlayersSettings;

    void Swap()
    {
        std::swap(SolveMask, mask_);
        std::swap(MaxSinglesLinks, singlesLinks_);
        std::swap(MaxRPLinks, rpLinks_);
        std::swap(MaxXYLinks, xyLinks_);
    }

    // What the player chose, while any operation works with its own.
    static inline KeptSettings *outermost = nullptr;

    std::uint32_t mask_ = SolveMask;
    std::int32_t singlesLinks_ = MaxSinglesLinks;
    std::int32_t rpLinks_ = MaxRPLinks;
    std::int32_t xyLinks_ = MaxXYLinks;
};

// The player's own settings for a while, in the middle of such an operation too.
class PlayersSettings {
public:
    PlayersSettings()
    {
        Swap();
    }
    PlayersSettings(const PlayersSettings &) = delete;
    PlayersSettings &operator=(const PlayersSettings &) = delete;

    ~PlayersSettings()
    {
        Swap();
    }

private:
    static void Swap()
    {
        if (KeptSettings::outermost != nullptr) {
            KeptSettings::outermost->Swap();
        }
    }
};

} // namespace kelvarine
