#include "input/selection.h"

#include "grid/grid.h"
#include "outside/board.h"
#include "outside/messages.h"

#include <algorithm>
#include <string>

namespace kelvarine {

namespace {

bool IsSelected(Cell cell)
{
    return (WordAt(cell) & SelectedBit) != 0;
}

// True when there is a selection. Otherwise the player is asked for one.
bool HasSelection(std::string_view message)
{
    if (std::ranges::any_of(Cells, IsSelected)) {
        return true;
    }
    ShowMessage(message);
    return false;
}

std::string MessageFor(std::string_view what)
{
    return "Please select one or more cells to indicate which " + std::string(what) +
           " you'd like to select.";
}

void SelectHouses(HouseKind kind, std::string_view what)
{
    if (!HasSelection(MessageFor(what))) {
        return;
    }
    for (const House &house : Houses) {
        if (house.Kind == kind && std::ranges::any_of(house.Cells, IsSelected)) {
            for (const Cell cell : house.Cells) {
                WordAt(cell) |= SelectedBit;
            }
        }
    }
    DrawBoard();
}

// Runs an action on the cells of the column, the row and the box of a cell, some of them twice.
template <typename Action>
void ForDomain(Cell cell, const Action &action)
{
    for (const std::uint8_t house : CellHouses[static_cast<std::size_t>(CellIndex(cell))]) {
        for (const Cell other : Houses[house].Cells) {
            action(WordAt(other));
        }
    }
}

// Every marked cell becomes selected and loses the mark.
void SelectMarked()
{
    for (const Cell cell : Cells) {
        CellWord &word = WordAt(cell);
        if ((word & ScratchMark0) != 0) {
            word = (word | SelectedBit) & ~ScratchMark0;
        }
    }
}

// Leaves ScratchMark0 on the cells that lie in the domain of every selected cell; those that are
// selected themselves only when asked for.
void MarkCommonDomain(bool withSelected)
{
    const Cell first = *std::ranges::find_if(Cells, IsSelected);
    ForDomain(first, [](CellWord &word) { word |= ScratchMark0; });
    for (const Cell selected : Cells) {
        if (!IsSelected(selected)) {
            continue;
        }
        ForDomain(selected, [=](CellWord &word) {
            if ((word & ScratchMark0) != 0 && (withSelected || (word & SelectedBit) == 0)) {
                word |= ScratchMark1;
            }
        });
        for (const Cell cell : Cells) {
            CellWord &word = WordAt(cell);
            if ((word & ScratchMark1) == 0) {
                word &= ~ScratchMark0;
            }
            word &= ~ScratchMark1;
        }
    }
}

void SelectCommonDomain(bool withSelected, std::string_view message)
{
    if (!HasSelection(message)) {
        return;
    }
    ClearCellBits(ScratchMark0 | ScratchMark1);
    MarkCommonDomain(withSelected);
    ClearCellBits(SelectedBit);
    SelectMarked();
    DrawBoard();
}

} // namespace

void mnuSelectColumn()
{
    SelectHouses(HouseKind::Column, "column(s)");
}

void mnuSelectRow()
{
    SelectHouses(HouseKind::Row, "row(s)");
}

void mnuSelectBox()
{
    SelectHouses(HouseKind::Box, "box(es)");
}

void mnuSelectDomain()
{
    if (!HasSelection(MessageFor("domain(s)"))) {
        return;
    }
    // Marked first and selected afterwards, so that cells taken in don't spread further.
    ClearCellBits(ScratchMark0);
    for (const Cell cell : Cells) {
        if (IsSelected(cell)) {
            ForDomain(cell, [](CellWord &word) { word |= ScratchMark0; });
        }
    }
    SelectMarked();
    DrawBoard();
}

void mnuSelectPeers()
{
    SelectCommonDomain(false, MessageFor("peers (or mutual peers)"));
}

void mnuSelectIntersection()
{
    // The message speaks of two, yet one selected cell will do; intended.
    SelectCommonDomain(true, "Please select two or more cells to indicate which domain "
                             "intersections you'd like to select.");
}

void mnuSelectWholeGrid()
{
    for (const Cell cell : Cells) {
        WordAt(cell) |= SelectedBit;
    }
    DrawBoard();
}

} // namespace kelvarine
