#include "logic/ordered_fillings.h"

#include "logic/counter.h"

namespace kelvarine {

OrderedFillings::OrderedFillings(const Field &field)
{
    // The field becomes a choice without a cell: it is entered by the first call of Next.
    choices_[depth_++] = {BoardOf(field), CellLanes{}};
}

// Opens the next choice on a board, unless it leads to nothing. True when nothing is left to choose
// and the board is a filling.
bool OrderedFillings::Enter(NumberBoard board)
{
    Repeats<CellLanes> counts;
    if (!Conclude(board, counts)) {
        return false;
    }
    if (!IsAny(counts.Two)) {
        filled_ = board;
        return true;
    }
    if (CountFillings(board, 1) != 0) {
        choices_[depth_++] = {board, FirstOf(counts.Two)};
    }
    return false;
}

bool OrderedFillings::Next()
{
    while (depth_ != 0) {
        Choice &choice = choices_[depth_ - 1];
        NumberBoard with = choice.Board;
        if (!IsAny(choice.Cell)) {
            --depth_;
        } else {
            const std::size_t number = LowestIn(choice.Board, choice.Cell);
            Decide(with, choice.Cell, number);
            choice.Board.Places[number] &= ~choice.Cell;
            bool isLast = true;
            for (const CellLanes places : choice.Board.Places) {
                isLast = isLast && !IsAny(places & choice.Cell);
            }
            if (isLast) {
                --depth_;
            }
        }
        if (Enter(with)) {
            return true;
        }
    }
    return false;
}

Field OrderedFillings::Filling() const
{
    Field filling{};
    for (std::size_t n = 0; n < NumberCount; ++n) {
        for (std::size_t stack = 0; stack < StackCount; ++stack) {
            for (std::uint32_t rest = filled_.Places[n][stack]; rest != 0; rest &= rest - 1) {
                filling[ScanIndex(stack, static_cast<unsigned>(std::countr_zero(rest)))] =
                    BitTable[n + 1];
            }
        }
    }
    return filling;
}

} // namespace kelvarine
