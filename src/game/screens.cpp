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

namespace {

// The rule's own unit: a window is in reach while more than so much of it lies on the screen.
constexpr std::int64_t LeastInReach = 10;
constexpr std::int32_t PlaceInReach = 200;

// Left or top of a window, by its side in that direction.
std::int32_t ReachableStart(std::int32_t start, std::int32_t side, std::int32_t screen)
{
    const std::int64_t begin = std::int64_t{start} * TwipsPerPixel;
    const std::int64_t end = begin + std::int64_t{side} * TwipsPerPixel;
    const bool beyondEnd = begin > std::int64_t{screen} * TwipsPerPixel - LeastInReach;
    const bool beyondStart = end < LeastInReach;
    return beyondEnd || beyondStart ? PlaceInReach / TwipsPerPixel : start;
}

} // namespace

WindowPlace ReachablePlace(WindowPlace place, std::int32_t screenWidth, std::int32_t screenHeight)
{
    place.Left = ReachableStart(place.Left, place.Width, screenWidth);
    place.Top = ReachableStart(place.Top, place.Height, screenHeight);
    return place;
}

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
