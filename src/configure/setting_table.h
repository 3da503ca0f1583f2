// Where each setting stands in the configuration file, and which values it takes from there.
#pragma once

#include "configure/setting_kinds.h"

#include <cstddef>
#include <span>

namespace kelvarine {

struct SettingRow {
    std::size_t Record; // 1..11
    std::size_t Element;
    Setting Target;
};

// Elements that are not listed are written as 0 and not read.
extern const std::span<const SettingRow> SettingTable;

} // namespace kelvarine
