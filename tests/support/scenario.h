// A position from which every command of the player leaves a trace of its own, and what stands
// after a command was carried out there.
#pragma once

#include "grid/cell_word.h"

#include <functional>
#include <string>

namespace kelvarine::testing {

// A saved game in its middle: two unknown cells and three givens selected, levels to undo and to
// redo, a snapshot taken, no techniques selected, and the numbers of the filter in view.
void SetScenario(CellWord filter);

// The state of the program after a command from that position.
std::string StateAfter(const std::function<void()> &command, CellWord filter);

} // namespace kelvarine::testing
