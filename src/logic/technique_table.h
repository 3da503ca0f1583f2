// The one table of the techniques: all that is told of each of them, and its operations. The
// driver, the alert scan, the logic report, the levels at the start and the Logic tab read this
// table and no other. A technique has three lists of operations, since the driver and the alert
// scan do not run the same ones.
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
    std::int32_t Number;               // its bit in the masks
    std::string_view ReportName;       // in the logic report
    std::string_view Caption;          // on the Logic tab
    std::int32_t Level;                // 1..5 at the start; the player may change it
    std::string_view HelpPage;         // page of the help, without its ending
    std::int32_t *LinkLimit = nullptr; // the limit of its chains, or null
    std::string_view LimitBox = {};    // the control of that limit; empty where there is none
    OperationList DriverApply;         // by the driver in mode 0, on the player's own pencilmarks
    OperationList Driver;              // by the driver in all other modes
    bool DriverRunsAll;      // whether the driver goes on when an operation found something
    OperationList AlertScan; // by the alert scan, until one leaves a text
};

// All techniques that exist, ascending by number from 1.
extern const std::span<const TechniqueRow> Techniques;

// The same and, last, a row kept free for one more: it has a place on the Logic tab, where it is
// hidden, and its state is kept, but nothing acts on it.
extern const std::span<const TechniqueRow> TechniqueRows;

// The bits of all these rows.
extern const std::uint32_t TechniqueRowsMask;

// Puts LevelTable to the levels of a start: each row into its own, none required.
void SetLevelDefaults();

// Row of technique number, or null when there is none.
const TechniqueRow *FindTechnique(std::int32_t number);

} // namespace kelvarine
