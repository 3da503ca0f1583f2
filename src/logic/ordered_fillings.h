// The ways to fill a field of candidates by the rules, one after the other in the order of the
// scan: the fillings are compared as texts of the numbers in scan order, the smallest comes first.
// That is the order in which trial and error by the scan comes to them. A choice that leads to
// nothing is not entered.
#pragma once

#include "logic/number_board.h"

#include <array>
#include <cstddef>

namespace kelvarine {

// A walk through the fillings of a field. About 14 kB, nothing is allocated.
class OrderedFillings {
public:
    explicit OrderedFillings(const Field &field);

    // Goes to the next filling. False when there is none left.
    bool Next();

    // The filling that Next has come to: one candidate to each cell.
    [[nodiscard]] Field Filling() const;

private:
    // An open cell, the first in scan order, and what it may hold besides what has been tried.
    struct Choice {
        NumberBoard Board;
        CellLanes Cell;
    };

    bool Enter(NumberBoard board);

    std::array<Choice, 81> choices_;
    std::size_t depth_ = 0;
    NumberBoard filled_{};
};

} // namespace kelvarine
