// The singles and the test for a solved grid in their plainest form, cell by cell, as a yardstick
// for the fast ones. They keep nothing between two steps and share no table with them.
#pragma once

#include "grid/cell_word.h"

#include <cstdint>

namespace kelvarine::testing::plain {

void FindUnplacedLastCandidate(std::int32_t mode, Flag &found);
void FindUnplacedNakedSingle(std::int32_t mode, Flag &found);
void FindUnplacedHiddenSingle(std::int32_t mode, Flag &found);
void ApplyNakedSingles(std::int32_t mode, Flag &found);
void ApplyHiddenSingles(std::int32_t mode, Flag &found);

Flag IsGridSolved();

} // namespace kelvarine::testing::plain
