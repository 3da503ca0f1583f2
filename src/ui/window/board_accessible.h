// The board as assistive tools see it: a table of 81 cells with their words, of which one has the
// player's attention.
#pragma once

namespace kelvarine {

// Makes the toolkit describe the board widget this way. Further calls do nothing.
void DescribeBoardToTools();

// Tells listening tools when the cell that has the attention, or what it shows, has changed. Cheap
// when nobody listens.
void AnnounceBoard();

} // namespace kelvarine
