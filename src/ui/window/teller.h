// What happens in the main window is told to assistive tools: the cell that has the attention, the
// selection, and words of what the player did or what came of it.
#pragma once

#include <QString>

namespace kelvarine {

// Something may have changed: when assistive tools listen it is told once, at the next turn of the
// event loop. Costs nothing when nobody listens.
void TellChanges();

// The keyboard comes to the board: where the player is there is told as a change, in place of the
// toolkit's word that he is at the table.
void TellArrival();

// What came of the player's last step, told by the place that it led to and not apart: words such
// as "2 cells selected" for the description of the cell, or of the board where he is at no cell.
// Empty after what was told without a step.
const QString &WordsOfStep();

} // namespace kelvarine
