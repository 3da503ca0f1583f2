#include "configure/new_game_settings.h"

#include "generator/generator.h"
#include "grid/grid.h"

namespace kelvarine {

std::string DifficultyCaption(std::int32_t level)
{
    return " " + std::string(WordsOfRating(level).Capital);
}

void SetAcceptedLevels(const std::array<bool, Levels + 1> &boxes)
{
    DifficultySelection = 0;
    for (std::size_t level = 1; level <= Levels; ++level) {
        DifficultySelection |= boxes[level] ? BitTable[level] : 0;
    }
}

} // namespace kelvarine
