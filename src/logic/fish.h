// Fish: X-wing, Swordfish and Jellyfish. A number whose places in some parallel lines, the base,
// lie in as many crossing lines, the cover, can go from the rest of the cover.
#pragma once

#include "grid/cell_word.h"

#include <cstdint>

namespace kelvarine {

// Fish with columns as the base and rows as the cover. Size is 2, 3 or 4; any other finds
// nothing. All modes. In modes 2 and 5 the words are appended to HintText.
void SearchFishColumns(std::int32_t mode, Flag &found, std::int32_t size);

// The mirror form: rows as the base and columns as the cover.
void SearchFishRows(std::int32_t mode, Flag &found, std::int32_t size);

} // namespace kelvarine
