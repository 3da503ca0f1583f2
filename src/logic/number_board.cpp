#include "logic/number_board.h"

namespace kelvarine {

namespace {

// The first row of each band, in the first column and in all.
constexpr std::uint32_t FirstOfBands = 0x49;
constexpr CellLanes Bands = InAllStacks(InThreeColumns(FirstOfBands));
constexpr CellLanes Rows = InAllStacks(0x1FF);
constexpr CellLanes FirstRows = InAllStacks(FirstOfBands);
constexpr CellLanes LastRows = InAllStacks(FirstOfBands << 2);

CellLanes FromNextStack(CellLanes lanes)
{
    return __builtin_shufflevector(lanes, lanes, 1, 2, 0, 3);
}

CellLanes FromStackAfter(CellLanes lanes)
{
    return __builtin_shufflevector(lanes, lanes, 2, 0, 1, 3);
}

// A column and a box share three cells, a run. Within a stack a number needs three of the nine
// runs, one to each column and each box. Takes out the cells of runs that are in no such choice:
// a run stays when the two other columns can serve the two other boxes one way or the other.
CellLanes KeepServingRuns(CellLanes cells)
{
    const CellLanes runs = (cells | cells >> 1 | cells >> 2) & Bands;
    const CellLanes nextBox = (runs >> 3 | runs << 6) & Bands;
    const CellLanes boxAfter = (runs << 3 | runs >> 6) & Bands;
    const CellLanes kept =
        runs & (((nextBox >> 10 | nextBox << 20) & (boxAfter >> 20 | boxAfter << 10)) |
                ((nextBox >> 20 | nextBox << 10) & (boxAfter >> 10 | boxAfter << 20)));
    return cells & (kept | kept << 1 | kept << 2);
}

// The same for the three cells that a row and a box share, within each band.
CellLanes KeepServingRows(CellLanes cells)
{
    const CellLanes rows = (cells | cells >> 10 | cells >> 20) & Rows;
    const CellLanes nextRow = (rows >> 1 & ~LastRows) | (rows << 2 & LastRows);
    const CellLanes rowAfter = (rows << 1 & ~FirstRows) | (rows >> 2 & FirstRows);
    const CellLanes kept = ((FromNextStack(nextRow) & FromStackAfter(rowAfter)) |
                            (FromStackAfter(nextRow) & FromNextStack(rowAfter))) &
                           Rows;
    return cells & (kept | kept << 10 | kept << 20);
}

void BlameCells(Blame &blame, CellLanes cells)
{
    constexpr std::int32_t weight = 10; // a cell says more than a number in a whole stack
    for (std::size_t stack = 0; stack < StackCount; ++stack) {
        for (std::uint32_t rest = cells[stack] & AllCells[0]; rest != 0; rest &= rest - 1) {
            const auto bit = static_cast<unsigned>(std::countr_zero(rest));
            blame.Cells[ScanIndex(stack, bit)] += weight;
        }
    }
}

void BlameLostNumbers(Blame &blame, const NumberBoard &board)
{
    for (std::size_t n = 0; n < NumberCount; ++n) {
        const CellLanes lost = Occupied(board.Places[n]) ^ ColumnGuards;
        for (std::size_t stack = 0; stack < StackCount; ++stack) {
            blame.Numbers[n][stack] += lost[stack] != 0 ? 1 : 0;
        }
    }
}

// One round by number: what the runs leave, and what stands alone in its houses. After the runs a
// number that is alone in a column is alone in its row and its box too. False on a contradiction.
bool ConcludeByNumber(NumberBoard &board, Blame *blame)
{
    NumberBoard placed;
    CellLanes all{};
    CellLanes lost{};
    CellLanes twice{};
    for (std::size_t n = 0; n < NumberCount; ++n) {
        const CellLanes cells = KeepServingRows(KeepServingRuns(board.Places[n]));
        const CellLanes alone = cells & WholeColumns(Occupied(BehindFirst(cells)) ^ ColumnGuards);
        lost |= Occupied(cells) ^ ColumnGuards;
        twice |= all & alone;
        all |= alone;
        board.Places[n] = cells;
        placed.Places[n] = alone;
    }
    if (IsAny(lost | twice)) {
        if (blame != nullptr) {
            BlameLostNumbers(*blame, board);
            BlameCells(*blame, twice);
        }
        return false;
    }
    for (std::size_t n = 0; n < NumberCount; ++n) {
        board.Places[n] &= placed.Places[n] | ~all;
    }
    return true;
}

// One round by cell: a number that is the only one of a cell goes from the rest of the column, and
// with the next round from row and box. False on a contradiction.
bool ConcludeByCell(NumberBoard &board, Repeats<CellLanes> &counts, Blame *blame)
{
    counts = {};
    for (const CellLanes cells : board.Places) {
        counts.Add(cells);
    }
    const CellLanes single = counts.One & ~counts.Two;
    CellLanes wrong = counts.One ^ AllCells;
    for (CellLanes &cells : board.Places) {
        const CellLanes alone = cells & single;
        wrong |= BehindFirst(alone);
        cells &= alone | ~WholeColumns(Occupied(alone));
    }
    if (IsAny(wrong)) {
        if (blame != nullptr) {
            BlameCells(*blame, wrong);
        }
        return false;
    }
    return true;
}

} // namespace

Field FieldOf(const GridTable &grid)
{
    Field field{};
    for (std::size_t k = 0; k < field.size(); ++k) {
        field[k] = grid[Cells[k].Column][Cells[k].Row];
    }
    return field;
}

CellLanes FirstOf(CellLanes cells)
{
    CellLanes first{};
    std::size_t stack = 0;
    while (cells[stack] == 0) {
        ++stack;
    }
    first[stack] = cells[stack] & (~cells[stack] + 1);
    return first;
}

NumberBoard BoardOf(const Field &field)
{
    // Cells that may hold anything, most of them, need no look at their numbers.
    std::array<std::array<std::uint32_t, StackCount>, NumberCount> places{};
    std::array<std::uint32_t, StackCount> narrow{};
    std::size_t index = 0;
    for (std::size_t stack = 0; stack < StackCount; ++stack) {
        for (unsigned column = 0; column < 30; column += 10) {
            for (unsigned row = 0; row < 9; ++row, ++index) {
                CellWord rest = field[index] & CandidateMask;
                if (rest == CandidateMask) {
                    continue;
                }
                const std::uint32_t cell = std::uint32_t{1} << (column + row);
                narrow[stack] |= cell;
                for (; rest != 0; rest &= rest - 1) {
                    places[static_cast<std::size_t>(std::countr_zero(rest)) - 1][stack] |= cell;
                }
            }
        }
    }
    const CellLanes open = AllCells & ~CellLanes{narrow[0], narrow[1], narrow[2], 0};
    NumberBoard board;
    for (std::size_t n = 0; n < NumberCount; ++n) {
        board.Places[n] = open | CellLanes{places[n][0], places[n][1], places[n][2], 0};
    }
    return board;
}

bool Conclude(NumberBoard &board, Repeats<CellLanes> &counts, Blame *blame)
{
    while (true) {
        const NumberBoard before = board;
        if (!ConcludeByNumber(board, blame) || !ConcludeByCell(board, counts, blame)) {
            return false;
        }
        CellLanes changed{};
        for (std::size_t n = 0; n < NumberCount; ++n) {
            changed |= board.Places[n] ^ before.Places[n];
        }
        if (!IsAny(changed)) {
            return true;
        }
    }
}

void Decide(NumberBoard &board, CellLanes cell, std::size_t number)
{
    for (std::size_t n = 0; n < NumberCount; ++n) {
        board.Places[n] &= ~cell;
    }
    board.Places[number] |= cell;
}

std::size_t LowestIn(const NumberBoard &board, CellLanes cell)
{
    std::size_t number = 0;
    while (!IsAny(board.Places[number] & cell)) {
        ++number;
    }
    return number;
}

} // namespace kelvarine
