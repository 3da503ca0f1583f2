// What keys and clicks do to the selected cells.
#pragma once

#include "grid/grid.h"

namespace kelvarine {

// Gives each selected cell that is no given the word that change makes of its own. True when a word
// became another; what follows a change is the caller's.
template <typename Change>
bool ChangeSelectedCells(const Change &change)
{
    bool changed = false;
    for (const Cell cell : Cells) {
        CellWord &word = WordAt(cell);
        if ((word & (SelectedBit | GivenBit)) != SelectedBit) {
            continue;
        }
        const CellWord before = word;
        word = change(word);
        changed = changed || word != before;
    }
    return changed;
}

} // namespace kelvarine
