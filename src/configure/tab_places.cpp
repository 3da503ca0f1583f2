#include "configure/tab_places.h"

#include "game/screens.h"

#include <cassert>

namespace kelvarine {

int TabWidthFor(int clientWidth)
{
    constexpr int narrowWindow = 458;
    constexpr int narrowTab = 105;
    return clientWidth > narrowWindow ? clientWidth / TabsInRow : narrowTab;
}

bool IsInFront(std::int32_t tab, std::int32_t currentTab)
{
    assert(tab >= NewGamesTab && tab <= CoordinatesTab);
    return (tab < TabsInRow) == (currentTab < TabsInRow);
}

int TabLeft(std::int32_t tab, std::int32_t currentTab, int tabWidth)
{
    const int shift = IsInFront(tab, currentTab) ? 0 : RearRowShift;
    return FirstTabLeft + shift + tab % TabsInRow * tabWidth;
}

std::optional<std::int32_t> TabAt(double x, double y, std::int32_t currentTab, int tabWidth)
{
    if (y < RearRowTop || y >= TabRowsEnd) {
        return std::nullopt;
    }
    const bool rear = y < FrontRowTop;
    if (rear) {
        x -= RearRowShift;
    }
    for (std::int32_t column = 0; column < TabsInRow; ++column) {
        const int left = FirstTabLeft + column * tabWidth;
        if (x < left || x > left + tabWidth - 2) {
            continue;
        }
        // Two comparisons and not one: between them, from 29 on, lies the rear row by its place
        // and the front row by its tabs. Intended.
        const bool secondRear = rear && currentTab < TabsInRow;
        const bool secondFront = y > FrontRowTop - 1 && currentTab >= TabsInRow;
        return secondRear || secondFront ? column + TabsInRow : column;
    }
    return std::nullopt;
}

} // namespace kelvarine
