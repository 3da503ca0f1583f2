// The alert scan: the techniques in a mode that reports instead of changing. It marks the cells
// that contradict a conclusion, explains such a mark, and gives the three stages of a hint.
#pragma once

#include "grid/cell_word.h"

#include <cstdint>

namespace kelvarine {

// Runs the techniques of AlertMask (modes 1 and 2) or all of the level table (modes 3..5) on
// Grid. Mode 1 leaves AlertBit on every cell that contradicts a conclusion; the other modes stop at
// the first conclusion that has something to say and leave HintText and HintTitle, with the marks
// that go with the words. The candidates stay as they are. Ends any chain on view. True when a cell
// is newly marked.
bool RunAlertScan(std::int32_t mode);

// True when two givens clash. Acts by mode on the second of them as a technique does; with mode 0
// only the result matters.
bool FindGivenConflicts(std::int32_t mode);

} // namespace kelvarine
