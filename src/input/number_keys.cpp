#include "input/number_keys.h"

#include "grid/grid.h"
#include "grid/history.h"
#include "input/selected_cells.h"
#include "logic/technique.h"
#include "outside/board.h"

#include <cassert>

namespace kelvarine {

namespace {

// The word of a selected cell after a number has been typed into it.
CellWord Edited(CellWord word, std::int32_t number, std::int32_t shiftStat)
{
    if (number == 0) {
        return shiftStat == TakeAway ? word & ~CandidateMask : word | CandidateMask;
    }
    if ((BitOf(number) & NumberFilter) == 0) {
        return word;
    }
    switch (shiftStat) {
    case Replace:
        return (word & ~(CandidateMask | GivenBit)) | BitOf(number);
    case TakeAway:
        return word & ~BitOf(number);
    default:
        return word | BitOf(number);
    }
}

void Edit(std::int32_t number, std::int32_t shiftStat, Flag &update)
{
    if (ChangeSelectedCells([=](CellWord word) { return Edited(word, number, shiftStat); })) {
        update = True;
    }
    if (update != False) {
        PushUndoState();
    } else {
        // The repaint is the only visible reply to a key that did nothing.
        DrawBoard();
    }
}

void Highlight(std::int32_t number, Flag &update)
{
    for (const Cell cell : Cells) {
        CellWord &word = WordAt(cell);
        if ((word & SelectedBit) == 0) {
            continue;
        }
        const CellWord coloured = (word & ~CellColour) | static_cast<CellWord>(number)
                                                             << ColourShift;
        if (coloured != word) {
            update = True;
        }
        // The selection ends with the colouring, changed or not.
        word = coloured & ~SelectedBit;
    }
    if (update != False) {
        PushUndoState();
    }
}

bool Qualifies(CellWord word, std::int32_t number, std::int32_t mode)
{
    switch (mode) {
    case SelectSinglesMode:
        return CandidatesIn(word) == 1 && (number == 0 || (word & BitOf(number)) != 0);
    case SelectCountMode:
        return CandidatesIn(word) == number;
    default:
        return number == 0 ? CandidatesIn(word) > 0 : (word & BitOf(number)) != 0;
    }
}

void SelectQualifying(std::int32_t number, std::int32_t mode, std::int32_t shiftStat, Flag &update)
{
    if (shiftStat == Replace) {
        ClearCellBits(SelectionMarks);
    }
    for (const Cell cell : Cells) {
        CellWord &word = WordAt(cell);
        if (!Qualifies(word, number, mode)) {
            continue;
        }
        if (shiftStat == Replace || shiftStat == Add) {
            word |= SelectedBit;
        } else if (shiftStat == TakeAway) {
            word &= ~SelectedBit;
        }
    }
    update = True;
}

void SelectDomains(std::int32_t number, Flag &update)
{
    ClearCellBits(SelectionMarks);
    for (const Cell cell : Cells) {
        const CellWord candidates = WordAt(cell) & CandidateMask;
        // With 0 any cell with candidates will do, a single or not; intended.
        if (number == 0 ? candidates != 0 : candidates == BitOf(number)) {
            MarkDomain(cell, SelectedBit);
        }
    }
    update = True;
}

void ChangeView(std::int32_t number, std::int32_t shiftStat, Flag &update)
{
    const CellWord before = NumberFilter;
    if (number == 0) {
        NumberFilter = CandidateMask;
    } else if (shiftStat == Replace) {
        NumberFilter = BitOf(number);
    } else if (shiftStat == TakeAway) {
        NumberFilter &= ~BitOf(number);
    } else if (shiftStat == Add) {
        NumberFilter |= BitOf(number);
    }
    if (NumberFilter != before) {
        update = True;
    }
}

} // namespace

void ProcessNumKey(std::int32_t number, std::int32_t mode, std::int32_t shiftStat, Flag &update)
{
    assert(number >= 0 && number <= 9);
    switch (mode) {
    case EditMode:
        Edit(number, shiftStat, update);
        break;
    case HighlightMode:
        Highlight(number, update);
        break;
    case SelectSinglesMode:
    case SelectCountMode:
    case SelectContainingMode:
        SelectQualifying(number, mode, shiftStat, update);
        break;
    case SelectDomainsMode:
        SelectDomains(number, update);
        break;
    case ViewMode:
        ChangeView(number, shiftStat, update);
        break;
    default:
        break;
    }
}

} // namespace kelvarine
