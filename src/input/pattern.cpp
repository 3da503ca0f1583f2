#include "input/pattern.h"

#include "game/lifecycle.h"
#include "grid/grid.h"
#include "input/spoken.h"
#include "logic/technique.h"

#include <algorithm>
#include <bit>
#include <cstddef>

namespace kelvarine {

namespace {

// Tools read row by row.
std::vector<Cell> MarkedCells()
{
    std::vector<Cell> cells;
    for (int row = 1; row <= 9; ++row) {
        for (int column = 1; column <= 9; ++column) {
            if ((Grid[static_cast<std::size_t>(column)][static_cast<std::size_t>(row)] &
                 HintCellBit) != 0) {
                cells.push_back(MakeCell(column, row));
            }
        }
    }
    return cells;
}

bool IsChain()
{
    return ChainColumns[0] > 0;
}

// The number by which each cell of the chain hangs together with the one before it, the first with
// the one behind it; 0 for a chain that is a plain path.
std::vector<int> NumbersOfChain(const std::vector<Cell> &cells)
{
    const std::int32_t reading = ChainRows[0];
    std::vector<int> numbers(cells.size(), std::max(reading, 0));
    if (reading >= 0) {
        return numbers;
    }
    CellWord link = CandidatesOf(cells.front()) & ~BitOf(-reading);
    for (std::size_t k = 0; k < cells.size(); ++k) {
        numbers[k] = std::has_single_bit(link) ? std::countr_zero(link) : 0;
        if (k > 0) {
            link = CandidatesOf(cells[k]) & ~link;
        }
    }
    return numbers;
}

// Place of the player in a series; its length when he is not in it.
std::size_t PlaceIn(const std::vector<Cell> &cells)
{
    const std::optional<Cell> place = SpokenPlace();
    const auto found = place ? std::ranges::find(cells, *place) : cells.end();
    return static_cast<std::size_t>(found - cells.begin());
}

} // namespace

std::vector<Cell> PatternCells()
{
    if (!IsChain()) {
        return MarkedCells();
    }
    std::vector<Cell> cells;
    for (std::size_t k = 1; k <= static_cast<std::size_t>(ChainColumns[0]); ++k) {
        cells.push_back(MakeCell(ChainColumns[k], ChainRows[k]));
    }
    return cells;
}

std::string SpokenInPattern(Cell cell)
{
    const std::vector<Cell> cells = PatternCells();
    const auto found = std::ranges::find(cells, cell);
    if (found == cells.end()) {
        return {};
    }
    const auto place = static_cast<std::size_t>(found - cells.begin());
    const std::string text =
        "cell " + std::to_string(place + 1) + " of " + std::to_string(cells.size()) + " of the ";
    if (!IsChain()) {
        return text + "pattern";
    }
    const int number = NumbersOfChain(cells)[place];
    return text + "chain" + (number == 0 ? "" : ", number " + std::to_string(number));
}

std::string SpokenPattern()
{
    const std::vector<Cell> cells = PatternCells();
    if (cells.empty()) {
        return {};
    }
    if (!IsChain()) {
        std::string text = "pattern: " + NamesOf(cells);
        text.pop_back();
        return text;
    }
    const std::vector<int> numbers = NumbersOfChain(cells);
    std::string text = "chain of " + std::to_string(cells.size()) + " cells";
    for (std::size_t k = 0; k < cells.size(); ++k) {
        text += (k == 0 ? ": " : ", ") + NameOf(cells[k]);
        text += numbers[k] == 0 ? "" : " " + std::to_string(numbers[k]);
    }
    return text;
}

void StepInPattern(bool onward)
{
    const std::vector<Cell> cells = PatternCells();
    if (cells.empty()) {
        return;
    }
    const std::size_t here = PlaceIn(cells);
    const std::size_t last = cells.size() - 1;
    std::size_t next = 0;
    if (onward) {
        next = here < last ? here + 1 : 0;
    } else {
        next = here == 0 ? last : std::min(here, cells.size()) - 1;
    }
    AnchorColumn = CursorColumn = cells[next].Column;
    AnchorRow = CursorRow = cells[next].Row;
}

} // namespace kelvarine
