// Hinge wings: the XYZ-wing, the WXYZ-wing and their larger kin. For a number N of the hinge, each
// other candidate Z of it has a wing cell nearby that holds exactly N and Z. Whichever number the
// hinge takes, N lands in the hinge or in a wing, so a cell that sees all of them cannot hold it.
#pragma once

#include "grid/cell_word.h"

#include <cstdint>

namespace kelvarine {

// Tries all cells with size candidates, 3..9, as hinge; all modes. Works with ScratchMark2 as it
// finds it: a cell with the mark is no target. Leaves the mark on wings, and the wings of the last
// number in ChainColumns and ChainRows from element 1 on; element 0 is not touched.
void SearchHingeWings(std::int32_t mode, Flag &found, std::int32_t size);

} // namespace kelvarine
