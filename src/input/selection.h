// The commands that grow the selection by house. They push no undo state: a selection is part of
// the words, but no step of the game.
#pragma once

namespace kelvarine {

// Each column, row or box that holds a selected cell becomes wholly selected; each selected cell's
// domain does. With no cell selected a message asks for one and nothing changes.
void mnuSelectColumn();
void mnuSelectRow();
void mnuSelectBox();
void mnuSelectDomain();

// The selection is replaced by the cells that see every selected cell without being among them.
void mnuSelectPeers();

// The selection is replaced by what the domains of the selected cells have in common.
void mnuSelectIntersection();

// All 81 cells become selected.
void mnuSelectWholeGrid();

} // namespace kelvarine
