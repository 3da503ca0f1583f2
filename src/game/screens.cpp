#include "game/screens.h"

namespace kelvarine {

WindowPlace MainPlace;
Flag MainMaximised;
WindowPlace ConfigurePlace;
Flag ConfigureOpen;
WindowPlace SolutionsPlace;
Flag SolutionsOpen;
WindowPlace FileDialogPlace;
WindowPlace StatisticsPlace;
Flag StatisticsOpen;
std::int32_t CurrentTab;
std::int32_t SolutionsFormat;

void SetScreenDefaults()
{
    MainPlace = {};
    MainMaximised = False;
    ConfigurePlace = {};
    ConfigureOpen = False;
    SolutionsPlace = {};
    SolutionsOpen = False;
    FileDialogPlace = {};
    StatisticsPlace = {};
    StatisticsOpen = False;
    CurrentTab = NewGamesTab;
    SolutionsFormat = 1;
}

} // namespace kelvarine
