// Turning and reflecting the whole board. The words move as they are, so candidates, givens, the
// solution, selection, colours and marks all travel with their cell, and a chain on view goes
// along.
#pragma once

namespace kelvarine {

// Each is one undo level. Start position and snapshot keep their orientation; nothing is rated,
// scanned or asked.
void mnuRotateGrid90Left(); // the top left cell goes to the bottom left corner
void mnuRotateGrid90Right();
void mnuMirrorGrid(); // left and right change places
void mnuFlipGrid();   // top and bottom change places

} // namespace kelvarine
