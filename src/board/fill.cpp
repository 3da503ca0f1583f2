#include "board/fill.h"

#include "game/win_display.h"
#include "grid/colour.h"
#include "grid/grid.h"

#include <algorithm>
#include <cstdlib>

namespace kelvarine {

namespace {

// Values of CellColour: up to here the player's colours, then two hint marks made lasting. What
// lies above them paints nothing.
constexpr CellWord LastHighlight = 9;
constexpr CellWord LastingHintCell = 10;
constexpr CellWord LastingHintDomain = 11;

constexpr std::size_t CentreSquare = 5; // entry of WinColours in the middle of the squares

CellFill Plain(CellWord word)
{
    if ((word & GivenBit) != 0) {
        return {ColourTable[GivenCellColour], GivenTexture};
    }
    return {ColourTable[UnknownCellColour], UnknownTexture};
}

CellFill Coloured(CellWord colour)
{
    if (colour <= LastHighlight) {
        return {HighlightColours[colour]};
    }
    switch (colour) {
    case LastingHintCell:
        return {ColourTable[HintCellColour]};
    case LastingHintDomain:
        return {ColourTable[HintDomainColour]};
    default:
        return {};
    }
}

Colour AnyStandardColour()
{
    return StandardColours[static_cast<std::size_t>(RandomFraction() * 14 + 1)];
}

// Nothing for a stage that has no pattern.
std::optional<Colour> WinPattern(Cell cell)
{
    const int column = cell.Column;
    const int row = cell.Row;
    switch (WinStage) {
    case 1:
    case 3: {
        const int distance = std::max(std::abs(column - 5), std::abs(row - 5));
        return WinColours[CentreSquare - static_cast<std::size_t>(distance)];
    }
    case 2:
        return WinColours[cell.Column];
    case 4:
        return WinColours[cell.Row];
    case 5:
        return WinColours[(column + row) % 2 == 1 ? 2 : 1];
    case 6: {
        const int product = (column + 2) / 3 * ((row + 2) / 3);
        return WinColours[static_cast<std::size_t>(product)];
    }
    default:
        return std::nullopt;
    }
}

} // namespace

CellFill FillOf(Cell cell)
{
    if (WinDisplayRunning != False) {
        const bool random = WinStage == 0 || WinColoursSet == False;
        return {random ? AnyStandardColour() : WinPattern(cell)};
    }
    const CellWord word = WordAt(cell);
    if ((word & SelectedBit) != 0) {
        return {ColourTable[SelectedCellColour]};
    }
    if ((word & HintCellBit) != 0) {
        return {ColourTable[HintCellColour]};
    }
    if ((word & HintDomainBit) != 0) {
        return {ColourTable[HintDomainColour]};
    }
    const CellWord colour = (word & CellColour) >> ColourShift;
    return colour == 0 ? Plain(word) : Coloured(colour);
}

CellFills FillsOfCells()
{
    CellFills fills;
    std::transform(Cells.begin(), Cells.end(), fills.begin(), FillOf);
    return fills;
}

} // namespace kelvarine
