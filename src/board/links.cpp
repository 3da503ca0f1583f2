#include "board/links.h"

#include "board/look.h"
#include "grid/grid.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <optional>

namespace kelvarine {

namespace {

// Number of the one bit that a mask holds; 0 when it holds none or several.
int NumberOf(CellWord mask)
{
    return std::has_single_bit(mask) ? std::countr_zero(mask) : 0;
}

// ---- Strong links --------------------------------------------------------------------------

// The two cells of a house that hold a number; nothing when it isn't exactly two.
std::optional<std::pair<Cell, Cell>> PairIn(const House &house, int number)
{
    std::array<Cell, 2> found{};
    std::size_t count = 0;
    for (const Cell cell : house.Cells) {
        if ((WordAt(cell) & BitOf(number)) == 0) {
            continue;
        }
        if (count == found.size()) {
            return std::nullopt;
        }
        found[count++] = cell;
    }
    if (count != found.size()) {
        return std::nullopt;
    }
    return std::pair(found[0], found[1]);
}

// ---- Chain ---------------------------------------------------------------------------------

std::optional<Cell> ChainCell(std::size_t place)
{
    const std::int32_t column = ChainColumns[place];
    const std::int32_t row = ChainRows[place];
    if (column < 1 || column > 9 || row < 1 || row > 9) {
        return std::nullopt;
    }
    return MakeCell(column, row);
}

// Centre of a cell without the border: a plain path lies up and to the left by that much; intended.
Point PathPoint(Cell cell)
{
    return {CellX(cell.Column) - BorderThickness + CellWidth / 2,
            CellY(cell.Row) - BorderThickness + CellHeight / 2};
}

ChainDrawing PlainPath(std::size_t length)
{
    ChainDrawing drawing;
    std::optional<Point> pen;
    for (std::size_t k = 1; k <= length; ++k) {
        const std::optional<Cell> cell = ChainCell(k);
        if (!cell) {
            continue;
        }
        const Point centre = PathPoint(*cell);
        if (pen) {
            drawing.Lines.push_back({*pen, centre});
        }
        pen = centre;
    }
    return drawing;
}

// Radius of the disc behind a number of a cell with so many candidates.
int DiscRadius(int candidates)
{
    const double half = std::max(CellWidth, CellHeight) / 2.0;
    double part = 3;
    if (PencilmarkLayout == 0 && candidates == 2) {
        part = 2;
    } else if (PencilmarkLayout == 0 && candidates < 5) {
        part = 2.5;
    }
    return static_cast<int>(std::max(1.0, half / part)) - 1;
}

// A chain from number to number. The current bit is the candidate on which a cell is entered or
// left; where the cell doesn't hold it, nothing is drawn and the pen stays.
class NumberChain {
public:
    explicit NumberChain(std::int32_t kind) : kind_(kind)
    {
    }

    void Begin(Cell cell)
    {
        bit_ = kind_ > 0 ? BitTable[Index(kind_)] : OtherThan(cell, -kind_);
    }

    void Arrive(Cell cell)
    {
        const std::optional<Point> point = PointOfBit(cell);
        if (point) {
            if (pen_) {
                drawing_.Lines.push_back({*pen_, *point});
            }
            PutDisc(cell, *point);
            pen_ = point;
        }
        if (kind_ < 0) {
            bit_ = OtherThan(cell, HeldNumber(cell));
        }
    }

    void Leave(Cell cell)
    {
        if (const std::optional<Point> point = PointOfBit(cell)) {
            pen_ = point;
            PutDisc(cell, *point);
        }
    }

    [[nodiscard]] const ChainDrawing &Drawing() const
    {
        return drawing_;
    }

private:
    static std::size_t Index(std::int32_t number)
    {
        return static_cast<std::size_t>(std::clamp(number, 0, 9));
    }

    static CellWord OtherThan(Cell cell, std::int32_t number)
    {
        return CandidatesOf(cell) & ~(number == 0 ? 0 : BitTable[Index(number)]);
    }

    // The current bit's number if the cell holds it, else 0.
    [[nodiscard]] std::int32_t HeldNumber(Cell cell) const
    {
        return (CandidatesOf(cell) & bit_) == bit_ ? NumberOf(bit_) : 0;
    }

    // A lone number of the variable layout stands large in the middle and gets neither line nor
    // disc.
    [[nodiscard]] std::optional<Point> PointOfBit(Cell cell) const
    {
        const bool alone = PencilmarkLayout == 0 && CountCandidates(cell.Column, cell.Row) == 1;
        const std::int32_t number = HeldNumber(cell);
        if (number == 0 || alone) {
            return std::nullopt;
        }
        return NumberPoint(cell, number);
    }

    void PutDisc(Cell cell, Point point)
    {
        drawing_.Discs.push_back({point, DiscRadius(CountCandidates(cell.Column, cell.Row))});
    }

    std::int32_t kind_;
    CellWord bit_ = 0;
    std::optional<Point> pen_; // nothing before the first number of the chain
    ChainDrawing drawing_;
};

} // namespace

bool ShowsStrongLinks()
{
    return StrongLinkMode == 2 || (StrongLinkMode == 1 && NumberFilter != CandidateMask);
}

Point NumberPoint(Cell cell, int number)
{
    const CellWord candidates = CandidatesOf(cell);
    const int count = std::popcount(candidates);
    const NumberLayout layout =
        PencilmarkLayout != 0 || count >= 5 ? NumberLayout::Nine : LayoutFor(count);
    const int place = std::popcount(candidates & (BitOf(number) * 2U - 1U));
    return NumberCentre(layout, cell, number, place);
}

std::vector<Line> StrongLinks()
{
    std::vector<Line> links;
    for (int number = 1; number <= 9; ++number) {
        if ((NumberFilter & BitOf(number)) == 0) {
            continue;
        }
        for (const House &house : Houses) {
            if (const auto pair = PairIn(house, number)) {
                links.push_back(
                    {NumberPoint(pair->first, number), NumberPoint(pair->second, number)});
            }
        }
    }
    return links;
}

ChainDrawing ChainOnBoard()
{
    const auto length = static_cast<std::size_t>(
        std::clamp(ChainColumns[0], 0, static_cast<std::int32_t>(ChainColumns.size()) - 1));
    if (ChainRows[0] == 0) {
        return PlainPath(length);
    }
    NumberChain chain(ChainRows[0]);
    for (std::size_t k = 1; k <= length; ++k) {
        const std::optional<Cell> cell = ChainCell(k);
        if (!cell) {
            continue;
        }
        if (k == 1) {
            chain.Begin(*cell);
        } else {
            chain.Arrive(*cell);
        }
        if (k < length) {
            chain.Leave(*cell);
        }
    }
    return chain.Drawing();
}

} // namespace kelvarine
