// The plain form of every technique, told as the table of techniques tells the fast one.
#pragma once

#include "logic/technique_table.h"

#include <cstdint>

namespace kelvarine::testing::plain {

// The plain operations of a technique, each at the place of the fast one that it is a yardstick
// for.
struct Form {
    std::int32_t Number;
    OperationList DriverApply;
    OperationList Driver;
    OperationList AlertScan;
};

// The plain form of technique number, or null when it has none.
const Form *FindForm(std::int32_t number);

} // namespace kelvarine::testing::plain
