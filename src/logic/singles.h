// Naked and hidden singles. Three operations judge by the placed numbers alone, whatever the
// pencilmarks say, and serve the player's own grid; two fast ones serve the driver and trust the
// pencilmarks. A cell holds a number when it has exactly one candidate.
#pragma once

#include "grid/cell_word.h"

#include <cstdint>

namespace kelvarine {

// A house with eight numbers and one other cell. Mode 0 leaves the missing numbers in the cell:
// more than one when the eight repeat a number. All modes.
void FindUnplacedLastCandidate(std::int32_t mode, Flag &found);

// A cell whose domain leaves one number. All modes.
void FindUnplacedNakedSingle(std::int32_t mode, Flag &found);

// A number with one possible cell in a house, judged by the placed numbers at the start of the
// call. All modes.
void FindUnplacedHiddenSingle(std::int32_t mode, Flag &found);

// Takes every placed number out of the other cells of its houses, givens excepted. Mode 0 only.
void ApplyNakedSingles(std::int32_t mode, Flag &found);

// Places every number that has one cell left in a house. Mode 0 only.
void ApplyHiddenSingles(std::int32_t mode, Flag &found);

} // namespace kelvarine
