// The one table of the techniques: their numbers, names and operations. The driver, the alert
// scan and the logic report read this table and no other. A technique has three lists of
// operations, since the driver and the alert scan do not run the same ones.
#pragma once

#include "grid/cell_word.h"

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace kelvarine {

// One operation of a technique, with its size or limits settled.
using Operation = void (*)(std::int32_t mode, Flag &found);

// Up to six operations in the order in which they are called; unused places are null.
using OperationList = std::array<Operation, 6>;

struct TechniqueRow {
    std::int32_t Number; // 1..18
    std::string_view ReportName;
    OperationList DriverApply; // by the driver in mode 0, on the player's own pencilmarks
    OperationList Driver;      // by the driver in all other modes
    bool DriverRunsAll;        // whether the driver goes on when an operation found something
    OperationList AlertScan;   // by the alert scan, until one leaves a text
};

// All techniques that exist, ascending by number.
extern const std::span<const TechniqueRow> Techniques;

// Row of technique number, or null when there is none.
const TechniqueRow *FindTechnique(std::int32_t number);

} // namespace kelvarine
