// When the keyboard comes to the board the toolkit tells assistive tools that it is at the table. A
// screen reader would read the table and then the cell that the program tells of; so the toolkit's
// word is left out.
#pragma once

namespace kelvarine {

// The next event of the toolkit that has the keyboard at the table goes to nobody.
void LeaveOutTableFocus();

// From here on all events go their way again. Whether one was left out.
bool TableFocusWasLeftOut();

} // namespace kelvarine
