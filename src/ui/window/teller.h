// What happens in the main window is told to assistive tools: the cell that has the attention, the
// selection, and words of what the player did or what came of it.
#pragma once

namespace kelvarine {

// Something may have changed: when assistive tools listen it is told once, at the next turn of the
// event loop. Costs nothing when nobody listens.
void TellChanges();

} // namespace kelvarine
